#include "view/oscilloscope/shotfilter.h"

#include "plots/oscilloscope/osziwidget.h"
#include "view/common/measurementrange.h"
#include "view/oscilloscope/oszirows.h"
#include "view/oscilloscope/shotbar.h"
#include "view/oscilloscope/slotpointer.h"

ShotFilter::ShotFilter(OsziRows &rows, ShotBar &bar, const SlotPointer &pointer)
    : m_rows(rows)
    , m_bar(bar)
    , m_pointer(pointer)
{}

void ShotFilter::setAll(bool all)
{
    m_bar.setAllDisplayed(all);
    if (!all) {
        showTypedAndHighlighted();
        return;
    }
    for (OsziWidget *plot : m_rows.plots())
        plot->setAllEnabled(true);
}

void ShotFilter::takeTyped(bool fromField)
{
    // A field that was not edited and only loses the focus leaves all measurements shown.
    if (fromField && m_bar.allDisplayed() && m_bar.displayedText() == m_applied)
        return;
    m_bar.leaveDisplayed();
    m_bar.setAllDisplayed(false);
    showTyped();
}

void ShotFilter::highlight(int measurement)
{
    for (OsziWidget *plot : m_rows.plots())
        plot->highlightSingle(measurement - 1);
    reapply();
}

void ShotFilter::reapply()
{
    if (!m_bar.allDisplayed())
        showTypedAndHighlighted();
}

void ShotFilter::showTyped()
{
    m_applied = m_bar.displayedText();
    const QVector<int> indices = shownMeasurements(m_applied, m_pointer.slotCount());
    for (OsziWidget *plot : m_rows.plots())
        plot->setAllEnabled(false);
    for (OsziWidget *plot : m_rows.plots()) {
        for (int index : indices)
            plot->setEnabled(index, true);
        plot->update();
    }
}

void ShotFilter::showTypedAndHighlighted()
{
    showTyped();
    // The highlighted shot stays in sight, whatever the text says: while recording it is the one that matters.
    for (OsziWidget *plot : m_rows.plots()) {
        const int index = plot->highlighted();
        if (index >= 0 && index < OsziWidget::kNumSlots)
            plot->setEnabled(index, true);
    }
}
