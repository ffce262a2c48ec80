#pragma once

#include <QtGlobal>

struct EditStep;

/// Who keeps the edits of a model to undo them.
class EditListener
{
public:
    /// An edit has ended that changed something.
    virtual void stepMade(EditStep step) = 0;
    /// The project was cleared: no step from before fits any more.
    virtual void projectReplaced() = 0;

protected:
    EditListener() = default;
    ~EditListener() = default; // not deleted through this interface
    Q_DISABLE_COPY_MOVE(EditListener)
};
