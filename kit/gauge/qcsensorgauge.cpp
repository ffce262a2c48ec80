#include "kit/gauge/qcsensorgauge.h"

#include "kit/gauge/qcbackgrounditem.h"
#include "kit/gauge/qccolorbanditem.h"
#include "kit/gauge/qcdegreesitem.h"
#include "kit/gauge/qcgaugewidget.h"
#include "kit/gauge/qcglassitem.h"
#include "kit/gauge/qclabelitem.h"
#include "kit/gauge/qcneedleitem.h"
#include "kit/gauge/qcscaleitem.h"
#include "kit/gauge/qcvaluesitem.h"

#include <cmath>

namespace {

/// Above the middle with a positive height, below it with a negative one; all in percent.
QcLabelItem *addLabel(QcGaugeWidget *gauge, QcLabelItem::Source source, double height, double size, double width)
{
    auto *label = gauge->append<QcLabelItem>(source, std::abs(height), height > 0.0 ? 0.0 : 180.0);
    label->setSize(size);
    label->setWidth(width);
    return label;
}

} // namespace

QcGaugeWidget *qcgauge::createSensorGauge(QWidget *parent)
{
    auto *gauge = new QcGaugeWidget(parent);
    gauge->append<QcBackgroundItem>();
    gauge->append<QcScaleItem>();
    gauge->append<QcColorBandItem>();
    gauge->append<QcDegreesItem>();
    gauge->append<QcValuesItem>();
    addLabel(gauge, QcLabelItem::Source::Title, -85.0, 10.5, 78.0)->setOptional(true);
    addLabel(gauge, QcLabelItem::Source::Unit, -69.5, 10.5, 70.0);
    addLabel(gauge, QcLabelItem::Source::Value, -49.5, 25.0, 88.0)->setWeight(QFont::Bold);
    using Needle = QcNeedleItem;
    gauge->append<Needle>(Needle::Source::HeldMinimum, Needle::Shape::Marker);
    gauge->append<Needle>(Needle::Source::HeldMaximum, Needle::Shape::Marker);
    gauge->append<Needle>();
    gauge->append<QcGlassItem>();
    return gauge;
}
