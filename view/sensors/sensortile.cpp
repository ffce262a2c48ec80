#include "view/sensors/sensortile.h"

#include "app/theme.h"
#include "view/common/actionicon.h"
#include "view/sensors/bardisplay.h"
#include "view/sensors/digitaldisplay.h"
#include "view/sensors/lineardisplay.h"
#include "view/sensors/rounddisplay.h"

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QTextDocument>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int kButtonSize = 40; // pixels
constexpr int kIconSize = 24;
constexpr int kUsualName = 20;
constexpr int kLargeName = 32;
constexpr int kEdge = 5; // of the sensor's colour

QString kindIcon(DisplayKind kind)
{
    switch (kind) {
    case DisplayKind::Linear:
        return QStringLiteral("display-linear.png");
    case DisplayKind::Round:
        return QStringLiteral("gauge.png");
    case DisplayKind::Bar:
        return QStringLiteral("display-bar.png");
    case DisplayKind::Digital:
        return QStringLiteral("display-digital.png");
    }
    return {};
}

SensorDisplay *newDisplay(DisplayKind kind, QWidget *parent)
{
    switch (kind) {
    case DisplayKind::Linear:
        return new LinearDisplay(parent);
    case DisplayKind::Bar:
        return new BarDisplay(parent);
    case DisplayKind::Digital:
        return new DigitalDisplay(parent);
    case DisplayKind::Round:
        break;
    }
    return new RoundDisplay(parent);
}

QString buttonSheet()
{
    return QStringLiteral("QToolButton {border: 2px solid transparent; border-radius: 4px; background: transparent;"
                          " min-width: 0px; min-height: 0px; padding: 0px;}"
                          "QToolButton:hover {background: %1;} QToolButton:pressed {background: #D5D5D5;}"
                          "QToolButton:focus {border-color: %2;} QToolButton::menu-indicator {image: none;}")
        .arg(theme::colorLight, theme::colorPrimary);
}

} // namespace

SensorTile::SensorTile(QWidget *parent)
    : ShadowFrame(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    createHead();
    createKindMenu();
    setKind(m_kind);
    setEnlarged(false);
}

QToolButton *SensorTile::newButton(const char *name, const QString &icon)
{
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setFixedSize(kButtonSize, kButtonSize);
    button->setIconSize(QSize(kIconSize, kIconSize));
    button->setIcon(actionIcon(icon, theme::qColorDark));
    button->setStyleSheet(buttonSheet());
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

void SensorTile::createHead()
{
    m_name = new QLabel(this);
    m_name->setObjectName(QStringLiteral("sensorName"));
    m_name->setTextFormat(Qt::PlainText);
    m_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_kindButton = newButton("sensorKind", QStringLiteral("gauge.png"));
    m_kindButton->setPopupMode(QToolButton::InstantPopup);
    m_resetButton = newButton("sensorReset", QStringLiteral("refresh.png"));
    m_enlargeButton = newButton("sensorEnlarge", QStringLiteral("enlarge.png"));
    connect(m_resetButton, &QToolButton::clicked, this, &SensorTile::resetRequested);
    connect(m_enlargeButton, &QToolButton::clicked, this, &SensorTile::enlargeToggled);
    auto *head = new QHBoxLayout;
    head->setContentsMargins(12, 2, 2, 0);
    head->setSpacing(0);
    head->addWidget(m_name, 1);
    head->addWidget(m_kindButton);
    head->addWidget(m_resetButton);
    head->addWidget(m_enlargeButton);
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(3, 9, 3, 4);
    m_layout->setSpacing(0);
    m_layout->addLayout(head);
}

void SensorTile::createKindMenu()
{
    m_kindMenu = new QMenu(this);
    auto *group = new QActionGroup(m_kindMenu);
    for (int i = 0; i < kNumDisplayKinds; ++i) {
        const auto kind = static_cast<DisplayKind>(i);
        QAction *action = m_kindMenu->addAction(actionIcon(kindIcon(kind), theme::qColorDark), QString());
        action->setCheckable(true);
        action->setShortcut(Qt::Key_1 + i); // for the menu's text; the tile handles the key itself
        action->setShortcutContext(Qt::WidgetShortcut);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, kind] { emit kindChosen(kind); });
        m_kindActions.at(static_cast<std::size_t>(i)) = action;
    }
    m_kindButton->setMenu(m_kindMenu);
}

void SensorTile::setSensor(const SensorInfo &sensor)
{
    m_sensor = sensor;
    update(); // the colour
    showName();
    retranslateUi();
}

void SensorTile::showName()
{
    const int room = m_name->contentsRect().width();
    m_name->setText(m_name->fontMetrics().elidedText(m_sensor.name, Qt::ElideRight, std::max(0, room)));
    m_name->setToolTip(Qt::convertFromPlainText(m_sensor.name));
}

