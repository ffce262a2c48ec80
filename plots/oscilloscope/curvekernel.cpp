#include "plots/oscilloscope/curvekernel.h"

#include "plots/oscilloscope/vectorclones.h"

#if defined(__GNUC__)
#define VENTARO_INLINE inline __attribute__((always_inline))
#else
#define VENTARO_INLINE inline
#endif

namespace curvekernel {

namespace {

/// The outcome of turning a block's samples into rows.
enum class BlockRows { Simple, Outside, Irregular };

VENTARO_INLINE bool isOnTakenPixels(const Job &job, int first)
{
    const double *samples = job.samples + first;
    const double *low = job.bandLow + first;
    const double *high = job.bandHigh + first;
    qint64 open = 0;
    for (int i = 0; i <= kBlock; ++i) {
        const double value = samples[i] + job.offset + job.channelOffset;
        open |= qint64(value < low[i]) | qint64(value > high[i]);
    }
    return open == 0;
}

/// Turns kBlock + 1 samples into rows; these are good unless the block lies outside or leaves the widget. Each
/// loop uses numbers of one width only, or the compiler would not vectorise it.
VENTARO_INLINE BlockRows rowsOfBlock(const Job &job, const Rows &rows, int first, int *y)
{
    constexpr double kAlmostHalf = 0.49999999999999994; // rounds halves up and what lies just below them down
    const double *samples = job.samples + first;
    const double end = rows.rows - 0.5;
    double exact[kBlock + 1];
    qint64 leaves = 0;
    qint64 notAbove = 0;
    qint64 notBelow = 0;
    for (int i = 0; i <= kBlock; ++i) {
        const double value = samples[i] + job.offset + job.channelOffset;
        exact[i] = rows.bottom - rows.height * (value - rows.minValue) / rows.span;
    }
    for (int i = 0; i <= kBlock; ++i) {
        leaves |= qint64(!(exact[i] >= 0.0)) | qint64(!(exact[i] < end));
        notAbove |= qint64(!(exact[i] < -2.0));
        notBelow |= qint64(!(exact[i] > end + 2.0));
    }
    if (leaves)
        return notAbove && notBelow ? BlockRows::Irregular : BlockRows::Outside;
    for (int i = 0; i <= kBlock; ++i)
        y[i] = int(exact[i] + kAlmostHalf);
    return BlockRows::Simple;
}

/// The runs from each row to the next, without the last row; false when a step is too steep for that.
VENTARO_INLINE bool runsOfRows(const int *y, int *top, int *end)
{
    int tooSteep = 0;
    for (int i = 0; i < kBlock; ++i) {
        const int step = y[i + 1] - y[i];
        tooSteep |= int(step > kSimpleStep) | int(step < -kSimpleStep);
        top[i] = y[i] + (step < 0 ? step + 1 : 0);
        end[i] = y[i] + (step > 0 ? step : 1);
    }
    return !tooSteep;
}

template <int Words>
VENTARO_INLINE void markRuns(const Rows &rows, int first, const int *top, const int *end)
{
    quint64 runs[kBlock * Words]; // separate, so that the compiler knows that nothing overlaps
    for (int i = 0; i < kBlock; ++i) {
        const quint64 *above = rows.rowsBelow + qptrdiff(top[i]) * Words;
        const quint64 *through = rows.rowsBelow + qptrdiff(end[i]) * Words;
        for (int word = 0; word < Words; ++word)
            runs[i * Words + word] = above[word] ^ through[word];
    }
    quint64 *fresh = rows.fresh + qptrdiff(first) * Words;
    for (int i = 0; i < kBlock * Words; ++i)
        fresh[i] |= runs[i];
}

template <int Words>
VENTARO_INLINE int markBlocksOf(const Job &job, const Rows &rows)
{
    int open = 0;
    int y[kBlock + 1];
    int top[kBlock];
    int end[kBlock];
    for (int block = job.firstBlock; block < job.endBlock; ++block) {
        const int first = block * kBlock;
        if (isOnTakenPixels(job, first))
            continue;
        const BlockRows kind = rowsOfBlock(job, rows, first, y);
        if (kind == BlockRows::Outside)
            continue;
        if (kind == BlockRows::Irregular || !runsOfRows(y, top, end)) {
            job.openBlocks[open++] = block;
            continue;
        }
        markRuns<Words>(rows, first, top, end);
        rows.freshBlocks[block] = 1;
    }
    return open;
}

} // namespace

VENTARO_VECTOR_CLONES
int findOpenBlocks(const Job &job)
{
    int open = 0;
    for (int block = job.firstBlock; block < job.endBlock; ++block) {
        if (!isOnTakenPixels(job, block * kBlock))
            job.openBlocks[open++] = block;
    }
    return open;
}

VENTARO_VECTOR_CLONES
int markBlocks(const Job &job, const Rows &rows)
{
    switch (rows.words) {
    case 1:
        return markBlocksOf<1>(job, rows);
    case 2:
        return markBlocksOf<2>(job, rows);
    case 3:
        return markBlocksOf<3>(job, rows);
    default:
        return markBlocksOf<4>(job, rows);
    }
}

} // namespace curvekernel
