#include "view/home/projectcard.h"

#include "view/home/recentprojectlist.h"

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

ProjectCard::ProjectCard(QWidget *parent)
    : HomeCard(parent)
    , m_new(newButton("buttonHomeNew", QStringLiteral("file-plus.png")))
    , m_open(newButton("buttonHomeOpen", QStringLiteral("folder-open.png")))
    , m_heading(newHeading())
    , m_projects(new RecentProjectList(this))
{
    auto *buttons = new QVBoxLayout;
    buttons->setSpacing(kGap);
    buttons->addWidget(m_new);
    buttons->addWidget(m_open);
    buttons->addStretch(1);
    auto *list = new QVBoxLayout;
    list->setSpacing(4);
    list->addWidget(m_heading);
    list->addWidget(m_projects, 1);
    row()->addLayout(buttons);
    row()->addLayout(list, 1);
    connect(m_projects, &RecentProjectList::openRequested, this, &ProjectCard::openRequested);
    connect(m_projects, &RecentProjectList::removeRequested, this, &ProjectCard::removeRequested);
    setTiny(false);
    retranslateUi();
}

void ProjectCard::setActions(QAction *newProject, QAction *openProject)
{
    connect(m_new, &QPushButton::clicked, newProject, &QAction::trigger);
    connect(m_open, &QPushButton::clicked, openProject, &QAction::trigger);
}

void ProjectCard::setFiles(const QStringList &files)
{
    m_projects->setFiles(files);
    showHeading();
}

void ProjectCard::refresh()
{
    m_projects->refresh();
}

void ProjectCard::showHeading()
{
    m_heading->setText(m_projects->isEmpty() ? tr("So geht es los") : tr("Zuletzt geöffnet"));
}

void ProjectCard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    HomeCard::changeEvent(event);
}

void ProjectCard::retranslateUi()
{
    showHeading();
    m_new->setText(tr("&Neues Projekt"));
    m_open->setText(tr("Projekt &öffnen..."));
}
