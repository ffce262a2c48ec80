#include "view/sensors/sensorreading.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPolygonF>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("SensorReading", source);
}

void drawTriangle(QPainter &painter, double size, bool up)
{
    const double top = up ? 0.12 * size : 0.88 * size;
    const double base = up ? 0.86 * size : 0.14 * size;
    painter.drawPolygon(QPolygonF({{0.5 * size, top}, {0.96 * size, base}, {0.04 * size, base}}));
}

void drawStatus(QPainter &painter, SensorStatus status, double size)
{
    const QColor color = statusColor(status);
    const QPointF center(size / 2, size / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    switch (status) {
    case SensorStatus::Inside:
        painter.drawEllipse(center, 0.36 * size, 0.36 * size);
        break;
    case SensorStatus::Stale:
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(color, 0.13 * size));
        painter.drawEllipse(center, 0.3 * size, 0.3 * size);
        break;
    case SensorStatus::NoValue:
        painter.drawRect(QRectF(0.2 * size, 0.43 * size, 0.6 * size, 0.14 * size));
        break;
    case SensorStatus::Below:
    case SensorStatus::Above:
        drawTriangle(painter, size, status == SensorStatus::Above);
        break;
    }
}

} // namespace

SensorStatus sensorStatus(const std::optional<double> &value, bool isFresh, const SensorLimits &limits)
{
    if (!value)
        return SensorStatus::NoValue;
    if (!isFresh)
        return SensorStatus::Stale;
    if (limits.isBelow(*value))
        return SensorStatus::Below;
    return limits.isAbove(*value) ? SensorStatus::Above : SensorStatus::Inside;
}

QString statusText(SensorStatus status)
{
    switch (status) {
    case SensorStatus::NoValue:
        return text(QT_TRANSLATE_NOOP("SensorReading", "kein Wert"));
    case SensorStatus::Stale:
        return text(QT_TRANSLATE_NOOP("SensorReading", "veraltet"));
    case SensorStatus::Inside:
        return text(QT_TRANSLATE_NOOP("SensorReading", "aktuell"));
    case SensorStatus::Below:
        return text(QT_TRANSLATE_NOOP("SensorReading", "unter der Grenze"));
    case SensorStatus::Above:
        return text(QT_TRANSLATE_NOOP("SensorReading", "über der Grenze"));
    }
    return {};
}

QColor statusColor(SensorStatus status)
{
    switch (status) {
    case SensorStatus::Inside:
        return {0x2E, 0x7D, 0x32};
    case SensorStatus::Below:
    case SensorStatus::Above:
        return {0xC6, 0x28, 0x28};
    case SensorStatus::NoValue:
    case SensorStatus::Stale:
        break;
    }
    return {0x75, 0x75, 0x75};
}

QPixmap statusPicture(SensorStatus status, int size, double devicePixelRatio)
{
    QPixmap picture(QSize(size, size) * devicePixelRatio);
    picture.setDevicePixelRatio(devicePixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawStatus(painter, status, size);
    return picture;
}

QString heldText(const std::optional<HeldRange> &held, int decimals)
{
    const QString dash = QStringLiteral("–");
    return text(QT_TRANSLATE_NOOP("SensorReading", "min %1   max %2"))
        .arg(held ? sensorValueText(held->minimum, decimals) : dash,
             held ? sensorValueText(held->maximum, decimals) : dash);
}

QString readingText(const SensorReading &reading, const QString &unit, int decimals)
{
    if (!reading.hasValue())
        return statusText(reading.status);
    QString value = sensorValueText(reading.readOut, decimals);
    if (!unit.isEmpty())
        value += QLatin1Char(' ') + unit;
    return value + QLatin1String(", ") + statusText(reading.status);
}
