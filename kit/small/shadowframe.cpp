#include "kit/small/shadowframe.h"

#include "kit/material/qtmaterialstyle.h"

#include <QEvent>
#include <QPainter>
#include <QPixmapCache>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kRadius = ShadowFrame::kRadius;
// Pixels of a corner of the picture, and between two corners. Both are whole device pixels at all usual resolutions.
constexpr int kCorner = 24;
constexpr int kMiddle = 4;
constexpr int kSide = 2 * kCorner + kMiddle;

struct Shadow
{
    double drop;    ///< pixels that it lies below the card
    double reach;   ///< pixels until it is gone
    double opacity; ///< at the card's edge
};

// Drop and reach together stay within ShadowFrame::kShadow.
constexpr Shadow kLowShadow{1.0, 5.0, 0.25};
constexpr Shadow kHighShadow{2.5, 7.5, 0.32};

/// Distance of a point from the edge of a rounded rectangle; negative inside.
double distance(const QPointF &point, const QRectF &area, double radius)
{
    const double x = std::abs(point.x() - area.center().x()) - area.width() / 2.0 + radius;
    const double y = std::abs(point.y() - area.center().y()) - area.height() / 2.0 + radius;
    return std::hypot(std::max(x, 0.0), std::max(y, 0.0)) + std::min(std::max(x, y), 0.0) - radius;
}

double shade(const Shadow &shadow, double distance)
{
    const double near = std::clamp(1.0 - distance / shadow.reach, 0.0, 1.0);
    return shadow.opacity * near * near;
}

/// The shadow and a card of the smallest size. `ratio`: device pixels per logical pixel.
QPixmap cardPicture(const Shadow &shadow, const QColor &fill, double ratio)
{
    const int pixels = static_cast<int>(std::lround(kSide * ratio));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    const QRectF card = ShadowFrame::cardRect(QRect(0, 0, kSide, kSide));
    const QRectF below = card.translated(0.0, shadow.drop);
    for (int y = 0; y < pixels; ++y) {
        for (int x = 0; x < pixels; ++x) {
            const QPointF point((x + 0.5) / ratio, (y + 0.5) / ratio);
            const int alpha = static_cast<int>(255.0 * shade(shadow, distance(point, below, kRadius)));
            image.setPixel(x, y, qRgba(0, 0, 0, alpha)); // black needs no premultiplying
        }
    }
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(card, kRadius, kRadius);
    painter.end();
    return QPixmap::fromImage(image);
}

QPixmap cachedCard(ShadowFrame::Elevation elevation, const QColor &fill, double ratio)
{
    const QString key = QStringLiteral("ShadowFrame-%1-%2-%3").arg(int(elevation)).arg(fill.rgba()).arg(ratio);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = cardPicture(elevation == ShadowFrame::Elevation::High ? kHighShadow : kLowShadow, fill, ratio);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

/// Corners are copied, sides are stretched along their length, the middle is filled with one colour.
void drawStretched(QPainter &painter, const QRect &target, const QPixmap &picture, const QColor &fill)
{
    const double ratio = picture.devicePixelRatio();
    const int cornerX = std::min(kCorner, target.width() / 2);
    const int cornerY = std::min(kCorner, target.height() / 2);
    const int targetX[] = {target.left(), target.left() + cornerX, target.right() + 1 - cornerX, target.right() + 1};
    const int targetY[] = {target.top(), target.top() + cornerY, target.bottom() + 1 - cornerY, target.bottom() + 1};
    const int sourceX[] = {0, cornerX, kSide - cornerX, kSide};
    const int sourceY[] = {0, cornerY, kSide - cornerY, kSide};
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const QRectF to(QPointF(targetX[column], targetY[row]), QPointF(targetX[column + 1], targetY[row + 1]));
            const QRectF from(QPointF(sourceX[column], sourceY[row]) * ratio,
                              QPointF(sourceX[column + 1], sourceY[row + 1]) * ratio);
            if (row == 1 && column == 1)
                painter.fillRect(to, fill);
            else
                painter.drawPixmap(to, picture, from);
        }
    }
}

void drawOutline(QPainter &painter, const QRect &card, const QColor &color, double width)
{
    const double half = width / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, width));
    painter.drawRoundedRect(QRectF(card).adjusted(half, half, -half, -half), kRadius, kRadius);
}

} // namespace

ShadowFrame::ShadowFrame(QWidget *parent)
    : QFrame(parent)
{
    setContentsMargins(kShadow, kShadow, kShadow, kShadow);
    connect(&QtMaterialStyle::instance(), &QtMaterialStyle::themeChanged, this, qOverload<>(&QWidget::update));
}

void ShadowFrame::setElevation(Elevation elevation)
{
    m_elevation = elevation;
    update();
}

void ShadowFrame::setSelected(bool selected)
{
    m_selected = selected;
    update();
}

void ShadowFrame::setRaisedByHover(bool raised)
{
    m_raisedByHover = raised;
    update();
}

QRect ShadowFrame::cardRect(const QRect &widget)
{
    return widget.adjusted(kShadow, kShadow, -kShadow, -kShadow);
}

void ShadowFrame::paintCard(QPainter &painter, const QRect &widget, Elevation elevation, const QColor &fill)
{
    const QRect card = cardRect(widget);
    if (card.isEmpty())
        return;
    if (elevation != Elevation::Flat) {
        drawStretched(painter, widget, cachedCard(elevation, fill, painter.device()->devicePixelRatioF()), fill);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(card, kRadius, kRadius);
    drawOutline(painter, card, QtMaterialStyle::instance().themeColor(QStringLiteral("border")), 1.0);
}

bool ShadowFrame::event(QEvent *event)
{
    if (m_raisedByHover && (event->type() == QEvent::Enter || event->type() == QEvent::Leave))
        update();
    return QFrame::event(event);
}

void ShadowFrame::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange)
        update();
    QFrame::changeEvent(event);
}

void ShadowFrame::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const QtMaterialStyle &style = QtMaterialStyle::instance();
    const bool isRaised = m_raisedByHover && isEnabled() && underMouse();
    const Elevation shown = !isEnabled() ? Elevation::Flat : isRaised ? Elevation::High : m_elevation;
    paintCard(painter, rect(), shown, style.themeColor(QStringLiteral("canvas")));
    if (m_selected)
        drawOutline(painter, cardRect(),
                    style.themeColor(isEnabled() ? QStringLiteral("primary1") : QStringLiteral("accent3")), 2.0);
}
