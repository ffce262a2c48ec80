#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

/// A logger file on this computer, as it is offered for the import.
struct LoggerFile
{
    QString path;           ///< absolute
    QByteArray fingerprint; ///< see blackBoxFingerprint()
    qint64 size = 0;
};

/// Reads all of these files; `progress` is called often with the number of bytes read since its last call.
[[nodiscard]] QVector<LoggerFile> loggerFiles(const QStringList &absolutePaths,
                                              const std::function<void(qint64 bytes)> &progress = {});
