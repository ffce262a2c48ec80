#pragma once

#include <QObject>

class ShotStore;

/// Announces the changes of a model: writes the log line and emits the signal, or notes the change while a scope is
/// open. `function` is the one that the log line names.
class ModelChanges : public QObject
{
    Q_OBJECT

public:
    /// What changed.
    struct Noted
    {
        bool appState = false;
        bool project = false;
        bool data = false;
        bool viewData = false;
        bool fileState = false;
    };

    /// While one exists, changes are logged, but neither emitted nor remembered.
    class Silence
    {
    public:
        explicit Silence(ModelChanges &changes);
        ~Silence();
        Q_DISABLE_COPY_MOVE(Silence)

    private:
        ModelChanges &m_changes;
        Noted m_before;
    };

    /// `model` relays the signals and may block them. Removed samples are discarded in `shots` once every receiver of
    /// dataChanged() has let go of them. Both must outlive this.
    ModelChanges(QObject &model, ShotStore &shots);

    void appState(const char *function);
    void project(const char *function);
    /// Does nothing unless there was a change.
    void projectIf(bool changed, const char *function);
    void data(const char *function);
    void viewData();  ///< writes no log line
    void fileState(); ///< writes no log line; arrives even if the model's signals are blocked
    /// Everything but the state of the application, as after a project was opened.
    void opened(const char *function);

    /// Changes whenever something was announced, or counted, that makes a project file out of date. Samples that are
    /// appended do not count here.
    [[nodiscard]] quint64 count() const { return m_count; }
    void countOne() { ++m_count; }

    /// Scopes may be nested.
    void openScope() { ++m_scopes; }
    /// What is to be announced now: nothing unless this was the outermost scope, whose end also opens the model's
    /// signals, whatever they were before.
    [[nodiscard]] Noted closeScope();

signals:
    void appStateChanged();
    void projectChanged();
    void dataChanged();
    void viewDataChanged();
    void fileStateChanged();

private:
    void noteOrEmit(bool Noted::*change, void (ModelChanges::*changed)());
    void discardRemoved();

    QObject &m_model;
    ShotStore &m_shots;
    Noted m_noted;
    int m_scopes = 0; // open ones
    quint64 m_count = 0;
};
