#pragma once

#include <QCryptographicHash>
#include <QIODevice>

/// The fastest hash that Qt has; it need only notice changes, not withstand anybody.
constexpr QCryptographicHash::Algorithm kContentHash = QCryptographicHash::Md4;

/// Reads a file and computes the hash of it on the way, so that it need not be read twice.
class HashedSource : public QIODevice
{
public:
    /// The file must be open and outlive this.
    explicit HashedSource(QIODevice &file);

    /// Reads a part of the file that nobody needs; false at the end.
    bool skipPart();
    /// Of the whole file: what was not read yet is read now. Empty after a read error.
    [[nodiscard]] QByteArray hash();

    [[nodiscard]] bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 size) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QIODevice &m_file;
    QCryptographicHash m_hash{kContentHash};
    bool m_hasFailed = false;
};
