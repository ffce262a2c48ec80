#pragma once

#include <QtGlobal>

class Model;
class ShotStore;

/// Announces the changes of a model: writes the log line and emits the signal, or notes the change while a ChangeScope
/// is open. `function` is the one that the log line names.
class ModelChanges
{
public:
    /// Removed samples are discarded in `shots` once every receiver of dataChanged() has let go of them.
    ModelChanges(Model &model, ShotStore &shots);

    void appState(const char *function);
    void project(const char *function);
    /// Does nothing unless there was a change.
    void projectIf(bool changed, const char *function);
    void data(const char *function);
    /// Writes no log line.
    void fileState();
    /// Everything, as after a project was opened.
    void all(const char *function);

    /// Changes whenever something was announced, or counted, that makes a project file out of date. Samples that are
    /// appended do not count here.
    [[nodiscard]] quint64 count() const { return m_count; }
    void countOne() { ++m_count; }

    // For ChangeScope.
    void openScope() { ++m_scopes; }
    void closeScope();
    /// Forgets what the open scope has noted, as all() follows; but not a change of the application's state.
    void forgetNoted();

private:
    struct Noted
    {
        bool appState = false;
        bool project = false;
        bool data = false;
        bool viewData = false;
        bool fileState = false;
    };

    void emitProject();
    void emitData();
    void emitViewData();
    void discardRemoved();
    /// True, and noted, while a scope is open.
    [[nodiscard]] bool note(bool Noted::*change);

    Model &m_model;
    ShotStore &m_shots;
    Noted m_noted;
    int m_scopes = 0; // open ones
    quint64 m_count = 0;
};
