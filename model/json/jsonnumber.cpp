#include "model/json/jsonnumber.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace {

// Between these the standard library writes the shortest number without an exponent, as QJsonDocument does.
constexpr double kLeastPlain = 0.001;
constexpr double kMostPlain = 9007199254740992.0; // 2^53: above it, it shows digits that are not the shortest

// The shortest digits of a number and the place of its decimal point, counted from the first digit.
struct Digits
{
    char text[20];
    int count = 0;
    int point = 0;
};

char *copy(char *out, const char *text, int count)
{
    std::memcpy(out, text, static_cast<std::size_t>(count));
    return out + count;
}

char *fill(char *out, int count)
{
    return std::fill_n(out, std::max(count, 0), '0');
}

Digits shortestDigits(double positive)
{
    char text[kMaxNumberLength];
    const char *end = std::to_chars(text, text + sizeof text, positive, std::chars_format::scientific).ptr;
    const char *mark = std::find(static_cast<const char *>(text), end, 'e');
    Digits digits;
    for (const char *c = text; c != mark; ++c) {
        if (*c != '.')
            digits.text[digits.count++] = *c;
    }
    int exponent = 0;
    std::from_chars(mark + (mark[1] == '+' ? 2 : 1), end, exponent);
    digits.point = exponent + 1;
    return digits;
}

char *writeDecimal(char *out, const Digits &digits)
{
    if (digits.point <= 0) {
        out = copy(out, "0.", 2);
        out = fill(out, -digits.point);
        return copy(out, digits.text, digits.count);
    }
    const int whole = std::min(digits.point, digits.count);
    out = copy(out, digits.text, whole);
    out = fill(out, digits.point - whole);
    if (whole == digits.count)
        return out;
    *out++ = '.';
    return copy(out, digits.text + whole, digits.count - whole);
}

char *writeExponential(char *out, const Digits &digits)
{
    *out++ = digits.text[0];
    if (digits.count > 1) {
        *out++ = '.';
        out = copy(out, digits.text + 1, digits.count - 1);
    }
    const int exponent = digits.point - 1;
    *out++ = 'e';
    *out++ = exponent < 0 ? '-' : '+';
    const int size = std::abs(exponent);
    if (size < 10)
        *out++ = '0'; // an exponent has at least two digits
    return std::to_chars(out, out + 4, size).ptr;
}

// Whether QJsonDocument would write a number with an exponent; moderate integers never have one.
bool wantsExponent(const Digits &digits)
{
    return digits.point <= -4 || digits.point > digits.count + 5;
}

bool isModerateInteger(double positive)
{
    return positive < 18446744073709551616.0 && std::floor(positive) == positive;
}

// Most measured values have at most three decimals: value = scaled / 1000. A decimal of up to 15 digits is the only
// one of its length that reads as its double, so its own digits are the shortest ones.
bool asThousandths(double positive, std::uint64_t &scaled)
{
    constexpr double kLargest = 1e12;
    if (!(positive < kLargest))
        return false;
    const double product = positive * 1000.0;
    scaled = static_cast<std::uint64_t>(product);
    scaled += product - static_cast<double>(scaled) >= 0.5 ? 1 : 0;
    return static_cast<double>(scaled) / 1000.0 == positive;
}

char *writeThousandths(char *out, std::uint64_t scaled)
{
    out = std::to_chars(out, out + 16, scaled / 1000).ptr;
    const auto rest = static_cast<unsigned>(scaled % 1000);
    if (rest == 0)
        return out;
    out[0] = '.';
    out[1] = static_cast<char>('0' + rest / 100);
    out[2] = static_cast<char>('0' + rest / 10 % 10);
    out[3] = static_cast<char>('0' + rest % 10);
    out += 4;
    while (out[-1] == '0')
        --out;
    return out;
}

} // namespace

char *writeJsonNumber(char *out, double value)
{
    const bool negative = std::signbit(value);
    if (value == 0.0)
        return negative ? copy(out, "-0.0", 4) : copy(out, "0", 1);
    if (negative)
        *out++ = '-';
    const double positive = std::abs(value);
    std::uint64_t scaled = 0;
    if (asThousandths(positive, scaled))
        return writeThousandths(out, scaled);
    if (positive >= kLeastPlain && positive < kMostPlain)
        return std::to_chars(out, out + kMaxNumberLength - 1, positive, std::chars_format::fixed).ptr;
    const Digits digits = shortestDigits(positive);
    if (!isModerateInteger(positive) && wantsExponent(digits))
        return writeExponential(out, digits);
    return writeDecimal(out, digits);
}
