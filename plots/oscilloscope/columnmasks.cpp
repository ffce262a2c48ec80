#include "plots/oscilloscope/columnmasks.h"

#include "plots/oscilloscope/vectorclones.h"

#include <QImage>
#include <QtAlgorithms>

#include <algorithm>
#include <utility>

namespace {

constexpr unsigned kBits = 64;

/// The bits from..to of a word, 0 <= from <= to <= 63.
quint64 bits(unsigned from, unsigned to)
{
    return (~quint64(0) << from) & (~quint64(0) >> (kBits - 1 - to));
}

/// Takes the fresh pixels that are free and drops the others; false when none was free.
VENTARO_VECTOR_CLONES
bool takeFree(quint64 *fresh, quint64 *taken, int words)
{
    quint64 any = 0;
    for (int i = 0; i < words; ++i) {
        const quint64 before = taken[i];
        const quint64 free = fresh[i] & ~before;
        fresh[i] = free;
        taken[i] = before | free;
        any |= free;
    }
    return any != 0;
}

/// Walks through the runs of set bits in a column.
class Runs
{
public:
    Runs(const quint64 *words, unsigned rows)
        : m_words(words)
        , m_rows(rows)
    {}

    /// The next run, or an empty interval at the end.
    RowInterval next()
    {
        const unsigned top = find(0);
        if (top >= m_rows)
            return {};
        const unsigned end = find(~quint64(0));
        return {int(top), int(std::min(end, m_rows)) - 1};
    }

private:
    /// The first row from here on whose bit differs from those of `skipped`.
    unsigned find(quint64 skipped)
    {
        while (m_row < m_rows) {
            const quint64 rest = (m_words[m_row / kBits] ^ skipped) >> (m_row % kBits);
            if (rest)
                return m_row += qCountTrailingZeroBits(rest);
            m_row = (m_row / kBits + 1) * kBits;
        }
        return m_row;
    }

    const quint64 *m_words;
    unsigned m_rows;
    unsigned m_row = 0;
};

} // namespace

void ColumnMasks::resize(int columns, int rows)
{
    const bool sameRows = rows == m_rows;
    m_columns = columns;
    m_rows = rows;
    m_words = (rows + kBits - 1) / kBits;
    const size_t blocks = size_t(columns + kBlock - 1) / kBlock;
    m_taken64.assign(blocks * kBlock * size_t(m_words), 0);
    m_fresh.assign(m_taken64.size(), 0);
    m_freshBlocks.assign(blocks, 0);
    m_stale.assign(blocks * kBlock, 0);
    m_taken.assign(blocks * kBlock, RowInterval());
    if (sameRows)
        return;
    makeRowsBelow();
    m_usedWords.resize(size_t(kBlock) * size_t(m_words));
    m_columnOfWord.resize(m_usedWords.size());
    for (size_t word = 0; word < m_columnOfWord.size(); ++word)
        m_columnOfWord[word] = int(word) / m_words;
}

void ColumnMasks::makeRowsBelow()
{
    m_rowsBelow.clear();
    if (m_words > kFastWords)
        return;
    m_rowsBelow.assign(size_t(m_rows + 1) * size_t(m_words), 0);
    for (int row = 1; row <= m_rows; ++row) {
        quint64 *entry = &m_rowsBelow[size_t(row) * size_t(m_words)];
        std::copy(entry - m_words, entry, entry);
        entry[(row - 1) / kBits] |= quint64(1) << ((row - 1) % kBits);
    }
}

void ColumnMasks::clear(int first, int last)
{
    const auto word = [&](int column) { return m_taken64.begin() + qptrdiff(column) * m_words; };
    std::fill(word(first), word(last + 1), quint64(0));
    std::fill(m_taken.begin() + first, m_taken.begin() + last + 1, RowInterval());
}

void ColumnMasks::mark(int column, int top, int bottom)
{
    quint64 *words = &m_fresh[size_t(column) * size_t(m_words)];
    const int first = top / kBits;
    const int last = bottom / kBits;
    for (int word = first; word <= last; ++word)
        words[word] |= bits(word == first ? top % kBits : 0, word == last ? bottom % kBits : kBits - 1);
    m_freshBlocks[size_t(column) / kBlock] = 1;
}

void ColumnMasks::paint(QImage &picture, int left, QRgb color)
{
    for (size_t block = 0; block < m_freshBlocks.size(); ++block) {
        if (!m_freshBlocks[block])
            continue;
        m_freshBlocks[block] = 0;
        paintBlock(picture, left, color, int(block));
    }
}

void ColumnMasks::paintBlock(QImage &picture, int left, QRgb color, int block)
{
    const size_t firstWord = size_t(block) * kBlock * size_t(m_words);
    quint64 *fresh = &m_fresh[firstWord];
    const int words = kBlock * m_words;
    if (!takeFree(fresh, &m_taken64[firstWord], words))
        return;
    // Listed without a branch: which words are empty cannot be predicted.
    int used = 0;
    for (int i = 0; i < words; ++i) {
        m_usedWords[size_t(used)] = i;
        used += int(fresh[i] != 0);
    }
    const qptrdiff stride = picture.bytesPerLine() / qptrdiff(sizeof(QRgb));
    const int start = block * kBlock;
    auto *pixels = reinterpret_cast<QRgb *>(picture.bits()) + left + start;
    for (int i = 0; i < used; ++i) {
        const int word = m_usedWords[size_t(i)];
        const int column = m_columnOfWord[size_t(word)];
        m_stale[size_t(start + column)] = 1;
        QRgb *at = pixels + column + (word - column * m_words) * qptrdiff(kBits) * stride;
        quint64 rest = std::exchange(fresh[word], 0);
        do {
            at[qptrdiff(qCountTrailingZeroBits(rest)) * stride] = color;
            rest &= rest - 1;
        } while (rest);
    }
}

void ColumnMasks::settle(std::vector<int> &changed)
{
    for (int column = 0; column < m_columns; ++column) {
        if (!m_stale[size_t(column)])
            continue;
        m_stale[size_t(column)] = 0;
        m_taken[size_t(column)] = longestRun(column);
        changed.push_back(column);
    }
}

RowInterval ColumnMasks::longestRun(int column) const
{
    Runs runs(&m_taken64[size_t(column) * size_t(m_words)], unsigned(m_rows));
    RowInterval longest;
    for (RowInterval run = runs.next(); run.top <= run.bottom; run = runs.next()) {
        if (run.bottom - run.top > longest.bottom - longest.top)
            longest = run;
    }
    return longest;
}
