#pragma once

#include <QByteArray>
#include <QString>

/// Where an imported shot came from.
struct ShotOrigin
{
    QString box;     ///< address of the box; empty for a file of this computer
    QString file;    ///< "dir-20240305/name.bb" on the box, else the absolute name
    QByteArray hash; ///< SHA-1 of the whole file

    [[nodiscard]] bool isKnown() const { return !file.isEmpty(); }
};

[[nodiscard]] inline bool operator==(const ShotOrigin &a, const ShotOrigin &b)
{
    return a.box == b.box && a.file == b.file && a.hash == b.hash;
}
