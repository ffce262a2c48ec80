#include "view/sensors/sensorscale.h"

#include "plots/common/localnumber.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kMargin = 0.1;      // of the range between the limits, shown beyond them
constexpr double kTargetSteps = 12;  // on a scale; not all of them get a label
constexpr double kLeastAround = 2.0; // on both sides of a value that has not moved yet
constexpr int kMostDecimals = 6;
constexpr double kSmallestStep = 1e-6; // that labels can show
constexpr double kLargestPlain = 1e7;
constexpr int kExponentDigits = 5;

/// 1, 2 or 5 times a power of ten, not below a positive `step`.
double niceStep(double step)
{
    const double power = std::pow(10.0, std::floor(std::log10(step)));
    for (double factor : {1.0, 2.0, 5.0}) {
        if (step <= factor * power * 1.000001)
            return factor * power;
    }
    return 10.0 * power;
}

/// The number of decimals that shows differences of a fraction of `unit`.
int decimalsFor(double unit)
{
    return std::clamp(-static_cast<int>(std::floor(std::log10(unit) + 1e-9)), 0, kMostDecimals);
}

/// What has to be shown, before the ends are rounded to labels.
HeldRange wantedRange(const SensorLimits &limits, const std::optional<HeldRange> &held)
{
    if (limits.lower && limits.upper) {
        const double margin = kMargin * (*limits.upper - *limits.lower);
        return {*limits.lower - margin, *limits.upper + margin};
    }
    const double limit = limits.lower ? *limits.lower : limits.upper.value_or(held ? held->minimum : 0.0);
    const HeldRange range = held ? HeldRange{std::min(held->minimum, limit), std::max(held->maximum, limit)}
                                 : HeldRange{std::min(0.0, limit), std::max(0.0, limit)};
    const double span = range.maximum - range.minimum;
    const double margin = limits.isAny() ? kMargin * span : 0.0;
    // A value that has not changed yet is shown in the middle of a range of its own size.
    const double around = span > 0.0 ? margin : std::max(kLeastAround, 0.1 * std::abs(limit));
    return {range.minimum - around, range.maximum + around};
}

} // namespace

SensorLimits sensorLimits(double minimum, double maximum)
{
    SensorLimits limits;
    if (!(minimum < maximum) || !std::isfinite(minimum) || !std::isfinite(maximum))
        return limits;
    if (minimum != SensorLimits::kNoLower)
        limits.lower = minimum;
    if (maximum != SensorLimits::kNoUpper)
        limits.upper = maximum;
    return limits;
}

double SensorScale::fraction(double value) const
{
    return isKnown() ? std::clamp((value - low) / (high - low), 0.0, 1.0) : 0.0;
}

int SensorScale::numSteps() const
{
    return isKnown() ? static_cast<int>(std::lround((high - low) / step)) : 0;
}

SensorScale sensorScale(const SensorLimits &limits, const std::optional<HeldRange> &held)
{
    SensorScale scale;
    if (!limits.isAny() && !held)
        return scale;
    const HeldRange wanted = wantedRange(limits, held);
    const double span = wanted.maximum - wanted.minimum;
    const double size = std::max(std::abs(wanted.minimum), std::abs(wanted.maximum));
    // Neighbouring numbers of a tiny range, or of a small one far from zero, cannot be told apart; an enormous range
    // has no span.
    if (!std::isfinite(span) || !(span > size * 1e-9) || span < kTargetSteps * kSmallestStep)
        return scale;
    scale.step = niceStep(span / kTargetSteps);
    scale.low = std::floor(wanted.minimum / scale.step + 1e-9) * scale.step;
    scale.high = std::ceil(wanted.maximum / scale.step - 1e-9) * scale.step;
    if (!std::isfinite(scale.high - scale.low)) // can only happen by the rounding above
        return {};
    scale.labelDecimals = decimalsFor(scale.step);
    scale.valueDecimals = decimalsFor((scale.high - scale.low) / 300.0);
    return scale;
}

QString sensorValueText(double value, int decimals)
{
    if (std::abs(value) >= kLargestPlain)
        return localNumber(value, 'g', kExponentDigits);
    const double unit = std::pow(10.0, -decimals);
    return localNumber(std::abs(value) < 0.5 * unit ? 0.0 : value, 'f', decimals); // never "-0,0"
}
