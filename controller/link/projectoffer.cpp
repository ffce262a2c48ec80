#include "controller/link/projectoffer.h"

#include "controller/deferredquestions.h"
#include "controller/occupancy.h"
#include "controller/recording/linehold.h"
#include "controller/recording/projectedits.h"
#include "model/edit/editscope.h"
#include "model/model.h"
#include "view/window/prompts/questions.h"
#include "view/window/view.h"

#include <QLocale>

#include <algorithm>

namespace {

// How long no other description must follow before the user is asked, in ms: a box that describes its project again and
// again asks once.
constexpr int kSettled = 100;
// Descriptions that are not asked about again; a box that alternates between some does not ask for ever.
constexpr std::size_t kMostRemembered = 20;

/// With as many digits as tell it from every other number.
QString numberText(double number)
{
    return QLocale().toString(number, 'g', QLocale::FloatingPointShortest);
}

} // namespace

ProjectOffer::ProjectOffer(const Desk &desk, DeferredQuestions &questions, LineQueue &lines, ProjectEdits &edits)
    : m_desk(desk)
    , m_questions(questions)
    , m_lines(lines)
    , m_edits(edits)
{}

void ProjectOffer::receive(const ReceivedProject &project)
{
    if (isOfInterest(project))
        m_questions.put(
            Question::ReceivedProject, [this, project] { ask(project); }, kSettled);
}

void ProjectOffer::withdraw()
{
    m_questions.drop(Question::ReceivedProject);
}

bool ProjectOffer::isOfInterest(const ReceivedProject &project) const
{
    const Model &model = m_desk.model;
    bool changesPhase = false;
    for (int phase = 0; phase < kNumCyclePhases; ++phase)
        changesPhase = changesPhase || model.phaseName(phase) != project.phases[static_cast<std::size_t>(phase)];
    const auto isSame = [&project](const ReceivedProject &asked) {
        return asked.data == project.data && asked.phases == project.phases;
    };
    return (changesPhase || model.projectData() != project.data)
           && std::none_of(m_asked.begin(), m_asked.end(), isSame);
}

void ProjectOffer::ask(const ReceivedProject &project)
{
    if (!isOfInterest(project)) // any more: another project may have been opened meanwhile
        return;
    const LineHold hold(m_lines);
    const UninvitedQuestions uninvited(m_desk.view.questions());
    m_asked.push_back(project);
    if (m_asked.size() > kMostRemembered)
        m_asked.pop_front();
    if (m_desk.occupancy.ask([&] { return m_desk.view.questions().compare(compared(project)); }))
        apply(project);
}

Comparison ProjectOffer::compared(const ReceivedProject &project) const
{
    const ProjectData &now = m_desk.model.projectData();
    const ProjectData &offered = project.data;
    Comparison comparison;
    comparison.title = tr("Projektbeschreibung empfangen");
    comparison.text = tr("Soll die aktuelle Projektbeschreibung durch die empfangenen Daten überschrieben werden?");
    comparison.currentTitle = tr("Aktuell");
    comparison.offeredTitle = tr("Empfangen");
    const QLocale locale;
    comparison.rows = {
        {tr("Projekt"), now.name, offered.name},
        {tr("Projektnummer"), now.number, offered.number},
        {tr("Bearbeiter"), now.user, offered.user},
        {tr("Datum"), now.date, offered.date},
        {tr("Kunde"), now.customer, offered.customer},
        {tr("Schließkraft [kN]"), locale.toString(now.closingForce), locale.toString(offered.closingForce)},
        {tr("Einspritzzeit [s]"), numberText(now.injectionTime), numberText(offered.injectionTime)},
        {tr("Nachdruckzeit [s]"), numberText(now.pressTime), numberText(offered.pressTime)},
        {tr("Druck [bar]"), locale.toString(now.pressure), locale.toString(offered.pressure)},
    };
    for (int phase = 0; phase < kNumCyclePhases; ++phase)
        comparison.rows.append({tr("Phase %1").arg(phase + 1), m_desk.model.phaseName(phase),
                                project.phases[static_cast<std::size_t>(phase)]});
    return comparison;
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
