#include "model/modelchanges.h"

#include "model/logging.h"
#include "model/shotstore.h"

#include <QDebug>

#include <utility>

ModelChanges::Silence::Silence(ModelChanges &changes)
    : m_changes(changes)
    , m_before(changes.m_noted)
{
    m_changes.openScope();
}

ModelChanges::Silence::~Silence()
{
    m_changes.m_noted = m_before; // without what was noted meanwhile
    (void)m_changes.closeScope(); // nothing is left to announce
}

ModelChanges::ModelChanges(QObject &model, ShotStore &shots)
    : m_model(model)
    , m_shots(shots)
{}

void ModelChanges::appState(const char *function)
{
    qCDebug(lcModel) << function << "emit appStateChanged()";
    noteOrEmit(&Noted::appState, &ModelChanges::appStateChanged);
}

void ModelChanges::project(const char *function)
{
    qCDebug(lcModel) << function << "emit projectChanged()";
    countOne();
    noteOrEmit(&Noted::project, &ModelChanges::projectChanged);
}

void ModelChanges::projectIf(bool changed, const char *function)
{
    if (changed)
        project(function);
}

void ModelChanges::data(const char *function)
{
    qCDebug(lcModel) << function << "emit dataChanged()";
    noteOrEmit(&Noted::data, &ModelChanges::dataChanged);
    discardRemoved();
}

void ModelChanges::viewData()
{
    noteOrEmit(&Noted::viewData, &ModelChanges::viewDataChanged);
}

// Whoever blocks the signals of the data must not leave a window that takes a saved project for a modified one.
void ModelChanges::fileState()
{
    const bool blocked = m_model.blockSignals(false);
    noteOrEmit(&Noted::fileState, &ModelChanges::fileStateChanged);
    m_model.blockSignals(blocked);
}

void ModelChanges::opened(const char *function)
{
    // Not by project() and data(), whose log lines have another text.
    countOne();
    qCDebug(lcModel) << function << "emitting projectChanged()";
    noteOrEmit(&Noted::project, &ModelChanges::projectChanged);
    qCDebug(lcModel) << function << "emitting dataChanged()";
    noteOrEmit(&Noted::data, &ModelChanges::dataChanged);
    qCDebug(lcModel) << function << "emitting viewDataChanged()";
    viewData();
    fileState();
    discardRemoved();
}

void ModelChanges::noteOrEmit(bool Noted::*change, void (ModelChanges::*changed)())
{
    if (m_scopes > 0)
        m_noted.*change = true;
    else
        emit(this->*changed)();
}

// Receivers re-point in their slots, so nothing points at removed samples now, unless the signal was held back.
void ModelChanges::discardRemoved()
{
    if (m_scopes == 0 && !m_model.signalsBlocked())
        m_shots.discardRemoved();
}

ModelChanges::Noted ModelChanges::closeScope()
{
    if (--m_scopes > 0)
        return {};
    m_model.blockSignals(false); // unconditionally: a deletion may have left them blocked
    return std::exchange(m_noted, {});
}
