#pragma once

/// Bytes that the text of any number fits into.
constexpr int kMaxNumberLength = 32;

/// Writes a finite double as QJsonDocument does (the shortest text that reads back as the same double; integers
/// below 2^64 without an exponent), except that -0.0 keeps its sign. Returns the end of the text; no terminator.
[[nodiscard]] char *writeJsonNumber(char *out, double value);
