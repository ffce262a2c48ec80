#include "model/json/jsonreader.h"

#include "model/json/jsonstring.h"

#include <QIODevice>

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <utility>

namespace {

constexpr int kBufferSize = 65536;
constexpr int kLongestNumber = 1 << 20;
constexpr int kLongestString = 1 << 28;
constexpr int kNothing = -1; // behind the last byte

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isBlank(char c)
{
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

// What std::from_chars takes beyond JSON: "inf", "nan", ".5" and leading zeros.
bool startsLikeJson(const char *number, const char *end)
{
    if (*number == '-')
        ++number;
    return isDigit(*number) && (*number != '0' || number + 1 == end || !isDigit(number[1]));
}

struct PlainNumber
{
    double value = 0.0;
    const char *end = nullptr; // nullptr: not plain
};

// A number without an exponent and of at most 15 digits, well before `end`: digits and power of ten are then exact as
// doubles, and one division rounds as it should. All but exotic samples are of that kind.
PlainNumber readPlainNumber(const char *pos, const char *end)
{
    static constexpr std::array<double, 16> kPowers{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                    1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    if (end - pos < 24)
        return {};
    const bool negative = *pos == '-';
    pos += negative ? 1 : 0;
    const char *first = pos;
    quint64 digits = 0;
    for (; isDigit(*pos) && pos - first < 16; ++pos)
        digits = digits * 10 + static_cast<quint64>(*pos - '0');
    const auto whole = pos - first;
    if (whole == 0 || (*first == '0' && whole > 1))
        return {};
    std::ptrdiff_t decimals = 0;
    if (*pos == '.') {
        for (++pos; isDigit(*pos) && whole + decimals < 16; ++pos, ++decimals)
            digits = digits * 10 + static_cast<quint64>(*pos - '0');
    }
    if (whole + decimals > 15 || isDigit(*pos) || *pos == '.' || (*pos | 0x20) == 'e')
        return {};
    const double value = static_cast<double>(digits) / kPowers[static_cast<std::size_t>(decimals)];
    return {negative ? -value : value, pos};
}

} // namespace

// The first refill happens here, as a byte order mark is no part of the text.
JsonReader::JsonReader(QIODevice &source, const std::function<void(qint64 bytes)> &refilled)
    : m_source(source)
    , m_refilled(refilled)
    , m_buffer(kBufferSize, Qt::Uninitialized)
{
    m_pos = m_end = m_buffer.constData();
    skipByteOrderMark();
}

QString JsonReader::text() const
{
    return unescapedJson(m_text);
}

JsonReader::Token JsonReader::next()
{
    if (m_failed)
        return Token::Invalid;
    const int c = peekBehindBlanks();
    if (m_expected == Expected::CommaOrEnd)
        return separator(c);
    if (m_expected == Expected::Key || m_expected == Expected::KeyOrEnd)
        return key(c);
    return value(c);
}

int JsonReader::readNumbers(double *numbers, int capacity)
{
    int count = 0;
    while (count < capacity && !m_failed && !m_inObject.empty() && !m_inObject.back()) {
        int c = peekBehindBlanks();
        if (m_expected == Expected::CommaOrEnd && c == ',') {
            ++m_pos;
            m_expected = Expected::Value;
            c = peekBehindBlanks();
        }
        if (m_expected == Expected::CommaOrEnd || (c != '-' && (c < '0' || c > '9')))
            break;
        if (!readNumber())
            break;
        numbers[count++] = m_number;
        m_expected = Expected::CommaOrEnd;
    }
    return count;
}

bool JsonReader::skipValue(Token token)
{
    if (token != Token::BeginArray && token != Token::BeginObject)
        return token != Token::Invalid;
    const std::size_t outside = m_inObject.size() - 1;
    m_skipStrings = true;
    while (m_inObject.size() > outside && token != Token::Invalid)
        token = next();
    m_skipStrings = false;
    return token != Token::Invalid;
}

bool JsonReader::copyValue(QByteArray &text, int most)
{
    (void)peekBehindBlanks(); // they are no part of the value
    m_copy = QByteArray();
    m_copyFrom = m_pos;
    m_mostCopied = most;
    m_skipStrings = true;
    const bool valid = skipValue(next());
    m_skipStrings = false;
    copyUpToHere();
    m_copyFrom = nullptr;
    text = std::exchange(m_copy, {});
    return valid;
}

void JsonReader::copyUpToHere()
{
    const auto size = m_pos - m_copyFrom;
    if (size > m_mostCopied - m_copy.size()) {
        m_mostCopied = -1;
        m_copy = QByteArray();
    } else {
        m_copy.append(m_copyFrom, static_cast<int>(size));
    }
    m_copyFrom = m_pos;
}

int JsonReader::peekBehindBlanks()
{
    static constexpr char kBlanks[] = "        ";
    do {
        if (m_pos != m_end && *m_pos == '\n')
            ++m_pos; // what follows is an indentation
        while (m_end - m_pos >= 8 && std::memcmp(m_pos, kBlanks, 8) == 0)
            m_pos += 8;
        while (m_pos != m_end && isBlank(*m_pos))
            ++m_pos;
        if (m_pos != m_end)
            return static_cast<unsigned char>(*m_pos);
    } while (refill());
    return kNothing;
}

// Keeps what is not read yet. False at the end of the text.
bool JsonReader::refill()
{
    if (m_atEnd)
        return false;
    if (m_copyFrom)
        copyUpToHere();
    const auto rest = static_cast<int>(m_end - m_pos);
    const auto offset = static_cast<int>(m_pos - m_buffer.constData());
    if (rest > m_buffer.size() / 2)
        m_buffer.resize(m_buffer.size() * 2); // one number that is longer than the buffer
    char *data = m_buffer.data();
    std::memmove(data, data + offset, static_cast<std::size_t>(rest));
    const qint64 got = m_source.read(data + rest, m_buffer.size() - rest);
    m_pos = data;
    m_copyFrom = m_copyFrom ? data : nullptr;
    m_end = data + rest + qMax<qint64>(got, 0);
    m_atEnd = got <= 0;
    m_failed = m_failed || got < 0;
    m_bytesRead += qMax<qint64>(got, 0);
    m_refilled(m_bytesRead);
    return !m_atEnd;
}

void JsonReader::skipByteOrderMark()
{
    if (refill() && m_end - m_pos >= 3 && std::memcmp(m_pos, "\xEF\xBB\xBF", 3) == 0)
        m_pos += 3;
}

JsonReader::Token JsonReader::fail()
{
    m_failed = true;
    return Token::Invalid;
}

JsonReader::Token JsonReader::separator(int c)
{
    if (m_inObject.empty())
        return c == kNothing && !m_failed ? Token::End : fail();
    if (c != ',')
        return end(c);
    ++m_pos;
    m_expected = m_inObject.back() ? Expected::Key : Expected::Value;
    return next();
}

JsonReader::Token JsonReader::end(int c)
{
    const bool object = !m_inObject.empty() && m_inObject.back();
    if (m_inObject.empty() || c != (object ? '}' : ']'))
        return fail();
    ++m_pos;
    m_inObject.pop_back();
    m_expected = Expected::CommaOrEnd;
    return object ? Token::EndObject : Token::EndArray;
}

JsonReader::Token JsonReader::key(int c)
{
    if (m_expected == Expected::KeyOrEnd && c == '}')
        return end(c);
    if (c != '"' || !readString(!m_skipStrings) || peekBehindBlanks() != ':')
        return fail();
    ++m_pos;
    m_expected = Expected::Value;
    return Token::Key;
}

JsonReader::Token JsonReader::value(int c)
{
    if (m_expected == Expected::ValueOrEnd && c == ']')
        return end(c);
    m_expected = Expected::CommaOrEnd;
    switch (c) {
    case '{':
        return begin(true);
    case '[':
        return begin(false);
    case '"':
        return readString(!m_skipStrings) ? Token::String : fail();
    case 't':
        return literal("true", Token::True);
    case 'f':
        return literal("false", Token::False);
    case 'n':
        return literal("null", Token::Null);
    default:
        return c != kNothing && readNumber() ? Token::Number : fail();
    }
}

JsonReader::Token JsonReader::begin(bool object)
{
    if (m_inObject.size() == kMaxDepth)
        return fail();
    ++m_pos;
    m_inObject.push_back(object);
    m_expected = object ? Expected::KeyOrEnd : Expected::ValueOrEnd;
    return object ? Token::BeginObject : Token::BeginArray;
}

JsonReader::Token JsonReader::literal(const char *text, Token token)
{
    const auto length = static_cast<std::ptrdiff_t>(std::strlen(text));
    while (m_end - m_pos < length && refill()) {
    }
    if (m_end - m_pos < length || std::memcmp(m_pos, text, static_cast<std::size_t>(length)) != 0)
        return fail();
    m_pos += length;
    return token;
}

bool JsonReader::readNumber()
{
    const PlainNumber plain = readPlainNumber(m_pos, m_end);
    if (plain.end == nullptr)
        return readAnyNumber();
    m_number = plain.value;
    m_pos = plain.end;
    return true;
}

bool JsonReader::readAnyNumber()
{
    double number = 0.0;
    auto result = std::from_chars(m_pos, m_end, number);
    // Too near to the end of the buffer the number might go on: "1" may be "12", "1e+" may be "1e+5".
    while (m_end - result.ptr <= 2 && m_end - m_pos < kLongestNumber && !m_atEnd) {
        (void)refill(); // has moved the text even where nothing follows
        result = std::from_chars(m_pos, m_end, number);
    }
    if (result.ec == std::errc::invalid_argument || !startsLikeJson(m_pos, m_end)) {
        m_failed = true;
        return false;
    }
    const bool fits = result.ec == std::errc() && std::isfinite(number);
    m_number = fits ? number : 0.0;
    m_pos = result.ptr;
    return true;
}

bool JsonReader::readString(bool keep)
{
    m_text.resize(0); // keeps its memory
    ++m_pos;
    bool escape = false;
    do {
        const char *run = m_pos;
        for (; m_pos != m_end; ++m_pos) {
            if (!escape && *m_pos == '"') {
                const bool kept = keepText(run, m_pos, keep);
                ++m_pos;
                return kept;
            }
            escape = !escape && *m_pos == '\\';
        }
        if (!keepText(run, m_end, keep))
            return false;
    } while (refill());
    return false;
}

bool JsonReader::keepText(const char *begin, const char *end, bool keep)
{
    if (!keep)
        return true; // a skipped string may be larger than the memory
    const auto size = static_cast<int>(end - begin);
    if (m_text.size() > kLongestString - size)
        return false;
    m_text.append(begin, size);
    return true;
}
