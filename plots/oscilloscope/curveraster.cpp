#include "plots/oscilloscope/curveraster.h"

#include "plots/oscilloscope/curvekernel.h"
#include "plots/oscilloscope/linepixels.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int kLeft = PlotGeometry::kLeftMargin;
constexpr int kTallest = 8192; // rows
constexpr int kWidest = 32768; // columns
constexpr double kInfinity = std::numeric_limits<double>::infinity();
// How many curves are added before the taken pixels are looked at again: often at first, while every curve still takes
// many.
constexpr int kFirstPatience = 8;
constexpr int kLastPatience = 1024;

} // namespace

bool CurveRaster::canDraw(const PlotGeometry &geometry)
{
    return geometry.plotHeight() > 0 && geometry.height <= kTallest && geometry.width > kLeft
           && geometry.width <= kWidest && geometry.width < geometry.widgetWidth;
}

void CurveRaster::setGeometry(const PlotGeometry &geometry)
{
    PlotGeometry kept = m_geometry;
    kept.startIndex = geometry.startIndex;
    m_geometry = geometry;
    if (kept == geometry)
        return;
    m_masks.resize(geometry.width - kLeft + 1, geometry.height);
    makeRowLimits();
    const size_t samples = size_t(geometry.visibleSamples()) + 2;
    m_bandLow.assign(samples, kInfinity);
    m_bandHigh.assign(samples, -kInfinity);
    m_openBlocks.resize(samples / curvekernel::kBlock + 1);
}

/// Finds a value near each row's edges and lets the formula itself confirm it: since every operation in it is monotone,
/// all values beyond are then on the correct side too.
void CurveRaster::makeRowLimits()
{
    const PlotGeometry &g = m_geometry;
    m_rowLow.resize(size_t(g.height));
    m_rowHigh.resize(size_t(g.height));
    const auto valueAt = [&](double y) { return g.minValue + (g.bottom() - y) * (g.span() / g.plotHeight()); };
    for (int row = 0; row < g.height; ++row) {
        const double low = valueAt(row + 0.499);
        const double high = valueAt(row - 0.499);
        m_rowLow[size_t(row)] = g.yOfValue(low) <= row ? low : kInfinity;
        m_rowHigh[size_t(row)] = g.yOfValue(high) >= row ? high : -kInfinity;
    }
}

SampleSpan CurveRaster::samplesInView() const
{
    SampleSpan span;
    span.first = std::max(m_firstColumn / m_geometry.zoom - 1, 0);
    span.last = std::min(m_lastColumn / m_geometry.zoom + 1, m_geometry.visibleSamples());
    return span;
}

void CurveRaster::begin(QImage &picture, int first, int last)
{
    m_picture = &picture;
    m_firstColumn = first;
    m_lastColumn = last;
    m_masks.clear(first, last);
    m_sinceSettled = 0;
    m_patience = kFirstPatience;
    const SampleSpan inView = samplesInView();
    std::fill(m_bandLow.begin() + inView.first, m_bandLow.begin() + inView.last + 1, kInfinity);
    std::fill(m_bandHigh.begin() + inView.first, m_bandHigh.begin() + inView.last + 1, -kInfinity);
}

void CurveRaster::add(const RasterCurve &curve)
{
    if (curve.color != m_color)
        paintFresh();
    m_color = curve.color;
    if (++m_sinceSettled >= m_patience)
        settle();

    const SampleSpan inView = samplesInView();
    const int first = int(std::max(curve.span.first - m_geometry.startIndex, inView.first));
    const int end = int(curve.span.last - m_geometry.startIndex);
    const int last = std::min(end, int(inView.last));
    if (last <= first)
        return;
    // Only the curve's last segment has an end pixel that no other segment begins with.
    const int shared = last == end ? last - 1 : last;
    addBlocks(curve, first, shared);
    if (shared < last)
        addLastSegment(shared, m_geometry.yOfValue(drawnValue(curve, shared)),
                       m_geometry.yOfValue(drawnValue(curve, last)));
}

void CurveRaster::finish()
{
    paintFresh();
    m_picture = nullptr;
}

void CurveRaster::paintFresh()
{
    m_masks.paint(*m_picture, kLeft, m_color);
}

void CurveRaster::settle()
{
    paintFresh();
    m_sinceSettled = 0;
    m_patience = std::min(4 * m_patience, kLastPatience);
    m_changed.clear();
    m_masks.settle(m_changed);
    const int zoom = m_geometry.zoom;
    int done = -1;
    for (const int column : m_changed) {
        const int from = std::max(column / zoom - 1, done + 1);
        done = std::min(column / zoom + 1, m_geometry.visibleSamples());
        updateBands(from, done);
    }
}

/// A sample's band is what is taken in every column that one of its two segments can touch.
void CurveRaster::updateBands(int firstSample, int lastSample)
{
    const int zoom = m_geometry.zoom;
    for (int sample = firstSample; sample <= lastSample; ++sample) {
        RowInterval rows{0, m_masks.rows() - 1};
        const qint64 from = std::max<qint64>(qint64(sample - 1) * zoom, m_firstColumn);
        const qint64 to = std::min<qint64>(qint64(sample + 1) * zoom, m_lastColumn);
        for (qint64 column = from; column <= to; ++column) {
            const RowInterval taken = m_masks.taken(int(column));
            rows.top = std::max(rows.top, taken.top);
            rows.bottom = std::min(rows.bottom, taken.bottom);
        }
        const bool any = rows.top <= rows.bottom;
        const auto reachesTop = [&] { return rows.top == 0 ? kInfinity : m_rowHigh[size_t(rows.top)]; };
        const auto reachesBottom = [&] {
            return rows.bottom == m_masks.rows() - 1 ? -kInfinity : m_rowLow[size_t(rows.bottom)];
        };
        m_bandHigh[size_t(sample)] = any ? reachesTop() : -kInfinity;
        m_bandLow[size_t(sample)] = any ? reachesBottom() : kInfinity;
    }
}

