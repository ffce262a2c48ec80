#include "app/stylesheets.h"
#include "model/model.h"
#include "plots/osziwidget.h"
#include "view/taboszilloscope.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QtTest>

#include <functional>
#include <limits>

Q_DECLARE_METATYPE(std::function<void(OsziWidget *)>)
Q_DECLARE_METATYPE(Qt::MouseButton)
Q_DECLARE_METATYPE(Qt::KeyboardModifiers)

namespace {

const QString kNumbered = QStringLiteral("%1%2");

/// A tab of a known size on a model of its own.
struct Bench
{
    Bench()
    {
        tab.setModel(&model);
        tab.resize(1080, 640);
        tab.show();
        QCoreApplication::processEvents();
    }

    void addShot(int samples, double value = 1.0)
    {
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            (void)model.appendMeasurement(sensor);
        grow(samples, value);
        model.emitDataChanged();
    }
    void grow(int samples, double value = 1.0)
    {
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            for (int k = 0; k < samples; ++k)
                (void)model.appendSample(sensor, model.numChannels(sensor) - 1, value + sensor + k);
        }
    }
    template <typename T>
    T *find(const char *name, int number = 0) const
    {
        const QString base = QLatin1String(name);
        return tab.findChild<T *>(number > 0 ? kNumbered.arg(base).arg(number) : base);
    }
    [[nodiscard]] int visible() const
    {
        return (tab.row(0)->contentsRect().width() - OsziWidget::kLeftMargin) / tab.row(0)->zoom();
    }
    [[nodiscard]] QVector<int> shown(int row = 0) const
    {
        QVector<int> numbers;
        for (int slot = 0; slot < OsziWidget::kNumSlots; ++slot) {
            if (tab.row(row)->curve(slot) && tab.row(row)->isShown(slot))
                numbers << slot + 1;
        }
        return numbers;
    }

    Model model{QString()};
    TabOszilloscope tab;
};

void wheel(QWidget *target, QPoint at, int delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QWheelEvent event(at, target->mapToGlobal(at), {}, {0, delta}, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &event);
}

} // namespace

class TestTabOszilloscope : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qApp->setStyleSheet(theme::styleApplication); }
    void namedObjects();
    void withoutMeasurements();
    void slotsPointAtMeasurements_data();
    void slotsPointAtMeasurements();
    void removedMeasurementsAreDropped_data();
    void removedMeasurementsAreDropped();
    void displayedMeasurements_data();
    void displayedMeasurements();
    void filterOutlivesNewShot();
    void leavingTheFieldKeepsAllShown();
    void highlighting();
    void followsNewestSamples_data();
    void followsNewestSamples();
    void burstIsTakenOverAtTheEndOfTheTurn();
    void heldScrollBarStays();
    void shortCurvesNeedNoScrolling();
    void markerEdited_data();
    void markerEdited();
    void markersShown_data();
    void markersShown();
    void markerSetInPlot_data();
    void markerSetInPlot();
    void clearedMarkers();
    void rangeBoxes_data();
    void rangeBoxes();
    void rangesFromOutside();
    void offsetsReachTheModel();
    void yCorrection();
    void clockAndItsGrid();
    void deletionAsks_data();
    void deletionAsks();
    void lockCloses();
    void hiddenSensorLeavesItsHeight();
    void readOutIsMirrored();
    void wheelKeepsTheTimeUnderThePointer_data();
    void wheelKeepsTheTimeUnderThePointer();
    void gesturesOnTheValueAxis_data();
    void gesturesOnTheValueAxis();
    void dragPansOneAxis_data();
    void dragPansOneAxis();
    void namesFromTheModel();
    void fitsTheWindow_data();
    void fitsTheWindow();
};

void TestTabOszilloscope::namedObjects()
{
    Bench bench;
    const char *const numbered[] = {"osziWidget",    "osziParamsWidget",      "maxSpinBox",
                                    "minSpinBox",    "checkBoxValueGridAuto", "valueGridSpinBox",
                                    "offsetSpinBox", "sensor%1CheckBox",      "sensor%1Label"};
    for (const char *name : numbered) {
        for (int number = 1; number <= kNumSensors; ++number) {
            const QString text = QLatin1String(name);
            const QString full = text.contains(QLatin1Char('%')) ? text.arg(number) : kNumbered.arg(text).arg(number);
            QVERIFY2(bench.tab.findChild<QWidget *>(full), qPrintable(full));
        }
    }
    const char *const single[] = {
        "scrollArea",         "scrollBarOszi",        "sliderTimeZoom",          "checkBoxClockGridAuto",
        "clockGridSpinBox",   "frameMarker",          "checkBoxMarkerAbsolute",  "labelMarkerAbsolute",
        "buttonClearMarkers", "checkBoxYCorrection",  "spinBoxYCorrection",      "frameSampleRate",
        "clockLabel",         "numMeasuringsLabel",   "checkBoxAllMeasurings",   "displayedMeasLineEdit",
        "highlightSpinBox",   "measToDeleteLineEdit", "buttonDeleteMeasurement", "lockButton",
        "buttonMarker1",      "labelMarker4",         "markerSpinBox4"};
    for (const char *name : single)
        QVERIFY2(bench.find<QWidget>(name), name);
}

