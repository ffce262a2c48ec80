#pragma once

#include "model/edit/editstep.h"

#include <optional>

class EditListener;
class ModelChanges;

/// Makes steps of what is edited in a project, and undoes them or does them again. Steps are made only while somebody
/// listens.
class ModelEdits
{
public:
    /// All references must outlive this.
    ModelEdits(Project &project, ImportedFiles &imported, ModelChanges &changes);

    /// Not owned; nullptr for none.
    void setListener(EditListener *listener) { m_listener = listener; }

    // --- For EditScope ---
    void begin(EditText text, const QString &mergeKey);
    void rename(EditText text);
    void end();

    /// The project was cleared: an edit that is under way makes no step, and the listener is told.
    void forgetProject();

    /// Undoes a step that is done, or does one again that is undone, and announces what changed; has to be called
    /// within a ChangeScope, so that nobody is told before all of it has changed. Steps have to come in the order in
    /// which a stack gives them. Only fields that the step changed are set: what else has changed since stays. A shot
    /// stays in the project, whatever the step says, if one of its ids is among `untouched`.
    void toggle(EditStep &step, const ShotIds &untouched);

private:
    void toggleShots(EditStep &step, const ShotIds &untouched);
    void toggleLabels(const EditStep &step);

    Project &m_project;
    ImportedFiles &m_imported;
    ModelChanges &m_changes;
    EditListener *m_listener = nullptr;
    int m_depth = 0;                   // of nested scopes
    std::optional<EditStep> m_growing; // the step of the scopes that are open
};
