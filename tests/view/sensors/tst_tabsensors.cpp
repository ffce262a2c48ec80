#include "app/startup.h"
#include "controller/controller.h"
#include "model/model.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/support/scriptedprompts.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/sensors/sensordialog.h"
#include "view/sensors/sensorlist.h"
#include "view/sensors/sensortile.h"
#include "view/sensors/sensortreemodel.h"
#include "view/sensors/tabsensors.h"
#include "view/sensors/tilegrid.h"
#include "view/window/view.h"

#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <cmath>

namespace {

SensorDescription described(const QStringList &names, double minimum = -100000.0, double maximum = 100000.0)
{
    SensorDescription description;
    description.setNumSensorGroups(1);
    SensorGroup *group = description.modifiableSensorGroup(0);
    group->setNumSensors(names.size());
    for (int i = 0; i < names.size(); ++i) {
        group->setSensorName(i, names.at(i));
        group->setSensorMinimum(i, minimum);
        group->setSensorMaximum(i, maximum);
    }
    return description;
}

struct Bench
{
    Bench()
    {
        tab.setModel(&model);
        tab.setTimeSource([this] { return time; });
        tab.resize(1100, 700);
    }

    void describe(const SensorDescription &description)
    {
        model.setSensorDescription(description);
        tab.updateDescription();
    }

    void sample(const std::array<double, kNumSensors> &values, int period = 100) { tab.addSample(values, period); }
    [[nodiscard]] SensorTreeModel *tree() const { return tab.findChild<SensorTreeModel *>(); }
    [[nodiscard]] SensorTile *tile(int number) const
    {
        return tab.findChild<SensorTile *>("sensorTile%1"_s.arg(number));
    }
    [[nodiscard]] SensorStatus status() const { return tile(1)->display()->reading().status; }
    [[nodiscard]] QStringList checked() const
    {
        QStringList names;
        for (int i = 0; i < tree()->sensors().sensors.size(); ++i) {
            if (tree()->isShown(i))
                names << tree()->sensors().sensors.at(i).name;
        }
        return names;
    }
    void uncheck(int sensor) { QVERIFY(tree()->setData(tree()->indexOf(sensor), Qt::Unchecked, Qt::CheckStateRole)); }

    Model model{QString()};
    qint64 time = 0;
    TabSensors tab;
};

bool containsLabel(const QWidget *page, const QString &text)
{
    const QList<QLabel *> labels = page->findChildren<QLabel *>();
    return std::any_of(labels.cbegin(), labels.cend(), [&](const QLabel *label) { return label->text() == text; });
}

/// Counts what is painted.
class PaintCounter : public QObject
{
public:
    int count = 0;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return QObject::eventFilter(watched, event);
    }
};

/// Of a sensor, in the project as it is when it is opened again.
QString savedUnit(Model &model, int sensor)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("unit.vnt"_s);
    return model.save(file) ? Model(file).sensorDescription().sensorGroup(0).sensorUnit(sensor) : QString();
}

} // namespace

