#include "view/sensors/straightdisplay.h"

#include "app/theme.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace {

constexpr double kUprightFrom = 1.25; // height to width ratio

const QColor kHeldColor(0x61, 0x61, 0x61);

} // namespace

bool StraightDisplay::isUpright() const
{
    return height() > kUprightFrom * width();
}

SensorDisplay::Places StraightDisplay::places() const
{
    const QRectF area = QRectF(rect()).adjusted(10, 2, -10, -2);
    const double footer = footerHeight();
    const double value = (area.height() - footer) * (isUpright() ? 0.2 : 0.46);
    Places parts;
    parts.value = QRectF(area.left(), area.top(), area.width(), value);
    parts.footer = QRectF(area.left(), area.bottom() - footer, area.width(), footer);
    parts.figure = QRectF(QPointF(area.left(), parts.value.bottom()), QPointF(area.right(), parts.footer.top()));
    return parts;
}

QFont StraightDisplay::labelFont(const QRectF &area) const
{
    QFont result = font();
    const double size = isUpright() ? 0.035 * area.height() : 0.16 * area.height();
    result.setPixelSize(static_cast<int>(std::clamp(size, 12.0, 30.0)));
    return result;
}

double StraightDisplay::unitOf(const QRectF &area) const
{
    return isUpright() ? std::min(0.16 * area.width(), 0.05 * area.height()) : 0.16 * area.height();
}

StraightScale StraightDisplay::scaleIn(const QRectF &area) const
{
    const QFont labels = labelFont(area);
    const double margin = 0.5 * StraightScale::widestLabel(labels, face().scale) + 4;
    const QFontMetricsF metrics(labels);
    QRectF line;
    if (isUpright())
        line = QRectF(area.center().x() - 0.25 * margin, area.top() + metrics.height(), 0,
                      area.height() - 2 * metrics.height());
    else
        line = QRectF(area.left() + margin, area.bottom() - metrics.height() - 1.1 * unitOf(area) - 6,
                      area.width() - 2 * margin, 0);
    return {face().scale, line, isUpright()};
}

void StraightDisplay::paintHeld(QPainter &painter, const StraightScale &scale, double begin, double end) const
{
    if (!reading().held)
        return;
    for (const QPen &pen : {QPen(theme::qColorBackground, 4), QPen(kHeldColor, 2)}) { // visible on every colour
        painter.setPen(pen);
        for (double value : {reading().held->minimum, reading().held->maximum})
            painter.drawLine(scale.point(value, begin), scale.point(value, end));
    }
}
