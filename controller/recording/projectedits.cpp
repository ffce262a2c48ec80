#include "controller/recording/projectedits.h"

#include "model/model.h"

#include <utility>

ProjectEdits::ProjectEdits(Model &model)
    : m_model(model)
{}

void ProjectEdits::apply(const Edit &edit)
{
    if (m_model.isBusy()) {
        m_kept.push_back(edit);
        return;
    }
    // A deletion that ended with a syntax error has left them blocked.
    m_model.blockSignals(false);
    markModified();
    edit();
}

void ProjectEdits::markModified()
{
    // Once is enough for all samples of a recording, but a file that is being written does not contain this change.
    if (!m_model.isProjectModified() || m_model.isBusy())
        m_model.setProjectModifiedFlag(true);
}

void ProjectEdits::applyKept()
{
    const std::vector<Edit> edits = std::exchange(m_kept, {});
    for (const Edit &edit : edits)
        apply(edit);
}
