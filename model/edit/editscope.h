#pragma once

#include "model/edit/editstep.h"

class Model;

/// Makes one step that can be undone of all that happens to a model's project in its lifetime; none if nothing changed
/// that undo knows. What happens in scopes within it belongs to the outermost one.
///
/// Neither dialogs nor anything else that lets the box's lines in belongs into a scope: what they change would be
/// taken back with the step.
class EditScope
{
public:
    /// `text` names the step, in the language in use when it is called, for menus: "Löschen von 3 Messungen". Steps
    /// with the same key that follow each other quickly, as they do while somebody types, become one. Without a model,
    /// which must outlive the scope, nothing happens.
    EditScope(Model *model, EditText text, const QString &mergeKey = {});
    ~EditScope();
    Q_DISABLE_COPY_MOVE(EditScope)

    /// Another name, for a step whose extent shows only in the end; ignored in an inner scope.
    void setText(EditText text) const;

private:
    Model *m_model;
};
