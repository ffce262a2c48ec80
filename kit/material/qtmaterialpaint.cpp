#include "kit/material/qtmaterialpaint.h"

#include "kit/material/qtmaterialpalette.h"
#include "kit/material/qtmaterialstyle.h"

#include <QPainter>
#include <QPixmapCache>

#include <algorithm>
#include <cmath>

namespace QtMaterialPaint {

namespace {

constexpr qreal kRingWidth = 2.0;
constexpr qreal kLargestRatio = 4.0;
constexpr int kShadowLayers = 10;
constexpr qreal kShadowOpacity = 0.42; // of all layers together

QPixmap shadowPixmap(const QSize &surface, int radius, int blur, qreal ratio)
{
    const QRect whole(QPoint(0, 0), surface.grownBy(QMargins(blur, blur, blur, blur)));
    QPixmap pixmap(whole.size() * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(withOpacity(QtMaterialPalette::lightBlack(), kShadowOpacity / kShadowLayers));
    for (int layer = 0; layer < kShadowLayers; ++layer) {
        // The outer layers are farther apart, so that the edge fades out.
        const qreal inset = blur * 1.8 * std::sqrt(static_cast<qreal>(layer) / kShadowLayers);
        const qreal corner = std::max(0.0, radius + blur - inset);
        painter.drawRoundedRect(QRectF(whole).adjusted(inset, inset, -inset, -inset), corner, corner);
    }
    return pixmap;
}

} // namespace

QColor themeColor(QLatin1String key)
{
    return QtMaterialStyle::instance().themeColor(key);
}

QColor withOpacity(QColor color, qreal opacity)
{
    color.setAlphaF(opacity);
    return color;
}

QColor blended(const QColor &top, const QColor &bottom)
{
    return between(bottom, withOpacity(top, 1.0), top.alphaF());
}

QColor between(const QColor &first, const QColor &second, qreal part)
{
    const auto mix = [part](qreal a, qreal b) { return a + (b - a) * part; };
    return QColor::fromRgbF(mix(first.redF(), second.redF()), mix(first.greenF(), second.greenF()),
                            mix(first.blueF(), second.blueF()), mix(first.alphaF(), second.alphaF()));
}

void drawFocusRing(QPainter &painter, const QRectF &rect, qreal radius, const QColor &color)
{
    const qreal half = kRingWidth / 2.0;
    painter.setPen(QPen(color, kRingWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), radius, radius);
}

void drawShadow(QPainter &painter, const QRect &surface, int radius, Depth depth)
{
    if (surface.isEmpty())
        return;
    // The painter's scale: that of the screen, or of a picture that the widget is rendered into.
    const qreal ratio = std::clamp(painter.deviceTransform().m11(), 1.0, kLargestRatio);
    const QString key = QStringLiteral("QtMaterialShadow %1 %2 %3 %4 %5")
                            .arg(surface.width())
                            .arg(surface.height())
                            .arg(radius)
                            .arg(depth.blur)
                            .arg(ratio);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = shadowPixmap(surface.size(), radius, depth.blur, ratio);
        QPixmapCache::insert(key, pixmap);
    }
    painter.drawPixmap(surface.topLeft() + QPoint(-depth.blur, depth.drop - depth.blur), pixmap);
}

} // namespace QtMaterialPaint
