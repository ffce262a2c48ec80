#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <vector>

class QIODevice;

/// Reads JSON text token by token from a device, in a buffer of constant size whatever the document holds. The text
/// may start with a byte order mark. A number that does not fit into a double is 0. Broken UTF-8 in a string gives
/// replacement characters. Throws std::bad_alloc if a string does not fit into memory.
class JsonReader
{
public:
    enum class Token {
        BeginObject,
        EndObject,
        BeginArray,
        EndArray,
        Key,
        String,
        Number,
        True,
        False,
        Null,
        End,    ///< behind the root value
        Invalid ///< not JSON, nested too deeply or not readable; stays so
    };

    /// `refilled` is called with the number of bytes taken from the device so far.
    JsonReader(QIODevice &source, const std::function<void(qint64 bytes)> &refilled);

    [[nodiscard]] Token next();
    /// Of the last key, or of the last string unless strings are skipped.
    [[nodiscard]] QString text() const;
    /// The same as the document has it, with its escapes; valid until the next token.
    [[nodiscard]] const QByteArray &escapedText() const { return m_text; }
    /// Of the last number.
    [[nodiscard]] double number() const { return m_number; }

    /// Reads up to `capacity` numbers of the array that was begun; fewer if something else follows, which is the
    /// next token.
    [[nodiscard]] int readNumbers(double *numbers, int capacity);
    /// Reads on to the end of the value that `token` began; false if it is not valid.
    [[nodiscard]] bool skipValue(Token token);

    /// Reads the next value and copies its text, byte for byte. A text of more than `most` bytes is not copied, and
    /// `text` is empty then. False if the value is not valid.
    [[nodiscard]] bool copyValue(QByteArray &text, int most);
    /// Bytes of the source that have been understood: where the next token, or what is no JSON, begins.
    [[nodiscard]] qint64 offset() const { return m_bytesRead - (m_end - m_pos); }

    /// As many as QJsonDocument takes.
    static constexpr std::size_t kMaxDepth = 1024;

private:
    enum class Expected { Value, ValueOrEnd, Key, KeyOrEnd, CommaOrEnd };

    [[nodiscard]] int peekBehindBlanks();
    [[nodiscard]] bool refill();
    void copyUpToHere();
    void skipByteOrderMark();
    Token fail();
    Token separator(int c);
    Token value(int c);
    Token begin(bool object);
    Token end(int c);
    Token key(int c);
    Token literal(const char *text, Token token);
    [[nodiscard]] bool readNumber();
    [[nodiscard]] bool readAnyNumber();
    [[nodiscard]] bool readString(bool keep);
    [[nodiscard]] bool keepText(const char *begin, const char *end, bool keep);

    QIODevice &m_source;
    std::function<void(qint64 bytes)> m_refilled;
    QByteArray m_buffer;
    const char *m_pos = nullptr;
    const char *m_end = nullptr;
    qint64 m_bytesRead = 0;
    std::vector<bool> m_inObject;     // one entry per level
    QByteArray m_text;                // as the file has it, with its escapes
    QByteArray m_copy;                // of the value that is being copied
    const char *m_copyFrom = nullptr; // what is not copied yet; nullptr while nothing is to be copied
    int m_mostCopied = 0;             // negative once the value has turned out to be longer
    double m_number = 0.0;
    Expected m_expected = Expected::Value;
    bool m_atEnd = false;
    bool m_skipStrings = false;
    bool m_failed = false;
};
