#pragma once

#include <QString>

/// True for an IPv4 address in dotted decimals (no leading zeros, which some resolvers read as octal) and for a host
/// name of ASCII letters, digits, hyphens and dots. White space around it makes it invalid.
[[nodiscard]] bool isValidHostAddress(const QString &text);
