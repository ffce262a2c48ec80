#include "tools/scp-bridge/sftppacket.h"

#include <QtEndian>

#include <algorithm>

namespace sftp {

namespace {

constexpr int kLengthSize = 4;

enum Attribute : quint32 {
    kHasSize = 0x1,
    kHasOwner = 0x2,
    kHasMode = 0x4,
    kHasTimes = 0x8,
    kHasExtensions = 0x80000000,
};

constexpr quint32 kTypeMask = 0170000;
constexpr quint32 kRegularFile = 0100000;

template <typename Number>
void append(QByteArray &bytes, Number number)
{
    const Number wire = qToBigEndian(number);
    bytes.append(reinterpret_cast<const char *>(&wire), sizeof wire);
}

} // namespace

PacketWriter::PacketWriter(Type type)
{
    m_payload.append(static_cast<char>(type));
}

PacketWriter &PacketWriter::add(quint32 number)
{
    append(m_payload, number);
    return *this;
}

PacketWriter &PacketWriter::addLong(quint64 number)
{
    append(m_payload, number);
    return *this;
}

PacketWriter &PacketWriter::add(const QByteArray &bytes)
{
    append(m_payload, static_cast<quint32>(bytes.size()));
    m_payload.append(bytes);
    return *this;
}

QByteArray PacketWriter::packet() const
{
    QByteArray packet;
    append(packet, static_cast<quint32>(m_payload.size()));
    return packet + m_payload;
}

PacketReader::PacketReader(const QByteArray &payload)
    : m_payload(payload)
    , m_type(static_cast<Type>(take(1)))
{}

quint64 PacketReader::take(int size)
{
    if (m_payload.size() - m_position < size) {
        m_isWhole = false;
        m_position = m_payload.size();
        return 0;
    }
    quint64 number = 0;
    for (int i = 0; i < size; ++i)
        number = number << 8 | static_cast<quint8>(m_payload.at(m_position++));
    return number;
}

quint32 PacketReader::number()
{
    return static_cast<quint32>(take(sizeof(quint32)));
}

quint64 PacketReader::longNumber()
{
    return take(sizeof(quint64));
}

QByteArray PacketReader::bytes()
{
    const quint32 size = number();
    if (size > static_cast<quint32>(m_payload.size() - m_position)) {
        m_isWhole = false;
        m_position = m_payload.size();
        return {};
    }
    const QByteArray bytes = m_payload.mid(m_position, static_cast<int>(size));
    m_position += static_cast<int>(size);
    return bytes;
}

Entry readEntry(PacketReader &reader)
{
    Entry entry;
    entry.name = reader.bytes();
    (void)reader.bytes(); // the entry as a line for people
    const quint32 known = reader.number();
    if (known & kHasSize)
        entry.size = reader.longNumber();
    if (known & kHasOwner)
        (void)reader.longNumber(); // user and group
    const quint32 mode = known & kHasMode ? reader.number() : 0;
    if (known & kHasTimes) {
        (void)reader.number(); // of the last access
        entry.modified = reader.number();
    }
    const quint32 extensions = known & kHasExtensions ? reader.number() : 0;
    for (quint32 i = 0; i < extensions && reader.isWhole(); ++i) {
        (void)reader.bytes();
        (void)reader.bytes();
    }
    const bool isDescribed = (known & kHasSize) && (known & kHasMode) && (known & kHasTimes);
    entry.isFile = isDescribed && (mode & kTypeMask) == kRegularFile;
    return entry;
}

std::optional<QByteArray> takePacket(QByteArray &arrived, bool &isBroken)
{
    if (arrived.size() < kLengthSize)
        return std::nullopt;
    const auto size = qFromBigEndian<quint32>(arrived.constData());
    if (size == 0 || size > kLargestPacket) {
        isBroken = true;
        return std::nullopt;
    }
    if (static_cast<quint32>(arrived.size() - kLengthSize) < size)
        return std::nullopt;
    const QByteArray packet = arrived.mid(kLengthSize, static_cast<int>(size));
    arrived.remove(0, kLengthSize + static_cast<int>(size));
    return packet;
}

} // namespace sftp
