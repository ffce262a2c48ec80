#include "plots/oscilloscope/curvelayer.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int kLeft = PlotGeometry::kLeftMargin;
constexpr size_t kAhead = 12;          // curves whose samples are fetched while others are drawn
constexpr qint64 kMostFetched = 64;    // samples; the processor prefetches the rest of a longer read
constexpr qint64 kSamplesPerFetch = 8; // one cache line
// Up to this zoom a segment's last pixel is always the first of the next one, so that a moved picture needs no repair
// where segments were cut.
constexpr int kLargestZoomMoved = 128;

#if defined(__GNUC__)
void fetch(const void *address)
{
    __builtin_prefetch(address);
}
#else
void fetch(const void *) {}
#endif

} // namespace

void CurveLayer::invalidate()
{
    m_valid = false;
    m_collected = false;
    m_extensions.clear();
}

bool CurveLayer::update(const OsziScene &scene)
{
    if (scene.highlighted != m_highlighted)
        invalidate();
    m_highlighted = scene.highlighted;
    if (!CurveRaster::canDraw(scene.geometry) || !collectCurves(scene)) {
        m_valid = false;
        return false;
    }
    const bool moved = m_valid && scrollTo(scene);
    m_geometry = scene.geometry;
    m_offset = scene.offset;
    if (moved) {
        drawExtensions(scene);
        return true;
    }
    m_extensions.clear();
    const QSize size(scene.geometry.widgetWidth, scene.geometry.height);
    if (m_picture.size() != size)
        m_picture = QImage(size, QImage::Format_ARGB32_Premultiplied);
    m_picture.fill(Qt::transparent);
    m_raster.setGeometry(scene.geometry);
    draw(scene, 0, m_raster.columns() - 1);
    m_valid = true;
    return true;
}

/// False when a curve needs blending.
bool CurveLayer::collectCurves(const OsziScene &scene)
{
    if (m_collected)
        return m_drawable;
    m_collected = true;
    m_drawable = true;
    m_curves.clear();
    const OsziCurve *highlighted = scene.highlightedCurve();
    for (const OsziCurve &curve : scene.curves) {
        if (!curve.shown || !curve.samples || &curve == highlighted)
            continue;
        m_curves.push_back({&curve, curve.samples->constData()});
        m_drawable = m_drawable && curve.color.alpha() == 255;
    }
    return m_drawable;
}

/// Whether the picture now shows the scene: it did already, or could be moved there.
bool CurveLayer::scrollTo(const OsziScene &scene)
{
    PlotGeometry before = m_geometry;
    before.startIndex = scene.geometry.startIndex;
    if (before != scene.geometry || scene.offset < m_offset || scene.offset > m_offset)
        return false;
    const qint64 samples = qint64(scene.geometry.startIndex) - m_geometry.startIndex;
    if (samples == 0)
        return true;
    const int zoom = m_geometry.zoom;
    const int visible = m_geometry.visibleSamples();
    if (zoom > kLargestZoomMoved || std::abs(samples) > visible / 2)
        return false;
    m_raster.setGeometry(scene.geometry);
    moveColumns(int(samples) * zoom);
    const int lastColumn = m_raster.columns() - 1;
    if (samples > 0) {
        // The last column in view had only the ends of segments; now the next ones begin there.
        draw(scene, (visible - int(samples)) * zoom / ColumnMasks::kBlock * ColumnMasks::kBlock, lastColumn);
        if (anyEndsAt(scene.geometry.startIndex))
            draw(scene, 0, 0);
    } else {
        draw(scene, 0, int(-samples) * zoom);
        draw(scene, visible * zoom, lastColumn);
    }
    return true;
}

/// Moves the plot area's pixels left by `pixels`, or right when negative.
void CurveLayer::moveColumns(int pixels)
{
    const size_t kept = size_t(m_raster.columns() - std::abs(pixels)) * sizeof(QRgb);
    const int from = kLeft + std::max(pixels, 0);
    const int to = kLeft + std::max(-pixels, 0);
    for (int y = 0; y < m_picture.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(m_picture.scanLine(y));
        std::memmove(row + to, row + from, kept);
    }
}

void CurveLayer::clearColumns(int firstColumn, int lastColumn)
{
    const size_t bytes = size_t(lastColumn - firstColumn + 1) * sizeof(QRgb);
    for (int y = 0; y < m_picture.height(); ++y)
        std::memset(reinterpret_cast<QRgb *>(m_picture.scanLine(y)) + kLeft + firstColumn, 0, bytes);
}

/// Redraws columns, from the top-most curve down. The curves' samples are scattered over memory: where only a few of
/// each are needed, waiting for them would take most of the time, so they are fetched ahead.
void CurveLayer::draw(const OsziScene &scene, int firstColumn, int lastColumn)
{
    clearColumns(firstColumn, lastColumn);
    m_raster.begin(m_picture, firstColumn, lastColumn);
    const SampleSpan inView = m_raster.samplesInView();
    const qint64 first = std::max<qint64>(scene.geometry.startIndex + inView.first, 0);
    const qint64 last = first + std::min(inView.last - inView.first, kMostFetched);
    for (size_t i = m_curves.size(); i-- > 0;) {
        if (i >= kAhead)
            fetchSamples(m_curves[i - kAhead], first, last);
        addToRaster(scene, m_curves[i]);
    }
    m_raster.finish();
}

void CurveLayer::fetchSamples(const Drawn &drawn, qint64 first, qint64 last)
{
    fetch(drawn.curve->samples);
    fetch(drawn.samples - 1); // the list's head
    for (qint64 sample = first; sample <= last; sample += kSamplesPerFetch)
        fetch(drawn.samples + sample);
}

void CurveLayer::addToRaster(const OsziScene &scene, Drawn &drawn)
{
    const OsziCurve &curve = *drawn.curve;
    drawn.samples = curve.samples->constData();
    const SampleSpan span = drawnSpan(scene, curve);
    if (!span.isEmpty())
        m_raster.add({drawn.samples, curve.shift, span, scene.offset, curve.channelOffset, curve.color.rgba()});
}

/// Whether a curve has its last sample there, so that it is no longer drawn at all.
bool CurveLayer::anyEndsAt(int sample) const
{
    return std::any_of(m_curves.begin(), m_curves.end(),
                       [=](const Drawn &drawn) { return drawn.curve->end() - 1 == sample; });
}

void CurveLayer::extend(const OsziCurve &curve, int oldCount)
{
    if (m_valid)
        m_extensions.push_back({&curve, oldCount});
}

void CurveLayer::drawExtensions(const OsziScene &scene)
{
    const PlotGeometry &geometry = scene.geometry;
    for (const Extension &extension : m_extensions) {
        const OsziCurve &curve = *extension.curve;
        const qint64 from = std::max<qint64>(qint64(extension.oldCount) + curve.shift - 1 - geometry.startIndex, 0);
        const qint64 to = std::min<qint64>(curve.end() - 1 - geometry.startIndex, geometry.visibleSamples());
        if (to <= from)
            continue;
        const int firstColumn = int(from) * geometry.zoom;
        const int lastColumn = int(to) * geometry.zoom;
        if (&curve != m_curves.back().curve) {
            draw(scene, firstColumn, lastColumn);
            continue;
        }
        m_raster.begin(m_picture, firstColumn, lastColumn); // nothing lies over it
        addToRaster(scene, m_curves.back());
        m_raster.finish();
    }
    m_extensions.clear();
}
