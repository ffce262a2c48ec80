#pragma once

#include <QStandardPaths>
#include <QString>

/// How projects are saved.
struct SaveOptions
{
    bool keepsBackup = true; ///< the project as it was before stays beside the new one
    QString rescueFolder;    ///< see ReplaceOptions; empty: "backup" in the application's data folder

    [[nodiscard]] QString folderForRescue() const
    {
        return rescueFolder.isEmpty()
                   ? QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/backup")
                   : rescueFolder;
    }
};
