#include "plots/curvekernel.h"

#include "plots/vectorclones.h"

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

/// The rows of kBlock + 1 samples, all inside the widget when the result is Simple.
VENTARO_INLINE BlockRows rowsOfBlock(const Job &job, const Rows &rows, int first, int *y)
{
    const double *samples = job.samples + first;
    const double end = rows.rows - 0.5;
    int inside = 1;
    int above = 1;
    int below = 1;
    for (int i = 0; i <= kBlock; ++i) {
        const double value = samples[i] + job.offset + job.channelOffset;
        const double exact = rows.bottom - rows.height * (value - rows.minValue) / rows.span;
        above &= int(exact < -2.0);
        below &= int(exact > end + 2.0);
        inside &= int(exact >= 0.0) & int(exact < end);
        const double known = exact >= 0.0 && exact < end ? exact : 0.0;
        const int whole = int(known);
        y[i] = whole + int(known - whole >= 0.5);
    }
    int steepest = 0;
    for (int i = 0; i < kBlock; ++i) {
        const int step = y[i + 1] > y[i] ? y[i + 1] - y[i] : y[i] - y[i + 1];
        steepest = step > steepest ? step : steepest;
    }
    if (above | below)
        return BlockRows::Outside;
    return inside && steepest <= kSimpleStep ? BlockRows::Simple : BlockRows::Irregular;
}

template <int Words>
VENTARO_INLINE void markRuns(const Rows &rows, int first, const int *y)
{
    quint64 *fresh = rows.fresh + qptrdiff(first) * Words;
    for (int i = 0; i < kBlock; ++i) {
        const int from = y[i];
        const int to = y[i + 1];
        const int top = from <= to ? from : to + 1;
        const int bottom = from >= to ? from : to - 1;
        const quint64 *above = rows.rowsBelow + qptrdiff(top) * Words;
        const quint64 *through = rows.rowsBelow + qptrdiff(bottom + 1) * Words;
        for (int word = 0; word < Words; ++word)
            fresh[i * Words + word] |= above[word] ^ through[word];
    }
}

template <int Words>
VENTARO_INLINE int markBlocksOf(const Job &job, const Rows &rows)
{
    int open = 0;
    int y[kBlock + 1];
    for (int block = job.firstBlock; block < job.endBlock; ++block) {
        const int first = block * kBlock;
        if (isOnTakenPixels(job, first))
            continue;
        const BlockRows kind = rowsOfBlock(job, rows, first, y);
        if (kind == BlockRows::Irregular)
            job.openBlocks[open++] = block;
        if (kind != BlockRows::Simple)
            continue;
        markRuns<Words>(rows, first, y);
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
