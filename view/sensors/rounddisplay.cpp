#include "view/sensors/rounddisplay.h"

#include "kit/gauge/qcbackgrounditem.h"
#include "kit/gauge/qccolorbanditem.h"
#include "kit/gauge/qcdegreesitem.h"
#include "kit/gauge/qcgaugewidget.h"
#include "kit/gauge/qcneedleitem.h"
#include "kit/gauge/qcscaleitem.h"
#include "kit/gauge/qcvaluesitem.h"
#include "view/sensors/straightscale.h"

#include <algorithm>

namespace {

constexpr double kDigitsBeside = 1.35; // width to height ratio from which the digits are beside the gauge
constexpr double kDigitsBelow = 0.22;  // of the height otherwise

QVector<QcBand> bandsOf(const SensorScale &scale, const SensorLimits &limits)
{
    QVector<QcBand> bands;
    if (!limits.isAny())
        return bands;
    const double lower = std::max(scale.low, limits.lower.value_or(scale.low));
    const double upper = std::min(scale.high, limits.upper.value_or(scale.high));
    if (lower > scale.low)
        bands.append({scale.low, lower, outsideColor()});
    bands.append({lower, upper, insideColor()});
    if (upper < scale.high)
        bands.append({upper, scale.high, outsideColor()});
    return bands;
}

} // namespace

RoundDisplay::RoundDisplay(QWidget *parent)
    : SensorDisplay(parent)
    , m_gauge(new QcGaugeWidget(this))
{
    // Without a value label: the digits are outside, where they can be larger.
    m_gauge->append<QcBackgroundItem>();
    m_gauge->append<QcScaleItem>();
    m_gauge->append<QcColorBandItem>();
    m_gauge->append<QcDegreesItem>();
    m_gauge->append<QcValuesItem>();
    m_gauge->append<QcNeedleItem>(QcNeedleItem::Source::HeldMinimum, QcNeedleItem::Shape::Marker);
    m_gauge->append<QcNeedleItem>(QcNeedleItem::Source::HeldMaximum, QcNeedleItem::Shape::Marker);
    m_needle = m_gauge->append<QcNeedleItem>();
}

SensorDisplay::Places RoundDisplay::places() const
{
    const QRectF area = QRectF(rect()).adjusted(8, 2, -8, -2);
    const double footer = footerHeight();
    const double height = area.height() - footer;
    Places parts;
    parts.footer = QRectF(area.left(), area.bottom() - footer, area.width(), footer);
    if (!face().scale.isKnown()) { // the gauge is hidden
        parts.value = QRectF(area.left(), area.top() + 0.25 * height, area.width(), 0.5 * height);
    } else if (area.width() > kDigitsBeside * height) {
        const double side = std::min(height, 0.6 * area.width());
        parts.figure = QRectF(area.left(), area.top(), side, height);
        parts.value = QRectF(area.left() + side + 8, area.top(), area.width() - side - 8, height);
        // Huge digits beside a small gauge would look like a mistake.
        const double most = 0.5 * height;
        parts.value.adjust(0, 0.5 * (height - most), 0, -0.5 * (height - most));
    } else {
        const double side = std::min(area.width(), (1.0 - kDigitsBelow) * height);
        const double digits = kDigitsBelow / (1.0 - kDigitsBelow) * side;
        const double top = area.top() + 0.5 * (height - side - digits);
        parts.figure = QRectF(area.left(), top, area.width(), side);
        parts.value = QRectF(area.left(), top + side, area.width(), digits);
    }
    return parts;
}

void RoundDisplay::follow(bool isFace)
{
    if (isFace)
        followFace();
    followReading();
}

void RoundDisplay::followFace()
{
    m_gauge->setGeometry(places().figure.toRect());
    const SensorScale &scale = face().scale;
    m_gauge->setVisible(scale.isKnown());
    if (!scale.isKnown())
        return;
    m_gauge->setRange(scale.low, scale.high);
    m_gauge->setDecimals(scale.valueDecimals);
    m_gauge->setBands(bandsOf(scale, face().limits));
    m_gauge->setUnit(face().unit);
}

void RoundDisplay::followReading()
{
    const SensorReading &shown = reading();
    m_needle->setColor(pointerColor());
    m_gauge->setStale(shown.status == SensorStatus::Stale || !shown.hasValue());
    if (shown.hasValue())
        m_gauge->setValue(shown.value);
    else
        m_gauge->clearValue();
    if (shown.held)
        m_gauge->setHeld(shown.held->minimum, shown.held->maximum);
    else
        m_gauge->clearHeld();
}
