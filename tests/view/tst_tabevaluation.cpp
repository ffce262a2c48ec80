#include "app/startup.h"
#include "model/model.h"
#include "plots/limitfield.h"
#include "plots/tabevaluationruntime.h"
#include "plots/tabevaluationvalues.h"
#include "simulator/mouldcycle.h"
#include "tests/support/scriptedprompts.h"
#include "view/sidetabs.h"
#include "view/tabevaluation.h"
#include "view/view.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QStyleOptionButton>
#include <QTest>

#include <cmath>

namespace {

constexpr int kClock = 50; // ms

/// A morning's work at the simulated machine.
void fill(Model &model, int shots)
{
    SensorDescription description;
    description.setNumSensorGroups(1);
    SensorGroup *group = description.modifiableSensorGroup(0);
    group->setNumSensors(kNumSensors);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        group->setSensorName(sensor, QString::fromUtf8(simulatedSensors()[static_cast<size_t>(sensor)].name));
        group->setSensorUnit(sensor, QString::fromUtf8(simulatedSensors()[static_cast<size_t>(sensor)].unit));
    }
    model.setSensorDescription(description);
    model.setClock(kClock);
    const MouldCycle cycle(7, 20.0);
    QDateTime start(QDate(2026, 3, 9), QTime(6, 0));
    for (int shot = 0; shot < shots; ++shot) {
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            const int index = model.appendMeasurement(sensor);
            for (int i = 0; i < 20 * 1000 / kClock; ++i)
                model.appendSample(sensor, index,
                                   cycle.valuesAt(shot, i * kClock / 1000.0)[static_cast<size_t>(sensor)]);
        }
        model.setTimestamp(shot, start.addMSecs(shot * 24350LL + (shot % 5) * 400));
    }
    const PhaseEnds ends = cycle.phaseEnds(0);
    const double seconds[] = {ends.closing, ends.injection, ends.holding, ends.cooling};
    for (int marker = 0; marker < Model::kNumMarkers; ++marker)
        model.setVerticalMarkerAbsolute(marker, static_cast<int>(seconds[marker] * 1000.0 / kClock));
    ProjectMeta meta = model.projectMeta();
    meta.sensors[0].at(QStringLiteral("maximum")) = {QStringLiteral("maximum"), true, 300.0, 340.0};
    meta.sensors[0].at(QStringLiteral("mean.phase3")) = {QStringLiteral("mean.phase3"), true, {}, {}};
    meta.sensors[0].at(QStringLiteral("marker2")) = {QStringLiteral("marker2"), true, {}, {}};
    model.setProjectMeta(meta);
    model.emitProjectChanged();
    model.emitDataChanged();
}

/// The picture goes to the folder that VENTARO_PICTURES names, if any: to be looked at.
void keep(QWidget &widget, const QString &name)
{
    const QString folder = qEnvironmentVariable("VENTARO_PICTURES");
    const QPixmap picture = widget.grab();
    QVERIFY(!picture.isNull());
    if (!folder.isEmpty())
        QVERIFY(picture.save(QDir(folder).filePath(name + QStringLiteral(".png"))));
}

} // namespace

class TestTabEvaluation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pictures_data();
    void pictures();
};

void TestTabEvaluation::initTestCase()
{
    prepareApplication(*qobject_cast<QApplication *>(QCoreApplication::instance()));
}

void TestTabEvaluation::pictures_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("shots");
    QTest::newRow("small") << QSize(1280, 800) << 60;
    QTest::newRow("large") << QSize(1920, 1080) << 60;
    QTest::newRow("few") << QSize(1280, 800) << 3;
    QTest::newRow("none") << QSize(1280, 800) << 0;
    QTest::newRow("many") << QSize(1920, 1080) << 400;
}

void TestTabEvaluation::pictures()
{
    QFETCH(QSize, size);
    QFETCH(int, shots);
    Model model{QString()};
    View view(&model, std::make_unique<ScriptedPrompts>());
    fill(model, shots);
    view.resize(size);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.tabs()->setCurrentWidget(view.tabEvaluation());
    const QString tag = QString::fromLatin1(QTest::currentDataTag());
    for (int page = 0; page < TabEvaluation::kNumPages; ++page) {
        view.tabEvaluation()->showPage(static_cast<TabEvaluation::Page>(page));
        QTest::qWait(60);
        keep(view, QStringLiteral("eval-%1-%2").arg(tag).arg(page));
        QCOMPARE(view.size(), size);
    }
}

QTEST_MAIN(TestTabEvaluation)
#include "tst_tabevaluation.moc"