double CurveRaster::drawnValue(const RasterCurve &curve, int sample) const
{
    return curve.samples[qint64(m_geometry.startIndex) - curve.shift + sample] + curve.offset + curve.channelOffset;
}

/// The segments from sample `first` to sample `last`: whole blocks by the kernel, the rest one by one.
void CurveRaster::addBlocks(const RasterCurve &curve, int first, int last)
{
    constexpr int kBlock = curvekernel::kBlock;
    const bool marking = m_geometry.zoom == 1 && m_masks.words() <= ColumnMasks::kFastWords;
    curvekernel::Job job;
    // The kernel marks whole blocks: none may reach beyond the columns that were begun.
    job.firstBlock = (std::max(first, marking ? m_firstColumn : 0) + kBlock - 1) / kBlock;
    job.endBlock = std::min(last, marking ? m_lastColumn + 1 : last) / kBlock;
    if (job.firstBlock >= job.endBlock) {
        addSegments(curve, first, last);
        return;
    }
    job.samples = curve.samples + (qint64(m_geometry.startIndex) - curve.shift);
    job.offset = curve.offset;
    job.channelOffset = curve.channelOffset;
    job.bandLow = m_bandLow.data();
    job.bandHigh = m_bandHigh.data();
    job.openBlocks = m_openBlocks.data();
    const int open = marking ? markWholeBlocks(job) : findOpenBlocks(job);
    for (int i = 0; i < open; ++i)
        addSegments(curve, m_openBlocks[size_t(i)] * kBlock, (m_openBlocks[size_t(i)] + 1) * kBlock);
    addSegments(curve, first, job.firstBlock * kBlock);
    addSegments(curve, job.endBlock * kBlock, last);
}

int CurveRaster::markWholeBlocks(const curvekernel::Job &job)
{
    curvekernel::Rows rows;
    rows.bottom = m_geometry.bottom();
    rows.height = m_geometry.plotHeight();
    rows.minValue = m_geometry.minValue;
    rows.span = m_geometry.span();
    rows.rows = m_masks.rows();
    rows.words = m_masks.words();
    rows.rowsBelow = m_masks.rowsBelow();
    rows.fresh = m_masks.freshWords();
    rows.freshBlocks = m_masks.freshBlocks();
    return markBlocks(job, rows);
}

void CurveRaster::addSegments(const RasterCurve &curve, int first, int last)
{
    const auto isOnTakenPixels = [&](int sample, double value) {
        return value >= m_bandLow[size_t(sample)] && value <= m_bandHigh[size_t(sample)];
    };
    double from = first < last ? drawnValue(curve, first) : 0.0;
    int y = 0;
    bool known = false; // y is the row of `from`
    for (int sample = first; sample < last; ++sample) {
        const double to = drawnValue(curve, sample + 1);
        const bool open = !isOnTakenPixels(sample, from) || !isOnTakenPixels(sample + 1, to);
        if (open) {
            const int y1 = known ? y : m_geometry.yOfValue(from);
            y = m_geometry.yOfValue(to);
            addSegment(sample, y1, y);
        }
        known = open;
        from = to;
    }
}

/// Whether a segment is just the run of rows from its first to its second end, with the second in the next column.
bool CurveRaster::isSimple(int y1, int y2) const
{
    const int rows = m_masks.rows();
    const bool inside = y1 >= 0 && y1 < rows && y2 >= 0 && y2 < rows;
    return m_geometry.zoom == 1 && inside && std::abs(y2 - y1) <= curvekernel::kSimpleStep;
}

void CurveRaster::mark(int column, int top, int bottom)
{
    if (column >= m_firstColumn && column <= m_lastColumn)
        m_masks.mark(column, top, bottom);
}

/// A segment whose end pixel the next one begins with.
void CurveRaster::addSegment(int sample, int y1, int y2)
{
    if (isSimple(y1, y2))
        mark(sample, std::min(y1, y2 + 1), std::max(y1, y2 - 1));
    else
        addLine(sample, y1, y2);
}

void CurveRaster::addLastSegment(int sample, int y1, int y2)
{
    addSegment(sample, y1, y2);
    if (isSimple(y1, y2))
        mark(sample + 1, y2, y2);
}

/// A segment with both its ends.
void CurveRaster::addLine(int sample, int y1, int y2)
{
    const int x = sample * m_geometry.zoom;
    linepixels::columnsOfLine(kLeft + x, y1, kLeft + x + m_geometry.zoom, y2, m_masks.rows(),
                              [this](int column, int top, int bottom) {
                                  column -= kLeft;
                                  top = std::max(top, 0);
                                  bottom = std::min(bottom, m_masks.rows() - 1);
                                  if (top <= bottom)
                                      mark(column, top, bottom);
                              });
}