void TestTabOszilloscope::withoutMeasurements()
{
    Bench bench;
    bench.addShot(5);
    bench.model.clearData();
    QCOMPARE(bench.find<QLabel>("numMeasuringsLabel")->text(), QStringLiteral("0"));
    QCOMPARE(bench.find<QSpinBox>("highlightSpinBox")->maximum(), 0);
    for (const char *name : {"highlightSpinBox", "checkBoxAllMeasurings", "displayedMeasLineEdit",
                             "measToDeleteLineEdit", "buttonDeleteMeasurement"})
        QVERIFY2(!bench.find<QWidget>(name)->isEnabled(), name);
    QCOMPARE(bench.shown(), QVector<int>());

    TabOszilloscope alone;
    alone.setModel(nullptr);
    alone.onModel_dataChanged();
    alone.onModel_projectChanged();
    alone.update();
    alone.updateOsziSlider();
    alone.pointSlotsAtModel();
    QVERIFY(!alone.findChild<QScrollBar *>(QStringLiteral("scrollBarOszi"))->isEnabled());
}

void TestTabOszilloscope::slotsPointAtMeasurements_data()
{
    QTest::addColumn<int>("shots");
    QTest::newRow("one") << 1;
    QTest::newRow("thirty") << 30;
    QTest::newRow("more than there are slots") << OsziWidget::kNumSlots + 3;
}

void TestTabOszilloscope::slotsPointAtMeasurements()
{
    QFETCH(int, shots);
    Bench bench;
    for (int i = 0; i < shots; ++i) {
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            (void)bench.model.appendMeasurement(sensor);
    }
    bench.grow(40);
    bench.tab.onModel_dataChanged();
    const int slotted = qMin(shots, OsziWidget::kNumSlots);
    for (int position = 0; position < kNumSensors; ++position) {
        const OsziWidget *plot = bench.tab.row(position);
        for (int slot = 0; slot < slotted; ++slot)
            QCOMPARE(plot->curve(slot), bench.model.measurement(position, slot));
        QCOMPARE(bench.shown(position).size(), slotted);
        QCOMPARE(plot->highlighted(), shots - 1);
    }
    QCOMPARE(bench.find<QLabel>("numMeasuringsLabel")->text(), QString::number(shots));
    QCOMPARE(bench.find<QSpinBox>("highlightSpinBox")->maximum(), shots);
    QCOMPARE(bench.find<QSpinBox>("highlightSpinBox")->value(), shots);
    QCOMPARE(bench.find<QLabel>("numMeasuringsLabel")->toolTip().isEmpty(), shots <= OsziWidget::kNumSlots);
    bench.find<QLineEdit>("displayedMeasLineEdit")->setText(QStringLiteral("1-2000000000"));
    bench.tab.displayedMeasChanged();
    QCOMPARE(bench.shown().size(), slotted);
    QVERIFY(!bench.tab.grab().isNull());
}

void TestTabOszilloscope::removedMeasurementsAreDropped_data()
{
    QTest::addColumn<bool>("signalsBlocked");
    QTest::newRow("through the signal") << false;
    QTest::newRow("re-pointed directly while signals are blocked") << true;
}

void TestTabOszilloscope::removedMeasurementsAreDropped()
{
    QFETCH(bool, signalsBlocked);
    Bench bench;
    for (int i = 0; i < 3; ++i)
        bench.addShot(300, 10.0 * i);
    bench.tab.row(0)->showMouseMarker(100);
    bench.model.blockSignals(signalsBlocked);
    QVERIFY(bench.model.deleteChannel(2)); // the highlighted one
    QVERIFY(bench.model.deleteChannel(0));
    if (signalsBlocked) {
        bench.tab.pointSlotsAtModel();
        bench.model.discardRemoved();
    } else {
        bench.model.emitDataChanged();
    }
    for (int position = 0; position < kNumSensors; ++position) {
        QCOMPARE(bench.tab.row(position)->curve(0), bench.model.measurement(position, 0));
        QVERIFY(!bench.tab.row(position)->curve(1));
        QVERIFY(!bench.tab.row(position)->curve(2));
        QCOMPARE(bench.tab.row(position)->highlighted(), 0);
        bench.tab.row(position)->showMouseMarker(100);
    }
    QVERIFY(!bench.tab.grab().isNull());
}

void TestTabOszilloscope::displayedMeasurements_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVector<int>>("expected");
    QTest::newRow("span and single") << "1-3,5" << QVector<int>{1, 2, 3, 5};
    QTest::newRow("blanks, empty parts") << " 2 ,, 4 - 5," << QVector<int>{2, 4, 5};
    QTest::newRow("backwards") << "3-1" << QVector<int>{};
    QTest::newRow("malformed beside a good one") << "1-2-3,4" << QVector<int>{4};
    QTest::newRow("zero, beyond the end, no number") << "0,7,x" << QVector<int>{};
    QTest::newRow("nothing") << "" << QVector<int>{};
}

