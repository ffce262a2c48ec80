#pragma once

#include <QLocale>
#include <QString>

#include <functional>
#include <vector>

/// What gauges and linear displays compute, without any widget. Angles are degrees clockwise from the top, like those
/// of a clock's hand. A range may be reversed (from > to) and may be empty (from == to); its ends are finite.
namespace qcgauge {

/// Where values are on a dial.
struct Scale
{
    double from = 0.0;
    double to = 100.0;
    double start = -120.0; ///< angle of `from`
    double sweep = 240.0;  ///< from there to `to`; negative: counterclockwise
};

[[nodiscard]] inline bool operator==(const Scale &a, const Scale &b)
{
    return a.from == b.from && a.to == b.to && a.start == b.start && a.sweep == b.sweep;
}

/// 0 at `from`, 1 at `to`, below 0 or above 1 outside the range; 0 for an empty range and for values that are not
/// finite.
[[nodiscard]] double fraction(double value, double from, double to);
/// The same, kept within 0 and 1.
[[nodiscard]] double clampedFraction(double value, double from, double to);
/// The distance from the beginning of a bar of this length to the value, clamped to the bar.
[[nodiscard]] double lengthAt(double value, double from, double to, double length);

/// The angle of a value, which stays at most `beyond` degrees (not negative) outside the scale.
[[nodiscard]] double angleAt(const Scale &scale, double value, double beyond = 0.0);
/// The value at an angle; outside the scale that of the nearest end.
[[nodiscard]] double valueAt(const Scale &scale, double angle);
/// How many degrees a needle may go past the ends: a few, fewer where the ends of the scale are close to each other.
[[nodiscard]] double overrun(const Scale &scale);

/// The smallest step 1, 2 or 5 times a power of ten of which a range of this span holds no more than `atMost` multiples
/// (at least 2). 0 if the span is empty or not a number.
[[nodiscard]] double niceStep(double span, int atMost);
/// The next step of that ladder. 0 for 0.
[[nodiscard]] double coarserStep(double step);
/// Into how many parts minor marks divide a step of that ladder: 5, or 4 for steps that begin with 2.
[[nodiscard]] int partsOfStep(double step);
/// The multiples of the step within the range, ascending. Only the ends if there would be more than a thousand or if
/// the numbers are too large to be told apart; none for a step that is not positive.
[[nodiscard]] std::vector<double> multiples(double from, double to, double step);

/// A number for the user, without group separators; with an exponent from 1e9 on.
[[nodiscard]] QString numberText(double value, int decimals, const QLocale &locale);
/// A multiple of a step with as many decimals as tell the multiples apart; with an exponent when it would be long.
[[nodiscard]] QString markText(double value, double step, const QLocale &locale);
/// The same with k, M or G for thousands, millions and thousands of millions: "150k".
[[nodiscard]] QString shortMarkText(double value, double step, const QLocale &locale);
/// A rounded number for little room: with k, M or G as above, or with an exponent if it would have many zeros.
[[nodiscard]] QString shortText(double value, int decimals, const QLocale &locale);
/// A number with as many of the decimals as fit into the room. If not even the integer fits, or only zeros would be
/// left, a short text; the number without decimals if nothing fits. `widthOf` and `room` share one unit.
[[nodiscard]] QString fittingNumber(double value, int decimals, const QLocale &locale, double room,
                                    const std::function<double(const QString &)> &widthOf);

/// The angle from -180 (excluded) to 180 that points the same way; 0 for what is not finite.
[[nodiscard]] double normalizedAngle(double degrees);

} // namespace qcgauge
