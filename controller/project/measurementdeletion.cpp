#include "controller/project/measurementdeletion.h"

#include "controller/logging.h"
#include "controller/occupancy.h"
#include "controller/recording/projectedits.h"
#include "controller/recording/recorder.h"
#include "model/edit/editscope.h"
#include "model/model.h"
#include "view/common/measurementrange.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/window/view.h"

#include <algorithm>

namespace {

QString deletionText(int count)
{
    return count == 1 ? MeasurementDeletion::tr("Löschen einer Messung")
                      : MeasurementDeletion::tr("Löschen von %1 Messungen").arg(count);
}

int measurementCount(const Model &model)
{
    int count = 0;
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        count = std::max(count, model.numChannels(sensor));
    return count;
}

} // namespace

MeasurementDeletion::MeasurementDeletion(const Desk &desk, ProjectEdits &edits, Recorder &recorder)
    : m_desk(desk)
    , m_edits(edits)
    , m_recorder(recorder)
{}

void MeasurementDeletion::deleteRange(const QString &range)
{
    if (m_desk.occupancy.refuseWhileOccupied())
        return;
    const QString question = tr("Folgende Datensätze werden gelöscht:\n") + range;
    if (!m_desk.occupancy.ask([&] { return m_desk.view.askYesNo(tr("Daten löschen"), question); }))
        return;
    // Not a ChangeScope: after a malformed part the signals stay blocked, see breakOff().
    m_desk.model.blockSignals(true);
    const Result result = removeAsOneStep(range);
    if (result.removed > 0)
        m_edits.markModified(); // also if a later part is malformed
    if (result.complete)
        finish();
    else
        breakOff(range);
}

MeasurementDeletion::Result MeasurementDeletion::removeAsOneStep(const QString &range)
{
    const EditScope edit(&m_desk.model, [] { return deletionText(1); });
    const Result result = removeParts(range);
    edit.setText([count = result.removed] { return deletionText(count); });
    return result;
}

MeasurementDeletion::Result MeasurementDeletion::removeParts(const QString &range)
{
    Result result;
    const QVector<RangePart> parts = parseMeasurementRange(range);
    for (const RangePart &part : parts) {
        if (!part.isSingle() && !part.isSpan()) {
            qCDebug(lcController).noquote().nospace()
                << "syntax error in range!!  (range=" << part.pieces.join(QLatin1Char(',')) << ")";
            result.complete = false;
            break;
        }
        const qint64 first = part.numbers.constFirst();
        const qint64 last = part.numbers.constLast();
        result.removed += remove(first - 1 - result.removed, last - first + 1);
        qCDebug(lcController).noquote().nospace() << "numRemoved=" << result.removed << " (part=" << part.text << ")";
    }
    return result;
}

/// Deletes `count` measurements from index `first` on; returns how many existed. Goes from the last one down, which
/// leaves the same measurements as deleting `first` again and again, but moves each of those behind only once.
int MeasurementDeletion::remove(qint64 first, qint64 count)
{
    if (count <= 0)
        return 0; // a span that runs backwards
    const qint64 existing = first < 0 ? 0 : std::clamp<qint64>(measurementCount(m_desk.model) - first, 0, count);
    int removed = 0;
    for (qint64 index = first + existing - 1; index >= first && existing > 0; --index) {
        if (!m_desk.model.deleteChannel(static_cast<int>(index)))
            continue;
        ++removed;
    }
    if (removed < count)
        qCDebug(lcController) << "model::deleteChannel returned false!!";
    return removed;
}

void MeasurementDeletion::finish()
{
    m_desk.model.blockSignals(false);
    m_desk.model.emitDataChanged();
    m_desk.view.tabOszi()->clearDeletionField();
}

/// Announces nothing, and the model's signals stay blocked until the next action or sample opens them. The curves are
/// re-pointed here; the removed samples are kept until the next announced change, as other plots may point at them.
void MeasurementDeletion::breakOff(const QString &range)
{
    m_desk.view.tabOszi()->pointSlotsAtModel();
    m_desk.view.showStatus(tr("Fehler im Bereich \"%1\": ab dort wurde nichts gelöscht.").arg(range));
}

void MeasurementDeletion::deleteAll()
{
    if (m_desk.occupancy.refuseWhileOccupied()
        || !m_desk.occupancy.ask([this] { return m_desk.view.askToClearData(); }))
        return;
    m_desk.model.blockSignals(false);
    const EditScope edit(&m_desk.model, [] { return tr("Löschen aller Messdaten"); });
    m_desk.model.setFileList({}); // what was imported can be imported again
    m_desk.model.clearData();
    m_recorder.forgetSeries(); // a recording that runs begins another measurement
    m_edits.markModified();
}
