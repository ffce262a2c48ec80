#pragma once

#include <QColor>
#include <QLatin1String>
#include <QRectF>

class QPainter;

/// What the material controls paint alike.
namespace QtMaterialPaint {

/// How far a surface floats above what is below: pixels that its shadow lies lower, and pixels that it is blurred over.
struct Depth
{
    int drop = 0;
    int blur = 0;
};

/// The colour of the theme in force.
[[nodiscard]] QColor themeColor(QLatin1String key);
[[nodiscard]] QColor withOpacity(QColor color, qreal opacity);
/// What a colour that may be translucent looks like on another.
[[nodiscard]] QColor blended(const QColor &top, const QColor &bottom);
/// Part 0 is the first, part 1 the second.
[[nodiscard]] QColor between(const QColor &first, const QColor &second, qreal part);
/// The ring that shows the keyboard focus; its line lies within the rectangle.
void drawFocusRing(QPainter &painter, const QRectF &rect, qreal radius, const QColor &color);
/// The soft shadow of a rounded surface, from a pixmap that is kept by size, depth and device pixel ratio.
void drawShadow(QPainter &painter, const QRect &surface, int radius, Depth depth);

} // namespace QtMaterialPaint
