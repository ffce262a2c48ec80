#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <sys/mount.h>

/// A file system of its own with a few bytes, where the system lets the test mount one.
class SmallDisk
{
public:
    explicit SmallDisk(qint64 bytes)
        : m_isMounted(
            m_folder.isValid()
            && ::mount("tmpfs", name().constData(), "tmpfs", 0, ("size=" + QByteArray::number(bytes)).constData()) == 0)
    {}
    ~SmallDisk()
    {
        if (m_isMounted)
            (void)::umount2(name().constData(), MNT_DETACH);
    }
    Q_DISABLE_COPY_MOVE(SmallDisk)

    [[nodiscard]] bool isMounted() const { return m_isMounted; }
    [[nodiscard]] QString path() const { return m_folder.path(); }
    [[nodiscard]] bool makeReadOnly() const
    {
        return ::mount("tmpfs", name().constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    }

private:
    [[nodiscard]] QByteArray name() const { return QFile::encodeName(m_folder.path()); }

    QTemporaryDir m_folder;
    bool m_isMounted;
};
