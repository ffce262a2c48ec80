#pragma once

#include "model/model.h"

/// Bundles what a model announces: while one is open, change signals are noted instead of emitted (with their log
/// lines); the end of the outermost emits each noted one once, in the order in which the model declares them. That end
/// also opens signals that were blocked before. viewDataChanged() and fileStateChanged() are not bundled.
class ChangeScope
{
public:
    /// The model must outlive the scope.
    explicit ChangeScope(Model *model)
        : m_model(model)
    {
        ++m_model->m_pending.scopes;
    }
    ~ChangeScope() { m_model->endChanges(); }
    Q_DISABLE_COPY_MOVE(ChangeScope)

private:
    Model *m_model;
};
