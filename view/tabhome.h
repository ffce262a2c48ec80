#pragma once

#include <QWidget>

#include <memory>

class Model;
class QAction;

/// The start page: what the program is, large buttons for the first steps, and the state of box and project.
class TabHome : public QWidget
{
    Q_OBJECT

public:
    explicit TabHome(QWidget *parent = nullptr);
    ~TabHome() override;

    /// The buttons trigger these actions and are enabled as they are. The actions must outlive the tab.
    void setActions(QAction *connectBox, QAction *newProject, QAction *openProject);
    void setModel(Model *model);
    void setAddress(const QString &address);
    void setRecording(bool running);
    /// Connection, project and number of shots, from the model.
    void updateFromModel();

protected:
    void changeEvent(QEvent *event) override;

private:
    void updateConnectText();
    void retranslateUi();

    struct Private;
    std::unique_ptr<Private> d;
};