void TestTabOszilloscope::displayedMeasurements()
{
    QFETCH(QString, text);
    QFETCH(QVector<int>, expected);
    Bench bench;
    for (int i = 0; i < 6; ++i)
        bench.addShot(3);
    bench.find<QLineEdit>("displayedMeasLineEdit")->setText(text);
    bench.tab.displayedMeasChanged();
    for (int position = 0; position < kNumSensors; ++position)
        QCOMPARE(bench.shown(position), expected);
    QVERIFY(!bench.find<QCheckBox>("checkBoxAllMeasurings")->isChecked());
    bench.find<QCheckBox>("checkBoxAllMeasurings")->setChecked(true);
    QCOMPARE(bench.shown(4), (QVector<int>{1, 2, 3, 4, 5, 6}));
}

void TestTabOszilloscope::filterOutlivesNewShot()
{
    Bench bench;
    for (int i = 0; i < 4; ++i)
        bench.addShot(3);
    auto *edit = bench.find<QLineEdit>("displayedMeasLineEdit");
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("1-2"));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(bench.shown(), (QVector<int>{1, 2}));
    QVERIFY(!edit->hasFocus());
    bench.addShot(3);
    QCOMPARE(bench.shown(), (QVector<int>{1, 2, 5})); // the newest is recorded in sight
    bench.addShot(3);
    QCOMPARE(bench.shown(), (QVector<int>{1, 2, 6}));
    bench.find<QSpinBox>("highlightSpinBox")->setValue(4);
    QCOMPARE(bench.shown(), (QVector<int>{1, 2, 4}));
}

void TestTabOszilloscope::leavingTheFieldKeepsAllShown()
{
    Bench bench;
    bench.addShot(3);
    auto *edit = bench.find<QLineEdit>("displayedMeasLineEdit");
    emit edit->editingFinished();
    QCOMPARE(bench.shown(), QVector<int>{1});
    QVERIFY(bench.find<QCheckBox>("checkBoxAllMeasurings")->isChecked());
}

void TestTabOszilloscope::highlighting()
{
    Bench bench;
    for (int i = 0; i < 3; ++i)
        bench.addShot(3);
    auto *box = bench.find<QSpinBox>("highlightSpinBox");
    for (int number : {1, 0, 3}) {
        box->setValue(number);
        for (int position = 0; position < kNumSensors; ++position)
            QCOMPARE(bench.tab.row(position)->highlighted(), number - 1);
    }
}

void TestTabOszilloscope::followsNewestSamples_data()
{
    QTest::addColumn<int>("behind");
    QTest::addColumn<bool>("follows");
    QTest::newRow("at the end") << 0 << true;
    QTest::newRow("9 samples behind after growing") << 8 << true;
    QTest::newRow("10 samples behind after growing") << 9 << false;
    QTest::newRow("scrolled back") << 200 << false;
}

void TestTabOszilloscope::followsNewestSamples()
{
    QFETCH(int, behind);
    QFETCH(bool, follows);
    Bench bench;
    bench.addShot(2000);
    auto *bar = bench.find<QScrollBar>("scrollBarOszi");
    QCOMPARE(bar->maximum(), 2000 - bench.visible());
    QCOMPARE(bar->pageStep(), bench.visible() / 2);
    QCOMPARE(bar->value(), 0); // where the user was
    const int before = bar->maximum() - behind;
    bar->setValue(before);
    bench.grow(1);
    bench.model.emitDataChanged();
    QCOMPARE(bar->maximum(), 2001 - bench.visible());
    QCOMPARE(bar->value(), follows ? bar->maximum() : before);
    for (int position = 0; position < kNumSensors; ++position)
        QCOMPARE(bench.tab.row(position)->startIndex(), bar->value());
}

void TestTabOszilloscope::burstIsTakenOverAtTheEndOfTheTurn()
{
    Bench bench;
    bench.addShot(2000);
    auto *bar = bench.find<QScrollBar>("scrollBarOszi");
    bar->setValue(bar->maximum());
    QSignalSpy moved(bar, &QScrollBar::valueChanged);
    for (int i = 0; i < 500; ++i) {
        bench.grow(1);
        bench.model.emitDataChanged();
    }
    QVERIFY2(moved.count() < 50, "every sample moved the view");
    QCoreApplication::processEvents();
    QCOMPARE(bar->value(), 2500 - bench.visible());
    bench.grow(7);
    bench.model.emitDataChanged(); // the next turn acts at once again
    QCOMPARE(bar->value(), 2507 - bench.visible());
}

void TestTabOszilloscope::heldScrollBarStays()
{
    Bench bench;
    bench.addShot(2000);
    auto *bar = bench.find<QScrollBar>("scrollBarOszi");
    bar->setValue(bar->maximum());
    const int held = bar->value();
    bar->setSliderDown(true);
    bench.grow(300);
    bench.model.emitDataChanged();
    QCOMPARE(bar->value(), held);
    bar->setSliderDown(false); // released at the end: the view follows again
    QCOMPARE(bar->value(), 2300 - bench.visible());

    auto *zoom = bench.find<QSlider>("sliderTimeZoom");
    const int start = bar->value();
    zoom->setSliderDown(true);
    bench.grow(9);
    bench.model.emitDataChanged();
    zoom->setValue(4);
    QCOMPARE(bar->value(), start);
    QCOMPARE(bench.tab.row(2)->zoom(), 4);
    QCOMPARE(bar->maximum(), 2309 - bench.visible());
}

