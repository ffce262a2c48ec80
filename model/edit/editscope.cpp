#include "model/edit/editscope.h"

#include "model/model.h"

#include <utility>

EditScope::EditScope(Model *model, EditText text, const QString &mergeKey)
    : m_model(model)
{
    if (m_model)
        m_model->edits().begin(std::move(text), mergeKey);
}

EditScope::~EditScope()
{
    if (m_model)
        m_model->edits().end();
}

void EditScope::setText(EditText text) const
{
    if (m_model)
        m_model->edits().rename(std::move(text));
}
