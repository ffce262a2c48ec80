#include "kit/gauge/qcgaugemath.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace qcgauge {

namespace {

constexpr double kOverrun = 5.0;          // degrees
constexpr double kTolerance = 1e-9;       // steps: the largest sum of rounding errors
constexpr double kMostMultiples = 1000.0; // more cannot be told apart on any screen
constexpr double kExactIntegers = 9e15;   // above that a double skips integers
constexpr int kMarkDecimals = 5;          // numbers with more decimals get an exponent
constexpr int kFigures = 6;               // of a number with an exponent
constexpr double kLongNumber = 1e9;       // written with an exponent from here on
constexpr double kBeyondPrefixes = 1e12;
constexpr double kSameStep = 1e-6; // of a step; less is a rounding error
constexpr int kShortDecimals = 2;

double powerOfTen(double step)
{
    return std::pow(10.0, std::floor(std::log10(step) + kTolerance));
}

QLocale withoutGroups(const QLocale &locale)
{
    QLocale plain(locale);
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    return plain;
}

/// The fewest that tell the multiples of the step apart; kMarkDecimals + 1 if that takes too many.
int decimalsOf(double step)
{
    int decimals = 0;
    for (double scaled = step; decimals <= kMarkDecimals; ++decimals, scaled *= 10.0) {
        if (std::abs(scaled - std::round(scaled)) <= scaled * kSameStep)
            break;
    }
    return decimals;
}

struct Prefix
{
    double factor = 1.0;
    QString symbol;
};

/// The largest prefix that leaves a digit before the decimal point.
Prefix prefixOf(double value)
{
    const double size = std::abs(value);
    if (size < 1e3 || size >= kBeyondPrefixes)
        return {};
    if (size < 1e6)
        return {1e3, QStringLiteral("k")};
    return size < 1e9 ? Prefix{1e6, QStringLiteral("M")} : Prefix{1e9, QStringLiteral("G")};
}

/// 1, 2 or 5 for a step of the ladder.
int leadingDigit(double step)
{
    return static_cast<int>(std::lround(step / powerOfTen(step)));
}

} // namespace

double fraction(double value, double from, double to)
{
    if (from == to || !std::isfinite(value))
        return 0.0;
    return (value / 2 - from / 2) / (to / 2 - from / 2); // halves: the span of two large numbers may overflow
}

double clampedFraction(double value, double from, double to)
{
    return std::clamp(fraction(value, from, to), 0.0, 1.0);
}

double lengthAt(double value, double from, double to, double length)
{
    return clampedFraction(value, from, to) * length;
}

double angleAt(const Scale &scale, double value, double beyond)
{
    const double extent = std::abs(scale.sweep);
    const double way = std::clamp(fraction(value, scale.from, scale.to) * extent, -beyond, extent + beyond);
    return scale.start + std::copysign(1.0, scale.sweep) * way;
}

double valueAt(const Scale &scale, double angle)
{
    const double part = clampedFraction(angle, scale.start, scale.start + scale.sweep);
    return scale.from * (1.0 - part) + scale.to * part;
}

double overrun(const Scale &scale)
{
    return std::clamp((360.0 - std::abs(scale.sweep)) / 3.0, 0.0, kOverrun);
}

double niceStep(double span, int atMost)
{
    const double extent = std::min(std::abs(span), std::numeric_limits<double>::max());
    if (!(extent > 0.0)) // also not a number
        return 0.0;
    const double least = extent / (std::max(atMost, 2) - 1);
    if (least < std::numeric_limits<double>::min())
        return 0.0;
    const double power = powerOfTen(least);
    for (const double digit : {1.0, 2.0, 5.0}) {
        if (digit * power >= least * (1.0 - kTolerance))
            return digit * power;
    }
    return 10.0 * power;
}

double coarserStep(double step)
{
    if (!(step > 0.0))
        return 0.0;
    return leadingDigit(step) == 2 ? step * 2.5 : step * 2.0;
}

int partsOfStep(double step)
{
    return step > 0.0 && leadingDigit(step) == 2 ? 4 : 5;
}

std::vector<double> multiples(double from, double to, double step)
{
    if (!(step > 0.0))
        return {};
    const double low = std::min(from, to);
    const double high = std::max(from, to);
    const double first = std::ceil(low / step - kTolerance);
    const double last = std::floor(high / step + kTolerance);
    if (std::max(std::abs(first), std::abs(last)) > kExactIntegers || last - first >= kMostMultiples)
        return {low, high};
    std::vector<double> result;
    for (int i = 0; i <= static_cast<int>(last - first); ++i)
        result.push_back((first + i) * step + 0.0); // + 0.0: no negative zero
    return result;
}

QString numberText(double value, int decimals, const QLocale &locale)
{
    const QLocale plain = withoutGroups(locale);
    if (std::abs(value) >= kLongNumber)
        return plain.toString(value, 'g', kFigures);
    const bool isZero = std::abs(value) * 2.0 < std::pow(10.0, -decimals);
    return plain.toString(isZero ? 0.0 : value, 'f', decimals); // never "-0.0"
}

QString markText(double value, double step, const QLocale &locale)
{
    if (!(step > 0.0))
        return numberText(value, 0, locale);
    const int decimals = decimalsOf(step);
    return decimals <= kMarkDecimals ? numberText(value, decimals, locale)
                                     : withoutGroups(locale).toString(value, 'g', kFigures);
}

QString shortMarkText(double value, double step, const QLocale &locale)
{
    const Prefix prefix = prefixOf(value);
    return markText(value / prefix.factor, step / prefix.factor, locale) + prefix.symbol;
}

QString shortText(double value, int decimals, const QLocale &locale)
{
    const double size = std::abs(value);
    if ((size > 0.0 && size < 1.0) || size >= kBeyondPrefixes)
        return withoutGroups(locale).toString(value, 'g', decimals + 1);
    const Prefix prefix = prefixOf(value);
    return numberText(value / prefix.factor, decimals, locale) + prefix.symbol;
}

QString fittingNumber(double value, int decimals, const QLocale &locale, double room,
                      const std::function<double(const QString &)> &widthOf)
{
    const auto isZero = [&](int shown) { return numberText(value, shown, locale) == numberText(0.0, shown, locale); };
    for (int fewer = decimals; fewer >= 0; --fewer) {
        const QString text = numberText(value, fewer, locale);
        if (widthOf(text) <= room && (!isZero(fewer) || isZero(decimals)))
            return text;
    }
    for (int fewer = kShortDecimals; fewer >= 0; --fewer) {
        const QString text = shortText(value, fewer, locale);
        if (widthOf(text) <= room)
            return text;
    }
    return numberText(value, 0, locale);
}

double normalizedAngle(double degrees)
{
    if (!std::isfinite(degrees))
        return 0.0;
    const double angle = std::remainder(degrees, 360.0);
    return angle <= -180.0 ? 180.0 : angle;
}

} // namespace qcgauge
