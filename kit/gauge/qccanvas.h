#pragma once

#include "kit/gauge/qcgaugemath.h"

#include <QColor>
#include <QEvent>
#include <QFont>
#include <QPixmap>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QVector>

class QPainter;
class QWidget;

/// A coloured part of the range, such as the one beyond a limit. The ends may be in either order.
struct QcBand
{
    double from = 0.0;
    double to = 0.0;
    QColor color;
};
[[nodiscard]] bool operator==(const QcBand &a, const QcBand &b);

/// What moves on a gauge.
struct QcReading
{
    bool hasValue = false;
    double value = 0.0; ///< as it was given
    double shown = 0.0; ///< where the needle points on its way there
    bool hasHeld = false;
    double heldMinimum = 0.0;
    double heldMaximum = 0.0;
};

/// The colours of a gauge, from the current theme.
struct QcColors
{
    QColor face;
    QColor ink;   ///< numerals, the value
    QColor soft;  ///< what is less important: minor marks, unit
    QColor ring;  ///< the rim
    QColor track; ///< a scale without a band
    QColor needle;
    bool muted = false; ///< stale or disabled: all colours are pale

    [[nodiscard]] static QcColors fromTheme(bool muted);
    /// A colour that did not come from the theme, as it looks in this gauge.
    [[nodiscard]] QColor shaded(const QColor &color) const;
};

/// All that a part of a gauge needs to know to paint itself, except what moves. Lengths are given in percent of the
/// gauge's half size, so that a gauge looks the same at every size.
struct QcCanvas
{
    QSize size;          ///< logical pixels
    QPointF centre;      ///< logical pixels
    double radius = 0.0; ///< half the size in logical pixels
    double ratio = 1.0;  ///< device pixels per logical pixel
    QFont baseFont;      ///< the widget's
    QLocale locale;      ///< the widget's
    QcColors colors;
    qcgauge::Scale scale; ///< of the last scale part before this one
    double step = 0.0;    ///< between the marks with numerals; 0: there are none
    QVector<QcBand> bands;
    QString title;
    QString unit;
    int decimals = 1; ///< of the value

    /// Takes over what comes from the widget and the current theme.
    void adopt(const QWidget &widget, bool muted);
    /// Whether it still has the widget's size and resolution.
    [[nodiscard]] bool fits(const QWidget &widget) const;
    /// Whether an event of this type changes anything else that adopt() takes over.
    [[nodiscard]] static bool changesWith(QEvent::Type type);

    [[nodiscard]] double length(double percent) const { return radius * percent / 100.0; }
    [[nodiscard]] QPointF point(double angle, double percent) const;
    /// The square around the centre with this half side.
    [[nodiscard]] QRectF square(double percent) const;
    /// Never too small to be read.
    [[nodiscard]] QFont font(double percent, QFont::Weight weight = QFont::Normal) const;
    /// Width of a line: at least one device pixel.
    [[nodiscard]] double stroke(double percent) const;
};

namespace qcgauge {

/// Part of a ring between two angles; the radius is that of its outer edge, in percent like the width.
struct Ring
{
    double radius = 0.0;
    double width = 0.0;
    double from = 0.0;
    double to = 0.0;
};
void drawRing(QPainter &painter, const QcCanvas &canvas, const Ring &ring, const QColor &color);
/// A transparent picture with the size and resolution of the canvas.
[[nodiscard]] QPixmap emptyPicture(const QcCanvas &canvas);
/// Text around a point, centred by the height of its capitals, in the painter's font and pen.
void drawCentred(QPainter &painter, const QPointF &point, const QString &text);

} // namespace qcgauge
