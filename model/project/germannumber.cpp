#include "model/project/germannumber.h"

#include <QLocale>
#include <QtAlgorithms>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace {

constexpr int kDigits = 6;
constexpr std::uint32_t kEnd = 1000000; // the first number with one digit more
constexpr std::uint32_t kBegin = kEnd / 10;

/// Powers of ten that are doubles without rounding.
constexpr std::array<double, 23> kPowers{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                         1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int kMostShift = 22;
// Within these a shift by an exact power of ten is enough.
constexpr double kSmallest = 1e-16;
constexpr double kLargest = 1e27;

/// d1,d2d3d4d5d6 * 10^exponent
struct Rounded
{
    std::uint32_t digits; // kBegin to kEnd - 1
    int exponent;
};

double shifted(double value, int shift)
{
    return shift >= 0 ? value * kPowers[static_cast<std::size_t>(shift)]
                      : value / kPowers[static_cast<std::size_t>(-shift)];
}

/// Whether value * 10^shift is at least `near`, which is what that rounds to as a double.
bool reaches(double value, int shift, double near)
{
    if (shift >= 0)
        return std::fma(value, kPowers[static_cast<std::size_t>(shift)], -near) >= 0.0;
    return std::fma(-near, kPowers[static_cast<std::size_t>(-shift)], value) >= 0.0;
}

/// At most the decimal exponent of a positive normal number, and less by one at most.
int guessExponent(double value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    const int binary = static_cast<int>(bits >> 52) - 1023;
    return (binary * 1233) >> 12; // 1233 / 4096 is a little less than log10(2)
}

/// Half a unit is rounded away from zero. The shifted number is a rounded one, but rounding does not carry it over a
/// half: that is a double itself. Only a number that lands on the half has to be looked at more closely.
Rounded roundToDigits(double value)
{
    int exponent = guessExponent(value);
    double scaled = shifted(value, kDigits - 1 - exponent);
    if (scaled >= kEnd)
        scaled = shifted(value, kDigits - 1 - ++exponent);
    auto digits = static_cast<std::uint32_t>(scaled);
    const double rest = scaled - digits;
    digits += static_cast<std::uint32_t>(rest > 0.5); // no branch: it would be mispredicted half of the time
    if (rest == 0.5 && reaches(value, kDigits - 1 - exponent, scaled))
        ++digits;
    if (digits < kEnd)
        return {digits, exponent};
    return {kBegin, exponent + 1};
}

/// Two digits, the first one in the low byte.
std::uint64_t twoDigits(std::uint32_t number)
{
    const std::uint32_t tens = number / 10;
    return tens | (number - 10 * tens) << 8;
}

/// Six digits, the first one in the low byte.
std::uint64_t sixDigits(std::uint32_t number)
{
    const std::uint32_t hundreds = number / 100;
    const std::uint32_t tenThousands = number / 10000;
    return twoDigits(tenThousands) | twoDigits(hundreds - 100 * tenThousands) << 16
           | twoDigits(number - 100 * hundreds) << 32;
}

/// Copies more than `count`, as a copy of fixed length is a single step; what is too much is written over or left.
char *writeDigits(char *out, const char *digits, int count)
{
    std::memcpy(out, digits, kDigits);
    return out + count;
}

char *writeExponential(char *out, const char *digits, int count, int exponent)
{
    *out++ = digits[0];
    if (count > 1) {
        *out++ = ',';
        out = writeDigits(out, digits + 1, count - 1);
    }
    *out++ = 'e';
    *out++ = exponent < 0 ? '-' : '+';
    const int size = std::abs(exponent);
    *out++ = static_cast<char>('0' + size / 10); // sizes end at 27
    *out++ = static_cast<char>('0' + size % 10);
    return out;
}

char *writeSmall(char *out, const char *digits, int count, int exponent)
{
    *out++ = '0';
    *out++ = ',';
    for (int zeros = -exponent - 1; zeros > 0; --zeros)
        *out++ = '0';
    return writeDigits(out, digits, count);
}

/// `whole`: digits before the comma, at most six.
char *writeDecimal(char *out, const char *digits, int count, int whole)
{
    if (whole > 3) {
        out = writeDigits(out, digits, whole - 3);
        *out++ = '.';
        out = writeDigits(out, digits + whole - 3, 3);
    } else {
        out = writeDigits(out, digits, whole);
    }
    if (count <= whole)
        return out;
    *out++ = ',';
    return writeDigits(out, digits + whole, count - whole);
}

char *writeRounded(char *out, const Rounded &number)
{
    constexpr std::uint64_t kZeros = 0x3030303030303030;
    const std::uint64_t values = sixDigits(number.digits);
    char digits[2 * sizeof values]; // writeDigits() may begin at the last digit
    qToLittleEndian(values + kZeros, digits);
    std::memset(digits + sizeof values, '0', sizeof values);
    const int count = 8 - static_cast<int>(qCountLeadingZeroBits(static_cast<quint64>(values))) / 8;
    if (number.exponent < -4 || number.exponent >= kDigits)
        return writeExponential(out, digits, count, number.exponent);
    if (number.exponent < 0)
        return writeSmall(out, digits, count, number.exponent);
    return writeDecimal(out, digits, count, number.exponent + 1);
}

char *writeWithLocale(char *out, double value)
{
    static const QLocale german(QLocale::German);
    const QByteArray text = german.toString(value, 'g', kDigits).toUtf8();
    return std::copy(text.cbegin(), text.cend(), out);
}

} // namespace

char *writeGermanNumber(char *out, double value)
{
    const double size = std::fabs(value);
    if (size == 0.0) {
        *out++ = '0';
        return out;
    }
    if (!(size >= kSmallest && size < kLargest))
        return writeWithLocale(out, value);
    if (value < 0.0)
        *out++ = '-';
    return writeRounded(out, roundToDigits(size));
}
