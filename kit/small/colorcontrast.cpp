#include "kit/small/colorcontrast.h"

#include "kit/material/qtmaterialpaint.h"

#include <algorithm>
#include <cmath>

namespace colorcontrast {

namespace {

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
    for (int tenths = 1; contrast(result, Qt::white) < kLineContrast && tenths < 10; ++tenths)
        result = QtMaterialPaint::between(color, Qt::black, tenths / 10.0);
    return result;
}

} // namespace colorcontrast
