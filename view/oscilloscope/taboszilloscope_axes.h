#pragma once

#include <QtGlobal>

/// The arithmetic of the two axes behind the tab's scroll bar, zoom and mouse gestures: pure, in whole samples and
/// pixels, 64 bits wide where hours of samples meet the zoom.
namespace osziaxes {

struct ValueSpan
{
    double minimum = 0.0;
    double maximum = 0.0;
};

struct ScrollState
{
    bool enabled = false;
    int maximum = 0;
    int pageStep = 0;
};

/// How near to the end the view must be to follow new samples.
constexpr int kFollowDistance = 9;
constexpr int kMaximumZoom = 100;
/// The narrowest value range that gestures lead to.
constexpr double kNarrowestSpan = 0.001;

/// True if the plot takes these ends of its value axis.
[[nodiscard]] bool isShowable(ValueSpan span);

/// Samples that fit right of the left margin of a plot whose contents are `width` pixels wide.
[[nodiscard]] int visibleSamples(int width, int zoom);
[[nodiscard]] ScrollState scrollState(int samples, int visible);
/// True if a view that starts at `start` goes on following the newest of `samples`.
[[nodiscard]] bool followsEnd(int start, int samples, int visible);

/// The next zoom, in pixels a sample, `steps` wheel steps further (negative: out).
[[nodiscard]] int steppedZoom(int zoom, int steps);
/// Start index with which the sample under column x stays there when the zoom changes; never negative.
[[nodiscard]] int startAfterZoom(int x, int startIndex, int oldZoom, int newZoom);

/// A time in milliseconds, held within int.
[[nodiscard]] int toMilliseconds(int sample, int clock);

/// The span around all values from lowest to highest with a twentieth of air on both sides, on round numbers.
[[nodiscard]] ValueSpan fittedSpan(double lowest, double highest);
/// `steps` wheel steps nearer (negative: further away) about a value, on round numbers.
[[nodiscard]] ValueSpan zoomedSpan(ValueSpan span, double about, int steps);
/// The same width, moved.
[[nodiscard]] ValueSpan movedSpan(ValueSpan span, double distance);
/// Moves and, if it must, narrows a span so that it lies within limits.
[[nodiscard]] ValueSpan boundedSpan(ValueSpan span, ValueSpan limits);

} // namespace osziaxes
