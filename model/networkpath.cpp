#include "model/networkpath.h"

#include <QDir>
#include <QFile>
#include <QList>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

#include <algorithm>
#include <iterator>

namespace {

bool isUnc(const QString &path)
{
    return path.startsWith(QLatin1String("//")) || path.startsWith(QLatin1String("\\\\"));
}

bool isNetworkFileSystem(const QByteArray &type)
{
    // autofs is none itself, but touching its folder may mount one.
    static const char *const kTypes[] = {"nfs",       "nfs4",        "cifs",        "smb3",           "smbfs", "afs",
                                         "9p",        "ceph",        "autofs",      "fuse.sshfs",     "davfs", "ncpfs",
                                         "glusterfs", "fuse.davfs2", "fuse.rclone", "fuse.gvfsd-fuse"};
    return std::any_of(std::begin(kTypes), std::end(kTypes), [&type](const char *name) { return type == name; });
}

/// Undoes the escapes of the table: a backslash and three octal digits.
QString mountFolder(const QByteArray &field)
{
    QByteArray folder;
    for (int i = 0; i < field.size(); ++i) {
        bool ok = false;
        const int code = field.at(i) == '\\' ? field.mid(i + 1, 3).toInt(&ok, 8) : 0;
        folder += ok && code < 256 ? static_cast<char>(code) : field.at(i);
        i += ok ? 3 : 0;
    }
    return QFile::decodeName(folder);
}

bool isBelow(const QString &path, const QString &folder)
{
    return folder == QLatin1String("/") || path == folder || path.startsWith(folder + QLatin1Char('/'));
}

} // namespace

bool isOnNetwork(const QString &absolutePath, const QByteArray &mounts)
{
    int longest = -1;
    bool result = false;
    const QList<QByteArray> lines = mounts.split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() < 3)
            continue;
        const QString folder = mountFolder(fields.at(1));
        if (folder.size() < longest || !isBelow(absolutePath, folder))
            continue;
        longest = folder.size(); // of two mounts on the same folder the later one counts
        result = isNetworkFileSystem(fields.at(2));
    }
    return result;
}

bool isOnNetwork(const QString &absolutePath)
{
    if (isUnc(absolutePath))
        return true;
#ifdef Q_OS_WIN
    const QString drive = QDir::toNativeSeparators(absolutePath.left(3));
    return GetDriveTypeW(reinterpret_cast<const wchar_t *>(drive.utf16())) == DRIVE_REMOTE;
#else
    QFile table(QStringLiteral("/proc/self/mounts"));
    return table.open(QIODevice::ReadOnly) && isOnNetwork(QDir::cleanPath(absolutePath), table.readAll());
#endif
}