void TestTabOszilloscope::shortCurvesNeedNoScrolling()
{
    Bench bench;
    auto *bar = bench.find<QScrollBar>("scrollBarOszi");
    bench.addShot(bench.visible() - 1);
    QVERIFY(!bar->isEnabled());
    QCOMPARE(bar->maximum(), 0);
    bench.grow(1);
    bench.tab.onModel_dataChanged();
    QVERIFY(bar->isEnabled()); // exactly as many samples as fit
    QCOMPARE(bar->maximum(), 0);
}

void TestTabOszilloscope::markerEdited_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<double>("seconds");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("rounded up, not truncated") << 1 << 1.2345 << 1235;
    QTest::newRow("whole") << 4 << 12.0 << 12000;
    QTest::newRow("not a hair below") << 2 << 1.001 << 1001;
    QTest::newRow("beyond what fits") << 3 << 1e12 << 2147483000;
}

void TestTabOszilloscope::markerEdited()
{
    QFETCH(int, number);
    QFETCH(double, seconds);
    QFETCH(int, milliseconds);
    for (bool absolute : {false, true}) {
        Bench bench;
        bench.tab.setCheckBoxMarkerAbsolute(absolute);
        QSignalSpy moved(&bench.tab,
                         absolute ? &TabOszilloscope::markerChangedAbsolute : &TabOszilloscope::markerChangedRelative);
        QSignalSpy other(&bench.tab,
                         absolute ? &TabOszilloscope::markerChangedRelative : &TabOszilloscope::markerChangedAbsolute);
        bench.find<QDoubleSpinBox>("markerSpinBox", number)->setValue(seconds);
        QCOMPARE(moved.count(), 1);
        QCOMPARE(moved.first(), (QList<QVariant>{number - 1, milliseconds}));
        QCOMPARE(other.count(), 0);
    }
}

void TestTabOszilloscope::markersShown_data()
{
    QTest::addColumn<bool>("absolute");
    QTest::addColumn<QVector<double>>("expected");
    QTest::newRow("absolute") << true << QVector<double>{0.5, 1.25, 1.25, 3.0};
    QTest::newRow("relative") << false << QVector<double>{0.5, 0.75, 0.0, 1.75};
}

void TestTabOszilloscope::markersShown()
{
    QFETCH(bool, absolute);
    QFETCH(QVector<double>, expected);
    Bench bench;
    QSignalSpy moved(&bench.tab, &TabOszilloscope::markerChangedAbsolute);
    QSignalSpy shifted(&bench.tab, &TabOszilloscope::markerChangedRelative);
    bench.model.setClock(50);
    const int positions[] = {10, 25, 25, 60};
    for (int i = 0; i < Model::kNumMarkers; ++i)
        bench.model.setVerticalMarkerAbsolute(i, positions[i]);
    QSignalSpy clicked(&bench.tab, &TabOszilloscope::checkBoxMarkerAbsClicked);
    auto *box = bench.find<QCheckBox>("checkBoxMarkerAbsolute");
    if (box->isChecked() != absolute) {
        box->click();
        QCOMPARE(clicked.takeFirst(), QList<QVariant>{absolute});
    }
    for (int i = 0; i < Model::kNumMarkers; ++i)
        QCOMPARE(bench.find<QDoubleSpinBox>("markerSpinBox", i + 1)->value(), expected.at(i));
    QCOMPARE(bench.find<QLabel>("labelMarker", 2)->text(), QStringLiteral("t [s]="));
    QCOMPARE(moved.count() + shifted.count() + clicked.count(), 0);
}

void TestTabOszilloscope::markerSetInPlot_data()
{
    QTest::addColumn<bool>("absolute");
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("absolute") << true << 1 << 0 << 170 << 10000;
    QTest::newRow("scrolled") << true << 1 << 500 << 170 << 60000;
    QTest::newRow("nearest sample") << true << 10 << 0 << 176 << 1100;
    QTest::newRow("left of the axis") << true << 1 << 0 << 10 << 0;
    QTest::newRow("distance to the marker before") << false << 1 << 0 << 170 << 8000;
    QTest::newRow("before the marker before") << false << 1 << 0 << 80 << 0;
}

