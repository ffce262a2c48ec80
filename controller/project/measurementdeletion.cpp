#include "controller/project/measurementdeletion.h"

#include "controller/logging.h"
#include "controller/occupancy.h"
#include "controller/project/deletionquestion.h"
#include "controller/recording/projectedits.h"
#include "controller/recording/recorder.h"
#include "model/edit/editscope.h"
#include "model/model.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/window/prompts/questions.h"
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
    // Carried out as shown: measurements that are recorded while the question is open were not asked about.
    const DeletionPlan plan = planDeletion(range, measurementCount(m_desk.model));
    const QString question = tr("Folgende Datensätze werden gelöscht:\n") + range + QLatin1String("\n\n")
                             + DeletionQuestion::details(plan, range, m_desk.model);
    if (!m_desk.occupancy.ask([&] { return m_desk.view.questions().yesNoDestructive(tr("Daten löschen"), question); }))
        return;
    // Not a ChangeScope: after a malformed part the signals stay blocked, see breakOff().
    m_desk.model.blockSignals(true);
    const int removed = removeAsOneStep(plan);
    if (removed > 0)
        m_edits.markModified(); // also if a later part is malformed
    if (plan.malformed)
        breakOff(range);
    else
        finish();
}

int MeasurementDeletion::removeAsOneStep(const DeletionPlan &plan)
{
    const EditScope edit(&m_desk.model, [] { return deletionText(1); });
    const int removed = remove(plan);
    edit.setText([removed] { return deletionText(removed); });
    return removed;
}

/// Returns how many measurements were removed.
int MeasurementDeletion::remove(const DeletionPlan &plan)
{
    int removed = 0;
    for (const DeletionPlan::Step &step : plan.steps) {
        removed += remove(step);
        qCDebug(lcController).noquote().nospace() << "numRemoved=" << removed << " (part=" << step.part.text << ")";
    }
    if (plan.malformed)
        qCDebug(lcController).noquote().nospace()
            << "syntax error in range!!  (range=" << plan.malformed->pieces.join(QLatin1Char(',')) << ")";
    return removed;
}

/// All at once, which leaves the same measurements as deleting the first one again and again.
int MeasurementDeletion::remove(const DeletionPlan::Step &step)
{
    const int removed = step.removed.isEmpty() ? 0 : m_desk.model.deleteChannels(step.first, step.removed.size());
    if (removed < step.wanted)
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
    if (m_desk.occupancy.refuseWhileOccupied())
        return;
    const int count = measurementCount(m_desk.model);
    if (!m_desk.occupancy.ask(
            [&] { return m_desk.view.questions().toClearData(DeletionQuestion::detailsOfAll(count)); }))
        return;
    m_desk.model.blockSignals(false);
    const EditScope edit(&m_desk.model, [] { return tr("Löschen aller Messdaten"); });
    m_desk.model.setFileList({}); // what was imported can be imported again
    m_desk.model.clearData();
    m_recorder.forgetSeries(); // a recording that runs begins another measurement
    m_edits.markModified();
}
