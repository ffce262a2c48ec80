#pragma once

#include <QByteArray>
#include <QString>

/// The keys by which boxes were recognised when they were first seen, one file for all of them, in the format of
/// OpenSSH, which also writes it.
class HostKeys
{
public:
    /// An empty name: the file in the program's data folder.
    explicit HostKeys(const QString &fileName);

    /// Makes its folder; an empty file name if that is not possible: then nothing is remembered.
    [[nodiscard]] QString prepare() const;
    /// "SHA256:...", those of the keys known for a box; empty if there are none.
    [[nodiscard]] QByteArray fingerprints(const QString &host, int port) const;
    /// The next key of this box is taken for a new one.
    void forget(const QString &host, int port) const;

    /// True if that is why a program of OpenSSH has ended.
    [[nodiscard]] static bool isChanged(const QByteArray &errorText);

private:
    [[nodiscard]] static QString entryName(const QString &host, int port);

    QString m_fileName;
};
