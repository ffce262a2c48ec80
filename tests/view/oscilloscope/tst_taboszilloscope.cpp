#include "app/stylesheets.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/view/oscilloscope/oszibench.h"

#include <QtWidgets>

Q_DECLARE_METATYPE(Qt::KeyboardModifiers)

class TestTabOszilloscope : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qApp->setStyleSheet(theme::styleApplication); }

    void withoutMeasurements()
    {
        TabOszilloscope alone;
        {
            Model shortLived{QString()};
            (void)shortLived.appendMeasurement(0);
            alone.setModel(&shortLived);
            QVERIFY(alone.row(0)->curve(0));
        }
        QVERIFY(!alone.row(0)->curve(0));
        alone.setModel(nullptr);
        alone.onModel_dataChanged();
        alone.onModel_projectChanged();
        alone.update();
        alone.updateOsziSlider();
        alone.pointSlotsAtModel();
        QVERIFY(!alone.findChild<QScrollBar *>("scrollBarOszi"_s)->isEnabled());
    }

    void slotsPointAtMeasurements_data()
    {
        columns<int>("shots");
        row("one", 1);
        row("thirty", 30);
        row("more than there are slots", OsziWidget::kNumSlots + 3);
    }

    void slotsPointAtMeasurements()
    {
        QFETCH(int, shots);
        OsziBench bench;
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
        bench.find<QLineEdit>("displayedMeasLineEdit")->setText("1-2000000000"_s);
        bench.tab.displayedMeasChanged();
        QCOMPARE(bench.shown().size(), slotted);
        QVERIFY(!bench.tab.grab().isNull());
    }

    void removedMeasurementsAreDropped_data()
    {
        columns<bool>("signalsBlocked");
        row("through the signal", false);
        row("re-pointed directly while signals are blocked", true);
    }

    void removedMeasurementsAreDropped()
    {
        QFETCH(bool, signalsBlocked);
        OsziBench bench;
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

    void filterStaysForNewShots()
    {
        OsziBench bench;
        for (int i = 0; i < 4; ++i)
            bench.addShot(3);
        auto *edit = bench.find<QLineEdit>("displayedMeasLineEdit");
        edit->setFocus();
        QTest::keyClicks(edit, "1-2"_s);
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(bench.shown(), (QVector<int>{1, 2}));
        QVERIFY(!edit->hasFocus());
        bench.addShot(3);
        QCOMPARE(bench.shown(), (QVector<int>{1, 2, 5})); // the newest stays in sight while it is recorded
        bench.addShot(3);
        QCOMPARE(bench.shown(), (QVector<int>{1, 2, 6}));
        bench.find<QSpinBox>("highlightSpinBox")->setValue(4);
        QCOMPARE(bench.shown(), (QVector<int>{1, 2, 4}));
    }

    void followsNewestSamples_data()
    {
        columns<int, bool>("behind", "follows");
        row("at the end", 0, true);
        row("9 samples behind after growing", 8, true);
        row("10 samples behind after growing", 9, false);
        row("scrolled back", 200, false);
    }

    void followsNewestSamples()
    {
        QFETCH(int, behind);
        QFETCH(bool, follows);
        OsziBench bench;
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

    void burstIsTakenOverAtTheEndOfTheTurn()
    {
        OsziBench bench;
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

    void steppingBackByHandIsNotUndone()
    {
        OsziBench bench;
        bench.addShot(2000);
        bench.find<QSlider>("sliderTimeZoom")->setValue(50); // a step is one sample, far less than kFollowDistance
        auto *bar = bench.find<QScrollBar>("scrollBarOszi");
        bar->setValue(bar->maximum());
        const int end = bar->maximum();
        const auto grow = [&bench] {
            bench.grow(1);
            bench.model.emitDataChanged();
        };
        bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
        grow();
        QCOMPARE(bar->value(), end - 1);
        QTest::keyClick(bench.tab.row(0), Qt::Key_Left);
        grow();
        QCOMPARE(bar->value(), end - 2);
        QTest::keyClick(bench.tab.row(0), Qt::Key_End);
        grow();
        QCOMPARE(bar->value(), end + 3);
    }

    void heldScrollBarStays()
    {
        OsziBench bench;
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
    }

    void yCorrection()
    {
        OsziBench bench;
        bench.addShot(20, 7.0);
        bench.addShot(3);
        const OsziWidget *plot = bench.tab.row(1);
        bench.find<QSpinBox>("spinBoxYCorrection")->setValue(1000); // the eleventh sample at 100 ms
        bench.find<QCheckBox>("checkBoxYCorrection")->setChecked(true);
        QCOMPARE(plot->channelOffset(0), -18.0);
        QCOMPARE(plot->channelOffset(1), 0.0); // not that long yet
        bench.grow(2, 50.0);
        bench.model.emitDataChanged();
        QCOMPARE(plot->channelOffset(1), 0.0); // still not
        bench.grow(18, 52.0);
        bench.model.emitDataChanged();
        QCOMPARE(plot->channelOffset(1), -58.0);
        QVERIFY(bench.model.deleteChannel(0));
        bench.model.emitDataChanged();
        QCOMPARE(plot->channelOffset(0), -58.0);
        bench.find<QCheckBox>("checkBoxYCorrection")->setChecked(false);
        QCOMPARE(plot->channelOffset(0), 0.0);
    }

    void deletionAsks()
    {
        OsziBench bench;
        bench.addShot(3);
        QSignalSpy requests(&bench.tab, &TabOszilloscope::deleteMeasurements);
        auto *edit = bench.find<QLineEdit>("measToDeleteLineEdit");
        auto *button = bench.find<QPushButton>("buttonDeleteMeasurement");
        edit->setText("  "_s);
        button->click();
        QCOMPARE(requests.count(), 0);
        edit->setText(" 1-3, 5"_s);
        button->click();
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(requests.count(), 2);
        QCOMPARE(requests.first().first().toString(), " 1-3, 5"_s);
    }

    void readOutByKeys_data()
    {
        columns<QVector<int>, Qt::KeyboardModifiers, int>("keys", "modifiers", "sample");
        const auto ctrl = Qt::KeyboardModifiers(Qt::ControlModifier);
        const int left = Qt::Key_Left;
        const int right = Qt::Key_Right;
        row("in the middle first", QVector<int>{left}, ctrl, 14);
        row("back and forth", QVector<int>{left, right, left, left, left}, ctrl, 12);
        row("in leaps", QVector<int>{right, right}, ctrl | Qt::ShiftModifier, 24);
        row("not beyond the end", QVector<int>{right, right, right, right}, ctrl | Qt::ShiftModifier, 29);
        row("not before the beginning", QVector<int>{left, left, left, left}, ctrl | Qt::ShiftModifier, 0);
    }

    void readOutByKeys()
    {
        QFETCH(QVector<int>, keys);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(int, sample);
        OsziBench bench;
        bench.addShot(30);
        OsziWidget *plot = bench.tab.row(1);
        for (int key : keys)
            QTest::keyPress(plot, Qt::Key(key), modifiers);
        QStringList shown;
        for (const auto *label : plot->findChildren<QLabel *>())
            shown += label->isVisible() ? label->text() : QString();
        QVERIFY2(shown.contains(QString::number(2 + sample)),
                 qPrintable(shown.join(QLatin1Char(',')))); // as the bench numbers them
        QTest::keyRelease(plot, Qt::Key_Control);
        for (const auto *label : plot->findChildren<QLabel *>())
            QVERIFY(!label->isVisible());
    }

    void readOutByKeysReachesSamplesThatCameLater()
    {
        OsziBench bench;
        bench.addShot(0);
        bench.grow(30);
        bench.model.emitDataChanged();
        OsziWidget *plot = bench.tab.row(1);
        QTest::keyPress(plot, Qt::Key_Right, Qt::ControlModifier);
        const auto *readOut = plot->findChild<QLabel *>("mouseReadOut"_s);
        QVERIFY(readOut);
        QCOMPARE(readOut->text(), "16"_s); // sample 14, in the middle
        QTest::keyRelease(plot, Qt::Key_Control);
    }

    void readOutIsMirrored()
    {
        OsziBench bench;
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
        const auto *hairLine = bench.tab.row(0)->findChild<QLabel *>("hairLine"_s);
        QCOMPARE(hairLine->size(), QSize(2, 800)); // whole, whatever the tab's sheet says about labels
        QTest::mouseRelease(bench.tab.row(0), Qt::LeftButton, Qt::NoModifier, {200, 30});
        QCOMPARE(readOuts(0) + readOuts(4), 0);
    }
};

QTEST_MAIN(TestTabOszilloscope)
#include "tst_taboszilloscope.moc"
