#pragma once

#include <QByteArray>

#include <optional>

/// The packets of the SSH file transfer protocol, version 3. Everything here is pure; what comes from the other side is
/// never trusted.
namespace sftp {

constexpr quint32 kVersion = 3;
/// Bytes of a packet without its length; no server sends more for what is asked of it here.
constexpr quint32 kLargestPacket = 300 * 1024;

enum class Type : quint8 {
    Init = 1,
    Version = 2,
    Open = 3,
    Close = 4,
    Read = 5,
    OpenDir = 11,
    ReadDir = 12,
    Status = 101,
    Handle = 102,
    Data = 103,
    Name = 104,
};

enum class Status : quint32 { Ok = 0, Eof = 1, NoSuchFile = 2, PermissionDenied = 3 };

/// Builds a packet.
class PacketWriter
{
public:
    explicit PacketWriter(Type type);

    PacketWriter &add(quint32 number);
    PacketWriter &addLong(quint64 number);
    PacketWriter &add(const QByteArray &bytes); ///< with its length before it
    /// With the length of the whole before it.
    [[nodiscard]] QByteArray packet() const;

private:
    QByteArray m_payload;
};

/// Takes a packet apart. Reading behind its end gives zeros and empty texts, and isWhole() is false from then on.
class PacketReader
{
public:
    explicit PacketReader(const QByteArray &payload);

    [[nodiscard]] Type type() const { return m_type; }
    [[nodiscard]] bool isWhole() const { return m_isWhole; }
    [[nodiscard]] quint32 number();
    [[nodiscard]] quint64 longNumber();
    [[nodiscard]] QByteArray bytes();

private:
    [[nodiscard]] quint64 take(int size);

    QByteArray m_payload;
    int m_position = 0;
    Type m_type = Type::Status;
    bool m_isWhole = true;
};

/// What the server says about an entry of a folder.
struct Entry
{
    QByteArray name;
    quint64 size = 0;
    quint32 modified = 0; ///< seconds since 1970
    bool isFile = false;  ///< a regular one, with size and time known
};

/// Reads an entry with its attributes.
[[nodiscard]] Entry readEntry(PacketReader &reader);

/// Takes the first packet, without its length, out of the bytes that have arrived; nothing if it is not complete.
/// `isBroken` becomes true if no packet can begin so.
[[nodiscard]] std::optional<QByteArray> takePacket(QByteArray &arrived, bool &isBroken);

} // namespace sftp
