#include "model/project/readingfault.h"

#include "model/json/jsonfault.h"

#include <QFile>

#include <new>

namespace {

using Kind = FileFault::Kind;

/// Reading a string again may need as much memory as before.
JsonFault placeOf(QFile &file)
{
    try {
        return findJsonFault(file);
    } catch (const std::bad_alloc &) {
        return {};
    }
}

} // namespace

FileFault readingFault(QFile &file, bool lacksMemory)
{
    FileFault fault;
    fault.path = file.fileName();
    if (lacksMemory || file.error() != QFileDevice::NoError || !file.seek(0)) {
        fault.kind = lacksMemory ? Kind::OutOfMemory : Kind::ReadError;
        fault.systemText = lacksMemory ? QString() : file.errorString();
        return fault;
    }
    const JsonFault place = placeOf(file);
    fault.line = place.line;
    fault.byte = place.byte;
    if (file.error() != QFileDevice::NoError)
        fault.kind = Kind::ReadError;
    else if (place.line == 0)
        fault.kind = Kind::NoProject;
    else
        fault.kind = place.isAtEnd ? Kind::CutOff : Kind::NotJson;
    return fault;
}
