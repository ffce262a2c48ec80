#include "view/home/tabhome.h"

#include "app/theme.h"
#include "kit/material/qtmaterialraisedbutton.h"
#include "kit/small/shadowframe.h"
#include "model/model.h"
#include "model/recentlist.h"
#include "view/common/actionicon.h"
#include "view/common/logging.h"
#include "view/common/tabstyle.h"
#include "view/home/boxstatecard.h"
#include "view/home/recentbutton.h"
#include "view/home/recentprojectlist.h"

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QResizeEvent>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr int kMargin = 20;
constexpr int kGap = 16;
constexpr int kWidestPage = 1900;
constexpr int kNarrowPage = 880;
constexpr int kNarrowCard = 640;
constexpr int kTinyPage = 420; // the window as it is without settings
constexpr int kButtonWidth = 270;

ShadowFrame *createCard(QWidget *page)
{
    auto *card = new ShadowFrame(page);
    card->setObjectName(QStringLiteral("homeCard"));
    return card;
}

QBoxLayout *createCardRow(QWidget *card)
{
    auto *row = new QBoxLayout(QBoxLayout::LeftToRight, card);
    row->setSpacing(kMargin);
    return row;
}

void setButtonTiny(QPushButton *button, bool tiny)
{
    const QString tinySheet = QStringLiteral("QPushButton {font-size: 16px; min-height: 52px; padding: 4px 8px;}");
    const QString wideSheet = QStringLiteral("QPushButton {min-width: %1px;}").arg(kButtonWidth);
    button->setStyleSheet(tabstyle::largeSheet() + (tiny ? tinySheet : wideSheet));
    button->setIconSize(tiny ? QSize(24, 24) : QSize(36, 36));
}

} // namespace

struct TabHome::Private
{
    Model *model = nullptr;
    QAction *connectAction = nullptr;
    LinkState link;
    DemoState demo = DemoState::Unavailable;
    QStringList addresses;

    QLabel *logo = nullptr;
    QLabel *subtitle = nullptr;
    QPushButton *connectButton = nullptr;
    QPushButton *newButton = nullptr;
    QPushButton *openButton = nullptr;
    QPushButton *demoButton = nullptr;
    QLabel *demoHint = nullptr;
    QLabel *addressHeading = nullptr;
    QLabel *noAddresses = nullptr;
    QLabel *projectHeading = nullptr;
    std::array<RecentButton *, recentlist::kMaxRecent> addressButtons{};
    RecentProjectList *projects = nullptr;
    BoxStateCard *state = nullptr;
    // One beside the other, or one below the other in a narrow window.
    QBoxLayout *head = nullptr;
    QBoxLayout *topRow = nullptr;
    QBoxLayout *boxRow = nullptr;
    QBoxLayout *projectRow = nullptr;
    QBoxLayout *stateColumn = nullptr;
    QBoxLayout *pageColumn = nullptr;
    bool tiny = false;

    void layOut(QWidget *page);
    void arrange(int width);
    void setTiny(bool isTiny);
    [[nodiscard]] QBoxLayout *createHead(QWidget *page);
    [[nodiscard]] static QPushButton *createButton(QWidget *page, const char *name, const QString &icon);
    [[nodiscard]] QWidget *createBoxCard(QWidget *page);
    [[nodiscard]] QVBoxLayout *createAddresses(QWidget *card);
    [[nodiscard]] QWidget *createStateCard(QWidget *page);
    [[nodiscard]] QWidget *createProjectCard(QWidget *page);
};

QBoxLayout *TabHome::Private::createHead(QWidget *page)
{
    logo = new QLabel(page);
    logo->setPixmap(QPixmap(theme::logoPath));
    logo->setAccessibleName(theme::applicationName);
    subtitle = new QLabel(page);
    subtitle->setWordWrap(true);
    head = new QBoxLayout(QBoxLayout::LeftToRight);
    head->setContentsMargins(ShadowFrame::kShadow, 0, ShadowFrame::kShadow, 0);
    head->setSpacing(24);
    head->addWidget(logo);
    head->addWidget(subtitle, 1);
    return head;
}

QPushButton *TabHome::Private::createButton(QWidget *page, const char *name, const QString &icon)
{
    auto *button = new QtMaterialRaisedButton(page);
    button->setObjectName(QLatin1String(name));
    tabstyle::makeLarge(button, icon);
    setButtonTiny(button, false);
    return button;
}

