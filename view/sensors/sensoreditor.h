#pragma once

#include <QObject>
#include <QPointer>

class Model;
class QColor;
class QWidget;
class SensorChoices;
class SensorTreeModel;
struct SensorInfo;

/// Lets the user change name, unit, colour and limits of a sensor. Changes are emitted as signals; they become
/// visible once the model has them.
class SensorEditor : public QObject
{
    Q_OBJECT

public:
    /// All must outlive the editor. The choices follow a sensor that gets another name.
    SensorEditor(const SensorTreeModel &sensors, SensorChoices &choices, QWidget *parent);

    /// Whose edits for undo each change belongs to; not owned.
    void setModel(Model *model);
    /// Opens the dialog for a sensor.
    void openDialog(int sensor);
    void rename(int sensor, const QString &name);

signals:
    void nameEdited(int sensor, const QString &name);
    void unitEdited(int sensor, const QString &unit);
    void colorEdited(int sensor, const QColor &color);
    /// SensorLimits::kNoLower and kNoUpper for a limit that is not set.
    void limitsEdited(int group, int sensor, double minimum, double maximum);

private:
    void applyEdit(const SensorInfo &before, const SensorInfo &after);
    void keepChoices(const SensorInfo &before, const QString &name);

    const SensorTreeModel &m_sensors;
    SensorChoices &m_choices;
    QPointer<Model> m_model;
    QWidget *m_parent; ///< of dialogs
};
