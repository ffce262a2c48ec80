#pragma once

struct PlotGeometry;

/// The ends of a value range.
struct ValueSpan
{
    double minimum = 0.0;
    double maximum = 0.0;
};

/// The arithmetic behind the gestures on a row's value axis: pure.
namespace valueaxis {

/// The narrowest value range that gestures lead to.
constexpr double kNarrowestSpan = 0.001;

/// True if the plot takes these ends of its value axis.
[[nodiscard]] bool isShowable(ValueSpan span);

/// The value per pixel line; that of a plot area one pixel high if the row is collapsed.
[[nodiscard]] double valuePerPixel(const PlotGeometry &geometry);
/// The value on a line of the plot.
[[nodiscard]] double valueAt(const PlotGeometry &geometry, int y);

/// The span around all values from lowest to highest plus a twentieth of it on both sides, rounded outwards.
[[nodiscard]] ValueSpan fittedSpan(double lowest, double highest);
/// Zooms in by `steps` wheel steps (negative: out) around a value that stays in its place; round numbers. The span
/// itself if the result would be narrower than kNarrowestSpan.
[[nodiscard]] ValueSpan zoomedSpan(ValueSpan span, double about, int steps);
/// The span moved by about this distance, in round steps; its width stays.
[[nodiscard]] ValueSpan movedSpan(ValueSpan span, double distance);
/// Moves and, if it must, narrows a span so that it lies within limits.
[[nodiscard]] ValueSpan boundedSpan(ValueSpan span, ValueSpan limits);

} // namespace valueaxis