QWidget *TabHome::Private::createBoxCard(QWidget *page)
{
    ShadowFrame *card = createCard(page);
    connectButton = createButton(card, "buttonHomeConnect", QStringLiteral("wifi.png"));
    demoButton = createButton(card, "buttonHomeDemo", QStringLiteral("play.png"));
    demoHint = new QLabel(card);
    demoHint->setObjectName(QStringLiteral("labelDemoHint"));
    tabstyle::makeHint(demoHint);
    demoHint->setMaximumWidth(kButtonWidth);
    auto *buttons = new QVBoxLayout;
    buttons->setSpacing(kGap);
    buttons->addWidget(connectButton);
    buttons->addWidget(demoButton);
    buttons->addWidget(demoHint);
    buttons->addStretch(1);
    boxRow = createCardRow(card);
    boxRow->addLayout(buttons);
    boxRow->addLayout(createAddresses(card), 1);
    return card;
}

QVBoxLayout *TabHome::Private::createAddresses(QWidget *card)
{
    addressHeading = new QLabel(card);
    noAddresses = new QLabel(card);
    tabstyle::makeHint(noAddresses);
    auto *column = new QVBoxLayout;
    column->setSpacing(4);
    column->addWidget(addressHeading);
    column->addWidget(noAddresses);
    int number = 1;
    for (RecentButton *&button : addressButtons) {
        button = new RecentButton(card);
        button->setObjectName(QStringLiteral("buttonRecentAddress%1").arg(number++));
        column->addWidget(button);
    }
    column->addStretch(1);
    return column;
}

QWidget *TabHome::Private::createStateCard(QWidget *page)
{
    ShadowFrame *card = createCard(page);
    state = new BoxStateCard(card);
    stateColumn = createCardRow(card);
    stateColumn->addWidget(state);
    return card;
}

QWidget *TabHome::Private::createProjectCard(QWidget *page)
{
    ShadowFrame *card = createCard(page);
    newButton = createButton(card, "buttonHomeNew", QStringLiteral("file-plus.png"));
    openButton = createButton(card, "buttonHomeOpen", QStringLiteral("folder-open.png"));
    projectHeading = new QLabel(card);
    projects = new RecentProjectList(card);
    auto *buttons = new QVBoxLayout;
    buttons->setSpacing(kGap);
    buttons->addWidget(newButton);
    buttons->addWidget(openButton);
    buttons->addStretch(1);
    auto *list = new QVBoxLayout;
    list->setSpacing(4);
    list->addWidget(projectHeading);
    list->addWidget(projects, 1);
    projectRow = createCardRow(card);
    projectRow->addLayout(buttons);
    projectRow->addLayout(list, 1);
    return card;
}

void TabHome::Private::layOut(QWidget *page)
{
    auto *content = new QWidget(page);
    content->setMaximumWidth(kWidestPage);
    topRow = new QBoxLayout(QBoxLayout::LeftToRight);
    topRow->setSpacing(0);
    topRow->addWidget(createBoxCard(content), 3);
    topRow->addWidget(createStateCard(content), 2);
    pageColumn = new QVBoxLayout(content);
    pageColumn->setSpacing(0);
    pageColumn->addLayout(createHead(content));
    pageColumn->addLayout(topRow);
    pageColumn->addWidget(createProjectCard(content));
    pageColumn->addStretch(1);
    auto *row = new QHBoxLayout(page);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(content, 1);
    row->addStretch(0);
    setTiny(false);
}

void TabHome::Private::arrange(int width)
{
    const auto direction = [width](int narrow) {
        return width < narrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    };
    topRow->setDirection(direction(kNarrowPage));
    for (QBoxLayout *row : {head, boxRow, projectRow})
        row->setDirection(direction(kNarrowCard));
    if (tiny != (width < kTinyPage))
        setTiny(!tiny);
}

void TabHome::Private::setTiny(bool isTiny)
{
    tiny = isTiny;
    const int edge = tiny ? 0 : kMargin - ShadowFrame::kShadow; // the cards keep a distance of their own
    const int margin = tiny ? kGap / 2 : kGap;
    pageColumn->setContentsMargins(edge, kGap, edge, edge);
    for (QBoxLayout *card : {boxRow, projectRow, stateColumn})
        card->setContentsMargins(margin, margin, margin, margin);
    for (QPushButton *button : {connectButton, demoButton, newButton, openButton})
        setButtonTiny(button, tiny);
    const QPixmap picture(theme::logoPath);
    logo->setPixmap(tiny ? picture.scaledToWidth(picture.width() * 3 / 4, Qt::SmoothTransformation) : picture);
    subtitle->setStyleSheet(
        QStringLiteral("QLabel {font-size: %1px; color: %2;}").arg(tiny ? 18 : 22).arg(theme::colorDark));
    for (QLabel *heading : {addressHeading, projectHeading})
        tabstyle::makeHeading(heading, tiny ? 18 : 22);
    state->setStacked(tiny);
}

