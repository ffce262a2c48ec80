#include "kit/gauge/qcitem.h"

#include <algorithm>
#include <cmath>
#include <utility>

QcItem::QcItem(double radius)
    : m_radius(radius)
{}

QcItem::~QcItem() = default;

void QcItem::setRadius(double percent)
{
    if (std::isfinite(percent))
        assign(m_radius, std::clamp(percent, 0.0, 100.0));
}

void QcItem::setVisible(bool visible)
{
    assign(m_visible, visible);
}

void QcItem::setListener(std::function<void(const QcItem &item)> listener)
{
    m_listener = std::move(listener);
}

bool QcItem::looksDifferent(const QcCanvas &, const QcReading &, const QcReading &) const
{
    return true;
}

QRectF QcItem::area(const QcCanvas &canvas, const QcReading &) const
{
    return canvas.square(100.0);
}

double QcItem::neededStep(const QcCanvas &) const
{
    return 0.0;
}

void QcItem::changed()
{
    if (m_listener)
        m_listener(*this);
}
