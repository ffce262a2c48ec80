#pragma once

#include <QDir>
#include <QHash>
#include <QStringList>

class QFileInfo;

/// The logger files ("*.bb") of a folder, absolute, in the order of their names.
[[nodiscard]] QStringList loggerFilesIn(const QDir &folder);

/// Copies logger files from folders of the user's choice into one place and remembers where each copy came from.
class LoggerCopies
{
public:
    /// Copies all logger files of `source` into `target`, over those of the same name unless these are copies from
    /// another folder that contain something else. The copies, absolute, in the order of the originals' names; what
    /// could not be copied is in the log only.
    QStringList copyAll(const QDir &source, const QDir &target);

private:
    [[nodiscard]] QString placeFor(const QFileInfo &file, const QDir &folder);

    QHash<QString, QString> m_origins; // by the absolute name of the copy
};
