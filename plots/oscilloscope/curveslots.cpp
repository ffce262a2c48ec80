#include "plots/oscilloscope/curveslots.h"

#include "plots/common/logging.h"

#include <cmath>

namespace {

void letPassThroughZero(OsziCurve &curve, qint64 index)
{
    if (curve.samples && index >= curve.shift && index < curve.end())
        curve.channelOffset = -curve.samples->at(int(index - curve.shift));
}

} // namespace

OsziCurve *CurveSlots::findOrLog(int slot)
{
    if (find(slot))
        return &m_slots[size_t(slot)];
    logIndexError(slot);
    return nullptr;
}

bool CurveSlots::setCurve(int slot, const SampleList *samples, const QColor &color, bool shown)
{
    OsziCurve *curve = findOrLog(slot);
    if (!curve)
        return false;
    curve->samples = samples;
    curve->color = color;
    curve->shown = shown;
    return true;
}

bool CurveSlots::setPlace(int slot, int shift, double channelOffset)
{
    OsziCurve *curve = findOrLog(slot);
    // An offset that is not finite would move the curve beyond all pixels for good.
    if (!curve || !std::isfinite(channelOffset))
        return false;
    curve->shift = shift;
    curve->channelOffset = channelOffset;
    return true;
}

void CurveSlots::clear()
{
    for (OsziCurve &curve : m_slots) {
        curve.samples = nullptr;
        curve.shown = false;
    }
}

bool CurveSlots::setShown(int slot, bool shown)
{
    OsziCurve *curve = findOrLog(slot);
    if (curve)
        curve->shown = shown;
    return curve;
}

void CurveSlots::setAllShown(bool shown)
{
    for (OsziCurve &curve : m_slots)
        curve.shown = shown;
}

bool CurveSlots::setChannelOffset(int slot, double offset)
{
    OsziCurve *curve = findOrLog(slot);
    if (!curve || !std::isfinite(offset))
        return false;
    curve->channelOffset = offset;
    return true;
}

void CurveSlots::clearChannelOffsets()
{
    for (OsziCurve &curve : m_slots)
        curve.channelOffset = 0.0;
}

bool CurveSlots::passThroughZero(int slot, int index)
{
    OsziCurve *curve = findOrLog(slot);
    if (curve)
        letPassThroughZero(*curve, index);
    return curve;
}

void CurveSlots::allPassThroughZero(int index)
{
    for (OsziCurve &curve : m_slots)
        letPassThroughZero(curve, index);
}
