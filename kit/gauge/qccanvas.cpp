#include "kit/gauge/qccanvas.h"

#include "kit/material/qtmaterialpaint.h"
#include "kit/small/colorcontrast.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QWidget>
#include <QtMath>

#include <algorithm>
#include <cmath>

using QtMaterialPaint::between;
using QtMaterialPaint::themeColor;

namespace {

constexpr int kSmallestFont = 10; // pixels
constexpr int kSixteenths = 16;   // QPainter counts in sixteenths of a degree

} // namespace

bool operator==(const QcBand &a, const QcBand &b)
{
    return a.from == b.from && a.to == b.to && a.color == b.color;
}

QcColors QcColors::fromTheme(bool muted)
{
    QcColors colors;
    colors.muted = muted;
    colors.face = themeColor(QLatin1String("canvas"));
    // The theme's text colour alone may be too pale for small numerals.
    const QColor ink = between(themeColor(QLatin1String("text")), colorcontrast::readableOn(colors.face), 0.55);
    colors.ink = colors.shaded(ink);
    colors.soft = colors.shaded(between(ink, colors.face, muted ? 0.15 : 0.35));
    colors.ring = themeColor(QLatin1String("border"));
    colors.track = between(colors.ring, colors.face, 0.35);
    colors.needle = colors.shaded(themeColor(QLatin1String("accent1")));
    return colors;
}

QColor QcColors::shaded(const QColor &color) const
{
    if (!muted)
        return color;
    const int grey = qGray(color.rgb());
    const QColor dull = between(color, QColor(grey, grey, grey, color.alpha()), 0.75);
    return between(dull, face, 0.45);
}

void QcCanvas::adopt(const QWidget &widget, bool muted)
{
    size = widget.size();
    centre = QRectF(widget.rect()).center();
    radius = std::min(widget.width(), widget.height()) / 2.0;
    ratio = widget.devicePixelRatioF();
    baseFont = widget.font();
    locale = widget.locale();
    colors = QcColors::fromTheme(muted);
}

bool QcCanvas::fits(const QWidget &widget) const
{
    return size == widget.size() && ratio == widget.devicePixelRatioF();
}

bool QcCanvas::changesWith(QEvent::Type type)
{
    switch (type) {
    case QEvent::EnabledChange:
    case QEvent::FontChange:
    case QEvent::LocaleChange:
    case QEvent::LanguageChange:
    case QEvent::StyleChange:
        return true;
    default:
        return false;
    }
}

QPointF QcCanvas::point(double angle, double percent) const
{
    const double radians = qDegreesToRadians(angle);
    return centre + length(percent) * QPointF(std::sin(radians), -std::cos(radians));
}

QRectF QcCanvas::square(double percent) const
{
    const double half = length(percent);
    return {centre.x() - half, centre.y() - half, 2.0 * half, 2.0 * half};
}

QFont QcCanvas::font(double percent, QFont::Weight weight) const
{
    QFont font(baseFont);
    font.setPixelSize(std::max(kSmallestFont, static_cast<int>(length(percent))));
    font.setWeight(weight);
    return font;
}

double QcCanvas::stroke(double percent) const
{
    return std::max(1.0 / ratio, length(percent));
}

namespace qcgauge {

void drawRing(QPainter &painter, const QcCanvas &canvas, const Ring &ring, const QColor &color)
{
    painter.setPen(QPen(color, canvas.length(ring.width), Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(canvas.square(ring.radius - ring.width / 2.0), qRound((90.0 - ring.from) * kSixteenths),
                    qRound((ring.from - ring.to) * kSixteenths));
}

QPixmap emptyPicture(const QcCanvas &canvas)
{
    QPixmap picture((QSizeF(canvas.size) * canvas.ratio).toSize());
    picture.setDevicePixelRatio(canvas.ratio);
    picture.fill(Qt::transparent);
    return picture;
}

void drawCentred(QPainter &painter, const QPointF &point, const QString &text)
{
    const QFontMetricsF metrics(painter.font());
    painter.drawText(point + QPointF(-metrics.horizontalAdvance(text) / 2.0, metrics.capHeight() / 2.0), text);
}

} // namespace qcgauge
