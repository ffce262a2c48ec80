#include "plots/oscilloscope/oszipicture.h"

#include "plots/oscilloscope/oszipainter.h"
#include "plots/oscilloscope/osziscene.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int kPenReach = 3; // pixels that the thick pen reaches beyond a sample, at most

/// The columns from a curve's old end to its new one; empty when none is in view.
QRect grownRect(const PlotGeometry &geometry, const OsziCurve &curve, int oldCount)
{
    const qint64 first = std::max<qint64>(qint64(oldCount) + curve.shift - 1, geometry.startIndex);
    const qint64 last = std::min<qint64>(curve.end() - 1, geometry.lastVisibleIndex());
    if (last < first)
        return {};
    const int left = geometry.xOfSample(first) - kPenReach;
    const int right = geometry.xOfSample(last) + kPenReach;
    return QRect(QPoint(left, 0), QPoint(right, geometry.height - 1));
}

} // namespace

void OsziPicture::paint(QPainter &painter, const OsziScene &scene, const QRect &region)
{
    oszipainter::paintValueGrid(painter, scene, region, m_labels);
    oszipainter::paintClockGrid(painter, scene, region, m_labels);
    paintCurves(painter, scene, region);
    oszipainter::paintHighlighted(painter, scene, region);
    const QRect endValue = oszipainter::paintEndValue(painter, scene, m_labels);
    // After a partial paint, the old value may still be on the screen.
    const bool isWhole = region == QRect(0, 0, scene.geometry.widgetWidth, scene.geometry.height);
    m_endValueRect = isWhole ? endValue : endValue | m_endValueRect;
    oszipainter::paintHorizontalLines(painter, scene, region);
    oszipainter::paintVerticalMarkers(painter, scene, region);
    oszipainter::paintPhaseNames(painter, scene, region, m_labels);
}

void OsziPicture::paintCurves(QPainter &painter, const OsziScene &scene, const QRect &region)
{
    // Scaled, as on a display with small pixels, lines get thicker: only the painter itself can draw those.
    const bool pixelForPixel = painter.deviceTransform().type() <= QTransform::TxTranslate;
    if (!pixelForPixel || !m_curves.update(scene))
        oszipainter::paintCurves(painter, scene);
    else
        painter.drawImage(region.topLeft(), m_curves.picture(), region);
}

QRect OsziPicture::grow(const OsziScene &scene, int slot, int oldCount, const QFont &font)
{
    const OsziCurve *curve = scene.curves.find(slot);
    if (!curve || !curve->samples || !curve->shown)
        return {};
    QRect changed = grownRect(scene.geometry, *curve, oldCount);
    if (slot == scene.highlighted) {
        changed |= m_endValueRect;
        m_endValueRect = oszipainter::endValueRect(scene, font, m_labels);
        changed |= m_endValueRect;
    } else {
        m_curves.extend(*curve, oldCount);
    }
    return changed; // one rectangle: the painter is slow where it has to clip to several
}
