#include "view/window/state/stateline.h"

#include "app/theme.h"
#include "view/common/elidedlabel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QPushButton>
#include <QToolBar>

#include <array>

namespace {

// Legible at two metres; the details from close by.
constexpr int kHeadType = 30;   // pixels
constexpr int kDetailType = 20; // pixels
constexpr int kHeight = 50;     // pixels
constexpr int kShortestHead = 12;
constexpr int kLongestHead = 40;
constexpr int kShortestDetail = 4;
constexpr int kLongestDetail = 200;

struct Colors
{
    const char *background;
    const char *type;
};

// In the order of the moods. Dark type on light colours and the other way round, at a contrast of at least 4.5.
constexpr std::array<Colors, 5> kColors{{
    {"#E4E7EA", "#333333"},
    {"#D5EDDA", "#14501F"},
    {"#1F6F33", "#FFFFFF"},
    {"#FFB81C", "#000000"},
    {"#B71C1C", "#FFFFFF"},
}};

ElidedLabel *newLabel(int shortest, int longest, int size, const char *weight, QWidget *parent)
{
    auto *label = new ElidedLabel(shortest, longest, parent);
    label->setStyleSheet(QStringLiteral("QLabel {font-size: %1px; font-weight: %2; background: transparent;}")
                             .arg(size)
                             .arg(QLatin1String(weight)));
    return label;
}

} // namespace

StateLine::StateLine(QMainWindow *window)
    : QFrame(window)
    , m_head(newLabel(kShortestHead, kLongestHead, kHeadType, "bold", this))
    , m_detail(newLabel(kShortestDetail, kLongestDetail, kDetailType, "normal", this))
{
    setObjectName(QStringLiteral("stateLine"));
    m_head->setObjectName(QStringLiteral("labelState"));
    m_detail->setObjectName(QStringLiteral("labelStateDetail"));
    createButtons();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 2, 8, 2);
    row->setSpacing(18);
    row->addWidget(m_head);
    row->addWidget(m_detail, 1);
    row->addWidget(m_stop);
    row->addWidget(m_acknowledge);
    setFixedHeight(kHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    auto *bar = new QToolBar(window);
    bar->setObjectName(QStringLiteral("toolBarState"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu); // it would offer to hide the bar for good
    bar->setStyleSheet(QStringLiteral("QToolBar {border: none; padding: 0px; margin: 0px; spacing: 0px;}"));
    bar->addWidget(this);
    window->addToolBar(Qt::BottomToolBarArea, bar);
    retranslateUi();
    showMood(m_shown.mood);
}

void StateLine::createButtons()
{
    m_stop = new QPushButton(this);
    m_stop->setObjectName(QStringLiteral("buttonStopRetrying"));
    m_acknowledge = new QPushButton(this);
    m_acknowledge->setObjectName(QStringLiteral("buttonAcknowledge"));
    for (QPushButton *button : {m_stop, m_acknowledge}) {
        button->setFocusPolicy(Qt::TabFocus); // a click must not take the focus from a field
        button->setStyleSheet(QStringLiteral("QPushButton {font-size: 18px; min-height: 38px; max-height: 38px;"
                                             " padding: 0px 14px; color: black; background-color: white;"
                                             " border: 1px solid #555555; border-radius: 4px;}"
                                             "QPushButton:focus {border: 2px solid %1;}"
                                             "QPushButton:pressed {background-color: #DDDDDD;}")
                                  .arg(theme::colorPrimary));
        button->hide();
    }
    connect(m_stop, &QPushButton::clicked, this, &StateLine::stopClicked);
    connect(m_acknowledge, &QPushButton::clicked, this, &StateLine::acknowledged);
}

void StateLine::showStatus(const LinkStatus &status)
{
    m_status = status;
    showText(stateText(status));
}

void StateLine::showText(const StateText &text)
{
    if (text.head != m_shown.head) {
        m_head->setText(text.head);
        m_head->updateGeometry();
    }
    if (text.detail != m_shown.detail)
        m_detail->setText(text.detail);
    if (text.mood != m_shown.mood)
        showMood(text.mood);
    m_stop->setVisible(text.canStop);
    m_acknowledge->setVisible(text.canAcknowledge);
    m_shown = text;
}

void StateLine::showMood(StateText::Mood mood)
{
    const Colors &colors = kColors.at(static_cast<std::size_t>(mood));
    setStyleSheet(QStringLiteral("QFrame#stateLine {background-color: %1; border: none;} QLabel {color: %2;}")
                      .arg(QLatin1String(colors.background), QLatin1String(colors.type)));
}

void StateLine::retranslateUi()
{
    m_stop->setText(tr("Nicht mehr versuchen"));
    m_stop->setToolTip(tr("Die Verbindung nicht mehr von selbst aufbauen"));
    m_acknowledge->setText(tr("Gesehen"));
    m_acknowledge->setToolTip(tr("Die Meldung ausblenden"));
    showStatus(m_status);
}

void StateLine::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QFrame::changeEvent(event);
}
