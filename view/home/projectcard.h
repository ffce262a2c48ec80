#pragma once

#include "view/home/homecard.h"

class QAction;
class RecentProjectList;

/// The card of the start page that leads to a project: begin a new one, open one, and the projects opened last.
class ProjectCard : public HomeCard
{
    Q_OBJECT

public:
    explicit ProjectCard(QWidget *parent = nullptr);

    /// The buttons trigger these actions, which must outlive the card.
    void setActions(QAction *newProject, QAction *openProject);
    /// Absolute paths, the newest first.
    void setFiles(const QStringList &files);
    /// Looks again which of them are there.
    void refresh();

signals:
    void openRequested(const QString &file);
    void removeRequested(const QString &file);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showHeading();
    void retranslateUi();

    QPushButton *m_new;
    QPushButton *m_open;
    QLabel *m_heading;
    RecentProjectList *m_projects;
};
