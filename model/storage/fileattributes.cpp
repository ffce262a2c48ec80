#include "model/storage/fileattributes.h"

#ifdef Q_OS_LINUX

#include <QByteArray>
#include <QFile>
#include <QList>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

const char *const kAccessList = "system.posix_acl_access";

/// Calls one of the system's functions that want to be asked for the size first. Empty if there is nothing.
template <typename Call>
QByteArray filled(Call call)
{
    const ssize_t size = call(nullptr, 0);
    QByteArray buffer(size > 0 ? static_cast<int>(size) : 0, '\0');
    const ssize_t filled = size > 0 ? call(buffer.data(), static_cast<std::size_t>(size)) : 0;
    buffer.truncate(filled > 0 ? static_cast<int>(filled) : 0);
    return buffer;
}

QList<QByteArray> otherNames(const QByteArray &list)
{
    QList<QByteArray> names = list.split('\0');
    names.removeAll(QByteArray());
    names.removeAll(kAccessList);
    return names;
}

void copyAttribute(const QByteArray &path, const char *name, int handle)
{
    const QByteArray value =
        filled([&](char *buffer, std::size_t size) { return ::getxattr(path.constData(), name, buffer, size); });
    if (!value.isEmpty())
        (void)::fsetxattr(handle, name, value.constData(), static_cast<std::size_t>(value.size()), 0);
}

bool setOwner(int handle, const struct stat &old)
{
    // A user may give a file to his groups, but not to another user.
    return ::fchown(handle, old.st_uid, old.st_gid) == 0 || ::fchown(handle, static_cast<uid_t>(-1), old.st_gid) == 0;
}

} // namespace

void copyAccess(const QString &from, int handle)
{
    const QByteArray path = QFile::encodeName(from);
    struct stat old = {};
    if (::stat(path.constData(), &old) != 0)
        return;
    mode_t mode = old.st_mode & 07777U;
    if (!setOwner(handle, old))
        mode = (mode & ~static_cast<mode_t>(06070)) | ((mode & 07U) << 3U);
    // The folder may have given the new file an access list.
    (void)::fremovexattr(handle, kAccessList);
    (void)::fchmod(handle, mode);
    copyAttribute(path, kAccessList, handle);
}

void copyExtendedAttributes(const QString &from, int handle)
{
    const QByteArray path = QFile::encodeName(from);
    const QList<QByteArray> wanted =
        otherNames(filled([&](char *buffer, std::size_t size) { return ::listxattr(path.constData(), buffer, size); }));
    const QList<QByteArray> present =
        otherNames(filled([&](char *buffer, std::size_t size) { return ::flistxattr(handle, buffer, size); }));
    for (const QByteArray &name : present)
        if (!wanted.contains(name))
            (void)::fremovexattr(handle, name.constData());
    for (const QByteArray &name : wanted)
        copyAttribute(path, name.constData(), handle);
}

#else

void copyAccess(const QString &, int) {}
void copyExtendedAttributes(const QString &, int) {}

#endif
