#pragma once

#include "model/edit/editstate.h"
#include "model/edit/shotchange.h"

#include <functional>

/// What a step is called, in the language in use.
using EditText = std::function<QString()>;

/// One edit of a project, which can be undone and done again.
struct EditStep
{
    EditText text;
    QString mergeKey; ///< empty for a step that does not become one with others
    EditState before;
    EditState after;
    EditNotes notes;
    bool isDone = true; ///< false while it is undone

    /// True if undoing it would change nothing.
    [[nodiscard]] bool isNothing() const;
    /// True if a step that follows this one belongs to the same input.
    [[nodiscard]] bool isContinuedBy(const EditStep &next) const;
    /// Makes one step of this one and the next.
    void append(const EditStep &next) { after = next.after; }
    /// Memory that is in use only for this step: shots and pictures that are not in the project, and a little for
    /// everything else.
    [[nodiscard]] qint64 bytes() const;
};
