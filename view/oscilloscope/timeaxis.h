#pragma once

/// The arithmetic behind the tab's scroll bar and zoom: pure, in whole samples and pixels, 64 bits wide inside
/// because hours of samples times a zoom do not fit into int.
namespace timeaxis {

struct ScrollState
{
    bool enabled = false;
    int maximum = 0;
    int pageStep = 0;
};

/// A view that ends at most this many samples before the end follows new samples.
constexpr int kFollowDistance = 9;
/// Pixels per sample.
constexpr int kMaximumZoom = 100;

/// The state of a scroll bar over `samples`, `visible` of which fit into the plot.
[[nodiscard]] ScrollState scrollState(int samples, int visible);
/// True if a view that starts at `start` follows the newest of `samples`.
[[nodiscard]] bool followsEnd(int start, int samples, int visible);

/// The zoom after `steps` wheel steps (negative: out), in pixels per sample, 1 to kMaximumZoom.
[[nodiscard]] int steppedZoom(int zoom, int steps);
/// The start index with which the sample under column x of the plot stays there when the zoom changes; never negative.
[[nodiscard]] int startAfterZoom(int x, int startIndex, int oldZoom, int newZoom);

/// The time of a sample in milliseconds, clamped to the range of int.
[[nodiscard]] int toMilliseconds(int sample, int clock);

} // namespace timeaxis
