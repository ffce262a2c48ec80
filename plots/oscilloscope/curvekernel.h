#pragma once

#include <QtGlobal>

/// The inner loops over a curve's samples, written so that the compiler can vectorise them.
namespace curvekernel {

constexpr int kBlock = 16;       ///< segments looked at together
constexpr int kSimpleStep = 128; ///< rows; up to here a segment of one column is the run between its ends

/// Blocks `firstBlock` to `endBlock` - 1 of a curve; block b has the samples 16 b to 16 b + 16.
struct Job
{
    const double *samples = nullptr; ///< at the start index
    double offset = 0.0;
    double channelOffset = 0.0;
    int firstBlock = 0;
    int endBlock = 0;
    const double *bandLow = nullptr; ///< per sample: between these two it lies on taken pixels
    const double *bandHigh = nullptr;
    int *openBlocks = nullptr; ///< out: the blocks that are not done, room for all
};

/// What is needed to mark simple segments at zoom 1: row = bottom - height * (value - minValue) / span, rounded.
struct Rows
{
    double bottom = 0.0;
    double height = 0.0;
    double minValue = 0.0;
    double span = 0.0;
    int rows = 0;  ///< of the widget
    int words = 0; ///< per column, 1 to 4
    const quint64 *rowsBelow = nullptr;
    quint64 *fresh = nullptr;
    quint8 *freshBlocks = nullptr;
};

/// Lists the blocks that are not entirely on taken pixels; returns their number.
int findOpenBlocks(const Job &job);

/// For zoom 1: marks the blocks that are not on taken pixels, column c getting the rows from sample c to sample c + 1
/// without the last. Lists those with a steep segment or a sample outside the widget; returns their number.
int markBlocks(const Job &job, const Rows &rows);

} // namespace curvekernel
