#pragma once

#include "model/blackbox/loggerfile.h"

#include <QDir>
#include <QHash>
#include <QStringList>

#include <functional>
#include <optional>

class QFileInfo;

/// The logger files ("*.bb") of a folder, absolute, in the order of their names.
[[nodiscard]] QStringList loggerFilesIn(const QDir &folder);

/// Copies logger files from folders of the user's choice into one place and remembers where each copy came from.
class LoggerCopies
{
public:
    struct Result
    {
        QVector<LoggerFile> copies; ///< in the order of the originals' names
        QStringList failures;       ///< "name: reason" of those that could not be copied
    };
    /// Called between two files and often while one is read; false ends the copying.
    using GoesOn = std::function<bool(int done, int total)>;

    /// Copies all logger files of `source` into `target`, over those of the same name unless these are copies from
    /// another folder that contain something else.
    [[nodiscard]] Result copyAll(const QDir &source, const QDir &target, const GoesOn &goesOn);
    /// The original of a copy, absolute; empty for another file.
    [[nodiscard]] QString originOf(const QString &copy) const { return m_known.value(copy).origin; }

private:
    struct Known
    {
        QString origin;
        QByteArray fingerprint;
    };

    [[nodiscard]] QString placeFor(const QFileInfo &file, const QByteArray &fingerprint, const QDir &folder) const;

    QHash<QString, Known> m_known; // by the absolute name of the copy
};
