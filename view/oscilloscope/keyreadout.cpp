#include "view/oscilloscope/keyreadout.h"

#include "plots/oscilloscope/osziwidget.h"
#include "view/oscilloscope/oszirowinput.h"
#include "view/oscilloscope/oszirows.h"
#include "view/oscilloscope/slotpointer.h"

#include <algorithm>
#include <utility>

KeyReadOut::KeyReadOut(const OsziRows &rows, const SlotPointer &pointer, QObject *parent)
    : QObject(parent)
    , m_rows(rows)
    , m_pointer(pointer)
{
    for (int position = 0; position < kNumSensors; ++position) {
        connect(rows.input(position), &OsziRowInput::readOutStepped, this, &KeyReadOut::step);
        connect(rows.input(position), &OsziRowInput::readOutEnded, this, &KeyReadOut::end);
    }
}

void KeyReadOut::step(int samples)
{
    const PlotGeometry geometry = m_rows.plots().front()->plotGeometry();
    const int inSight = std::min(m_rows.visibleSamples(), m_pointer.longestCurve() - geometry.startIndex);
    const int last = std::max(inSight - 1, 0); // the curves may end left of what is in sight
    m_sample = std::clamp(m_sample < 0 ? last / 2 : m_sample + samples, 0, last);
    emit pointedAt(geometry.xOfSample(qint64(geometry.startIndex) + m_sample));
}

void KeyReadOut::end()
{
    if (std::exchange(m_sample, -1) >= 0)
        emit ended();
}
