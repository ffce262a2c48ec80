#include "view/sensors/sensordisplay.h"

#include "app/theme.h"

#include <QEvent>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kSmallestFooter = 14.0; // pixels: font size
constexpr double kLargestFooter = 26.0;
constexpr double kUnitSize = 0.45; // of the size of the digits
constexpr double kGap = 0.18;      // between digits and unit, of the size of the digits
constexpr int kWithoutScale = 2;   // decimals

const QColor kStaleColor(0x9E, 0x9E, 0x9E);
const QColor kVeil(0xFF, 0xFF, 0xFF, 0xA0); // makes the figure pale
const QColor kDigitColor(0x21, 0x21, 0x21);

QFont sized(const QFont &font, double pixels, bool bold)
{
    QFont result = font;
    result.setPixelSize(std::max(1, static_cast<int>(pixels)));
    result.setBold(bold);
    return result;
}

double widthOf(const QFont &font, const QString &text)
{
    return QFontMetricsF(font).horizontalAdvance(text);
}

} // namespace

SensorDisplay::SensorDisplay(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SensorDisplay::setFace(const Face &face)
{
    if (face == m_face)
        return;
    m_face = face;
    dropFace();
}

void SensorDisplay::setReading(const SensorReading &reading)
{
    m_reading = reading;
    follow(false);
    update();
}

void SensorDisplay::follow(bool /*isFace*/) {}

QSize SensorDisplay::minimumSizeHint() const
{
    return {160, 110};
}

double SensorDisplay::footerHeight() const
{
    return std::clamp(0.075 * std::min<double>(height(), width()), kSmallestFooter, kLargestFooter) * 1.5;
}

QColor SensorDisplay::pointerColor() const
{
    if (m_reading.status == SensorStatus::Stale)
        return kStaleColor;
    return m_reading.isOutside() ? statusColor(m_reading.status) : m_face.color;
}

int SensorDisplay::valueDecimals() const
{
    return m_face.scale.isKnown() ? m_face.scale.valueDecimals : kWithoutScale;
}

void SensorDisplay::paintEvent(QPaintEvent * /*event*/)
{
    const double ratio = devicePixelRatioF();
    if (m_picture.isNull() || !qFuzzyCompare(m_picture.devicePixelRatio(), ratio))
        renderFace();
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const Places parts = places();
    if (!m_reading.hasValue() || m_reading.status == SensorStatus::Stale)
        painter.fillRect(parts.figure, kVeil);
    if (m_reading.hasValue() && m_face.scale.isKnown() && !parts.figure.isEmpty())
        paintPointer(painter, parts.figure);
    paintValue(painter, parts.value);
    paintFooter(painter, parts.footer);
}

void SensorDisplay::renderFace()
{
    const double ratio = devicePixelRatioF();
    // Rounded up: an area that the picture does not cover would stay black.
    m_picture = QPixmap(std::max(1, qCeil(width() * ratio)), std::max(1, qCeil(height() * ratio)));
    m_picture.setDevicePixelRatio(ratio);
    m_picture.fill(theme::qColorBackground);
    QPainter painter(&m_picture);
    painter.setFont(font());
    painter.setRenderHint(QPainter::Antialiasing);
    const Places parts = places();
    if (m_face.scale.isKnown() && !parts.figure.isEmpty())
        paintFigure(painter, parts.figure);
}

void SensorDisplay::dropFace()
{
    m_picture = {};
    follow(true);
    update();
}

QString SensorDisplay::widestValue(const QFont &font) const
{
    const SensorScale &scale = m_face.scale;
    QString widest = sensorValueText(m_reading.hasValue() ? m_reading.readOut : 0.0, valueDecimals());
    for (double end : {scale.low, scale.high}) {
        const QString text = sensorValueText(end, valueDecimals());
        if (widthOf(font, text) > widthOf(font, widest))
            widest = text;
    }
    return widest;
}

/// The digits are right-aligned in a place that is wide enough for every value of the scale, so that the unit never
/// moves.
void SensorDisplay::paintValue(QPainter &painter, const QRectF &area) const
{
    if (area.height() < 8)
        return;
    const QString &unit = m_face.unit;
    double size = area.height() * 0.82;
    QFont digits = sized(font(), 100, true);
    const QFont small = sized(font(), 100 * kUnitSize, false);
    const double place = widthOf(digits, widestValue(digits)); // measured at 100 pixels, scaled below
    const double unitPlace = unit.isEmpty() ? 0.0 : 100 * kGap + widthOf(small, unit);
    size = std::min(size, 100.0 * area.width() / std::max(1.0, place + unitPlace));
    const double scale = size / 100;
    const double left = area.center().x() - 0.5 * scale * (place + unitPlace);
    digits.setPixelSize(std::max(1, static_cast<int>(size)));
    const QFontMetricsF metrics(digits);
    const double baseline = area.center().y() + 0.5 * metrics.capHeight();
    const QString text =
        m_reading.hasValue() ? sensorValueText(m_reading.readOut, valueDecimals()) : QStringLiteral("–");
    const bool isStale = !m_reading.hasValue() || m_reading.status == SensorStatus::Stale;
    painter.setPen(isStale ? kStaleColor : m_reading.isOutside() ? statusColor(m_reading.status) : kDigitColor);
    painter.setFont(digits);
    painter.drawText(QPointF(left + scale * place - metrics.horizontalAdvance(text), baseline), text);
    painter.setFont(sized(font(), size * kUnitSize, false));
    painter.setPen(isStale ? kStaleColor : theme::qColorDark);
    painter.drawText(QPointF(left + scale * (place + 100 * kGap), baseline), unit);
}

void SensorDisplay::paintFooter(QPainter &painter, const QRectF &area) const
{
    if (area.isEmpty())
        return;
    painter.setFont(sized(font(), area.height() / 1.5, false));
    const QFontMetricsF metrics(painter.font());
    const bool isWrong = m_reading.status != SensorStatus::Inside;
    const QString status = isWrong ? statusText(m_reading.status) : QString();
    const double sign = isWrong ? area.height() * 0.55 : 0.0;
    const double statusWidth = isWrong ? metrics.horizontalAdvance(status) + 1.5 * sign : 0.0;
    painter.setPen(theme::qColorDark);
    const QString held = heldText(m_reading.held, valueDecimals());
    // If there is no room for both, the warning is more important.
    if (metrics.horizontalAdvance(held) + statusWidth + sign <= area.width())
        painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, held);
    if (!isWrong)
        return;
    painter.setPen(statusColor(m_reading.status));
    painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, status);
    const double left = area.right() - metrics.horizontalAdvance(status) - 1.4 * sign;
    const QPixmap picture = statusPicture(m_reading.status, static_cast<int>(sign), devicePixelRatioF());
    painter.drawPixmap(QPointF(left, area.center().y() - 0.5 * sign), picture);
}

void SensorDisplay::resizeEvent(QResizeEvent *event)
{
    dropFace();
    QWidget::resizeEvent(event);
}

void SensorDisplay::changeEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::LanguageChange: // labels and texts
    case QEvent::LocaleChange:
    case QEvent::FontChange:
    case QEvent::EnabledChange:
        dropFace();
        break;
    default:
        break;
    }
    QWidget::changeEvent(event);
}
