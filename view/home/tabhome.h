#pragma once

#include "view/common/demostate.h"
#include "view/home/boxstatecard.h"

#include <QHash>
#include <QWidget>

class BoxCard;
class HomeCard;
class Model;
class ProjectCard;
class QAction;
class QBoxLayout;
class QLabel;

/// The start page: large buttons for the first steps, what was used last, and the state of the box.
class TabHome : public QWidget
{
    Q_OBJECT

public:
    explicit TabHome(QWidget *parent = nullptr);

    /// The buttons trigger these actions and are enabled as they are. The actions must outlive the tab.
    void setActions(QAction *connectBox, QAction *newProject, QAction *openProject);
    /// Not owned; must outlive the tab.
    void setModel(const Model *model);
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
    [[nodiscard]] QStringList recentAddresses() const;
    /// What the boxes at these addresses have said about themselves.
    void setBoxDescriptions(const QHash<QString, QString> &descriptions);
    /// A box at one of the recent addresses has said this about itself.
    void describeBox(const QString &address, const QString &description);
    /// Whether the box takes connections now.
    void setBoxAnswer(const QString &address, bool answers);
    /// It is not known any more which of them do.
    void forgetBoxAnswers();
    /// Connection and number of shots, from the model.
    void updateFromModel();

signals:
    void connectRequested(const QString &address);
    void openRequested(const QString &file);
    void projectRemoved(const QString &file);
    void demoClicked();
    void boxDescribed(const QString &address, const QString &description);
    /// The user wants to know which of the recent boxes answer.
    void boxAnswersWanted();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] QBoxLayout *createHead(QWidget *page);
    void layOut(QWidget *page);
    void arrange(int width);
    void setTiny(bool isTiny);
    void retranslateUi();

    const Model *m_model = nullptr;
    LinkState m_link;
    QLabel *m_logo = nullptr;
    QLabel *m_subtitle = nullptr;
    BoxCard *m_boxCard = nullptr;
    HomeCard *m_stateCard = nullptr;
    ProjectCard *m_projectCard = nullptr;
    BoxStateCard *m_state = nullptr; ///< in m_stateCard
    // One beside the other, or one below the other in a narrow window.
    QBoxLayout *m_head = nullptr;
    QBoxLayout *m_topRow = nullptr;
    QBoxLayout *m_pageColumn = nullptr;
    bool m_isTiny = false;
};
