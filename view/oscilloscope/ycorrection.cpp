#include "view/oscilloscope/ycorrection.h"

#include "plots/oscilloscope/osziwidget.h"
#include "view/oscilloscope/oszirows.h"
#include "view/oscilloscope/slotpointer.h"
#include "view/oscilloscope/ycorrectionbox.h"

YCorrection::YCorrection(OsziRows &rows, YCorrectionBox &box, const SlotPointer &pointer)
    : m_rows(rows)
    , m_box(box)
    , m_pointer(pointer)
{}

void YCorrection::apply()
{
    m_uncorrectedNewest = -1;
    for (OsziWidget *plot : m_rows.plots()) {
        plot->clearChannelOffsets(); // a curve that ends before that time keeps no older shift
        if (m_box.isOn())
            plot->setAutoChannelOffsets(m_box.time());
    }
    const int newest = m_pointer.measurementCount() - 1;
    if (m_box.isOn() && newest >= 0 && newest < OsziWidget::kNumSlots && !reachesTime(0, newest))
        m_uncorrectedNewest = newest;
}

void YCorrection::applyIfOn()
{
    if (m_box.isOn())
        apply();
}

void YCorrection::setTime(int milliseconds)
{
    m_box.showTime(milliseconds);
    applyIfOn();
}

void YCorrection::takeGrowth()
{
    // The last row gets its sample of a line last: once it is there, all rows have theirs.
    if (m_uncorrectedNewest < 0 || !reachesTime(kNumSensors - 1, m_uncorrectedNewest))
        return;
    for (OsziWidget *plot : m_rows.plots())
        plot->setAutoChannelOffset(m_uncorrectedNewest, m_box.time());
    m_uncorrectedNewest = -1;
}

bool YCorrection::reachesTime(int position, int slot) const
{
    const SampleList *samples = m_rows.plot(position)->curve(slot);
    return samples && samples->size() > m_box.time() / m_rows.clock();
}
