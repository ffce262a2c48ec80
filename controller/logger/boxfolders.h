#pragma once

#include <QDir>
#include <QString>

/// Where the logger files of the boxes are kept: one folder per box and day below the temporary directory. The tool
/// fetches into the temporary directory itself, where a day is put for the time of its fetch.
class BoxFolders
{
public:
    explicit BoxFolders(const QString &temporaryDirectory);

    /// Absolute. Made by prepare(), which is false if that is not possible.
    [[nodiscard]] QDir temporaryDirectory() const;
    [[nodiscard]] bool prepare() const;

    /// Where the tool fetches a day ("dir-20240305") to.
    [[nodiscard]] QString placeOfFetch(const QString &directory) const;
    /// Where the day of a box is kept. A box is known by its address.
    [[nodiscard]] QString placeOf(const QString &box, const QString &directory) const;

    /// Puts what is there of a day into the place of the fetch, so that only the rest need be fetched. What a fetch
    /// that was never finished left there may be of another box: it is put aside.
    void beginFetch(const QString &box, const QString &directory) const;
    /// Moves everything from there to the day of the box. False if not all of it could be moved.
    [[nodiscard]] bool endFetch(const QString &box, const QString &directory) const;
    /// Another box has this address now: all days of the one before are put aside.
    void putAside(const QString &box) const;
    /// Nobody knows which box this fetch was from; the place of the fetch is empty afterwards.
    void putFetchAside(const QString &directory) const;

    /// Whose file this is; empty for one that was not fetched from a box.
    [[nodiscard]] QString boxOf(const QString &file) const;

private:
    [[nodiscard]] QString folderOf(const QString &box) const;
    void rescue(const QString &folder, const QString &name) const;

    QString m_temporaryDirectory;
};
