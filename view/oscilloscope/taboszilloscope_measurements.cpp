#include "plots/oscilloscope/osziwidget.h"
#include "view/common/logging.h"
#include "view/oscilloscope/measurementrange.h"
#include "view/oscilloscope/oszirowcontrols.h"
#include "view/oscilloscope/taboszilloscope_p.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>

namespace {

/// Calls of a turn of the event loop that act at once; those that follow in the same turn wait for its end.
constexpr int kImmediateGrowths = 8;

} // namespace

// --- What the model holds ---

int TabOszilloscope::Private::measurementCount() const
{
    return model ? model->numChannels(0) : 0;
}

int TabOszilloscope::Private::slotCount() const
{
    int count = 0;
    for (int position = 0; model && position < kNumSensors; ++position)
        count = std::max(count, model->numChannels(position));
    return std::min(count, OsziWidget::kNumSlots);
}

void TabOszilloscope::Private::pointRow(int position)
{
    OsziWidget *plot = rows.at(static_cast<size_t>(position))->plot();
    plot->clearCurves();
    const int count = model->numChannels(position);
    for (int i = 0; i < std::min(count, OsziWidget::kNumSlots); ++i)
        plot->setCurve(i, model->measurement(position, i), Qt::black, true);
    plot->highlightSingle(count - 1);
    plot->update();
}

void TabOszilloscope::pointSlotsAtModel()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (!d->model) {
        qCDebug(lcView) << "model is NULL !!!";
        return;
    }
    const QSignalBlocker blocker(this);
    d->takeStructure();
}

void TabOszilloscope::Private::takeStructure()
{
    seenRevision = model->structureRevision();
    pointed = true;
    for (int position = 0; position < kNumSensors; ++position)
        pointRow(position);
    longest = 0;
    for (int i = 0; i < std::min(measurementCount(), OsziWidget::kNumSlots); ++i)
        longest = std::max(longest, static_cast<int>(model->measurement(0, i)->size()));
    if (!allMeasurements->isChecked())
        applyFilter();
    if (yCorrection->isChecked())
        applyYCorrection();
    const QSignalBlocker blocker(highlight);
    highlight->setMaximum(measurementCount());
    highlight->setValue(measurementCount());
    showCounter();
    updateEnabled();
    q->updateOsziSlider();
}

void TabOszilloscope::clearSlots()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->pointed = false;
    d->longest = 0;
    for (const OsziRow *row : d->rows) {
        row->plot()->clearCurves();
        row->plot()->hideMouseMarker();
        row->plot()->update();
    }
}

void TabOszilloscope::onModel_dataChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (!d->model) {
        qCDebug(lcView) << "model is NULL !!!";
        return;
    }
    const QSignalBlocker blocker(this);
    if (!d->pointed || d->seenRevision != d->model->structureRevision())
        d->takeStructure();
    else
        d->noteGrowth();
}

void TabOszilloscope::Private::noteGrowth()
{
    if (!turnEndQueued) {
        turnEndQueued = true;
        growthsThisTurn = 0;
        QMetaObject::invokeMethod(
            q, [this] { endTurn(); }, Qt::QueuedConnection);
    }
    if (growthsThisTurn < kImmediateGrowths) {
        ++growthsThisTurn;
        takeGrowth();
    } else {
        growthPending = true;
    }
}

void TabOszilloscope::Private::endTurn()
{
    turnEndQueued = false;
    if (growthPending && model && pointed && seenRevision == model->structureRevision())
        takeGrowth();
    growthPending = false;
}

void TabOszilloscope::Private::takeGrowth()
{
    growthPending = false;
    for (const OsziRow *row : rows)
        row->plot()->samplesAppended();
    correctNewest();
    const QScopedValueRollback<bool> grows(growing, true);
    q->updateOsziSlider();
}

void TabOszilloscope::Private::showCounter()
{
    const int count = measurementCount();
    const bool tooMany = count > OsziWidget::kNumSlots;
    counter->setText(QString::number(count));
    counter->setToolTip(tooMany ? TabOszilloscope::tr("Dargestellt werden die Messungen 1 bis %1. Alle weiteren werden "
                                                      "aufgezeichnet und gespeichert, aber nicht gezeichnet.")
                                      .arg(OsziWidget::kNumSlots)
                                : QString());
    counterCaption->setText(tooMany ? TabOszilloscope::tr("Messungen (%1 gezeigt)").arg(OsziWidget::kNumSlots)
                                    : TabOszilloscope::tr("Messungen"));
}

