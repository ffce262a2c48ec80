#include "kit/small/coloredbutton.h"

#include "kit/logging.h"
#include "kit/material/qtmaterialpaint.h"
#include "kit/material/qtmaterialstyle.h"
#include "kit/small/colorcontrast.h"

#include <QColorDialog>
#include <QEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace {

constexpr double kRadius = 3.0; // like the push buttons of the style sheet
constexpr double kOutline = 2.0;
constexpr int kPadding = 10;
constexpr int kTightPadding = 5;
constexpr int kSymbol = 14;      // pixels: tick or arrow
constexpr int kSymbolMargin = 8; // from the edge
constexpr int kSymbolGap = 5;    // to the text
constexpr int kIconGap = 6;
constexpr int kStripe = 4;     // pixels: shows the colour of a disabled button
constexpr double kPale = 0.10; // share of the colour in an unchecked button
constexpr double kHover = 0.12;
constexpr double kPressed = 0.25;

} // namespace

struct ColoredButton::Look
{
    QColor fill;
    QColor outline;
    QColor text;
};

ColoredButton::ColoredButton(QWidget *parent)
    : ColoredButton(QString(), parent)
{}

ColoredButton::ColoredButton(const QString &text, QWidget *parent)
    : QPushButton(text, parent)
{
    setAttribute(Qt::WA_Hover);
    connect(this, &QPushButton::clicked, this, &ColoredButton::onClicked);
    connect(&QtMaterialStyle::instance(), &QtMaterialStyle::themeChanged, this, qOverload<>(&QWidget::update));
}

QColor ColoredButton::color() const
{
    return m_color.isValid() ? m_color : QtMaterialStyle::instance().themeColor(QStringLiteral("primary1"));
}

void ColoredButton::setColor(const QColor &color)
{
    if (!color.isValid()) {
        qCWarning(lcKit) << "ERROR: invalid colour for a button!";
        return;
    }
    if (color == m_color)
        return;
    m_color = color;
    describe();
    update();
}

void ColoredButton::setPicksColor(bool picks)
{
    m_picksColor = picks;
    describe();
    updateGeometry();
    update();
}

// Users who cannot see the colour hear it.
void ColoredButton::describe()
{
    if (m_picksColor)
        setAccessibleDescription(tr("Farbe %1, Klick öffnet die Farbauswahl").arg(color().name()));
}

void ColoredButton::onClicked()
{
    if (!m_picksColor)
        return;
    auto *dialog = new QColorDialog(color(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Farbe wählen"));
    dialog->setStyleSheet(
        QStringLiteral("QPushButton {padding: 0px 14px;}")); // this button's own sheet would be inherited
    dialog->setOption(QColorDialog::DontUseNativeDialog);    // a native one is in the system's language
    connect(dialog, &QColorDialog::colorSelected, this, [this](const QColor &chosen) {
        if (chosen.isValid() && chosen != color())
            emit colorPicked(chosen);
    });
    dialog->open();
}

/// What the text leaves free, the same on both sides so that it stays centred.
int ColoredButton::symbolRoom() const
{
    return isCheckable() || m_picksColor ? kSymbolMargin + kSymbol + kSymbolGap : kPadding;
}

QSize ColoredButton::sizeHint() const
{
    const int icon = this->icon().isNull() ? 0 : iconSize().width() + kIconGap;
    const int text = fontMetrics().size(Qt::TextShowMnemonic, this->text()).width();
    const int width = text + icon + 2 * symbolRoom();
    return QPushButton::sizeHint().expandedTo({width, fontMetrics().height() + kPadding});
}

// A long name may be cut; whoever sets it adds a tool tip.
QSize ColoredButton::minimumSizeHint() const
{
    const int width = 4 * fontMetrics().averageCharWidth() + 2 * symbolRoom();
    return {std::min(width, sizeHint().width()), sizeHint().height()};
}

// Qt presses buttons with Enter in dialogs only; here it works on pages too.
void ColoredButton::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter)
        QPushButton::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
}

void ColoredButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        describe();
    QPushButton::changeEvent(event);
}

