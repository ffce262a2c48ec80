#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

/// What the kit's widgets share when they paint.
namespace paintaid {

/// Share 0 gives the first colour, 1 the second; opaque ones give an opaque one.
[[nodiscard]] QColor mixed(const QColor &first, const QColor &second, double share);
/// The colour as it looks, however transparent, on an opaque ground.
[[nodiscard]] QColor flattened(const QColor &color, const QColor &ground);
/// How well two opaque colours stand apart: 1 (not at all) to 21 (black on white). 4.5 and more reads well, lines and
/// symbols want 3.
[[nodiscard]] double contrast(const QColor &first, const QColor &second);
/// Black or white, whichever stands apart better from an opaque ground.
[[nodiscard]] QColor readableOn(const QColor &ground);
/// The colour, darkened as far as it takes to see a line of it on a white ground.
[[nodiscard]] QColor visibleOnWhite(const QColor &color);

/// A ring just inside the area, two pixels wide. Switches antialiasing on.
void drawFocusRing(QPainter &painter, const QRectF &area, double radius, const QColor &color);

} // namespace paintaid
