#pragma once

#include <QByteArray>

class QIODevice;
class QString;

/// Writes JSON text as QJsonDocument's indented form has it, in pieces, to a device. The caller gives the keys of an
/// object in sorted order. A failed write ends all further writing; finish() tells.
class JsonWriter
{
public:
    explicit JsonWriter(QIODevice &target);

    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }
    /// ASCII without anything to escape.
    void key(const char *name);
    /// The same with its escapes, as it was read.
    void escapedKey(const QByteArray &name);
    void value(const QString &text);
    void value(double number);
    void value(bool truth);
    /// A value that is JSON text already; written as it is.
    void json(const QByteArray &text);
    /// Encodes bytes as Base64.
    void base64(const QByteArray &bytes);
    /// Many elements of the current array.
    void values(const double *numbers, int count);

    [[nodiscard]] bool hasFailed() const { return m_failed; }
    /// Ends the document and hands the last bytes over. False if anything could not be written whole.
    [[nodiscard]] bool finish();

private:
    static constexpr int kBufferSize = 65536;

    void begin(char bracket);
    void end(char bracket);
    void beginItem();
    void newLine();
    void append(const char *text, int size);
    void flushBuffer();

    QIODevice &m_target;
    QByteArray m_buffer;
    QByteArray m_lineStart = QByteArrayLiteral("\n"); // a line feed and the indentation of the current depth
    int m_used = 0;
    bool m_needsComma = false;
    bool m_afterKey = false;
    bool m_failed = false;
};
