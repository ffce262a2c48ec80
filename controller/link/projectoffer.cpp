#include "controller/link/projectoffer.h"

#include "controller/deferredquestions.h"
#include "controller/occupancy.h"
#include "controller/recording/linehold.h"
#include "controller/recording/projectedits.h"
#include "model/edit/editscope.h"
#include "model/model.h"
#include "view/window/view.h"

namespace {

// How long no other description must follow before the user is asked, in ms: a box that describes its project again and
// again asks once.
constexpr int kSettled = 100;

} // namespace

ProjectOffer::ProjectOffer(const Desk &desk, DeferredQuestions &questions, LineQueue &lines, ProjectEdits &edits)
    : m_desk(desk)
    , m_questions(questions)
    , m_lines(lines)
    , m_edits(edits)
{}

void ProjectOffer::receive(const ReceivedProject &project)
{
    m_questions.put(
        Question::ReceivedProject, [this, project] { ask(project); }, kSettled);
}

void ProjectOffer::ask(const ReceivedProject &project)
{
    const LineHold hold(m_lines);
    const QString question =
        tr("Soll die aktuelle Projektbeschreibung durch die empfangenen Daten überschrieben werden?");
    if (m_desk.occupancy.ask([&] { return m_desk.view.askYesNo(tr("Projektbeschreibung empfangen"), question); }))
        apply(project);
}

void ProjectOffer::apply(const ReceivedProject &project)
{
    m_desk.model.blockSignals(false);
    const EditScope edit(&m_desk.model, [] { return tr("Übernahme der Projektbeschreibung"); });
    m_desk.model.setProjectData(project.data);
    for (int phase = 0; phase < kNumCyclePhases; ++phase)
        m_desk.model.setPhaseName(phase, project.phases[static_cast<std::size_t>(phase)]);
    m_edits.markModified();
}
