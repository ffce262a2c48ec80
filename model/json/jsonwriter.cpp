#include "model/json/jsonwriter.h"

#include "model/json/jsonnumber.h"

#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstring>

namespace {

constexpr int kIndent = 4;

// Qt escapes a string only as part of a document.
QByteArray quoted(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

} // namespace

JsonWriter::JsonWriter(QIODevice &target)
    : m_target(target)
    , m_buffer(kBufferSize, Qt::Uninitialized)
{}

void JsonWriter::begin(char bracket)
{
    beginItem();
    append(&bracket, 1);
    m_lineStart.append(kIndent, ' ');
    m_needsComma = false;
}

void JsonWriter::end(char bracket)
{
    m_lineStart.chop(kIndent);
    newLine();
    append(&bracket, 1);
    m_needsComma = true;
}

void JsonWriter::key(const char *name)
{
    escapedKey(QByteArray::fromRawData(name, static_cast<int>(std::strlen(name))));
}

void JsonWriter::escapedKey(const QByteArray &name)
{
    beginItem();
    append("\"", 1);
    append(name.constData(), name.size());
    append("\": ", 3);
    m_afterKey = true;
}

void JsonWriter::value(const QString &text)
{
    beginItem();
    const QByteArray json = quoted(text);
    append(json.constData(), json.size());
}

void JsonWriter::value(double number)
{
    beginItem();
    char text[kMaxNumberLength];
    append(text, static_cast<int>(writeJsonNumber(text, number) - text));
}

void JsonWriter::value(bool truth)
{
    beginItem();
    truth ? append("true", 4) : append("false", 5);
}

void JsonWriter::json(const QByteArray &text)
{
    beginItem();
    append(text.constData(), text.size());
}

void JsonWriter::base64(const QByteArray &bytes)
{
    json('"' + bytes.toBase64() + '"');
}

void JsonWriter::values(const double *numbers, int count)
{
    // Written in place, without append(): a save spends most of its time here.
    const int longest = m_lineStart.size() + 1 + kMaxNumberLength;
    for (const double *number = numbers; number != numbers + count; ++number) {
        if (kBufferSize - m_used < longest)
            flushBuffer();
        char *out = m_buffer.data() + m_used;
        if (m_needsComma)
            *out++ = ',';
        std::memcpy(out, m_lineStart.constData(), static_cast<std::size_t>(m_lineStart.size()));
        out = writeJsonNumber(out + m_lineStart.size(), *number);
        m_used = static_cast<int>(out - m_buffer.data());
        m_needsComma = true;
    }
}

bool JsonWriter::finish()
{
    append("\n", 1);
    flushBuffer();
    return !m_failed;
}

void JsonWriter::beginItem()
{
    const bool isRoot = m_lineStart.size() == 1;
    if (!m_afterKey && m_needsComma)
        append(",", 1);
    if (!m_afterKey && !isRoot)
        newLine();
    m_afterKey = false;
    m_needsComma = true;
}

void JsonWriter::newLine()
{
    append(m_lineStart.constData(), m_lineStart.size());
}

void JsonWriter::append(const char *text, int size)
{
    while (size > 0) {
        if (m_used == kBufferSize)
            flushBuffer();
        const int part = qMin(size, kBufferSize - m_used);
        std::memcpy(m_buffer.data() + m_used, text, static_cast<std::size_t>(part));
        m_used += part;
        text += part;
        size -= part;
    }
}

void JsonWriter::flushBuffer()
{
    if (!m_failed && m_target.write(m_buffer.constData(), m_used) != m_used)
        m_failed = true;
    m_used = 0;
}