void TestTabOszilloscope::markerSetInPlot()
{
    QFETCH(bool, absolute);
    QFETCH(int, zoom);
    QFETCH(int, start);
    QFETCH(int, x);
    Bench bench;
    bench.addShot(2000);
    bench.model.setVerticalMarkerAbsolute(1, 20);
    bench.tab.setCheckBoxMarkerAbsolute(absolute);
    QSignalSpy moved(&bench.tab,
                     absolute ? &TabOszilloscope::markerChangedAbsolute : &TabOszilloscope::markerChangedRelative);
    bench.find<QSlider>("sliderTimeZoom")->setValue(zoom);
    bench.find<QScrollBar>("scrollBarOszi")->setValue(start);
    bench.find<QPushButton>("buttonMarker", 3)->click();
    QTest::mouseClick(bench.tab.row(1), Qt::LeftButton, Qt::NoModifier, {x, 20});
    QCOMPARE(moved.count(), 1);
    QCOMPARE(moved.first().at(0).toInt(), 2);
    QTEST(moved.first().at(1).toInt(), "milliseconds");
    QVERIFY(!bench.find<QPushButton>("buttonMarker", 3)->isChecked());
    QTest::mouseClick(bench.tab.row(1), Qt::LeftButton, Qt::NoModifier, {x, 20});
    QCOMPARE(moved.count(), 1);
}

void TestTabOszilloscope::clearedMarkers()
{
    Bench bench;
    connect(&bench.tab, &TabOszilloscope::markerChangedAbsolute, &bench.model, &Model::setVerticalMarkerAbsolute);
    for (int i = 0; i < Model::kNumMarkers; ++i)
        bench.model.setVerticalMarkerAbsolute(i, 10 + i);
    bench.find<QPushButton>("buttonClearMarkers")->click();
    for (int i = 0; i < Model::kNumMarkers; ++i)
        QCOMPARE(bench.model.verticalMarker(i), 0);
}

void TestTabOszilloscope::rangeBoxes_data()
{
    QTest::addColumn<bool>("maximum");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("expected");
    QTest::newRow("maximum") << true << 400.5 << 400.5;
    QTest::newRow("maximum at the minimum is taken back") << true << 0.0 << 255.0;
    QTest::newRow("minimum") << false << -20.0 << -20.0;
    QTest::newRow("minimum above the maximum is taken back") << false << 300.0 << 0.0;
}

void TestTabOszilloscope::rangeBoxes()
{
    QFETCH(bool, maximum);
    QFETCH(double, value);
    QFETCH(double, expected);
    Bench bench;
    QSignalSpy changed(&bench.model, &Model::projectChanged);
    auto *box = bench.find<QDoubleSpinBox>(maximum ? "maxSpinBox" : "minSpinBox", 2);
    box->setValue(value);
    QCOMPARE(box->value(), expected);
    const OsziWidget *plot = bench.tab.row(1);
    QCOMPARE(maximum ? plot->maxValue() : plot->minValue(), expected);
    QCOMPARE(maximum ? bench.model.osziMaximum(1) : bench.model.osziMinimum(1), expected);
    QCOMPARE(bench.model.osziMaximum(0), 255.0);
    QCOMPARE(changed.count(), 0);
}

void TestTabOszilloscope::rangesFromOutside()
{
    Bench bench;
    bench.tab.setMaximumSensorRange(0, 2, -50.0, 500.0);
    QCOMPARE(bench.find<QDoubleSpinBox>("maxSpinBox", 3)->maximum(), 500.0);
    QCOMPARE(bench.find<QDoubleSpinBox>("minSpinBox", 3)->minimum(), -50.0);
    for (const auto &range : {qMakePair(300.0, 400.0), qMakePair(-40.0, -30.0), qMakePair(-50.0, 500.0)}) {
        bench.tab.setCurrentSensorRange(0, 2, range.first, range.second);
        QCOMPARE(bench.tab.row(2)->minValue(), range.first);
        QCOMPARE(bench.tab.row(2)->maxValue(), range.second);
        QCOMPARE(bench.model.osziMaximum(2), range.second);
    }
    bench.tab.setCurrentSensorRange(0, 2, 5.0, 5.0);
    bench.tab.setCurrentSensorRange(0, 2, 5.0, std::numeric_limits<double>::quiet_NaN());
    bench.tab.setCurrentSensorRange(1, 2, 1.0, 2.0);
    bench.tab.setCurrentSensorRange(0, 5, 1.0, 2.0);
    QCOMPARE(bench.tab.row(2)->maxValue(), 500.0);

    bench.model.setOsziMinimum(2, -9000.0); // of a project that was saved with other limits
    bench.model.setOsziMaximum(2, 9000.0);
    bench.model.setOsziMinimum(3, 7.0);
    bench.model.setOsziMaximum(3, 7.0);
    emit bench.model.viewDataChanged();
    QCOMPARE(bench.find<QDoubleSpinBox>("maxSpinBox", 3)->value(), 9000.0);
    QCOMPARE(bench.tab.row(2)->minValue(), -9000.0);
    QCOMPARE(bench.tab.row(3)->maxValue(), 255.0);
    QCOMPARE(bench.model.osziMaximum(3), 255.0); // cannot be shown: what is shown counts
}

