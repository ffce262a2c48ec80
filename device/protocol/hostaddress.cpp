#include "device/protocol/hostaddress.h"

#include <QStringList>

#include <algorithm>

namespace {

// Bounds of the domain name system.
constexpr int kMaxHostName = 253;
constexpr int kMaxLabel = 63;

bool isAsciiDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool isAsciiLetter(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
}

bool isNumeric(const QString &label)
{
    return !label.isEmpty() && std::all_of(label.begin(), label.end(), isAsciiDigit);
}

bool isOctet(const QString &label)
{
    const bool leadingZero = label.size() > 1 && label.startsWith(QLatin1Char('0'));
    return isNumeric(label) && label.size() <= 3 && !leadingZero && label.toInt() <= 255;
}

bool isHostLabel(const QString &label)
{
    const auto allowed = [](QChar c) { return isAsciiLetter(c) || isAsciiDigit(c) || c == QLatin1Char('-'); };
    return !label.isEmpty() && label.size() <= kMaxLabel && !label.startsWith(QLatin1Char('-'))
           && !label.endsWith(QLatin1Char('-')) && std::all_of(label.begin(), label.end(), allowed);
}

} // namespace

bool isValidHostAddress(const QString &text)
{
    if (text.isEmpty() || text.size() > kMaxHostName)
        return false;
    // Numbers only are an address or nothing: a resolver would read "10.1" as 10.0.0.1.
    const QStringList labels = text.split(QLatin1Char('.'));
    if (std::all_of(labels.begin(), labels.end(), isNumeric))
        return labels.size() == 4 && std::all_of(labels.begin(), labels.end(), isOctet);
    return std::all_of(labels.begin(), labels.end(), isHostLabel);
}
