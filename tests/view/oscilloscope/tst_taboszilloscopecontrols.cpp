#include "app/stylesheets.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/view/oscilloscope/oszibench.h"

#include <QtWidgets>

#include <limits>

Q_DECLARE_METATYPE(Qt::MouseButton)
Q_DECLARE_METATYPE(Qt::KeyboardModifiers)

namespace {

void wheel(QWidget *target, QPoint at, int delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QWheelEvent event(at, target->mapToGlobal(at), {}, {0, delta}, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &event);
}

/// Where the controls outside the rows are, in the page that scrolls.
QVector<QRect> controlPlaces(const QWidget &page)
{
    const auto *rows = page.findChild<QWidget *>("scrollArea"_s);
    QVector<QRect> places;
    for (const QWidget *control : page.findChildren<QWidget *>()) {
        const bool isControl = qobject_cast<const QAbstractSpinBox *>(control)
                               || qobject_cast<const QAbstractButton *>(control)
                               || qobject_cast<const QLabel *>(control) || qobject_cast<const QSlider *>(control)
                               || qobject_cast<const QLineEdit *>(control);
        const bool isPart = qobject_cast<const QAbstractSpinBox *>(control->parentWidget());
        if (isControl && !isPart && control->isVisibleTo(&page) && !rows->isAncestorOf(control))
            places.append(QRect(control->mapTo(&page, {}), control->size()));
    }
    return places;
}

} // namespace