void TestTabOszilloscope::offsetsReachTheModel()
{
    Bench bench;
    QSignalSpy changed(&bench.model, &Model::projectChanged);
    auto *box = bench.find<QDoubleSpinBox>("offsetSpinBox", 4);
    box->setValue(-2.5);
    QCOMPARE(bench.model.offset(3), -2.5);
    QCOMPARE(bench.tab.row(3)->offset(), -2.5);
    QCOMPARE(changed.count(), 1);
    bench.model.setOffset(3, 0.123456789);
    QCOMPARE(bench.tab.row(3)->offset(), 0.123456789);
    QCOMPARE(bench.model.offset(3), 0.123456789); // the rounded box does not write back
    QCOMPARE(box->value(), 0.1235);
}

void TestTabOszilloscope::yCorrection()
{
    Bench bench;
    bench.addShot(20, 7.0);
    bench.addShot(3);
    auto *box = bench.find<QCheckBox>("checkBoxYCorrection");
    auto *time = bench.find<QSpinBox>("spinBoxYCorrection");
    time->setValue(1000); // the eleventh sample at 100 ms
    QCOMPARE(bench.tab.row(1)->channelOffset(0), 0.0);
    box->setChecked(true);
    QCOMPARE(bench.tab.row(1)->channelOffset(0), -18.0);
    QCOMPARE(bench.tab.row(1)->channelOffset(1), 0.0);
    bench.grow(20, 50.0);
    bench.model.emitDataChanged();
    QCOMPARE(bench.tab.row(1)->channelOffset(1), -58.0);
    time->setValue(2200); // only the second is that long
    QCOMPARE(bench.tab.row(1)->channelOffset(0), 0.0);
    QCOMPARE(bench.tab.row(1)->channelOffset(1), -70.0);
    QVERIFY(bench.model.deleteChannel(0));
    bench.model.emitDataChanged();
    QCOMPARE(bench.tab.row(1)->channelOffset(0), -70.0);
    box->setChecked(false);
    QCOMPARE(bench.tab.row(1)->channelOffset(0), 0.0);
}

void TestTabOszilloscope::clockAndItsGrid()
{
    Bench bench;
    auto *grid = bench.find<QSpinBox>("clockGridSpinBox");
    bench.find<QCheckBox>("checkBoxClockGridAuto")->setChecked(false);
    bench.tab.setClock(1000, 100000);
    QCOMPARE(grid->minimum(), 1000);
    QCOMPARE(grid->maximum(), 100000);
    grid->setValue(5000);
    for (int position = 0; position < kNumSensors; ++position) {
        QCOMPARE(bench.tab.row(position)->clock(), 1000);
        QCOMPARE(bench.tab.row(position)->clockGrid(), 5000);
    }
    bench.model.setClock(2);
    QCOMPARE(bench.tab.row(4)->clock(), 2);
    QCOMPARE(bench.tab.row(4)->clockGrid(), grid->value());
    bench.tab.setClock(0, 0);
    QCOMPARE(bench.tab.row(0)->clock(), 2);
    // Automatic again: the box shows what the plots chose, and painting comes to rest.
    bench.find<QCheckBox>("checkBoxClockGridAuto")->setChecked(true);
    bench.find<QDoubleSpinBox>("maxSpinBox", 1)->setValue(0.01);
    QTest::qWait(50);
    QCOMPARE(grid->value(), bench.tab.row(0)->clockGrid());
    QSignalSpy changed(bench.tab.row(0), &OsziWidget::valueGridChanged);
    for (int i = 0; i < 3; ++i)
        bench.tab.row(0)->repaint();
    QCOMPARE(changed.count(), 0);
}

void TestTabOszilloscope::deletionAsks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("asked");
    QTest::newRow("as typed") << " 1-3, 5" << 1;
    QTest::newRow("nothing") << "  " << 0;
}

void TestTabOszilloscope::deletionAsks()
{
    QFETCH(QString, text);
    QFETCH(int, asked);
    Bench bench;
    bench.addShot(3);
    QSignalSpy requests(&bench.tab, &TabOszilloscope::deleteMeasurements);
    auto *edit = bench.find<QLineEdit>("measToDeleteLineEdit");
    edit->setText(text);
    bench.find<QPushButton>("buttonDeleteMeasurement")->click();
    QCOMPARE(requests.count(), asked);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(requests.count(), 2 * asked);
    if (asked > 0)
        QCOMPARE(requests.first().first().toString(), text);
    QCOMPARE(edit->text(), text);
    bench.tab.clearDeletionField();
    QVERIFY(edit->text().isEmpty());
}

void TestTabOszilloscope::lockCloses()
{
    Bench bench;
    bench.addShot(300);
    bench.find<QPushButton>("buttonMarker", 1)->click();
    auto *lock = bench.find<QPushButton>("lockButton");
    const char *const edits[] = {
        "maxSpinBox1",           "minSpinBox5",          "checkBoxValueGridAuto3",  "offsetSpinBox2",
        "checkBoxClockGridAuto", "buttonMarker1",        "markerSpinBox4",          "checkBoxMarkerAbsolute",
        "buttonClearMarkers",    "measToDeleteLineEdit", "buttonDeleteMeasurement", "checkBoxYCorrection"};
    const char *const looks[] = {"scrollBarOszi", "sliderTimeZoom", "highlightSpinBox", "displayedMeasLineEdit",
                                 "sensor1CheckBox"};
    for (bool closed : {true, false}) {
        const QString before = lock->accessibleName();
        lock->click();
        QVERIFY(lock->accessibleName() != before);
        for (const char *name : edits)
            QVERIFY2(bench.find<QWidget>(name)->isEnabled() != closed, name);
        bench.find<QSlider>("sliderTimeZoom")->setValue(5);
        for (const char *name : looks)
            QVERIFY2(bench.find<QWidget>(name)->isEnabled(), name);
        QVERIFY(!bench.find<QPushButton>("buttonMarker", 1)->isChecked()); // a closed lock disarms
        wheel(bench.tab.row(0), {300, 40}, 120, Qt::ControlModifier);
        QCOMPARE(bench.tab.row(0)->maxValue() == 255.0 && bench.tab.row(0)->minValue() == 0.0, closed);
    }
}

