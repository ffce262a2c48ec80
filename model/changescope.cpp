#include "model/changescope.h"

#include "model/model.h"

ChangeScope::ChangeScope(Model *model)
    : m_model(model)
{
    m_model->m_changes.openScope();
}

ChangeScope::~ChangeScope()
{
    m_model->m_changes.closeScope();
}
