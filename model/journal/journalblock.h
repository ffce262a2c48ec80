#pragma once

#include <QByteArray>

#include <optional>

class QIODevice;

/// The file is a mark and then blocks, each of a length, a check number and its payload. A block is complete or does
/// not count, so what it holds takes effect as a whole.
namespace journalblock {

/// What every journal begins with.
[[nodiscard]] QByteArray mark();
/// A payload of more than kLargestPayload bytes must not be written: it would not be read.
[[nodiscard]] QByteArray packed(const QByteArray &payload);
constexpr int kLargestPayload = 256 << 20;

/// True if the device has the mark next.
[[nodiscard]] bool readMark(QIODevice &source);
/// The payload of the next block; nothing if it is torn or false. Takes no more memory than the device has bytes.
[[nodiscard]] std::optional<QByteArray> read(QIODevice &source);

} // namespace journalblock
