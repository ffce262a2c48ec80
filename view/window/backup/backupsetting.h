#pragma once

#include <QObject>

class Model;
class QAction;
class QWidget;

/// The entry of the menu that says whether the project as it was stays beside the one that is saved. Kept in the
/// settings.
class BackupSetting : public QObject
{
    Q_OBJECT

public:
    /// The owner gets the action. Both must outlive this object.
    BackupSetting(QWidget *owner, Model *model);

    [[nodiscard]] QAction *action() const { return m_action; }
    void retranslate();

private:
    void apply(bool keepsBackup);

    Model *m_model;
    QAction *m_action;
};
