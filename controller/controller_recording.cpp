#include "controller/controller.h"
#include "controller/controller_p.h"
#include "controller/logging.h"
#include "model/model.h"
#include "view/oscilloscope/measurementrange.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/window/view.h"

#include <QDateTime>

#include <algorithm>

namespace {

int measurementCount(const Model &model)
{
    int count = 0;
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        count = std::max(count, model.numChannels(sensor));
    return count;
}

double secondsOfNewestSample(const Model &model, int measurement)
{
    const SampleList *samples = model.measurement(0, measurement);
    return samples && !samples->isEmpty() ? (samples->size() - 1) * (model.clock() / 1000.0) : 0.0;
}

} // namespace

// --- Start, stop, samples --------------------------------------------------------------------------------------

void Controller::onActionStartStopRecording()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (refuseWhileOccupied())
        return;
    if (d->recordingRunning) {
        d->connector.stopMeasurement();
        d->model->endRecording();
    } else {
        d->connector.startMeasurement();
    }
    if (!d->connector.isConnected())
        d->view->showStatus(tr("Keine Verbindung zur Mesotra Hardware."));
}

void Controller::startRecording()
{
    const bool wasRunning = d->recordingRunning;
    d->recordingRunning = true;
    d->view->setRecordingRunning(true);
    // An echo that comes twice must not leave an empty shot behind.
    if (wasRunning && d->series.isEmpty(*d->model))
        return;
    beginMeasurement();
}

void Controller::stopRecording()
{
    d->recordingRunning = false;
    d->view->setRecordingRunning(false);
}

void Controller::beginMeasurement()
{
    for (int position = 0; position < kNumSensors; ++position)
        d->series.setIndex(position, d->model->appendMeasurement(position));
    d->model->setTimestamp(d->series.index(0), QDateTime::currentDateTime());
    d->view->tabOszi()->pointSlotsAtModel();
    markModified();
    d->model->blockSignals(false);
    d->model->emitDataChanged();
}

/// Where every change of the project that the user or the box makes ends up, but for the settings of the evaluation.
void Controller::markModified()
{
    // Once is enough for all samples of a recording; but a file that is being written does not hold this change.
    if (!d->model->isProjectModified() || d->model->isBusy())
        d->model->setProjectModifiedFlag(true);
}

void Controller::handleValueMessage(const QString &message)
{
    if (lcController().isDebugEnabled()) {
        qCDebug(lcController).nospace() << Q_FUNC_INFO << " message=" << message
                                        << " ms=" << (d->sinceLastSample.isValid() ? d->sinceLastSample.elapsed() : 0);
        d->sinceLastSample.start();
    }
    const std::optional<SampleLine> sample = parseSampleLine(message, d->valuesInThousandths ? 1000.0 : 1.0);
    if (!sample) {
        qCDebug(lcController) << "received data. ERROR: No List!";
        return;
    }
    // The shot in progress was deleted, or another project took its place: the rest becomes a shot of its own.
    if (d->recordingRunning && !d->series.isComplete(*d->model))
        beginMeasurement();
    d->model->blockSignals(true);
    const bool stored = d->series.append(sample->values, *d->model);
    d->model->blockSignals(false);
    if (stored)
        markModified();
    else if (d->calibrating)
        d->unstoredAnswer = sample;
    d->view->showLiveValues(sample->values, d->boxClock);
    d->view->logSample(secondsOfNewestSample(*d->model, d->series.index(0)), sample->values);
    d->model->emitDataChanged();
}

// --- Calibration -----------------------------------------------------------------------------------------------

void Controller::onActionCalibration()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (refuseWhileOccupied())
        return;
    d->unstoredAnswer.reset();
    if (!d->recordingRunning) {
        if (!d->connector.isConnected())
            d->view->showStatus(tr("Keine Verbindung zur Mesotra Hardware."));
        d->calibrating = true;
        d->connector.calibrate();
        // The answer arrives while the box is up; lines are handled meanwhile.
        d->prompt([this] { d->view->showMessage(tr("Die Sensoren werden kalibriert."), tr("Kalibrierung")); });
        d->calibrating = false;
    }
    calibrateFromLatestValues();
}

