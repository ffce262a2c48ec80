#include "plots/oscilloscope/osziscene.h"

#include "plots/common/logging.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double kSmallestRange = 0.0001; // value units between the lower and the upper edge

template <typename List>
bool hasIndex(const List &list, int index)
{
    return index >= 0 && index < list.size();
}

/// As hasIndex(), but says so where there is none.
template <typename List>
bool hasIndexOrLog(const List &list, int index)
{
    if (hasIndex(list, index))
        return true;
    logIndexError(index);
    return false;
}

} // namespace

bool OsziScene::setMinValue(double value)
{
    if (!std::isfinite(value) || !(value < geometry.maxValue - kSmallestRange))
        return false;
    geometry.minValue = value;
    return true;
}

bool OsziScene::setMaxValue(double value)
{
    if (!std::isfinite(value) || !(value > geometry.minValue + kSmallestRange))
        return false;
    geometry.maxValue = value;
    return true;
}

bool OsziScene::setZoom(int zoom)
{
    if (zoom <= 0)
        return false;
    geometry.zoom = zoom;
    return true;
}

int OsziScene::wholeZoom(double zoom)
{
    return int(std::min(std::round(zoom), double(std::numeric_limits<int>::max())));
}

bool OsziScene::setClock(int clock)
{
    if (clock <= 0)
        return false;
    geometry.clock = clock;
    return true;
}

bool OsziScene::setValueGrid(double grid)
{
    if (!std::isfinite(grid) || !(grid > 0.0))
        return false;
    valueGrid = grid;
    return true;
}

void OsziScene::setValueGridAuto(bool automatic)
{
    valueGridAuto = automatic;
    if (automatic)
        valueGrid = 1.0; // the next paint announces what it finds instead
}

bool OsziScene::setClockGrid(int grid)
{
    if (grid < geometry.clock)
        return false;
    clockGrid = grid;
    return true;
}

bool OsziScene::setOffset(double value)
{
    if (!std::isfinite(value))
        return false;
    offset = value;
    return true;
}

void OsziScene::setMarkerCount(int n)
{
    markers.resize(std::max(n, 0));
}

bool OsziScene::setMarker(int index, int position, const QColor &color)
{
    if (!hasIndex(markers, index))
        return false;
    markers[index].position = position;
    markers[index].color = color;
    return true;
}

bool OsziScene::setMarkerPosition(int index, int position)
{
    if (!hasIndexOrLog(markers, index))
        return false;
    markers[index].position = position;
    return true;
}

bool OsziScene::setPhaseName(int index, const QString &name)
{
    if (!hasIndexOrLog(markers, index))
        return false;
    markers[index].phase = name;
    return true;
}

void OsziScene::setLineCount(int n)
{
    lines.resize(std::max(n, 0));
}

bool OsziScene::setLine(int index, const OsziLine &line)
{
    if (!hasIndexOrLog(lines, index))
        return false;
    lines[index] = line;
    return true;
}