ColoredButton::Look ColoredButton::look() const
{
    const QColor canvas = QtMaterialPaint::themeColor(QLatin1String("canvas"));
    const QColor full = QtMaterialPaint::blended(color(), canvas);
    QColor fill = isCheckable() && !isChecked() ? QtMaterialPaint::between(canvas, full, kPale) : full;
    const QColor text = colorcontrast::readableOn(fill);
    if (isDown())
        fill = QtMaterialPaint::between(fill, full == fill ? text : full, kPressed);
    else if (underMouse())
        fill = QtMaterialPaint::between(fill, full == fill ? text : full, kHover);
    return {fill, colorcontrast::visibleOnWhite(full), text};
}

QString ColoredButton::elidedText(int width) const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, width, Qt::TextShowMnemonic);
}

/// Centred in the button if there is room, otherwise in what the symbol leaves free.
QRect ColoredButton::labelArea() const
{
    const int icon = this->icon().isNull() ? 0 : iconSize().width() + kIconGap;
    const int wanted = fontMetrics().size(Qt::TextShowMnemonic, text()).width() + icon;
    const QRect middle = rect().adjusted(symbolRoom(), 0, -symbolRoom(), 0);
    if (wanted <= middle.width())
        return middle;
    const int left = isChecked() && !m_picksColor ? symbolRoom() : kTightPadding;
    const int right = m_picksColor ? symbolRoom() : kTightPadding;
    return QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(left, 0, -right, 0));
}

void ColoredButton::drawDisabled(QPainter &painter) const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = elidedText(labelArea().width());
    style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
    option.rect = labelArea();
    style()->drawControl(QStyle::CE_PushButtonLabel, &option, &painter, this);
    painter.fillRect(QRect(0, height() - kStripe, width(), kStripe), color());
    drawSymbol(painter, option.palette.color(QPalette::Disabled, QPalette::ButtonText));
}

void ColoredButton::drawLabel(QPainter &painter, const QColor &color) const
{
    QRect area = labelArea();
    const int iconRoom = icon().isNull() ? 0 : iconSize().width() + kIconGap;
    const QString text = elidedText(area.width() - iconRoom);
    if (iconRoom > 0) {
        const int textWidth = fontMetrics().size(Qt::TextShowMnemonic, text).width();
        QRect place(QPoint(0, 0), iconSize());
        place.moveCenter(area.center());
        place.moveLeft(area.center().x() - (textWidth + iconRoom) / 2);
        icon().paint(&painter, QStyle::visualRect(layoutDirection(), area, place));
        area = QStyle::visualRect(layoutDirection(), area, area.adjusted(iconRoom, 0, 0, 0));
    }
    painter.setPen(color);
    painter.drawText(area, int(Qt::AlignCenter) | Qt::TextShowMnemonic | Qt::TextSingleLine, text);
}

/// A tick at the leading edge, or an arrow at the trailing one.
void ColoredButton::drawSymbol(QPainter &painter, const QColor &color) const
{
    if (!m_picksColor && !isChecked())
        return;
    QRect place(0, 0, kSymbol, kSymbol);
    place.moveCenter(rect().center());
    if (m_picksColor)
        place.moveRight(rect().right() - kSymbolMargin);
    else
        place.moveLeft(kSymbolMargin);
    const QRectF box = QStyle::visualRect(layoutDirection(), rect(), place);
    const auto at = [&box](double x, double y) {
        return QPointF(box.x() + x * box.width(), box.y() + y * box.height());
    };
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (m_picksColor)
        painter.drawPolyline(QVector<QPointF>{at(0.15, 0.35), at(0.5, 0.7), at(0.85, 0.35)});
    else
        painter.drawPolyline(QVector<QPointF>{at(0.1, 0.55), at(0.38, 0.82), at(0.9, 0.2)});
}

void ColoredButton::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    if (!isEnabled()) {
        drawDisabled(painter);
        return;
    }
    const Look look = this->look();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look.outline, kOutline));
    painter.setBrush(look.fill);
    const double half = kOutline / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), kRadius, kRadius);
    drawLabel(painter, look.text);
    drawSymbol(painter, look.text);
    if (hasFocus())
        QtMaterialPaint::drawFocusRing(painter, QRectF(rect()).adjusted(3, 3, -3, -3), kRadius, look.text);
}
