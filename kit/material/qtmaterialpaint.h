#pragma once

#include <QColor>
#include <QLatin1String>
#include <QRectF>

class QPainter;

/// What several of the controls paint.
namespace QtMaterialPaint {

/// How far a surface floats above the page: the offset and the blur of its shadow in pixels.
struct Depth
{
    int drop = 0;
    int blur = 0;
};

/// A colour of the current theme, by its key.
[[nodiscard]] QColor themeColor(QLatin1String key);
[[nodiscard]] QColor withOpacity(QColor color, qreal opacity);
/// What a possibly translucent colour looks like on another one.
[[nodiscard]] QColor blended(const QColor &top, const QColor &bottom);
/// A mixture: part 0 is the first colour, part 1 the second.
[[nodiscard]] QColor between(const QColor &first, const QColor &second, qreal part);
/// The ring that shows the keyboard focus; its line lies within the rectangle.
void drawFocusRing(QPainter &painter, const QRectF &rect, qreal radius, const QColor &color);
/// The soft shadow of a rounded surface, from a pixmap that is cached by size, depth and device pixel ratio.
void drawShadow(QPainter &painter, const QRect &surface, int radius, Depth depth);

} // namespace QtMaterialPaint
