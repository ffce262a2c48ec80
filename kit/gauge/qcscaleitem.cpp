#include "kit/gauge/qcscaleitem.h"

#include "kit/logging.h"

#include <algorithm>
#include <cmath>

QcScaleItem::QcScaleItem(double radius)
    : QcItem(radius)
    , m_start(qcgauge::Scale().start)
    , m_sweep(qcgauge::Scale().sweep)
{}

void QcScaleItem::setAngles(double start, double sweep)
{
    if (!std::isfinite(start) || !(std::abs(sweep) > 0.0 && std::abs(sweep) <= 360.0)) {
        qCWarning(lcKit) << "angles of a scale not accepted:" << start << sweep;
        return;
    }
    assign(m_start, start);
    assign(m_sweep, sweep);
}

void QcScaleItem::setOwnRange(double from, double to)
{
    if (!std::isfinite(from) || !std::isfinite(to)) {
        qCWarning(lcKit) << "range of a scale not accepted:" << from << to;
        return;
    }
    assign(m_hasOwnRange, true);
    assign(m_ownFrom, from);
    assign(m_ownTo, to);
}

void QcScaleItem::clearOwnRange()
{
    assign(m_hasOwnRange, false);
}

void QcScaleItem::setStep(double step)
{
    assign(m_step, std::isfinite(step) ? std::max(0.0, step) : 0.0);
}

void QcScaleItem::setWidth(double percent)
{
    if (std::isfinite(percent))
        assign(m_width, std::clamp(percent, 0.0, 100.0));
}

qcgauge::Scale QcScaleItem::scale(double from, double to) const
{
    return {m_hasOwnRange ? m_ownFrom : from, m_hasOwnRange ? m_ownTo : to, m_start, m_sweep};
}

void QcScaleItem::paint(QPainter &painter, const QcCanvas &canvas, const QcReading &) const
{
    if (m_width > 0.0)
        qcgauge::drawRing(painter, canvas, {radius(), m_width, m_start, m_start + m_sweep}, canvas.colors.track);
}
