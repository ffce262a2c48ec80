#pragma once

#include <QRect>
#include <QString>

class LabelCache;
class QFont;
class QPainter;
struct OsziCurve;
struct OsziScene;

/// The steps of painting a plot, each drawn over the previous ones. All paint in the widget's coordinates and may leave
/// out what cannot touch `region`.
namespace oszipainter {

/// Horizontal grid lines with their labels left of the plot area.
void paintValueGrid(QPainter &painter, const OsziScene &scene, const QRect &region, LabelCache &labels);
/// The time axis, vertical grid lines and their labels below the plot area.
void paintClockGrid(QPainter &painter, const OsziScene &scene, const QRect &region, LabelCache &labels);
/// Every shown curve but the highlighted one, in slot order, one drawLine() per segment. Every faster way of
/// drawing them has to give the same picture.
void paintCurves(QPainter &painter, const OsziScene &scene);
/// The highlighted curve.
void paintHighlighted(QPainter &painter, const OsziScene &scene, const QRect &region);
/// The highlighted curve's last value beside its end; returns where it was drawn.
QRect paintEndValue(QPainter &painter, const OsziScene &scene, LabelCache &labels);
void paintHorizontalLines(QPainter &painter, const OsziScene &scene, const QRect &region);
void paintVerticalMarkers(QPainter &painter, const OsziScene &scene, const QRect &region);
void paintPhaseNames(QPainter &painter, const OsziScene &scene, const QRect &region, LabelCache &labels);

/// Where the highlighted curve's last value is written: beside its end, inside the widget. Empty when it is not
/// written.
[[nodiscard]] QRect endValueRect(const OsziScene &scene, const QFont &font, LabelCache &labels);
/// The highlighted curve's last value as it is written; empty when its end is not in view.
[[nodiscard]] QString endValueText(const OsziScene &scene);

} // namespace oszipainter
