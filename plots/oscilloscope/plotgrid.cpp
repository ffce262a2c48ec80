#include "plots/oscilloscope/plotgrid.h"

#include <QLatin1Char>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>

namespace {

constexpr double kWidestStep = 50.0;    // pixels between two value grid lines
constexpr double kNarrowestStep = 25.0; // pixels
constexpr qint64 kWidestClockStep = 100;
constexpr qint64 kNarrowestClockStep = 50;
constexpr std::array<double, 16> kGridLadder = {10000.0, 5000.0, 1000.0, 500.0, 100.0, 50.0,  10.0,  5.0,
                                                1.0,     0.5,    0.1,    0.05,  0.01,  0.005, 0.001, 0.0005};

QString withoutTrailingZeros(QString number)
{
    while (number.endsWith(QLatin1Char('0')))
        number.chop(1);
    if (number.endsWith(QLatin1Char('.')))
        number.chop(1);
    return number;
}

qint64 finerClockGrid(qint64 grid)
{
    if (grid % 2 == 0)
        return grid / 2;
    return grid % 5 == 0 ? grid / 5 : grid;
}

} // namespace

double autoValueGrid(double span, int plotHeight)
{
    if (plotHeight <= 0 || !(span > 0.0) || !std::isfinite(span))
        return kGridLadder.front(); // no step fits, and the search below would not end
    const auto pixels = [&](double grid) { return std::round(grid / span * plotHeight); };
    // From a table: steps reached by repeated division would no longer equal 0.1, 0.01 and so on.
    const auto finest = std::prev(kGridLadder.end());
    auto step = kGridLadder.begin();
    while (step != finest && pixels(*step) > kWidestStep)
        ++step;
    double grid = *step;
    while (pixels(grid) < kNarrowestStep)
        grid *= 2.0;
    return grid;
}

int labelDecimals(double span)
{
    if (span <= 1.0)
        return 3;
    if (span <= 10.0)
        return 2;
    return span <= 100.0 ? 1 : 0;
}

int autoClockGrid(int zoom, int clock, int clockGrid)
{
    qint64 grid = clockGrid;
    const auto spacing = [&] { return zoom * grid / clock; };
    while (spacing() > kWidestClockStep && finerClockGrid(grid) != grid)
        grid = finerClockGrid(grid);
    while (spacing() < kNarrowestClockStep && grid <= std::numeric_limits<int>::max() / 2)
        grid *= 2;
    return int(grid);
}

QString timeLabel(qint64 milliseconds)
{
    if (milliseconds <= 1000)
        return QString::number(milliseconds) + QLatin1String("ms");
    if (milliseconds <= 1000000)
        return withoutTrailingZeros(QString::number(double(milliseconds) / 1000.0, 'f', 6)) + QLatin1Char('s');
    return withoutTrailingZeros(QString::number(double(milliseconds) / 1000000.0, 'f', 6)) + QLatin1String("Ts");
}

GridLines valueGridLines(const PlotGeometry &geometry, double grid)
{
    constexpr double kLargestMultiple = 1e15; // beyond, neighbouring multiples are no longer exact
    constexpr double kSlack = 1e-9;           // 0.1 * 3 still belongs to a range that ends at 0.3
    const double valuesPerPixel = geometry.span() / geometry.plotHeight();
    if (geometry.plotHeight() <= 0 || !(grid > 0.0) || !std::isfinite(grid) || !std::isfinite(valuesPerPixel))
        return {};
    // Lines above 0 run up from 0 to the maximum and may lie below the plot area; those below 0 run down to the
    // minimum and may lie above it.
    const double hidden = 2.0 * geometry.margin * valuesPerPixel;
    const double lowest = std::max(std::min(geometry.minValue, 0.0), geometry.minValue - hidden);
    const double highest = std::min(std::max(geometry.maxValue, 0.0), geometry.maxValue + hidden);
    const double first = std::ceil(lowest / grid - kSlack);
    const double last = std::floor(highest / grid + kSlack);
    if (!(first > -kLargestMultiple) || !(last < kLargestMultiple))
        return {};
    const double stride = std::max(1.0, std::ceil(valuesPerPixel / grid));
    GridLines lines;
    lines.stride = qint64(stride);
    lines.first = qint64(std::floor(first / stride)) * lines.stride;
    if (double(lines.first) < first)
        lines.first += lines.stride;
    lines.last = geometry.maxValue < 0.0 ? std::min<qint64>(qint64(last), -1) : qint64(last);
    return lines;
}

GridLines clockGridLines(const PlotGeometry &geometry, int clockGrid)
{
    constexpr int kLabelShift = 3; // a label begins this many pixels left of its line
    GridLines lines;
    if (clockGrid < 1)
        return lines;
    const qint64 distance =
        std::min(geometry.width - 1, geometry.widgetWidth + kLabelShift - PlotGeometry::kLeftMargin);
    if (distance <= 0)
        return lines;
    const qint64 clock = geometry.clock;
    const qint64 leftEdge = clock * geometry.startIndex;
    const qint64 lastTime = leftEdge + (distance * clock + geometry.zoom - 1) / geometry.zoom - 1;
    lines.first = leftEdge / clockGrid + 1;
    lines.last = lastTime >= 0 ? lastTime / clockGrid : -((-lastTime + clockGrid - 1) / clockGrid);
    lines.stride = std::max<qint64>(1, clock / (qint64(clockGrid) * geometry.zoom));
    return lines;
}
