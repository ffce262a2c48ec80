#include "device/protocol/sampleline.h"

#include <QStringView>

#include <cmath>
#include <cstdint>

namespace {

constexpr int kFirstValueField = 1;
constexpr int kMinFields = 3;

// Powers of ten that a double holds exactly, and the largest integer up to which every one is exact: a quotient of two
// such numbers is rounded once, so that it equals the correctly rounded decimal number.
constexpr std::array<double, 23> kPowersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                              1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::uint64_t kLargestExactInteger = std::uint64_t{1} << 53;

bool isAsciiDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

struct Digits
{
    std::uint64_t number = 0;
    int count = 0;
    int fraction = 0; ///< how many of them follow the point
};

// Reads "12", "12.5" from `pos` on, which is moved behind them. An overlong number only has to be recognised as such.
Digits readDigits(const char16_t *&pos, const char16_t *end)
{
    Digits digits;
    const auto take = [&] {
        const int before = digits.count;
        for (; pos != end && isAsciiDigit(*pos) && digits.count < 19; ++pos, ++digits.count)
            digits.number = digits.number * 10 + (*pos - u'0');
        return digits.count - before;
    };
    if (take() > 0 && pos != end && *pos == u'.') {
        const char16_t *point = pos++;
        digits.fraction = take();
        if (digits.fraction == 0)
            pos = point;
    }
    return digits;
}

// Plain decimal numbers, which is what the box sends; nothing for any other spelling.
std::optional<double> plainNumber(const char16_t *pos, const char16_t *end)
{
    const bool negative = pos != end && *pos == u'-';
    if (negative)
        ++pos;
    const Digits digits = readDigits(pos, end);
    if (pos != end || digits.count == 0 || digits.number > kLargestExactInteger)
        return std::nullopt;
    const double value = static_cast<double>(digits.number) / kPowersOfTen.at(static_cast<size_t>(digits.fraction));
    return negative ? -value : value;
}

bool isLineEnd(char16_t c)
{
    return c == u'\n' || c == u'\r' || c == u' ';
}

double fieldValue(QStringView field)
{
    const char16_t *begin = field.utf16();
    const char16_t *end = begin + field.size();
    while (end != begin && isLineEnd(end[-1]))
        --end;
    if (const std::optional<double> plain = plainNumber(begin, end))
        return *plain;
    // Slow but exact: an exponent, white space in front, more digits than a double can hold.
    const double value = field.toString().toDouble();
    return std::isfinite(value) ? value : 0.0;
}

} // namespace

std::optional<SampleLine> parseSampleLine(const QString &message, double divisor)
{
    SampleLine line;
    const QStringView text(message);
    qsizetype start = 0;
    for (bool last = false; !last; ++line.numFields) {
        const qsizetype separator = text.indexOf(u';', start);
        last = separator < 0;
        const qsizetype end = last ? text.size() : separator;
        const int sensor = line.numFields - kFirstValueField;
        if (sensor >= 0 && sensor < kNumSensors) {
            const double value = fieldValue(text.mid(start, end - start)) / divisor;
            line.values.at(static_cast<size_t>(sensor)) = std::isfinite(value) ? value : 0.0;
        }
        start = end + 1;
    }
    return line.numFields < kMinFields ? std::nullopt : std::optional<SampleLine>(line);
}
