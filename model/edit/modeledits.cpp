#include "model/edit/modeledits.h"

#include "model/arrayindex.h"
#include "model/edit/editlistener.h"
#include "model/modelchanges.h"
#include "model/project/project.h"

#include <QDebug>

#include <algorithm>
#include <utility>

namespace {

bool haveOneInCommon(const ShotIds &a, const ShotIds &b)
{
    for (std::size_t sensor = 0; sensor < a.size(); ++sensor)
        if (a[sensor] != 0 && a[sensor] == b[sensor])
            return true;
    return false;
}

} // namespace

ModelEdits::ModelEdits(Project &project, ImportedFiles &imported, ModelChanges &changes)
    : m_project(project)
    , m_imported(imported)
    , m_changes(changes)
{}

void ModelEdits::begin(EditText text, const QString &mergeKey)
{
    if (m_depth++ > 0 || !m_listener)
        return;
    m_growing.emplace();
    m_growing->text = std::move(text);
    m_growing->mergeKey = mergeKey;
    m_growing->before = EditState::of(m_project, m_imported);
    m_project.notes = &m_growing->notes;
}

void ModelEdits::rename(EditText text)
{
    if (m_depth == 1 && m_growing)
        m_growing->text = std::move(text);
}

void ModelEdits::end()
{
    if (--m_depth > 0 || !m_growing)
        return;
    m_project.notes = nullptr;
    EditStep step = *std::exchange(m_growing, std::nullopt);
    step.after = EditState::of(m_project, m_imported);
    if (m_listener && !step.isNothing())
        m_listener->stepMade(std::move(step));
}

void ModelEdits::forgetProject()
{
    m_project.notes = nullptr;
    m_growing.reset();
    if (m_listener)
        m_listener->projectReplaced();
}

void ModelEdits::toggle(EditStep &step, const ShotIds &untouched)
{
    const EditState &from = step.isDone ? step.after : step.before;
    const EditState &to = step.isDone ? step.before : step.after;
    EditState state = EditState::of(m_project, m_imported);
    state.takeDifferences(from, to);
    state.applyTo(m_project, m_imported);
    toggleLabels(step);
    toggleShots(step, untouched);
    step.isDone = !step.isDone;
    m_changes.project(Q_FUNC_INFO);
    if (!step.notes.shots.empty())
        m_changes.data(Q_FUNC_INFO);
    if (!from.hasSameView(to))
        m_changes.viewData();
}

void ModelEdits::toggleShots(EditStep &step, const ShotIds &untouched)
{
    // Backwards in the reverse order, so that each index means the same place as before.
    std::vector<ShotChange> &changes = step.notes.shots;
    if (step.isDone)
        std::reverse(changes.begin(), changes.end());
    ShotChanges alike; // those that follow each other and all put back or all take out
    bool putsBack = false;
    const auto toggleAlike = [&] {
        putsBack ? m_project.putBack(alike) : m_project.takeOut(alike);
        alike.clear();
    };
    for (ShotChange &change : changes) {
        if ((change.isRemoval == step.isDone) != putsBack)
            toggleAlike();
        putsBack = change.isRemoval == step.isDone;
        if (putsBack || !haveOneInCommon(change.shot.ids, untouched))
            alike.push_back(&change);
    }
    toggleAlike();
    if (step.isDone)
        std::reverse(changes.begin(), changes.end());
}

void ModelEdits::toggleLabels(const EditStep &step)
{
    for (const LabelChange &change : step.notes.labels) {
        const int shot = m_project.indexOf(change.ids);
        if (shot >= 0)
            m_project.meta.setLabel(shot, step.isDone ? change.before : change.after);
    }
}
