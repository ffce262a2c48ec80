#pragma once

#include <cstdint>
#include <cstdlib>
#include <utility>

/// The pixels of a line of width 1, drawn from pixel centre to pixel centre without antialiasing, exactly as the
/// raster painter sets them: first clipped in floating point to one pixel around the picture, then walked in 16.16
/// fixed point along its longer direction, both end pixels included.
namespace linepixels {

/// Half a pixel in 26.6 fixed point, by which the square cap lengthens both ends.
constexpr int kCap = 32;

struct End
{
    double x = 0.0;
    double y = 0.0;
};

/// Cuts a line to the rows lowest to highest; false when nothing is left. Columns are not cut: lines have
/// to lie within the picture's width.
inline bool clipRows(End &a, End &b, double lowest, double highest)
{
    const auto cut = [](End &end, const End &other, double row) {
        end.x += (other.x - end.x) / (other.y - end.y) * (row - end.y);
        end.y = row;
    };
    if (a.y < lowest) {
        if (b.y <= lowest)
            return false;
        cut(a, b, lowest);
    } else if (a.y > highest) {
        if (b.y >= highest)
            return false;
        cut(a, b, highest);
    }
    if (b.y < lowest)
        cut(b, a, lowest);
    else if (b.y > highest)
        cut(b, a, highest);
    return true;
}

/// A line in fixed point: `count` pixels from `first` on along the longer direction, the other coordinate being
/// `across` in 16.16, growing by `slope` per pixel.
struct Walk
{
    int first = 0;
    int count = 0;
    int across = 0;
    int slope = 0;
};

/// Along runs from a to b (26.6, a <= b), across from acrossA to acrossB.
inline Walk walkAlong(int a, int b, int acrossA, int acrossB)
{
    Walk walk;
    walk.slope = int(std::int64_t(acrossB - acrossA) * (1 << 16) / (b - a));
    walk.first = a >> 6; // the cap and the rounding to the pixel cancel out
    walk.count = ((b + 2 * kCap) >> 6) - walk.first;
    const int round = walk.slope > 0 ? kCap : 0;
    const int fromStart = walk.first * 64 + round - (a - kCap);
    walk.across = acrossA * (1 << 10) - (walk.slope >> 1) + int((std::int64_t(fromStart) * walk.slope) >> 6);
    return walk;
}

/// Calls run(column, top row, bottom row) for each column that a mostly vertical walk crosses.
template <typename Run>
void columnsOfSteepWalk(const Walk &walk, Run &&run)
{
    int row = walk.first;
    const int end = walk.first + walk.count;
    std::int64_t across = walk.across;
    while (row < end) {
        const int column = int(across >> 16);
        std::int64_t rows = end - row;
        if (walk.slope > 0)
            rows = (((std::int64_t(column) + 1) << 16) - across + walk.slope - 1) / walk.slope;
        else if (walk.slope < 0)
            rows = (across - (std::int64_t(column) << 16)) / -walk.slope + 1;
        const int next = rows < end - row ? row + int(rows) : end;
        run(column, row, next - 1);
        across += std::int64_t(next - row) * walk.slope;
        row = next;
    }
}

/// Calls run(column, top row, bottom row) for every column of the line from (x1, y1) to (x2, y2), x1 <= x2, as far as
/// it lies near a picture of `height` rows: rows may reach one or two pixels beyond it.
template <typename Run>
void columnsOfLine(int x1, int y1, int x2, int y2, int height, Run &&run)
{
    End a{double(x1), double(y1)};
    End b{double(x2), double(y2)};
    if (!clipRows(a, b, -1.0, double(height) + 1.0))
        return;
    int ax = int(a.x * 64.0);
    int ay = int(a.y * 64.0);
    int bx = int(b.x * 64.0);
    int by = int(b.y * 64.0);
    const int dx = std::abs(bx - ax);
    const int dy = std::abs(by - ay);
    const bool steep = dx < dy;
    if (steep ? ay > by : ax > bx) { // clipping may have swapped the ends
        std::swap(ax, bx);
        std::swap(ay, by);
    }
    if (steep) {
        columnsOfSteepWalk(walkAlong(ay, by, ax, bx), run);
    } else if (dx > 0) {
        const Walk walk = walkAlong(ax, bx, ay, by);
        int across = walk.across;
        for (int column = walk.first; column < walk.first + walk.count; ++column, across += walk.slope)
            run(column, across >> 16, across >> 16);
    }
}

} // namespace linepixels