void SensorTile::setKind(DisplayKind kind)
{
    if (m_display && kind == m_kind)
        return;
    m_kind = kind;
    const SensorDisplay *before = m_display;
    m_display = newDisplay(kind, this);
    m_display->setObjectName(QStringLiteral("sensorDisplay"));
    if (before) {
        m_display->setFace(before->face());
        m_display->setReading(before->reading());
        delete before;
    }
    m_layout->addWidget(m_display, 1);
    m_display->show();
    showKind();
}

void SensorTile::showKind()
{
    m_kindActions.at(static_cast<std::size_t>(m_kind))->setChecked(true);
    m_kindButton->setIcon(actionIcon(kindIcon(m_kind), theme::qColorDark));
}

void SensorTile::setReading(const SensorReading &reading)
{
    // The scale may change with every reading: an end without a limit follows the held values.
    m_display->setFace({sensorScale(m_sensor.limits, reading.held), m_sensor.limits, m_sensor.color, m_sensor.unit});
    m_display->setReading(reading);
}

void SensorTile::describeReading()
{
    const SensorScale &scale = m_display->face().scale;
    const QString text = readingText(m_display->reading(), m_sensor.unit, scale.isKnown() ? scale.valueDecimals : 2);
    if (text != accessibleDescription())
        setAccessibleDescription(text);
}

QVector<QWidget *> SensorTile::tabOrder()
{
    return {this, m_kindButton, m_resetButton, m_enlargeButton};
}

void SensorTile::setEnlarged(bool enlarged)
{
    m_enlarged = enlarged;
    m_name->setStyleSheet(QStringLiteral("QLabel {font: bold %1px; color: %2;}")
                              .arg(enlarged ? kLargeName : kUsualName)
                              .arg(theme::colorDark));
    showName();
    m_enlargeButton->setIcon(
        actionIcon(enlarged ? QStringLiteral("shrink.png") : QStringLiteral("enlarge.png"), theme::qColorDark));
    retranslateUi();
}

void SensorTile::retranslateUi()
{
    const QString kinds[] = {tr("Linear"), tr("Rund"), tr("Balken"), tr("Digital")};
    for (std::size_t i = 0; i < m_kindActions.size(); ++i)
        m_kindActions.at(i)->setText(kinds[i]);
    setAccessibleName(m_sensor.name);
    m_kindButton->setToolTip(tr("Art der Anzeige (Tasten 1 bis 4)"));
    m_kindButton->setAccessibleName(tr("%1: Art der Anzeige").arg(m_sensor.name));
    m_resetButton->setToolTip(tr("Minimum und Maximum neu beginnen (Entf)"));
    m_resetButton->setAccessibleName(tr("%1: Minimum und Maximum neu beginnen").arg(m_sensor.name));
    m_enlargeButton->setToolTip(m_enlarged ? tr("Alle Sensoren zeigen (Esc)")
                                           : tr("Groß zeigen (Eingabetaste oder Doppelklick)"));
    m_enlargeButton->setAccessibleName(m_enlarged ? tr("Alle Sensoren zeigen")
                                                  : tr("%1: groß zeigen").arg(m_sensor.name));
}

void SensorTile::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    ShadowFrame::changeEvent(event);
}

void SensorTile::focusInEvent(QFocusEvent *event)
{
    setSelected(true);
    ShadowFrame::focusInEvent(event);
}

void SensorTile::focusOutEvent(QFocusEvent *event)
{
    setSelected(false);
    ShadowFrame::focusOutEvent(event);
}

void SensorTile::paintEvent(QPaintEvent *event)
{
    ShadowFrame::paintEvent(event);
    QPainter painter(this);
    const QRect card = cardRect().adjusted(3, 3, -3, -3);
    painter.fillRect(QRect(card.left(), card.top(), card.width(), kEdge), m_sensor.color);
}

void SensorTile::resizeEvent(QResizeEvent *event)
{
    ShadowFrame::resizeEvent(event);
    m_layout->activate();
    showName();
}

void SensorTile::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key >= Qt::Key_1 && key < Qt::Key_1 + kNumDisplayKinds)
        emit kindChosen(static_cast<DisplayKind>(key - Qt::Key_1));
    else if (key == Qt::Key_Return || key == Qt::Key_Enter)
        emit enlargeToggled();
    else if (key == Qt::Key_Delete)
        emit resetRequested();
    else if (key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down)
        emit focusMoved(key);
    else
        ShadowFrame::keyPressEvent(event);
}

void SensorTile::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
    emit enlargeToggled();
}
