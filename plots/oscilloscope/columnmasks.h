#pragma once

#include <QRgb>
#include <QtGlobal>

#include <vector>

class QImage;

/// Rows of one column, both ends included; none when bottom < top.
struct RowInterval
{
    int top = 0;
    int bottom = -1;
};

/// Which pixels are taken: one bit per row for every column of the plot area. Curves are added from the top-most down
/// and mark their pixels as fresh; paint() colours the fresh pixels that no curve above has taken.
class ColumnMasks
{
public:
    static constexpr int kBlock = 16;    ///< columns that are looked at together
    static constexpr int kFastWords = 4; ///< rows of up to 64 times this many are kept in one piece

    /// Room for columns 0 to columns - 1 of `rows` rows.
    void resize(int columns, int rows);
    /// Frees all pixels of the columns first to last.
    void clear(int first, int last);

    [[nodiscard]] int columns() const { return m_columns; }
    [[nodiscard]] int rows() const { return m_rows; }
    [[nodiscard]] int words() const { return m_words; }
    /// The longest known run of taken rows in a column; grows only in settle().
    [[nodiscard]] RowInterval taken(int column) const { return m_taken[size_t(column)]; }

    /// Marks rows `top` to `bottom` of a column; all of them have to exist.
    void mark(int column, int top, int bottom);
    /// For kernels that mark whole blocks: `words()` words per column.
    [[nodiscard]] quint64 *freshWords() { return m_fresh.data(); }
    /// One byte per block: whether it has fresh pixels.
    [[nodiscard]] quint8 *freshBlocks() { return m_freshBlocks.data(); }
    /// rows() + 1 entries of words() words: the bits of all rows below the entry's index. Empty beyond kFastWords.
    [[nodiscard]] const quint64 *rowsBelow() const { return m_rowsBelow.data(); }

    /// Writes the fresh pixels that are free into the picture, whose column `left` is column 0 here, and takes them.
    void paint(QImage &picture, int left, QRgb color);
    /// Finds the longest taken run again in the columns painted since the last call, and adds them to `changed`.
    void settle(std::vector<int> &changed);

private:
    void paintBlock(QImage &picture, int left, QRgb color, int block);
    void makeRowsBelow();
    [[nodiscard]] RowInterval longestRun(int column) const;

    int m_columns = 0;
    int m_rows = 0;
    int m_words = 0;
    std::vector<quint64> m_taken64;
    std::vector<quint64> m_fresh;
    std::vector<quint8> m_freshBlocks;
    std::vector<quint8> m_stale; ///< one byte per column: painted since settle()
    std::vector<RowInterval> m_taken;
    std::vector<quint64> m_rowsBelow;
    std::vector<int> m_columnOfWord; ///< of each word of a block
    std::vector<int> m_usedWords;    ///< in paintBlock()
};
