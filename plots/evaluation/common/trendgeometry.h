#pragma once

#include "plots/charts/capability.h"

#include <QRectF>
#include <QVector>

#include <optional>
#include <vector>

/// One value per shot; std::nullopt where a shot has none.
using TrendValues = std::vector<std::optional<double>>;

struct TrendRange
{
    double minimum = 0.0;
    double maximum = 1.0; ///< always above the minimum
};

/// All values and limits with a little room at both ends; 0 to 1 if there are none.
[[nodiscard]] TrendRange trendRange(const TrendValues &values, const ToleranceLimits &limits);

/// Marks at multiples of 1, 2 or 5 times a power of ten inside the range, with at most `most` steps between
/// its ends.
struct TrendTicks
{
    QVector<double> values;
    double step = 0.0;
};
[[nodiscard]] TrendTicks trendTicks(TrendRange range, int most);
/// The text of a mark, with as many decimals as the step needs.
[[nodiscard]] QString tickText(double value, double step);

/// Where values are drawn in a chart: shot 0 at the left edge, the last shot at the right; a single shot in the middle.
struct TrendGeometry
{
    QRectF area;
    int count = 0; ///< shots
    TrendRange range;

    [[nodiscard]] double x(int shot) const;
    [[nodiscard]] double y(double value) const;
    /// Pixels between two shots; the whole width for fewer than two.
    [[nodiscard]] double spacing() const;
    /// The shot nearest to a pixel; -1 if there is none.
    [[nodiscard]] int shotAt(double x) const;
};

/// What is drawn where several values share a column of pixels: the smallest and the largest one.
struct TrendColumn
{
    int first = 0; ///< shot whose value is the column's first
    double minimum = 0.0;
    double maximum = 0.0;
};
[[nodiscard]] std::vector<TrendColumn> trendColumns(const TrendValues &values, const TrendGeometry &geometry);
