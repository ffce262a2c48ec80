#include "view/oscilloscope/slotpointer.h"

#include "model/model.h"
#include "plots/oscilloscope/osziwidget.h"
#include "view/oscilloscope/oszirows.h"

#include <QScopedValueRollback>

#include <algorithm>

namespace {

/// Growths in one turn of the event loop that act at once; those that follow in the same turn wait for its end.
constexpr int kImmediateGrowths = 8;

} // namespace

SlotPointer::SlotPointer(OsziRows &rows, QObject *parent)
    : QObject(parent)
    , m_rows(rows)
{}

void SlotPointer::setModel(const Model *model)
{
    m_model = model;
    m_pointed = false;
}

// --- Pointing ---

void SlotPointer::pointAtModel()
{
    m_revision = m_model->structureRevision();
    m_pointed = true;
    for (int position = 0; position < kNumSensors; ++position)
        pointRow(position);
    m_longest = 0;
    for (int i = 0; i < std::min(measurementCount(), OsziWidget::kNumSlots); ++i)
        m_longest = std::max(m_longest, static_cast<int>(m_model->measurement(0, i)->size()));
    emit slotsPointed();
}

void SlotPointer::pointRow(int position)
{
    OsziWidget *plot = m_rows.plot(position);
    plot->clearCurves();
    const int count = m_model->numChannels(position);
    for (int i = 0; i < std::min(count, OsziWidget::kNumSlots); ++i)
        plot->setCurve(i, m_model->measurement(position, i), Qt::black, true);
    plot->highlightSingle(count - 1);
    plot->update();
}

void SlotPointer::clear()
{
    m_pointed = false;
    m_longest = 0;
    for (OsziWidget *plot : m_rows.plots()) {
        plot->clearCurves();
        plot->hideMouseMarker();
        plot->update();
    }
}

// --- Growing ---

bool SlotPointer::isUpToDate() const
{
    return m_model && m_pointed && m_revision == m_model->structureRevision();
}

void SlotPointer::takeChange()
{
    if (isUpToDate())
        noteGrowth();
    else
        pointAtModel();
}

void SlotPointer::noteGrowth()
{
    if (!m_turnEndQueued) {
        m_turnEndQueued = true;
        m_growthsThisTurn = 0;
        // Not a timer: a queued call comes before the repaint of this turn, which then shows everything.
        QMetaObject::invokeMethod(this, &SlotPointer::endTurn, Qt::QueuedConnection);
    }
    if (m_growthsThisTurn < kImmediateGrowths) {
        ++m_growthsThisTurn;
        takeGrowth();
    } else {
        m_growthPending = true;
    }
}

void SlotPointer::endTurn()
{
    m_turnEndQueued = false;
    if (m_growthPending && isUpToDate())
        takeGrowth();
    m_growthPending = false;
}

void SlotPointer::takeGrowth()
{
    m_growthPending = false;
    for (OsziWidget *plot : m_rows.plots())
        plot->samplesAppended();
    const QScopedValueRollback<bool> grows(m_growing, true);
    emit samplesAppended();
}

// --- What there is ---

int SlotPointer::measurementCount() const
{
    return m_model ? m_model->numChannels(0) : 0;
}

int SlotPointer::slotCount() const
{
    int count = 0;
    for (int position = 0; m_model && position < kNumSensors; ++position)
        count = std::max(count, m_model->numChannels(position));
    return std::min(count, OsziWidget::kNumSlots);
}

int SlotPointer::longestCurve() const
{
    if (m_model) {
        // Only the newest measurement grows, so the others need not be asked for every sample.
        const int newest = std::min(m_model->numChannels(0), OsziWidget::kNumSlots) - 1;
        const SampleList *samples = m_pointed ? m_model->measurement(0, newest) : nullptr;
        return std::max(m_longest, samples ? static_cast<int>(samples->size()) : 0);
    }
    int longest = 0;
    for (int slot = 0; slot < OsziWidget::kNumSlots; ++slot) {
        const SampleList *samples = m_rows.plot(0)->curve(slot);
        longest = std::max(longest, samples ? static_cast<int>(samples->size()) : 0);
    }
    return longest;
}