void TestTabOszilloscope::hiddenSensorLeavesItsHeight()
{
    Bench bench;
    const int before = bench.tab.row(1)->height();
    bench.find<QCheckBox>("sensor1CheckBox")->setChecked(false);
    bench.find<QCheckBox>("sensor3CheckBox")->setChecked(false);
    QTest::qWait(20);
    QVERIFY(!bench.tab.row(0)->isVisible());
    QVERIFY(!bench.find<QWidget>("osziParamsWidget", 3)->isVisible());
    QVERIFY2(bench.tab.row(1)->height() > before * 3 / 2, "the rows left do not share the height");
    bench.find<QCheckBox>("sensor1CheckBox")->setChecked(true);
    QVERIFY(bench.tab.row(0)->isVisible());
}

void TestTabOszilloscope::readOutIsMirrored()
{
    Bench bench;
    bench.addShot(300);
    bench.find<QCheckBox>("sensor2CheckBox")->setChecked(false);
    const auto readOuts = [&bench](int position) {
        int count = 0;
        const auto labels = bench.tab.row(position)->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            count += label->isHidden() ? 0 : 1;
        return count;
    };
    QTest::mousePress(bench.tab.row(0), Qt::LeftButton, Qt::NoModifier, {200, 30});
    QCOMPARE(readOuts(0), 2);
    QCOMPARE(readOuts(1), 0);
    QCOMPARE(readOuts(4), 2);
    QTest::mouseRelease(bench.tab.row(0), Qt::LeftButton, Qt::NoModifier, {200, 30});
    QCOMPARE(readOuts(0) + readOuts(4), 0);
}

void TestTabOszilloscope::wheelKeepsTheTimeUnderThePointer_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("delta");
    QTest::addColumn<bool>("changes");
    QTest::newRow("nearer") << 1 << 360 << true;
    QTest::newRow("further") << 10 << -240 << true;
    QTest::newRow("at the far end") << 1 << -120 << false;
    QTest::newRow("at the near end") << 100 << 120 << false;
    QTest::newRow("a fraction of a step") << 5 << 40 << false;
}

void TestTabOszilloscope::wheelKeepsTheTimeUnderThePointer()
{
    QFETCH(int, from);
    QFETCH(int, delta);
    Bench bench;
    bench.addShot(20000);
    bench.find<QSlider>("sliderTimeZoom")->setValue(from);
    bench.find<QScrollBar>("scrollBarOszi")->setValue(5000);
    const int x = OsziWidget::kLeftMargin + 400;
    const auto under = [&bench] { return bench.tab.row(0)->startIndex() + 400.0 / bench.tab.row(0)->zoom(); };
    const double before = under();
    wheel(bench.tab.row(2), {x, 30}, delta);
    QTEST(bench.tab.row(0)->zoom() != from, "changes");
    QVERIFY(qAbs(under() - before) <= 1.0);
}

void TestTabOszilloscope::gesturesOnTheValueAxis_data()
{
    QTest::addColumn<std::function<void(OsziWidget *)>>("gesture");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    using Gesture = std::function<void(OsziWidget *)>;
    QTest::newRow("Ctrl+plus") << Gesture([](OsziWidget *plot) {
        QTest::keyClick(plot, Qt::Key_Plus, Qt::ControlModifier);
    }) << 20.0 << 180.0;
    QTest::newRow("Ctrl+minus") << Gesture([](OsziWidget *plot) {
        QTest::keyClick(plot, Qt::Key_Minus, Qt::ControlModifier);
    }) << -25.0 << 225.0;
    QTest::newRow("up") << Gesture([](OsziWidget *plot) { QTest::keyClick(plot, Qt::Key_Up); }) << 20.0 << 220.0;
    // The curve of row 2 runs from 11 to 110.
    QTest::newRow("double click fits") << Gesture([](OsziWidget *plot) {
        QTest::mouseDClick(plot, Qt::LeftButton, Qt::NoModifier, {200, 30});
    }) << 6.0 << 115.0;
    QTest::newRow("F fits") << Gesture([](OsziWidget *plot) { QTest::keyClick(plot, Qt::Key_F); }) << 6.0 << 115.0;
}