void Controller::calibrateFromLatestValues()
{
    d->model->blockSignals(true);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        // Without a shot to land in, the answer itself is the latest value.
        const double latest = d->unstoredAnswer ? d->unstoredAnswer->values[static_cast<std::size_t>(sensor)]
                                                : d->model->latestValue(0, sensor);
        d->model->setOffset(sensor, 0.0 - latest); // never -0.0
    }
    d->model->blockSignals(false);
    markModified();
    d->model->emitProjectChanged();
    d->model->emitDataChanged();
}

// --- Deletion --------------------------------------------------------------------------------------------------

void Controller::onTabOszi_deleteMeasurements(const QString &range)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (refuseWhileOccupied())
        return;
    const QString question = tr("Folgende Datensätze werden gelöscht:\n") + range;
    if (!d->prompt([&] { return d->view->askYesNo(tr("Daten löschen"), question); }))
        return;
    d->model->blockSignals(true);
    finishDeletion(deleteRange(range), range);
}

bool Controller::deleteRange(const QString &range)
{
    int removed = 0;
    const QVector<RangePart> parts = parseMeasurementRange(range);
    for (const RangePart &part : parts) {
        if (!part.isSingle() && !part.isSpan()) {
            qCDebug(lcController).noquote().nospace()
                << "syntax error in range!!  (range=" << part.pieces.join(QLatin1Char(',')) << ")";
            return false;
        }
        const qint64 first = part.numbers.constFirst();
        const qint64 last = part.numbers.constLast();
        removed += deleteMeasurements(first - 1 - removed, last - first + 1);
        qCDebug(lcController).noquote().nospace() << "numRemoved=" << removed << " (part=" << part.text << ")";
    }
    return true;
}

/// Deletes `count` measurements from index `first` on; returns how many existed. Goes from the last one down, which
/// leaves the same measurements as deleting `first` again and again, but moves each of those behind only once.
int Controller::deleteMeasurements(qint64 first, qint64 count)
{
    if (count <= 0)
        return 0; // a span that runs backwards
    const qint64 existing = first < 0 ? 0 : std::clamp<qint64>(measurementCount(*d->model) - first, 0, count);
    int removed = 0;
    for (qint64 index = first + existing - 1; index >= first && existing > 0; --index) {
        if (!d->model->deleteChannel(static_cast<int>(index)))
            continue;
        d->series.measurementRemoved(static_cast<int>(index));
        ++removed;
    }
    if (removed > 0)
        markModified();
    if (removed < count)
        qCDebug(lcController) << "model::deleteChannel returned false!!";
    return removed;
}

void Controller::finishDeletion(bool complete, const QString &range)
{
    if (!complete) {
        // Nobody is told, and the model's signals stay blocked until the next action or sample opens them. The curves
        // are re-pointed here; the removed samples live on until a change is announced again, for whoever else
        // points at them.
        d->view->tabOszi()->pointSlotsAtModel();
        d->view->showStatus(tr("Fehler im Bereich \"%1\": ab dort wurde nichts gelöscht.").arg(range));
        return;
    }
    d->model->blockSignals(false);
    d->model->emitDataChanged();
    d->view->tabOszi()->clearDeletionField();
}

// --- Markers ---------------------------------------------------------------------------------------------------

void Controller::onTabOszi_markerChangedAbsolute(int index, int pos_ms)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    setMarker(index, pos_ms, true);
}

void Controller::onTabOszi_markerChangedRelative(int index, int pos_ms)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    setMarker(index, pos_ms, false);
}

void Controller::setMarker(int index, int pos_ms, bool absolute)
{
    // The tab speaks of time, the model of samples.
    const int sample = std::max(0, qRound(static_cast<double>(pos_ms) / d->model->clock()));
    Model *model = d->model;
    applyEdit([model, index, sample, absolute] {
        if (absolute)
            model->setVerticalMarkerAbsolute(index, sample);
        else
            model->setVerticalMarkerRelative(index, sample);
    });
}

void Controller::onTabOszi_checkBoxMarkerAbsClicked(bool absolute)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    Model *model = d->model;
    applyEdit([model, absolute] { model->setMarkersAbsolute(absolute); });
}

// --- Offsets and ranges ----------------------------------------------------------------------------------------

void Controller::onTabOszi_offsetEdited(int position, double offset)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    Model *model = d->model;
    applyEdit([model, position, offset] { model->setOffset(position, offset); });
}

void Controller::onTabOszi_rangeEdited()
{
    qCDebug(lcController) << Q_FUNC_INFO;
    markModified();
}
