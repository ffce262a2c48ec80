#include "model/journal/journalblock.h"

#include <QCryptographicHash>
#include <QIODevice>
#include <QtEndian>

namespace {

constexpr int kLengthSize = 4;
constexpr int kCheckSize = 8;
constexpr int kReadAtOnce = 1 << 20;

// Of the length too: a block whose length is false must not swallow those behind it.
QByteArray checkOf(const QByteArray &length, const QByteArray &payload)
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    hash.addData(length);
    hash.addData(payload);
    return hash.result().left(kCheckSize);
}

// In parts: a length that is false must not reserve memory.
std::optional<QByteArray> readExactly(QIODevice &source, int size)
{
    QByteArray bytes;
    while (bytes.size() < size) {
        const QByteArray part = source.read(qMin(kReadAtOnce, size - bytes.size()));
        if (part.isEmpty())
            return {};
        bytes += part;
    }
    return bytes;
}

} // namespace

QByteArray journalblock::mark()
{
    return QByteArrayLiteral("Ventaro journal 1\n");
}

QByteArray journalblock::packed(const QByteArray &payload)
{
    QByteArray length(kLengthSize, Qt::Uninitialized);
    qToLittleEndian(static_cast<quint32>(payload.size()), length.data());
    return length + checkOf(length, payload) + payload;
}

bool journalblock::readMark(QIODevice &source)
{
    return source.read(mark().size()) == mark();
}

std::optional<QByteArray> journalblock::read(QIODevice &source)
{
    const std::optional<QByteArray> length = readExactly(source, kLengthSize);
    const std::optional<QByteArray> check = length ? readExactly(source, kCheckSize) : std::nullopt;
    if (!check)
        return {};
    const auto size = qFromLittleEndian<quint32>(length->constData());
    if (size > static_cast<quint32>(kLargestPayload))
        return {};
    std::optional<QByteArray> payload = readExactly(source, static_cast<int>(size));
    if (!payload || checkOf(*length, *payload) != *check)
        return {};
    return payload;
}
