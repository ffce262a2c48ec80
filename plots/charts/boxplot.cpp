#include "plots/charts/boxplot.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kLabelLead = 20; // pixels from a label's begin to the position of its value
constexpr int kLabelGap = 4;   // pixels kept free between two labels

} // namespace

int BoxPlotGeometry::length() const
{
    const int rest =
        vertical ? size.height() - margins.top() - margins.bottom() : size.width() - margins.left() - margins.right();
    return std::max(0, rest);
}

int BoxPlotGeometry::thickness() const
{
    const int rest =
        vertical ? size.width() - margins.left() - margins.right() : size.height() - margins.top() - margins.bottom();
    return std::max(0, rest);
}

QRect BoxPlotGeometry::plotArea() const
{
    const QSize area = vertical ? QSize(thickness(), length()) : QSize(length(), thickness());
    return {QPoint(margins.left(), margins.top()), area};
}

int BoxPlotGeometry::along(double value) const
{
    const double span = axisMaximum - axisMinimum;
    if (span == 0.0)
        return 0;
    const double distance = std::round(length() * (value - axisMinimum) / span);
    if (std::isnan(distance))
        return 0;
    return static_cast<int>(std::clamp(distance, -1.0 * kFarAway, 1.0 * kFarAway));
}

bool BoxPlotGeometry::isInside(double value) const
{
    const int distance = along(value);
    return distance >= 0 && distance < length();
}

int BoxPlotGeometry::clampedAlong(double value) const
{
    return std::clamp(along(value), 0, length());
}

QPoint BoxPlotGeometry::pixel(int along, int across) const
{
    if (vertical)
        return {margins.left() + across, size.height() - margins.bottom() - along};
    return {margins.left() + along, margins.top() + across};
}

LabelPlaces placeLabels(const BoxPlotGeometry &geometry, const statistics::FiveNumbers &numbers,
                        const LabelLengths &lengths)
{
    const int before = geometry.vertical ? geometry.margins.bottom() : geometry.margins.left();
    const int after = geometry.vertical ? geometry.margins.top() : geometry.margins.right();
    const int end = geometry.length() + after;
    const auto place = [&](double value, int length) {
        return std::max(-before, std::min(geometry.clampedAlong(value) - kLabelLead, end - length));
    };
    LabelPlaces places;
    places.median = place(numbers.median, lengths.median);
    const int low = std::min(place(numbers.minimum, lengths.minimum), places.median - kLabelGap - lengths.minimum);
    const int high = std::max(place(numbers.maximum, lengths.maximum), places.median + lengths.median + kLabelGap);
    if (numbers.minimum < numbers.median && low >= -before)
        places.minimum = low;
    if (numbers.maximum > numbers.median && high + lengths.maximum <= end)
        places.maximum = high;
    return places;
}