class TestTabSensors : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { prepareApplication(*qobject_cast<QApplication *>(QCoreApplication::instance())); }
    void init() { QSettings("Tarnwald"_s, "Ventaro"_s).clear(); }

    void choicesStayWithTheNames_data()
    {
        // The second sensor of "a b c" is not checked; then another description arrives.
        columns<QStringList, QStringList>("names", "checked");
        const auto arrives = [](const char *tag, const QString &names, const QString &checked) {
            QTest::newRow(tag) << names.split(QLatin1Char(' ')) << checked.split(QLatin1Char(' '));
        };
        arrives("other order", "b c a"_s, "c a"_s);
        arrives("more", "a b c d e f g"_s, "a c d e"_s); // values come for five
        arrives("fewer", "b a"_s, "a"_s);
        arrives("equal names", "b b a"_s, "b a"_s);
        arrives("without names", "  a"_s, "Sensor#1 Sensor#2 a"_s);
    }

    void choicesStayWithTheNames()
    {
        QFETCH(QStringList, names);
        QFETCH(QStringList, checked);
        Bench bench;
        bench.describe(described({"a"_s, "b"_s, "c"_s}));
        bench.uncheck(1);
        bench.describe(SensorDescription());
        QCOMPARE(bench.checked(), QStringList());
        bench.describe(described(names));
        QCOMPARE(bench.checked(), checked.replaceInStrings("#"_s, " "_s));
        QCOMPARE(bench.tab.findChild<TileGrid *>()->tiles().size(), checked.size());
    }

    void choicesSurviveTheProgram()
    {
        const QStringList names{"a"_s, "b/c|d"_s, "b/c|d"_s};
        {
            Bench before;
            before.describe(described(names));
            emit before.tile(2)->kindChosen(DisplayKind::Bar);
            emit before.tile(3)->kindChosen(DisplayKind::Digital);
            before.uncheck(0);
        }
        Bench bench;
        bench.describe(described(names));
        QCOMPARE(bench.checked().size(), 2);
        QCOMPARE(bench.tile(2)->kind(), DisplayKind::Bar);
        QCOMPARE(bench.tile(3)->kind(), DisplayKind::Digital);
    }

    void repaintsAreBounded()
    {
        Bench bench;
        bench.describe(described({"a"_s, "b"_s}));
        emit bench.tile(1)->kindChosen(DisplayKind::Linear);
        bench.tab.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bench.tab));
        PaintCounter counter;
        QElapsedTimer clock;
        clock.start();
        bench.sample({0.5, 0, 0, 0, 0}); // the range of the scale
        QTest::qWait(400);
        bench.tile(1)->display()->installEventFilter(&counter);
        clock.start();
        for (int i = 0; i < 2000; ++i) {
            bench.sample({i % 2 / 2.0, 0, 0, 0, 0});
            if (i % 7 == 0)
                QTest::qWait(1);
        }
        const auto seconds = static_cast<double>(clock.elapsed()) / 1000.0;
        QVERIFY2(counter.count > 0 && counter.count <= 20 * seconds + 1,
                 qPrintable("%1 in %2 s"_s.arg(counter.count).arg(seconds)));
        QTRY_COMPARE(bench.tile(1)->display()->reading().value, 0.5); // the last sample is not lost
        QTRY_COMPARE(bench.tile(1)->display()->reading().readOut, 0.5);
    }

    void valuesGetStale_data()
    {
        columns<int, int, bool>("clock", "wait", "stale");
        row("fast, within a second", 1, 1000, false);
        row("fast, after it", 1, 1001, true);
        row("slow, three periods", 500, 1500, false);
        row("slow, more", 500, 1501, true);
    }

    void valuesGetStale()
    {
        QFETCH(int, clock);
        QFETCH(int, wait);
        Bench bench;
        bench.describe(described({"a"_s}, 0.0, 10.0));
        bench.tab.show();
        QCOMPARE(bench.status(), SensorStatus::NoValue);
        bench.sample({5.0, 0, 0, 0, 0}, clock);
        QTRY_COMPARE(bench.status(), SensorStatus::Inside);
        bench.time += wait;
        QTest::qWait(300); // the tab checks four times per second
        QTEST(bench.status() == SensorStatus::Stale, "stale");
        QCOMPARE(bench.tile(1)->display()->reading().value, 5.0);
        bench.sample({11.0, 0, 0, 0, 0}); // a new connection
        QTRY_COMPARE(bench.status(), SensorStatus::Above);
    }

    void aLostLinkEndsWhatIsLive()
    {
        Bench bench;
        bench.describe(described({"a"_s}, 0.0, 10.0));
        bench.model.setConnected(true);
        bench.tab.show();
        bench.sample({5.0, 0, 0, 0, 0}, 3600000);
        QTRY_COMPARE(bench.status(), SensorStatus::Inside);
        bench.model.setConnected(false);
        bench.model.emitAppStateChanged();
        QCOMPARE(bench.status(), SensorStatus::Stale);
    }

    void valuesOfAnotherScaleAreForgotten()
    {
        Model model{QString()};
        View view(&model, std::make_unique<ScriptedPrompts>());
        Controller controller(&model, &view);
        view.tabs()->setCurrentWidget(view.tabSensors());
        const auto *display = view.findChild<SensorTile *>("sensorTile1"_s)->display();
        controller.onMessageReceived("0;1500;0;0;0;0"_s);
        controller.onTimerWaitForSensorDescription_timeout(); // from now on in thousandths
        controller.onMessageReceived("0;1500;0;0;0;0"_s);
        view.show();
        QCOMPARE(display->reading().held.value_or(HeldRange()), (HeldRange{1.5, 1.5}));
        emit view.newProject(); // without a box
        QVERIFY(!display->reading().hasValue());
    }

    void heldValuesAreCollectedHidden()
    {
        Bench bench;
        bench.describe(described({"a"_s}));
        bench.model.setOffset(0, -1.0);
        bench.tab.updateDescription();
        for (double value : {3.0, 9.0, -4.0, 5.0})
            bench.sample({value, 0, 0, 0, 0});
        bench.tab.show();
        const auto held = [&] { return bench.tile(1)->display()->reading().held.value_or(HeldRange()); };
        QCOMPARE(bench.tile(1)->display()->reading().value, 4.0);
        QCOMPARE(held(), (HeldRange{-5.0, 8.0}));
        emit bench.tile(1)->resetRequested();
        bench.sample({2.0, 0, 0, 0, 0});
        QTRY_COMPARE(held(), (HeldRange{1.0, 1.0}));
    }

    void scaleHoldsWhatIsShown_data()
    {
        columns<double, double, double, double, bool>("minimum", "maximum", "heldMinimum", "heldMaximum", "known");
        row("limits", 0.0, 200.0, 5.0, 7.0, true);
        row("one limit", -100000.0, 200.0, -500.0, 7.0, true);
        row("no limits", -100000.0, 100000.0, 0.013, 0.014, true);
        row("one value", -100000.0, 100000.0, -3.0, -3.0, true);
        row("not in order", 5.0, 5.0, 1.0, 2.0, true);
        row("enormous", -100000.0, 100000.0, -1.7e308, 1.7e308, false);
        row("enormous when rounded", -100000.0, 100000.0, 0.0, 1.75e308, false);
        row("beyond what stands for no limit", 0.0, 200000.0, 5.0, 7.0, true);
        row("too small for labels", 0.0, 1e-6, 0.0, 1e-7, false);
        row("not to be told apart", -100000.0, 100000.0, 1e15, 1e15 + 1.0, false);
    }

    void scaleHoldsWhatIsShown()
    {
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(double, heldMinimum);
        QFETCH(double, heldMaximum);
        const SensorLimits limits = sensorLimits(minimum, maximum);
        const SensorScale scale = sensorScale(limits, HeldRange{heldMinimum, heldMaximum});
        QTEST(scale.isKnown(), "known");
        if (!scale.isKnown())
            return;
        const double shade = 1e-9 * (scale.high - scale.low);
        QVERIFY(scale.low <= limits.lower.value_or(heldMinimum) + shade);
        QVERIFY(scale.high >= limits.upper.value_or(heldMaximum) - shade);
        QVERIFY(!limits.upper || scale.high > *limits.upper); // values outside are visible
        QVERIFY(scale.numSteps() >= 5 && scale.numSteps() <= 15);
        // The labels are exact, and a hundredth of the range shows.
        QCOMPARE(QLocale().toDouble(sensorValueText(scale.low, scale.labelDecimals)), scale.low);
        QVERIFY(std::pow(10.0, -scale.valueDecimals) <= (scale.high - scale.low) / 99.0);
    }

    void editsReachTheModel()
    {
        Model model{QString()};
        View view(&model, std::make_unique<ScriptedPrompts>());
        const Controller controller(&model, &view);
        auto *tree = view.tabSensors()->findChild<SensorTreeModel *>();
        emit view.tabSensors()->findChild<SensorTile *>("sensorTile3"_s)->kindChosen(DisplayKind::Bar);
        QVERIFY(!model.isProjectModified());
        QVERIFY(tree->setData(tree->indexOf(2), "  Kern  zug "_s, Qt::EditRole));
        QCOMPARE(model.sensorDescription().sensorGroup(0).sensorName(2), "Kern zug"_s);
        QVERIFY(model.isProjectModified());
        emit view.tabSensors()->sensorColorEdited(2, Qt::magenta);
        emit view.tabSensors()->sensorLimitsEdited(0, 2, -5.0, 60.0);
        QCOMPARE(model.color(2), QColor(Qt::magenta));
        QCOMPARE(model.osziMaximum(2), 60.0);
        emit view.tabSensors()->sensorLimitsEdited(0, 2, -5.0, SensorLimits::kNoUpper);
        QCOMPARE(model.osziMaximum(2), 60.0); // no curve would be visible in that range
        QTRY_COMPARE(tree->sensors().sensors.at(2).name, "Kern zug"_s);
        QVERIFY(!tree->sensors().sensors.at(2).limits.upper);
        auto *rows = view.tabSensors()->findChild<QTreeView *>();
        rows->setCurrentIndex(tree->indexOf(2));
        QTest::keyClick(rows, Qt::Key_Return);
        auto *dialog = view.findChild<SensorDialog *>();
        QVERIFY(dialog);
        dialog->findChild<QLineEdit *>("lineEditSensorName"_s)->setText("Schieber"_s);
        auto *unit = dialog->findChild<QLineEdit *>("lineEditSensorUnit"_s);
        unit->clear();
        QTest::keyClicks(unit, " N / mm  "_s + QString(50, QLatin1Char('x')));
        QVERIFY(dialog->findChildren<QDoubleSpinBox *>().constFirst()->suffix().contains("N / mm xx"_s));
        dialog->accept();
        QTRY_COMPARE(tree->sensors().sensors.at(2).name, "Schieber"_s);
        const QString entered = model.sensorDescription().sensorGroup(0).sensorUnit(2);
        QVERIFY(entered.startsWith("N / mm xx"_s) && entered.size() <= SensorGroup::kLongestUnit);
        QCOMPARE(tree->sensors().sensors.at(2).unit, entered);
        QCOMPARE(savedUnit(model, 2), entered);
        QCOMPARE(model.sensorDescription().sensorGroup(0).sensorMinimum(2), -5.0); // left alone
        QVERIFY(containsLabel(view.tabOszi(), "Schieber"_s));
        // The choices for the sensor were kept under its new name.
        QCOMPARE(view.tabSensors()->findChild<SensorTile *>("sensorTile3"_s)->kind(), DisplayKind::Bar);
    }

    void limitsMustBeInOrder_data()
    {
        columns<double, double, bool>("lower", "upper", "accepted");
        row("in order", 1.0, 2.0, true);
        row("equal", 2.0, 2.0, false);
        row("reversed", 3.0, 2.0, false);
        row("would mean none", -100000.0, 2.0, false);
    }

    void limitsMustBeInOrder()
    {
        QFETCH(double, lower);
        QFETCH(double, upper);
        SensorInfo sensor;
        sensor.name = sensor.ownName = "a"_s;
        sensor.limits = {lower, upper};
        const SensorDialog dialog(sensor);
        QTEST(dialog.findChild<QWidget *>("buttonOK"_s)->isEnabled(), "accepted");
    }

    void tilesFillThePage_data()
    {
        columns<QSize>("area");
        row("wide", QSize(1500, 700));
        row("high", QSize(500, 1200));
        row("tiny", QSize(3, 3));
    }

    void tilesFillThePage()
    {
        QFETCH(QSize, area);
        for (int count = 1; count <= 12; ++count) {
            const QVector<QRect> places = tilePlaces(count, area, 0);
            QCOMPARE(places.size(), count);
            QRegion covered;
            for (const QRect &place : places)
                covered += place;
            QVERIFY((QRegion(QRect(QPoint(), area)) - covered).isEmpty());
        }
    }

    void oneTileFillsThePage()
    {
        Bench bench;
        bench.describe(described({"a"_s, "b"_s}));
        bench.tab.show();
        QVERIFY(QTest::qWaitForWindowActive(&bench.tab));
        auto *tree = bench.tab.findChild<QTreeView *>();
        QTest::mouseDClick(bench.tile(2)->display(), Qt::LeftButton);
        QVERIFY(!bench.tile(1)->isVisible() && !tree->isVisible());
        QTRY_VERIFY(bench.tile(2)->width() > 1000);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(bench.tile(1)->isVisible() && tree->isVisible());
        tree->setFocus();
        tree->setCurrentIndex(bench.tree()->indexOf(1, SensorTreeModel::ValueColumn));
        QTest::keyClick(tree, Qt::Key_Space);
        QCOMPARE(bench.checked(), QStringList("a"_s));
        QSignalSpy renamed(&bench.tab, &TabSensors::sensorNameEdited);
        QTest::keyClick(tree, Qt::Key_F2);
        auto *editor = tree->findChild<QLineEdit *>();
        QVERIFY(editor);
        editor->setText("Werkzeug"_s);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(renamed.count(), 1);
        QVERIFY(!bench.tab.findChild<SensorDialog *>()); // the same key opens the dialog elsewhere
    }
};

QTEST_MAIN(TestTabSensors)
#include "tst_tabsensors.moc"
