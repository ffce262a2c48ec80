#include "kit/paintaid.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace paintaid {

namespace {

constexpr double kRingWidth = 2.0;
constexpr double kLineContrast = 3.0;

double linear(double component)
{
    return component <= 0.03928 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

QColor mixed(const QColor &first, const QColor &second, double share)
{
    const auto part = [share](double a, double b) { return std::clamp(a + (b - a) * share, 0.0, 1.0); };
    return QColor::fromRgbF(part(first.redF(), second.redF()), part(first.greenF(), second.greenF()),
                            part(first.blueF(), second.blueF()), part(first.alphaF(), second.alphaF()));
}

QColor flattened(const QColor &color, const QColor &ground)
{
    QColor opaque = color;
    opaque.setAlpha(255);
    return mixed(ground, opaque, color.alphaF());
}

double contrast(const QColor &first, const QColor &second)
{
    const double a = luminance(first) + 0.05;
    const double b = luminance(second) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QColor readableOn(const QColor &ground)
{
    return contrast(ground, Qt::white) > contrast(ground, Qt::black) ? Qt::white : Qt::black;
}

QColor visibleOnWhite(const QColor &color)
{
    QColor result = color;
    for (double share = 0.1; contrast(result, Qt::white) < kLineContrast && share < 1.0; share += 0.1)
        result = mixed(color, Qt::black, share);
    return result;
}

void drawFocusRing(QPainter &painter, const QRectF &area, double radius, const QColor &color)
{
    const double half = kRingWidth / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, kRingWidth));
    painter.drawRoundedRect(area.adjusted(half, half, -half, -half), radius, radius);
}

} // namespace paintaid