// --- Which of them are shown ---

void TabOszilloscope::Private::hideAll()
{
    for (const OsziRow *row : rows)
        row->plot()->setAllEnabled(false);
}

void TabOszilloscope::Private::showSlots(const QVector<int> &indices)
{
    for (const OsziRow *row : rows) {
        for (int index : indices)
            row->plot()->setEnabled(index, true);
        row->plot()->update();
    }
}

void TabOszilloscope::Private::applyFilter()
{
    appliedFilter = displayed->text();
    hideAll();
    showSlots(shownMeasurements(appliedFilter, slotCount()));
    // The highlighted shot stays in sight, whatever the text says: while recording it is the one that matters.
    for (const OsziRow *row : rows) {
        const int index = row->plot()->highlighted();
        if (index >= 0 && index < OsziWidget::kNumSlots)
            row->plot()->setEnabled(index, true);
    }
}

void TabOszilloscope::displayAllMeas(bool state)
{
    qCDebug(lcView) << Q_FUNC_INFO << "state=" << state;
    const QSignalBlocker blocker(d->allMeasurements);
    d->allMeasurements->setChecked(state);
    if (state) {
        for (const OsziRow *row : d->rows)
            row->plot()->setAllEnabled(true);
    } else {
        d->applyFilter();
    }
}

void TabOszilloscope::displayedMeasChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    // The field also reports that it lost the focus: unless it was edited, all measurements stay shown then.
    const bool unchanged = d->displayed->text() == d->appliedFilter;
    if (sender() == d->displayed && d->allMeasurements->isChecked() && unchanged)
        return;
    const QSignalBlocker blockEdit(d->displayed); // losing the focus would end the editing once more
    d->displayed->clearFocus();
    const QSignalBlocker blockBox(d->allMeasurements);
    d->allMeasurements->setChecked(false);
    d->appliedFilter = d->displayed->text();
    d->hideAll();
    d->showSlots(shownMeasurements(d->appliedFilter, d->slotCount()));
}

void TabOszilloscope::highlightBoxChanged(int measurement)
{
    qCDebug(lcView) << Q_FUNC_INFO << "measurement=" << measurement;
    for (const OsziRow *row : d->rows)
        row->plot()->highlightSingle(measurement - 1);
    if (!d->allMeasurements->isChecked())
        d->applyFilter();
}

// --- y correction: every curve passes through zero at one time ---

void TabOszilloscope::autoYCorrectionClicked()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->applyYCorrection();
}

void TabOszilloscope::autoYCorrectionSpinBoxChanged(int milliseconds)
{
    qCDebug(lcView) << Q_FUNC_INFO << "milliseconds=" << milliseconds;
    d->yCorrectionTime->showValue(milliseconds);
    if (d->yCorrection->isChecked())
        d->applyYCorrection();
}

void TabOszilloscope::Private::applyYCorrection()
{
    const int time = yCorrectionTime->value();
    uncorrectedNewest = -1;
    for (const OsziRow *row : rows) {
        row->plot()->clearChannelOffsets(); // a curve that ends before that time keeps no older shift
        if (yCorrection->isChecked())
            row->plot()->setAutoChannelOffsets(time);
    }
    const int newest = measurementCount() - 1;
    if (yCorrection->isChecked() && newest >= 0 && newest < OsziWidget::kNumSlots
        && model->measurement(0, newest)->size() <= time / clock)
        uncorrectedNewest = newest;
}

void TabOszilloscope::Private::correctNewest()
{
    if (uncorrectedNewest < 0)
        return;
    const SampleList *last = model->measurement(kNumSensors - 1, uncorrectedNewest);
    if (!last || last->size() <= yCorrectionTime->value() / clock)
        return;
    for (const OsziRow *row : rows)
        row->plot()->setAutoChannelOffset(uncorrectedNewest, yCorrectionTime->value());
    uncorrectedNewest = -1;
}

// --- Deletion ---

void TabOszilloscope::onDeleteMeasurementClicked()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    const QString range = d->deletion->text();
    if (range.simplified().isEmpty()) {
        d->deletion->setFocus(Qt::OtherFocusReason);
        return;
    }
    qCDebug(lcView) << "emit deleteMeasurements(QString)"
                    << "range=" << range;
    emit deleteMeasurements(range);
}

void TabOszilloscope::clearDeletionField()
{
    d->deletion->clear();
}
