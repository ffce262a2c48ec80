#include "model/changescope.h"

#include "model/model.h"

ChangeScope::ChangeScope(Model *model)
    : m_model(model)
{
    m_model->m_changes.openScope();
}

// Receivers may open scopes themselves, which is why everything that was noted is taken out first.
ChangeScope::~ChangeScope()
{
    const ModelChanges::Noted noted = m_model->m_changes.closeScope();
    if (noted.appState)
        m_model->emitAppStateChanged();
    if (noted.project)
        m_model->emitProjectChanged();
    if (noted.data)
        m_model->emitDataChanged();
    if (noted.viewData)
        m_model->m_changes.viewData();
    if (noted.fileState)
        m_model->m_changes.fileState();
}
