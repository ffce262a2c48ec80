#pragma once

#include <functional>
#include <vector>

class Model;

/// Applies edits to the model and marks the project as modified. While a file is being read or written, edits wait
/// here, so that the file is consistent.
class ProjectEdits
{
public:
    using Edit = std::function<void()>;

    /// The model must outlive the edits.
    explicit ProjectEdits(Model &model);

    /// Opens the model's signals, marks the project as modified and runs the edit; keeps it while the model is busy.
    void apply(const Edit &edit);
    /// Every change of the project that the user or the box makes ends up here, except the settings of the evaluation.
    void markModified();
    /// Applies what was kept, in the order in which it was made. To be called after the file was read or written.
    void applyKept();
    /// For edits of a project that has been replaced meanwhile.
    void dropKept() { m_kept.clear(); }

private:
    Model &m_model;
    std::vector<Edit> m_kept;
};
