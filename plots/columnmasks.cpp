#include "plots/columnmasks.h"

#include <QImage>
#include <QtAlgorithms>

#include <algorithm>

namespace {

constexpr int kBits = 64;

/// The bits from..to of a word, 0 <= from <= to <= 63.
quint64 bits(int from, int to)
{
    return (~quint64(0) << from) & (~quint64(0) >> (kBits - 1 - to));
}

/// Counts the set bits that follow each other from `row` on.
int runLength(const quint64 *words, int row, int rows)
{
    int end = row;
    while (end < rows) {
        const quint64 free = ~(words[end / kBits] >> (end % kBits));
        const int run = free ? int(qCountTrailingZeroBits(free)) : kBits;
        const int inWord = kBits - end % kBits;
        end += std::min(run, inWord);
        if (run < inWord)
            break;
    }
    return std::min(end, rows) - row;
}

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
    if (!sameRows)
        makeRowsBelow();
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
    quint64 *taken = &m_taken64[firstWord];
    const int words = kBlock * m_words;
    quint64 any = 0;
    for (int i = 0; i < words; ++i) {
        fresh[i] &= ~taken[i];
        taken[i] |= fresh[i];
        any |= fresh[i];
    }
    if (!any)
        return;
    const int stride = picture.bytesPerLine() / int(sizeof(QRgb));
    auto *pixels = reinterpret_cast<QRgb *>(picture.bits()) + left + block * kBlock;
    for (int i = 0; i < words; ++i) {
        if (!fresh[i])
            continue;
        const int column = i / m_words;
        m_stale[size_t(block * kBlock + column)] = 1;
        QRgb *at = pixels + column + qptrdiff(i % m_words) * kBits * stride;
        for (quint64 rest = fresh[i]; rest; rest &= rest - 1)
            at[qptrdiff(qCountTrailingZeroBits(rest)) * stride] = color;
        fresh[i] = 0;
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
    const quint64 *words = &m_taken64[size_t(column) * size_t(m_words)];
    RowInterval longest;
    int row = 0;
    while (row < m_rows) {
        const quint64 rest = words[row / kBits] >> (row % kBits);
        if (!rest) {
            row = (row / kBits + 1) * kBits;
            continue;
        }
        row += int(qCountTrailingZeroBits(rest));
        const int length = runLength(words, row, m_rows);
        if (length > longest.bottom - longest.top + 1)
            longest = {row, row + length - 1};
        row += length;
    }
    return longest;
}