void TestTabOszilloscope::gesturesOnTheValueAxis()
{
    QFETCH(std::function<void(OsziWidget *)>, gesture);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    Bench bench;
    bench.addShot(100, 10.0);
    bench.tab.setCurrentSensorRange(0, 1, 0.0, 200.0);
    gesture(bench.tab.row(1));
    QVERIFY2(qAbs(bench.model.osziMinimum(1) - minimum) <= 1.5,
             qPrintable(QString::number(bench.model.osziMinimum(1))));
    QVERIFY2(qAbs(bench.model.osziMaximum(1) - maximum) <= 1.5,
             qPrintable(QString::number(bench.model.osziMaximum(1))));
    QCOMPARE(bench.tab.row(1)->maxValue(), bench.model.osziMaximum(1));
    QCOMPARE(bench.find<QDoubleSpinBox>("minSpinBox", 2)->value(), bench.model.osziMinimum(1));
    QCOMPARE(bench.tab.row(0)->maxValue(), 255.0);
}

void TestTabOszilloscope::dragPansOneAxis_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QPoint>("distance");
    QTest::addColumn<int>("start");
    QTest::addColumn<bool>("valuesMoved");
    QTest::newRow("middle button along the time")
        << Qt::MiddleButton << Qt::KeyboardModifiers() << QPoint(-100, 10) << 600 << false;
    QTest::newRow("Shift along the time")
        << Qt::LeftButton << Qt::KeyboardModifiers(Qt::ShiftModifier) << QPoint(100, 10) << 400 << false;
    QTest::newRow("Shift along the values")
        << Qt::LeftButton << Qt::KeyboardModifiers(Qt::ShiftModifier) << QPoint(5, 30) << 500 << true;
    QTest::newRow("a plain drag is the read-out's")
        << Qt::LeftButton << Qt::KeyboardModifiers() << QPoint(-100, 10) << 500 << false;
}

void TestTabOszilloscope::dragPansOneAxis()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QPoint, distance);
    Bench bench;
    bench.addShot(3000);
    auto *bar = bench.find<QScrollBar>("scrollBarOszi");
    bar->setValue(500);
    const QPoint from(400, 40);
    QTest::mousePress(bench.tab.row(0), button, modifiers, from);
    QMouseEvent move(QEvent::MouseMove, from + distance, Qt::NoButton, button, modifiers);
    QCoreApplication::sendEvent(bench.tab.row(0), &move);
    QTest::mouseRelease(bench.tab.row(0), button, modifiers, from + distance);
    QTEST(bar->value(), "start");
    QTEST(bench.tab.row(0)->maxValue() > 255.0, "valuesMoved");
    QVERIFY(qAbs(bench.tab.row(0)->maxValue() - bench.tab.row(0)->minValue() - 255.0) < 1e-9);
}

void TestTabOszilloscope::namesFromTheModel()
{
    Bench bench;
    QCOMPARE(bench.find<QLabel>("sensor2Label")->text(), QStringLiteral("Sensor 2"));
    SensorDescription description = bench.model.sensorDescription();
    description.modifiableSensorGroup(0)->setSensorUnit(1, QStringLiteral("°C"));
    bench.model.setSensorDescription(description);
    bench.model.setSensorName(1, QStringLiteral("Werkzeug"));
    QCOMPARE(bench.find<QLabel>("sensor2Label")->text(), QStringLiteral("Werkzeug"));
    QCOMPARE(bench.tab.row(1)->accessibleName(), QStringLiteral("Werkzeug [°C]"));
    description.setNumSensorGroups(0);
    bench.model.setSensorDescription(description);
    bench.tab.update();
    QCOMPARE(bench.find<QLabel>("sensor2Label")->text(), QStringLiteral("Sensor 2"));
}

void TestTabOszilloscope::fitsTheWindow_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("rowHeight");
    QTest::newRow("tab area of a 1280x800 window") << QSize(1040, 630) << 80;
    QTest::newRow("tab area of a 1920x1080 window") << QSize(1680, 910) << 130;
}

void TestTabOszilloscope::fitsTheWindow()
{
    QFETCH(QSize, size);
    QFETCH(int, rowHeight);
    Bench bench;
    bench.tab.resize(size);
    QTest::qWait(20);
    const auto *area = bench.find<QScrollArea>("scrollArea");
    QVERIFY(!area->horizontalScrollBar()->isVisible());
    QVERIFY(!area->verticalScrollBar()->isVisible());
    for (int position = 0; position < kNumSensors; ++position) {
        QVERIFY2(bench.tab.row(position)->height() >= rowHeight,
                 qPrintable(QString::number(bench.tab.row(position)->height())));
        QVERIFY(bench.tab.row(position)->width() > size.width() * 7 / 10);
    }
    const QRect inside(QPoint(0, 0), size);
    for (const char *name : {"buttonClearMarkers", "buttonDeleteMeasurement", "lockButton", "clockGridSpinBox"}) {
        const QWidget *control = bench.find<QWidget>(name);
        QVERIFY2(inside.contains(QRect(control->mapTo(&bench.tab, QPoint(0, 0)), control->size())), name);
    }
}

QTEST_MAIN(TestTabOszilloscope)
#include "tst_taboszilloscope.moc"
