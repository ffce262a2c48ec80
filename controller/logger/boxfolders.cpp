#include "controller/logger/boxfolders.h"

#include <QFileInfo>

#include <algorithm>

namespace {

const QString kBoxPrefix = QStringLiteral("box-");
const QString kAsidePrefix = QStringLiteral("aside-");

/// Moves the entries of a folder one by one, over those of the same name.
bool moveEntries(const QDir &from, const QDir &to)
{
    bool areMoved = true;
    const QStringList names = from.entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString &name : names) {
        (void)QFile::remove(to.filePath(name)); // if that fails, so does the next step
        areMoved = QFile::rename(from.filePath(name), to.filePath(name)) && areMoved;
    }
    (void)QDir().rmdir(from.path()); // unless something is left in it
    return areMoved;
}

bool moveFolder(const QString &from, const QString &to)
{
    if (!QFileInfo::exists(from))
        return true;
    return QDir().mkpath(QFileInfo(to).path()) && (QDir().rename(from, to) || moveEntries(QDir(from), QDir(to)));
}

} // namespace

BoxFolders::BoxFolders(const QString &temporaryDirectory)
    : m_temporaryDirectory(temporaryDirectory)
{}

QDir BoxFolders::temporaryDirectory() const
{
    return QDir(QDir().absoluteFilePath(m_temporaryDirectory));
}

bool BoxFolders::prepare() const
{
    return QDir().mkpath(temporaryDirectory().path());
}

QString BoxFolders::placeOfFetch(const QString &directory) const
{
    return temporaryDirectory().filePath(directory);
}

/// Addresses are host names and IPv4 addresses; whatever else one holds must not lead out of the folder.
QString BoxFolders::folderOf(const QString &box) const
{
    QString name = box.toLower();
    const auto isUsual = [](QChar c) {
        return (c.unicode() < 0x80 && c.isLetterOrNumber()) || c == QLatin1Char('.') || c == QLatin1Char('-');
    };
    std::replace_if(
        name.begin(), name.end(), [&](QChar c) { return !isUsual(c); }, QLatin1Char('_'));
    return temporaryDirectory().filePath(kBoxPrefix + name);
}

QString BoxFolders::placeOf(const QString &box, const QString &directory) const
{
    return folderOf(box) + QLatin1Char('/') + directory;
}

void BoxFolders::beginFetch(const QString &box, const QString &directory) const
{
    const QString place = placeOfFetch(directory);
    if (!QDir(place).isEmpty())
        rescue(place, directory);
    (void)QDir().rmdir(place); // if it is empty: the day of the box takes its place
    (void)moveFolder(placeOf(box, directory), place);
    (void)QDir().mkpath(place); // the tool reports what it cannot write
}

bool BoxFolders::endFetch(const QString &box, const QString &directory) const
{
    return moveFolder(placeOfFetch(directory), placeOf(box, directory));
}

void BoxFolders::putAside(const QString &box) const
{
    rescue(folderOf(box), QFileInfo(folderOf(box)).fileName());
}

void BoxFolders::putFetchAside(const QString &directory) const
{
    rescue(placeOfFetch(directory), directory);
    (void)QDir().mkpath(placeOfFetch(directory));
}

/// Gives a folder a name that nothing else has and nothing is offered from.
void BoxFolders::rescue(const QString &folder, const QString &name) const
{
    const QDir directory = temporaryDirectory();
    int number = 1;
    const auto free = [&] { return kAsidePrefix + name + QStringLiteral("-%1").arg(number); };
    while (directory.exists(free()))
        ++number;
    (void)moveFolder(folder, directory.filePath(free()));
}

QString BoxFolders::boxOf(const QString &file) const
{
    const QString box = temporaryDirectory().relativeFilePath(file).section(QLatin1Char('/'), 0, 0);
    return box.startsWith(kBoxPrefix) ? box.mid(kBoxPrefix.size()) : QString();
}
