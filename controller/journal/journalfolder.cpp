#include "controller/journal/journalfolder.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>

namespace {

const QLatin1String kSuffix(".journal");
const QLatin1String kLockSuffix(".lock");
const QLatin1String kBadSuffix(".bad");

} // namespace

JournalFolder::JournalFolder(const QString &path)
    : m_path(path)
{}

QString JournalFolder::newFile() const
{
    (void)QDir().mkpath(m_path); // whether that was possible shows when the file is created
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    const QString stem =
        QStringLiteral("%1/%2-%3").arg(m_path, time, QString::number(QCoreApplication::applicationPid()));
    QString file = stem + kSuffix;
    for (int number = 2; QFile::exists(file); ++number)
        file = stem + QLatin1Char('-') + QString::number(number) + kSuffix;
    return file;
}

std::unique_ptr<QLockFile> JournalFolder::lock(const QString &file)
{
    auto lock = std::make_unique<QLockFile>(file + kLockSuffix);
    // However old: a program may run for weeks.
    lock->setStaleLockTime(0);
    return lock->tryLock(0) ? std::move(lock) : nullptr;
}

std::vector<LeftJournal> JournalFolder::left() const
{
    std::vector<LeftJournal> journals;
    if (m_path.isEmpty())
        return journals;
    const QDir folder(m_path);
    // The names begin with the time.
    const QStringList names = folder.entryList({QLatin1Char('*') + kSuffix}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        const QString file = folder.absoluteFilePath(name);
        std::unique_ptr<QLockFile> taken = lock(file);
        if (taken && QFile::exists(file)) // or its program has just ended properly
            journals.push_back({file, std::move(taken)});
    }
    return journals;
}

QString JournalFolder::setAside(const LeftJournal &journal)
{
    const QString file = journal.file + kBadSuffix;
    return QFile::rename(journal.file, file) ? file : QString();
}
