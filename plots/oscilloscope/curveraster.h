#pragma once

#include "plots/oscilloscope/columnmasks.h"
#include "plots/oscilloscope/plotgeometry.h"

#include <QRgb>

#include <vector>

class QImage;
namespace curvekernel {
struct Job;
}

/// What the rasteriser needs of a curve.
struct RasterCurve
{
    const double *samples = nullptr; ///< sample 0
    int shift = 0;                   ///< index of sample 0
    SampleSpan span;                 ///< indices whose joining segments are drawn; at least two
    double offset = 0.0;             ///< added to every sample first
    double channelOffset = 0.0;      ///< added second
    QRgb color = 0;                  ///< opaque
};

/// Draws opaque curves of width 1 without antialiasing into a picture: exactly the pixels that a raster painter sets
/// with one drawLine() per segment. Curves are added from the top-most down, so that every pixel is written once and
/// what is hidden under other curves costs next to nothing.
class CurveRaster
{
public:
    /// Whether this geometry can be drawn: there is a plot area, of a size that masks are kept for.
    [[nodiscard]] static bool canDraw(const PlotGeometry &geometry);

    /// Prepares for a geometry that canDraw(); cheap while only the start index changes.
    void setGeometry(const PlotGeometry &geometry);
    /// Begins columns first to last (0 is the left edge of the plot area) of a picture that is transparent there.
    void begin(QImage &picture, int first, int last);
    void add(const RasterCurve &curve);
    /// Paints what is still held back. The picture can be used afterwards.
    void finish();

    [[nodiscard]] int columns() const { return m_masks.columns(); }
    /// The samples whose segments touch the columns begun, relative to the start index.
    [[nodiscard]] SampleSpan samplesInView() const;

private:
    void makeRowLimits();
    void updateBands(int firstSample, int lastSample);
    void settle();
    void paintFresh();

    void addBlocks(const RasterCurve &curve, int first, int last);
    /// Lists the blocks left over; returns their number.
    [[nodiscard]] int markWholeBlocks(const curvekernel::Job &job);
    void addSegments(const RasterCurve &curve, int first, int last);
    void addSegment(int sample, int y1, int y2);
    void addLastSegment(int sample, int y1, int y2);
    [[nodiscard]] bool isSimple(int y1, int y2) const;
    void mark(int column, int top, int bottom);
    void addLine(int sample, int y1, int y2);
    [[nodiscard]] double drawnValue(const RasterCurve &curve, int sample) const;

    PlotGeometry m_geometry;
    ColumnMasks m_masks;
    QImage *m_picture = nullptr;
    int m_firstColumn = 0;
    int m_lastColumn = -1;
    QRgb m_color = 0;
    int m_sinceSettled = 0;
    int m_patience = 0;
    /// Per row: values from here up lie in this row or above it; values up to here lie in it or below it.
    std::vector<double> m_rowLow;
    std::vector<double> m_rowHigh;
    /// Per sample: a value between these lies on taken pixels, and so do the segments between two such samples.
    std::vector<double> m_bandLow;
    std::vector<double> m_bandHigh;
    std::vector<int> m_openBlocks; ///< left over by the kernel
    std::vector<int> m_changed;    ///< columns, in settle()
};