TabHome::TabHome(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->layOut(tabstyle::addScrolledPage(this));
    connect(d->demoButton, &QPushButton::clicked, this, &TabHome::demoClicked);
    connect(d->projects, &RecentProjectList::openRequested, this, &TabHome::openRequested);
    connect(d->projects, &RecentProjectList::removeRequested, this, &TabHome::projectRemoved);
    for (const RecentButton *button : d->addressButtons)
        connect(button, &RecentButton::clicked, this, [this, button] { emit connectRequested(button->title()); });
    for (QPushButton *button : {d->connectButton, d->demoButton})
        button->installEventFilter(this);
    retranslateUi();
}

TabHome::~TabHome() = default;

void TabHome::setActions(QAction *connectBox, QAction *newProject, QAction *openProject)
{
    d->connectAction = connectBox;
    connect(connectBox, &QAction::changed, this, &TabHome::updateConnectText);
    connect(d->connectButton, &QPushButton::clicked, connectBox, &QAction::trigger);
    connect(d->newButton, &QPushButton::clicked, newProject, &QAction::trigger);
    connect(d->openButton, &QPushButton::clicked, openProject, &QAction::trigger);
    updateConnectText();
}

void TabHome::setModel(Model *model)
{
    d->model = model;
    updateFromModel();
}

void TabHome::setAddress(const QString &address)
{
    d->link.address = address;
    updateFromModel();
}

void TabHome::setConnecting(bool connecting)
{
    d->link.isConnecting = connecting;
    updateFromModel();
}

void TabHome::setRecording(bool running)
{
    d->link.isRecording = running;
    updateFromModel();
}

void TabHome::setDemoState(DemoState state)
{
    d->demo = state;
    d->link.isDemo = state == DemoState::Starting || state == DemoState::Running;
    updateDemo();
    updateFromModel();
}

void TabHome::setRecentProjects(const QStringList &files)
{
    d->projects->setFiles(files);
    updateProjectHeading();
}

void TabHome::updateProjectHeading()
{
    d->projectHeading->setText(d->projects->isEmpty() ? tr("So geht es los") : tr("Zuletzt geöffnet"));
}

void TabHome::refreshRecentProjects()
{
    d->projects->refresh();
}

void TabHome::setRecentAddresses(const QStringList &addresses)
{
    d->addresses = addresses;
    updateAddresses();
}

void TabHome::updateFromModel()
{
    if (d->model)
        d->state->showState(*d->model, d->link);
}

void TabHome::updateConnectText()
{
    if (!d->connectAction)
        return;
    d->connectButton->setText(d->connectAction->text());
    d->connectButton->setEnabled(d->connectAction->isEnabled());
}

void TabHome::updateDemo()
{
    const bool available = d->demo != DemoState::Unavailable;
    d->demoButton->setEnabled(available);
    d->demoButton->setText(d->link.isDemo ? tr("&Demo beenden") : tr("&Demo starten"));
    const QString icon = d->link.isDemo ? QStringLiteral("stop.png") : QStringLiteral("play.png");
    d->demoButton->setIcon(actionIcon(icon, theme::qColorBackground));
    d->demoHint->setText(available ? tr("Keine Box zur Hand? Die Demo zeigt Ventaro mit einer simulierten Box.")
                                   : tr("Die Demo ist nicht verfügbar: Das Programm \"ventaro-box-simulator\" liegt "
                                        "nicht neben Ventaro."));
}

void TabHome::updateAddresses()
{
    d->noAddresses->setText(tr("Noch keine. Jede Box, mit der die Verbindung gelungen ist, steht hier bereit."));
    d->noAddresses->setVisible(d->addresses.isEmpty());
    for (std::size_t i = 0; i < d->addressButtons.size(); ++i) {
        const QString address = d->addresses.value(static_cast<int>(i));
        RecentButton *button = d->addressButtons[i];
        button->setEntry(address);
        button->setToolTip(tr("Mit %1 verbinden").arg(address));
        button->setAccessibleName(button->toolTip());
        button->setVisible(!address.isEmpty());
    }
}

/// The second press of a double click would take back what the first one began.
bool TabHome::eventFilter(QObject *watched, QEvent *event)
{
    return event->type() == QEvent::MouseButtonDblClick || QWidget::eventFilter(watched, event);
}

void TabHome::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void TabHome::resizeEvent(QResizeEvent *event)
{
    d->arrange(event->size().width());
    QWidget::resizeEvent(event);
}

void TabHome::retranslateUi()
{
    d->subtitle->setText(tr("Prozessüberwachung für Spritzgießwerkzeuge"));
    d->addressHeading->setText(tr("Zuletzt verbunden"));
    updateProjectHeading();
    d->newButton->setText(tr("&Neues Projekt"));
    d->openButton->setText(tr("Projekt &öffnen..."));
    updateConnectText();
    updateDemo();
    updateAddresses();
    updateFromModel();
}