class TestTabOszilloscopeControls : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qApp->setStyleSheet(theme::styleApplication); }

    void controlsWrap_data()
    {
        columns<QSize>("size");
        row("smallest window", QSize(223, 314));
        row("half a screen", QSize(460, 600));
        row("small laptop", QSize(847, 614));
    }

    void controlsWrap()
    {
        QFETCH(QSize, size);
        OsziBench bench;
        bench.tab.resize(size);
        QCoreApplication::processEvents();
        const QWidget *page = bench.find<QFrame>("frameMarker")->parentWidget();
        const QVector<QRect> places = controlPlaces(*page);
        QVERIFY(places.size() > 30);
        for (int i = 0; i < places.size(); ++i) {
            QVERIFY(page->rect().contains(places.at(i)));
            for (int k = 0; k < i; ++k)
                QVERIFY(!places.at(i).intersects(places.at(k)));
        }
    }

    void tabKeyGoesDownThePage()
    {
        const QStringList expected{
            "sensor1CheckBox"_s,  "sensor5CheckBox"_s,         "checkBoxYCorrection"_s, "lockButton"_s,
            "osziWidget1"_s,      "offsetSpinBox1"_s,          "osziWidget5"_s,         "offsetSpinBox5"_s,
            "scrollArea"_s,       "scrollBarOszi"_s,           "sliderTimeZoom"_s,      "clockGridSpinBox"_s,
            "buttonMarker1"_s,    "markerSpinBox4"_s,          "buttonClearMarkers"_s,  "checkBoxAllMeasurings"_s,
            "highlightSpinBox"_s, "buttonDeleteMeasurement"_s, "comboBoxClock"_s};
        OsziBench bench;
        QStringList met;
        for (QWidget *next = bench.tab.nextInFocusChain(); next != &bench.tab; next = next->nextInFocusChain()) {
            if (next->focusPolicy() & Qt::TabFocus && expected.contains(next->objectName()))
                met << next->objectName();
        }
        QCOMPARE(met, expected);
    }

    void markerEdited_data()
    {
        columns<int, double, int>("number", "seconds", "milliseconds");
        row("rounded up, not truncated", 1, 1.2345, 1235);
        row("whole", 4, 12.0, 12000);
        row("not a millisecond less", 2, 1.001, 1001);
        row("beyond what fits", 3, 1e12, 2147483000);
    }

    void markerEdited()
    {
        QFETCH(int, number);
        QFETCH(double, seconds);
        QFETCH(int, milliseconds);
        for (bool absolute : {false, true}) {
            OsziBench bench;
            bench.tab.setCheckBoxMarkerAbsolute(absolute);
            QSignalSpy moved(&bench.tab, absolute ? &TabOszilloscope::markerChangedAbsolute
                                                  : &TabOszilloscope::markerChangedRelative);
            QSignalSpy other(&bench.tab, absolute ? &TabOszilloscope::markerChangedRelative
                                                  : &TabOszilloscope::markerChangedAbsolute);
            bench.find<QDoubleSpinBox>("markerSpinBox", number)->setValue(seconds);
            QCOMPARE(moved.count(), 1);
            QCOMPARE(moved.first(), (QList<QVariant>{number - 1, milliseconds}));
            QCOMPARE(other.count(), 0);
            bench.tab.onMarkerChanged(seconds); // from none of the boxes
            bench.tab.onSpinBoxMaxValueChanged(seconds);
            QCOMPARE(moved.count() + other.count(), 1);
            QCOMPARE(bench.model.osziMaximum(0), 255.0);
        }
    }

    void markersShown_data()
    {
        columns<bool, QVector<double>>("absolute", "expected");
        row("absolute", true, QVector<double>{0.5, 1.25, 1.25, 3.0});
        row("relative", false, QVector<double>{0.5, 0.75, 0.0, 1.75});
    }

    void markersShown()
    {
        QFETCH(bool, absolute);
        QFETCH(QVector<double>, expected);
        OsziBench bench;
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
        QCOMPARE(bench.find<QLabel>("labelMarker", 2)->text(), "t [s]="_s);
        QCOMPARE(moved.count() + shifted.count() + clicked.count(), 0);
    }

    void markerSetInPlot_data()
    {
        columns<bool, int, int, int, int>("absolute", "zoom", "start", "x", "milliseconds");
        row("absolute", true, 1, 0, 170, 10000);
        row("scrolled", true, 1, 500, 170, 60000);
        row("the sample that the read-out shows", true, 10, 0, 176, 1000);
        row("its last column", true, 10, 0, 179, 1000);
        row("the next sample", true, 10, 0, 180, 1100);
        row("scrolled and zoomed", true, 10, 500, 176, 51000);
        row("half a sample left of the axis", true, 10, 500, 65, 50000);
        row("left of the axis", true, 1, 0, 10, 0);
        row("distance to the marker before", false, 1, 0, 170, 8000);
        row("before the marker before", false, 1, 0, 80, 0);
    }

    void markerSetInPlot()
    {
        QFETCH(bool, absolute);
        QFETCH(int, zoom);
        QFETCH(int, start);
        QFETCH(int, x);
        OsziBench bench;
        bench.addShot(2000);
        bench.model.setVerticalMarkerAbsolute(1, 20);
        bench.tab.setCheckBoxMarkerAbsolute(absolute);
        QSignalSpy moved(&bench.tab,
                         absolute ? &TabOszilloscope::markerChangedAbsolute : &TabOszilloscope::markerChangedRelative);
        bench.find<QSlider>("sliderTimeZoom")->setValue(zoom);
        bench.find<QScrollBar>("scrollBarOszi")->setValue(start);
        bench.find<QPushButton>("buttonMarker", 3)->click();
        QTest::mousePress(bench.tab.row(1), Qt::LeftButton, Qt::NoModifier, {x, 20});
        if (absolute && x >= OsziWidget::kLeftMargin) { // the marker lands on the sample that is read out
            const int sample = moved.first().at(1).toInt() / bench.model.clock();
            const double value = bench.model.measurement(1, 0)->at(sample);
            QCOMPARE(bench.tab.row(1)->findChild<QLabel *>("mouseReadOut"_s)->text().toDouble(), value);
        }
        QTest::mouseRelease(bench.tab.row(1), Qt::LeftButton, Qt::NoModifier, {x, 20});
        QCOMPARE(moved.count(), 1);
        QCOMPARE(moved.first().at(0).toInt(), 2);
        QTEST(moved.first().at(1).toInt(), "milliseconds");
        QVERIFY(!bench.find<QPushButton>("buttonMarker", 3)->isChecked());
        QTest::mouseClick(bench.tab.row(1), Qt::LeftButton, Qt::NoModifier, {x, 20});
        QCOMPARE(moved.count(), 1);
    }

    void rangesFromOutside()
    {
        OsziBench bench;
        bench.tab.setMaximumSensorRange(0, 2, -50.0, 500.0);
        QCOMPARE(bench.find<QDoubleSpinBox>("maxSpinBox", 3)->maximum(), 500.0);
        QCOMPARE(bench.find<QDoubleSpinBox>("minSpinBox", 3)->minimum(), -50.0);
        for (const auto &range : {qMakePair(300.0, 400.0), qMakePair(-40.0, -30.0), qMakePair(-50.0, 500.0)}) {
            bench.tab.setCurrentSensorRange(0, 2, range.first, range.second);
            QCOMPARE(bench.tab.row(2)->minValue(), range.first);
            QCOMPARE(bench.tab.row(2)->maxValue(), range.second);
            QCOMPARE(bench.model.osziMaximum(2), range.second);
        }
        bench.tab.setMaximumSensorRange(0, 2, 0.0, 100.0);
        QCOMPARE(bench.tab.row(2)->maxValue(), 100.0);
        QCOMPARE(bench.model.osziMinimum(2), 0.0);
        bench.tab.setMaximumSensorRange(0, 2, 300.0, 500.0); // nothing of what was shown lies within
        QCOMPARE(bench.find<QDoubleSpinBox>("minSpinBox", 3)->value(), 300.0);
        QCOMPARE(bench.tab.row(2)->minValue(), 300.0);
        QCOMPARE(bench.model.osziMaximum(2), 500.0);

        bench.model.setOsziMinimum(2, -9000.0); // from a project that was saved with other limits
        bench.model.setOsziMaximum(2, 9000.0);
        bench.model.setOsziMinimum(3, 7.0);
        bench.model.setOsziMaximum(3, 7.0);
        emit bench.model.viewDataChanged();
        QCOMPARE(bench.find<QDoubleSpinBox>("maxSpinBox", 3)->value(), 9000.0);
        QCOMPARE(bench.tab.row(2)->minValue(), -9000.0);
        QCOMPARE(bench.model.osziMaximum(3), 255.0); // cannot be shown: what is shown counts
    }

    void offsetsReachTheModel()
    {
        OsziBench bench;
        auto *box = bench.find<QDoubleSpinBox>("offsetSpinBox", 4);
        box->setValue(-2.5);
        QCOMPARE(bench.model.offset(3), -2.5);
        bench.model.setOffset(3, 0.123456789);
        QCOMPARE(bench.tab.row(3)->offset(), 0.123456789);
        QCOMPARE(bench.model.offset(3), 0.123456789); // the rounded box does not write back
        QCOMPARE(box->value(), 0.1235);
    }

    void offsetsAreTypedWithCommaOrPoint()
    {
        OsziBench bench;
        auto *box = bench.find<QDoubleSpinBox>("offsetSpinBox", 2);
        for (const QLocale::Language language : {QLocale::German, QLocale::English}) {
            box->setLocale(QLocale(language));
            for (const char *typed : {"1.5", "2,5"}) {
                box->selectAll();
                QTest::keyClicks(box, QString::fromLatin1(typed));
                QTest::keyClick(box, Qt::Key_Return);
                QCOMPARE(box->value(), typed[0] - '0' + 0.5);
            }
        }
    }

    void lockCloses()
    {
        OsziBench bench;
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

    void wheelKeepsTheTimeUnderThePointer_data()
    {
        columns<int, int, bool>("from", "delta", "changes");
        row("in", 1, 360, true);
        row("out", 10, -240, true);
        row("out at the smallest zoom", 1, -120, false);
        row("a fraction of a step", 5, 40, false);
    }

    void wheelKeepsTheTimeUnderThePointer()
    {
        QFETCH(int, from);
        QFETCH(int, delta);
        OsziBench bench;
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

    void dragPansOneAxis_data()
    {
        columns<Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int, bool>("button", "modifiers", "distance", "start",
                                                                           "valuesMoved");
        row("middle button along the time", Qt::MiddleButton, Qt::KeyboardModifiers(), QPoint(-100, 10), 600, false);
        row("Shift along the time", Qt::LeftButton, Qt::KeyboardModifiers(Qt::ShiftModifier), QPoint(100, 10), 400,
            false);
        row("Shift along the values", Qt::LeftButton, Qt::KeyboardModifiers(Qt::ShiftModifier), QPoint(5, 30), 500,
            true);
        row("without a key: moves the read-out", Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(-100, 10), 500, false);
    }

    void dragPansOneAxis()
    {
        QFETCH(Qt::MouseButton, button);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QPoint, distance);
        OsziBench bench;
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

    void gesturesOnTheValueAxis_data()
    {
        // no keys: a double click
        columns<QKeySequence, double, double>("keys", "minimum", "maximum");
        row("in", QKeySequence(Qt::CTRL + Qt::Key_Plus), 20.0, 180.0);
        row("out", QKeySequence(Qt::CTRL + Qt::Key_Minus), -25.0, 225.0);
        row("up", QKeySequence(Qt::Key_Up), 20.0, 220.0);
        row("F fits 11 to 110", QKeySequence(Qt::Key_F), 6.0, 115.0);
        row("double click", QKeySequence(), 6.0, 115.0);
    }

    void gesturesOnTheValueAxis()
    {
        QFETCH(QKeySequence, keys);
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        OsziBench bench;
        bench.addShot(100, 10.0);
        bench.tab.setCurrentSensorRange(0, 1, 0.0, 200.0);
        if (keys.isEmpty())
            QTest::mouseDClick(bench.tab.row(1), Qt::LeftButton, Qt::NoModifier, {200, 30});
        else
            QTest::keySequence(bench.tab.row(1), keys);
        QVERIFY(qAbs(bench.model.osziMinimum(1) - minimum) <= 1.5); // the middle of a row lies between two pixels
        QVERIFY(qAbs(bench.model.osziMaximum(1) - maximum) <= 1.5);
    }
};

QTEST_MAIN(TestTabOszilloscopeControls)
#include "tst_taboszilloscopecontrols.moc"
