#include "model/modelchanges.h"

#include "model/logging.h"
#include "model/model.h"
#include "model/shotstore.h"

#include <QDebug>

#include <utility>

ModelChanges::ModelChanges(Model &model, ShotStore &shots)
    : m_model(model)
    , m_shots(shots)
{}

void ModelChanges::appState(const char *function)
{
    qCDebug(lcModel) << function << "emit appStateChanged()";
    if (!note(&Noted::appState))
        emit m_model.appStateChanged();
}

void ModelChanges::project(const char *function)
{
    qCDebug(lcModel) << function << "emit projectChanged()";
    emitProject();
}

void ModelChanges::projectIf(bool changed, const char *function)
{
    if (changed)
        project(function);
}

void ModelChanges::data(const char *function)
{
    qCDebug(lcModel) << function << "emit dataChanged()";
    emitData();
    discardRemoved();
}

void ModelChanges::fileState()
{
    if (!note(&Noted::fileState))
        emit m_model.fileStateChanged();
}

void ModelChanges::all(const char *function)
{
    qCDebug(lcModel) << function << "emitting projectChanged()";
    emitProject();
    qCDebug(lcModel) << function << "emitting dataChanged()";
    emitData();
    qCDebug(lcModel) << function << "emitting viewDataChanged()";
    emitViewData();
    fileState();
    discardRemoved();
}

void ModelChanges::emitProject()
{
    countOne();
    if (!note(&Noted::project))
        emit m_model.projectChanged();
}

void ModelChanges::emitData()
{
    if (!note(&Noted::data))
        emit m_model.dataChanged();
}

void ModelChanges::emitViewData()
{
    if (!note(&Noted::viewData))
        emit m_model.viewDataChanged();
}

// Every receiver has let go of the samples by now, unless it has not been told yet.
void ModelChanges::discardRemoved()
{
    if (m_scopes == 0 && !m_model.signalsBlocked())
        m_shots.discardRemoved();
}

bool ModelChanges::note(bool Noted::*change)
{
    if (m_scopes == 0)
        return false;
    m_noted.*change = true;
    return true;
}

void ModelChanges::forgetNoted()
{
    m_noted = {m_noted.appState, false, false, false, false};
}

// Receivers may open scopes themselves, so what was noted is taken out first.
void ModelChanges::closeScope()
{
    if (--m_scopes > 0)
        return;
    const Noted noted = std::exchange(m_noted, {});
    m_model.blockSignals(false); // open from here on, whatever they were before
    if (noted.appState)
        m_model.emitAppStateChanged();
    if (noted.project)
        m_model.emitProjectChanged();
    if (noted.data)
        m_model.emitDataChanged();
    if (noted.viewData)
        emitViewData();
    if (noted.fileState)
        fileState();
}
