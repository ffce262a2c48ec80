#include "model/storage/filefault.h"

#include <QFileInfo>
#include <QtGlobal>

#include <cerrno>

namespace {

using Kind = FileFault::Kind;

Kind kindOf(int error, Kind other)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return Kind::NoFolder; // a file that is written need not exist, but its folder
    case EISDIR:
        return Kind::IsFolder;
    case EACCES:
    case EPERM:
        return Kind::NoPermission;
    case ENOSPC:
        return Kind::NoSpace;
    case EROFS:
        return Kind::ReadOnlyMedium;
    case ENAMETOOLONG:
        return Kind::NameTooLong;
    case EFBIG:
        return Kind::TooLarge;
    case ENOMEM:
        return Kind::OutOfMemory;
    case ENODEV:
    case ENXIO:
        return Kind::MediumGone;
#ifdef Q_OS_UNIX
    case EDQUOT:
        return Kind::NoQuota;
    case ESTALE:
        return Kind::MediumGone;
#endif
    default:
        return other;
    }
}

FileFault fault(Kind kind, const QString &path)
{
    FileFault found;
    found.kind = kind;
    found.path = path;
    return found;
}

} // namespace

FileFault systemFault(int error, const QString &path, FileFault::Kind other)
{
    FileFault found = fault(kindOf(error, other), path);
    if (error != 0)
        found.systemText = qt_error_string(error);
    return found;
}

FileFault openingFault(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        const QFileInfo folder(file.absolutePath());
        if (!folder.exists())
            return fault(Kind::NoFolder, path);
        // In a folder that must not be looked into nothing seems to exist.
        return fault(folder.isExecutable() ? Kind::NotThere : Kind::NoPermission, path);
    }
    if (file.isDir())
        return fault(Kind::IsFolder, path);
    if (!file.isFile())
        return fault(Kind::NotRegular, path);
    return fault(file.isReadable() ? Kind::ReadError : Kind::NoPermission, path);
}

FileFault targetFault(const QString &path)
{
    const QFileInfo existing(path);
    if (path.isEmpty())
        return fault(Kind::NotThere, path);
    if (existing.isDir())
        return fault(Kind::IsFolder, path);
    return existing.exists() && !existing.isFile() ? fault(Kind::NotRegular, path) : FileFault();
}
