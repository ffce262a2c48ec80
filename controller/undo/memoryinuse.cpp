#include "controller/undo/memoryinuse.h"

#include <QFile>
#include <QList>

#ifdef Q_OS_LINUX
#include <unistd.h>
#endif

qint64 memoryInUse()
{
#ifdef Q_OS_LINUX
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    // The second number: pages in memory.
    return file.readLine().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
#else
    return 0;
#endif
}
