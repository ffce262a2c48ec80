#pragma once

#include "view/common/demostate.h"

#include <QWidget>

#include <memory>

class Model;
class QAction;

/// The start page: large buttons for the first steps, what was used last, and the state of the box.
class TabHome : public QWidget
{
    Q_OBJECT

public:
    explicit TabHome(QWidget *parent = nullptr);
    ~TabHome() override;

    /// The buttons trigger these actions and are enabled as they are. The actions must outlive the tab.
    void setActions(QAction *connectBox, QAction *newProject, QAction *openProject);
    void setModel(Model *model);
    /// Of the box that is or would be connected.
    void setAddress(const QString &address);
    void setConnecting(bool connecting);
    void setRecording(bool running);
    void setDemoState(DemoState state);
    /// The newest first.
    void setRecentProjects(const QStringList &files);
    /// Looks again which of them are there.
    void refreshRecentProjects();
    void setRecentAddresses(const QStringList &addresses);
    /// Connection and number of shots, from the model.
    void updateFromModel();

signals:
    void connectRequested(const QString &address);
    void openRequested(const QString &file);
    void projectRemoved(const QString &file);
    void demoClicked();

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateConnectText();
    void updateDemo();
    void updateAddresses();
    void updateProjectHeading();
    void retranslateUi();

    struct Private;
    std::unique_ptr<Private> d;
};
