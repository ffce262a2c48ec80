#include "model/json/jsonstring.h"

#include <algorithm>

namespace {

// Four hexadecimal digits at `at`, -1 if they are not.
int codeUnit(const QByteArray &escaped, int at)
{
    bool ok = false;
    const int unit = escaped.mid(at, 4).toInt(&ok, 16);
    return ok && escaped.size() - at >= 4 ? unit : -1;
}

// Inside a text, a byte order mark is a character; QString drops one at the beginning of what it decodes.
QString decoded(const char *utf8, int size)
{
    static const QByteArray mark("\xEF\xBB\xBF");
    QString text;
    for (; size >= mark.size() && std::equal(mark.begin(), mark.end(), utf8); size -= mark.size(), utf8 += mark.size())
        text += QChar(QChar::ByteOrderMark);
    return text + QString::fromUtf8(utf8, size);
}

QChar unescaped(char c)
{
    switch (c) {
    case 'b':
        return QLatin1Char('\b');
    case 'f':
        return QLatin1Char('\f');
    case 'n':
        return QLatin1Char('\n');
    case 'r':
        return QLatin1Char('\r');
    case 't':
        return QLatin1Char('\t');
    default:
        return QLatin1Char(c);
    }
}

} // namespace

QString unescapedJson(const QByteArray &escaped)
{
    QString text;
    int from = 0;
    for (int mark = escaped.indexOf('\\'); mark >= 0 && mark + 1 < escaped.size(); mark = escaped.indexOf('\\', from)) {
        text += decoded(escaped.constData() + from, mark - from);
        const char c = escaped.at(mark + 1);
        const int unit = c == 'u' ? codeUnit(escaped, mark + 2) : -1;
        // A backslash before a character of several bytes is dropped; the bytes stay together.
        const bool isAscii = static_cast<unsigned char>(c) < 0x80;
        if (isAscii)
            text += unit >= 0 ? QChar(static_cast<ushort>(unit)) : unescaped(c);
        from = mark + (unit >= 0 ? 6 : isAscii ? 2 : 1);
    }
    return text + decoded(escaped.constData() + from, escaped.size() - from);
}
