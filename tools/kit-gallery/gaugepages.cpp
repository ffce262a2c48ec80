#include "tools/kit-gallery/gaugepages.h"

#include "kit/gauge/qcarcitem.h"
#include "kit/gauge/qcattitudemeter.h"
#include "kit/gauge/qcbackgrounditem.h"
#include "kit/gauge/qccolorbanditem.h"
#include "kit/gauge/qcdegreesitem.h"
#include "kit/gauge/qcgaugewidget.h"
#include "kit/gauge/qcglassitem.h"
#include "kit/gauge/qclabelitem.h"
#include "kit/gauge/qcneedleitem.h"
#include "kit/gauge/qcscaleitem.h"
#include "kit/gauge/qcsensorgauge.h"
#include "kit/gauge/qcvaluesitem.h"
#include "tools/kit-gallery/gallery.h"

namespace {

constexpr int kSize = 210; // pixels

/// Gives a gauge the values that its parts need to have something to show.
QcGaugeWidget *prepared(QcGaugeWidget *gauge, int size)
{
    gauge->setFixedSize(size, size);
    gauge->setRange(0.0, 250.0);
    gauge->setBands({{0.0, 40.0, QColor(0xFB, 0xC0, 0x2D)},
                     {40.0, 200.0, QColor(0x2E, 0x7D, 0x32)},
                     {200.0, 250.0, QColor(0xC6, 0x28, 0x28)}});
    gauge->setTitle(QStringLiteral("Einspritzdruck"));
    gauge->setUnit(QStringLiteral("bar"));
    return gauge;
}

QcGaugeWidget *createGauge(int size = kSize)
{
    return prepared(qcgauge::createSensorGauge(), size);
}

QcGaugeWidget *createGauge(double value, int size = kSize)
{
    QcGaugeWidget *gauge = createGauge(size);
    gauge->setValue(value);
    return gauge;
}

QcGaugeWidget *createGauge(double value, double from, double to, int size)
{
    QcGaugeWidget *gauge = createGauge(value, size);
    gauge->setRange(from, to);
    return gauge;
}

/// A gauge with one part on a face with a scale, which all parts refer to.
template <typename Item, typename... Arguments>
void addPart(GalleryPage &page, const char *name, Arguments... arguments)
{
    QcGaugeWidget *gauge = prepared(new QcGaugeWidget, 170);
    gauge->append<QcBackgroundItem>();
    gauge->append<QcScaleItem>();
    gauge->append<Item>(arguments...);
    gauge->setValue(120.0);
    gauge->setHeld(60.0, 210.0);
    page.addSample(QLatin1String(name), gauge);
}

void addAttitude(GalleryPage &page, const QString &caption, double roll, double pitch, bool enabled = true)
{
    auto *meter = new QcAttitudeMeter;
    meter->setFixedSize(kSize, kSize);
    meter->setRoll(roll);
    meter->setPitch(pitch);
    meter->setEnabled(enabled);
    page.addSample(caption, meter);
}

} // namespace

GalleryPage *createGaugePage()
{
    auto *page = new GalleryPage(QStringLiteral("QcGaugeWidget"));
    page->addRow(QStringLiteral("Values"));
    page->addSample(QStringLiteral("within its limits"), createGauge(120.5));
    QcGaugeWidget *held = createGauge(215.4);
    held->setHeld(20.0, 230.0);
    page->addSample(QStringLiteral("outside, with extremes"), held);
    page->addSample(QStringLiteral("beyond the scale"), createGauge(9999.5));
    page->addSample(QStringLiteral("without a value"), createGauge());
    page->addRow(QStringLiteral("States and sizes"));
    QcGaugeWidget *stale = createGauge(120.5);
    stale->setStale(true);
    page->addSample(QStringLiteral("stale"), stale);
    QcGaugeWidget *disabled = createGauge(120.5);
    disabled->setEnabled(false);
    page->addSample(QStringLiteral("disabled"), disabled);
    page->addSample(QStringLiteral("large"), createGauge(120.5, 300));
    page->addSample(QStringLiteral("small"), createGauge(120.5, 120));
    page->addRow(QStringLiteral("Ranges"));
    page->addSample(QStringLiteral("long numbers, small"), createGauge(-123456.7, -200000.0, 200000.0, 120));
    page->addSample(QStringLiteral("millions"), createGauge(1234567.8, 0.0, 2e6, 150));
    page->addSample(QStringLiteral("reversed"), createGauge(120.5, 250.0, 0.0, 150));
    return page;
}

GalleryPage *createGaugePartsPage()
{
    auto *page = new GalleryPage(QStringLiteral("QcItem"));
    page->addRow(QStringLiteral("The parts, each on a background and a scale"));
    addPart<QcColorBandItem>(*page, "QcColorBandItem");
    addPart<QcDegreesItem>(*page, "QcDegreesItem");
    addPart<QcValuesItem>(*page, "QcValuesItem");
    addPart<QcArcItem>(*page, "QcArcItem");
    page->addRow(QString());
    addPart<QcNeedleItem>(*page, "QcNeedleItem");
    addPart<QcLabelItem>(*page, "QcLabelItem: value", QcLabelItem::Source::Value, 51.0);
    addPart<QcNeedleItem>(*page, "QcNeedleItem: marker", QcNeedleItem::Source::HeldMaximum,
                          QcNeedleItem::Shape::Marker);
    addPart<QcGlassItem>(*page, "QcGlassItem");
    return page;
}

GalleryPage *createAttitudeMeterPage()
{
    auto *page = new GalleryPage(QStringLiteral("QcAttitudeMeter"));
    page->addRow(QStringLiteral("Values"));
    addAttitude(*page, QStringLiteral("level"), 0.0, 0.0);
    addAttitude(*page, QStringLiteral("rolled 20°, pitched 10°"), 20.0, 10.0);
    addAttitude(*page, QStringLiteral("upside down"), 180.0, -25.0);
    addAttitude(*page, QStringLiteral("disabled"), -35.0, -5.0, false);
    return page;
}
