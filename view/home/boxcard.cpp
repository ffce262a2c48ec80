#include "view/home/boxcard.h"

#include "app/theme.h"
#include "view/common/actionicon.h"
#include "view/common/tabstyle.h"
#include "view/home/recentbutton.h"

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

BoxCard::BoxCard(QWidget *parent)
    : HomeCard(parent)
{
    row()->addLayout(createButtons());
    row()->addLayout(createAddresses(), 1);
    connect(m_demo, &QPushButton::clicked, this, &BoxCard::demoClicked);
    for (QPushButton *button : {m_connect, m_demo})
        button->installEventFilter(this);
    setTiny(false);
    retranslateUi();
}

QVBoxLayout *BoxCard::createButtons()
{
    m_connect = newButton("buttonHomeConnect", QStringLiteral("wifi.png"));
    m_demo = newButton("buttonHomeDemo", QStringLiteral("play.png"));
    m_demoHint = new QLabel(this);
    m_demoHint->setObjectName(QStringLiteral("labelDemoHint"));
    tabstyle::makeHint(m_demoHint);
    m_demoHint->setMaximumWidth(kButtonWidth);
    auto *column = new QVBoxLayout;
    column->setSpacing(kGap);
    column->addWidget(m_connect);
    column->addWidget(m_demo);
    column->addWidget(m_demoHint);
    column->addStretch(1);
    return column;
}

QVBoxLayout *BoxCard::createAddresses()
{
    m_heading = newHeading();
    m_noAddresses = new QLabel(this);
    tabstyle::makeHint(m_noAddresses);
    auto *column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(m_heading);
    column->addWidget(m_noAddresses);
    int number = 1;
    for (RecentButton *&button : m_addressButtons) {
        button = new RecentButton(this);
        button->setObjectName(QStringLiteral("buttonRecentAddress%1").arg(number++));
        column->addWidget(button);
        connect(button, &RecentButton::clicked, this, [this, button] { emit connectRequested(button->title()); });
    }
    m_check = new QPushButton(this);
    m_check->setObjectName(QStringLiteral("buttonCheckBoxes"));
    tabstyle::makeRegular(m_check);
    connect(m_check, &QPushButton::clicked, this, &BoxCard::answersWanted);
    column->addSpacing(4);
    column->addWidget(m_check, 0, Qt::AlignLeft);
    column->addStretch(1);
    return column;
}

void BoxCard::setConnectAction(QAction *connectBox)
{
    m_connectAction = connectBox;
    connect(connectBox, &QAction::changed, this, &BoxCard::showConnectText);
    connect(m_connect, &QPushButton::clicked, connectBox, &QAction::trigger);
    showConnectText();
}

void BoxCard::setDemoState(DemoState state)
{
    m_demoState = state;
    showDemo();
}

void BoxCard::setAddresses(const QStringList &addresses)
{
    m_addresses = addresses;
    showAddresses();
}

void BoxCard::setDescriptions(const QHash<QString, QString> &descriptions)
{
    m_descriptions = descriptions;
    showAddresses();
}

void BoxCard::setAnswer(const QString &address, bool answers)
{
    m_answers.insert(address, answers);
    showAddresses();
}

void BoxCard::forgetAnswers()
{
    if (m_answers.isEmpty())
        return;
    m_answers.clear();
    showAddresses();
}

QString BoxCard::answerText(const QString &address) const
{
    const auto found = m_answers.constFind(address);
    if (found == m_answers.constEnd())
        return {};
    return *found ? tr("antwortet") : tr("keine Antwort");
}

void BoxCard::showConnectText()
{
    if (!m_connectAction)
        return;
    m_connect->setText(m_connectAction->text());
    m_connect->setEnabled(m_connectAction->isEnabled());
}

void BoxCard::showDemo()
{
    const bool available = m_demoState != DemoState::Unavailable;
    const bool isOn = m_demoState == DemoState::Starting || m_demoState == DemoState::Running;
    m_demo->setEnabled(available);
    m_demo->setText(isOn ? tr("&Demo beenden") : tr("&Demo starten"));
    m_demo->setIcon(
        actionIcon(isOn ? QStringLiteral("stop.png") : QStringLiteral("play.png"), theme::qColorBackground));
    m_demoHint->setText(available ? tr("Keine Box zur Hand? Die Demo zeigt Ventaro mit einer simulierten Box.")
                                  : tr("Die Demo ist nicht verfügbar: Das Programm \"ventaro-box-simulator\" liegt "
                                       "nicht neben Ventaro."));
}

void BoxCard::showAddresses()
{
    m_noAddresses->setText(tr("Noch keine. Jede Box, mit der die Verbindung gelungen ist, steht hier bereit."));
    m_noAddresses->setVisible(m_addresses.isEmpty());
    m_check->setVisible(!m_addresses.isEmpty());
    for (std::size_t i = 0; i < m_addressButtons.size(); ++i) {
        const QString address = m_addresses.value(static_cast<int>(i));
        RecentButton *button = m_addressButtons[i];
        button->setEntry(address, m_descriptions.value(address), answerText(address));
        button->setToolTip(tr("Mit %1 verbinden").arg(address));
        button->setAccessibleName(button->toolTip());
        button->setVisible(!address.isEmpty());
    }
}

/// The second press of a double click would take back what the first one began.
bool BoxCard::eventFilter(QObject *watched, QEvent *event)
{
    return event->type() == QEvent::MouseButtonDblClick || HomeCard::eventFilter(watched, event);
}

void BoxCard::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    HomeCard::changeEvent(event);
}

void BoxCard::retranslateUi()
{
    m_heading->setText(tr("Zuletzt verbunden"));
    m_check->setText(tr("Erreichbarkeit prüfen"));
    m_check->setToolTip(tr("Zeigt, welche dieser Boxen jetzt Verbindungen annehmen"));
    showConnectText();
    showDemo();
    showAddresses();
}
