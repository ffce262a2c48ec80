#pragma once

#include "model/recentlist.h"
#include "view/common/demostate.h"
#include "view/home/homecard.h"

#include <QHash>
#include <QStringList>

#include <array>

class QAction;
class QVBoxLayout;
class RecentButton;

/// The card of the start page that leads to a box: connect, the demonstration, and the boxes connected to last.
class BoxCard : public HomeCard
{
    Q_OBJECT

public:
    explicit BoxCard(QWidget *parent = nullptr);

    /// The connect button triggers the action and takes over its text and state. The action must outlive the card.
    void setConnectAction(QAction *connectBox);
    void setDemoState(DemoState state);
    /// The newest first.
    void setAddresses(const QStringList &addresses);
    [[nodiscard]] QStringList addresses() const { return m_addresses; }
    /// By address.
    void setDescriptions(const QHash<QString, QString> &descriptions);
    void setAnswer(const QString &address, bool answers);
    void forgetAnswers();

signals:
    void connectRequested(const QString &address);
    void demoClicked();
    void answersWanted();

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] QVBoxLayout *createButtons();
    [[nodiscard]] QVBoxLayout *createAddresses();
    void showConnectText();
    void showDemo();
    void showAddresses();
    [[nodiscard]] QString answerText(const QString &address) const;
    void retranslateUi();

    const QAction *m_connectAction = nullptr;
    DemoState m_demoState = DemoState::Unavailable;
    QStringList m_addresses;
    QHash<QString, QString> m_descriptions;
    QHash<QString, bool> m_answers; ///< of those that were asked
    QPushButton *m_connect = nullptr;
    QPushButton *m_demo = nullptr;
    QLabel *m_demoHint = nullptr;
    QLabel *m_heading = nullptr;
    QLabel *m_noAddresses = nullptr;
    QPushButton *m_check = nullptr;
    std::array<RecentButton *, recentlist::kMaxRecent> m_addressButtons{};
};
