#pragma once

#include <QtGlobal>

class Model;

/// Bundles what a model announces: while a scope is open, change signals are noted instead of emitted (their log lines
/// are written). The end of the outermost one opens signals that were blocked before, and emits each noted one once, in
/// the order in which the model declares them. A scope ends with its block, so also where that is left early.
class ChangeScope
{
public:
    /// The model must outlive the scope.
    explicit ChangeScope(Model *model);
    ~ChangeScope();
    Q_DISABLE_COPY_MOVE(ChangeScope)

private:
    Model *m_model;
};
