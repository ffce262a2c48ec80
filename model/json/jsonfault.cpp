#include "model/json/jsonfault.h"

#include "model/json/jsonreader.h"

#include <QIODevice>

namespace {

qint64 lineOf(QIODevice &source, qint64 byte)
{
    constexpr qint64 kPart = 65536;
    qint64 line = 1;
    if (!source.seek(0))
        return line;
    for (qint64 left = byte - 1; left > 0;) {
        const QByteArray part = source.read(qMin(left, kPart));
        if (part.isEmpty())
            break;
        line += part.count('\n');
        left -= part.size();
    }
    return line;
}

} // namespace

JsonFault findJsonFault(QIODevice &source)
{
    if (!source.seek(0))
        return {};
    JsonReader json(source, [](qint64) {});
    if (json.skipValue(json.next()) && json.next() == JsonReader::Token::End)
        return {};
    JsonFault fault;
    const qint64 offset = json.offset();
    fault.isAtEnd = offset >= source.size();
    fault.byte = qBound<qint64>(1, offset + 1, qMax<qint64>(1, source.size()));
    fault.line = lineOf(source, fault.byte);
    return fault;
}
