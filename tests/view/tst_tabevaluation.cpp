#include "app/startup.h"
#include "model/model.h"
#include "plots/dashboardtile.h"
#include "plots/quantitypicker.h"
#include "plots/tabevaluationruntime.h"
#include "plots/tabevaluationvalues.h"
#include "simulator/mouldcycle.h"
#include "tests/support/scriptedprompts.h"
#include "view/sidetabs.h"
#include "view/tabevaluation.h"
#include "view/view.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QStyleOptionButton>
#include <QTemporaryDir>
#include <QTest>

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
    meta.sensors[0].at(QStringLiteral("maximum")) = {QStringLiteral("maximum"), true, 365.0, 445.0};
    meta.sensors[1].at(QStringLiteral("maximum")) = {QStringLiteral("maximum"), true, 910.0, {}};
    meta.sensors[3].at(QStringLiteral("maximum")) = {QStringLiteral("maximum"), true, 64.0, 66.5};
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

int roomForText(const QAbstractButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    if (qobject_cast<const QCheckBox *>(button))
        return button->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, button).width();
    return button->width();
}

/// The text of a button or a label that has too little room; empty if nothing is clipped.
QString clippedText(const QWidget *page)
{
    for (const auto *button : page->findChildren<QAbstractButton *>()) {
        if (button->isVisible() && roomForText(button) < button->fontMetrics().horizontalAdvance(button->text()))
            return button->text();
    }
    for (const auto *label : page->findChildren<QLabel *>()) {
        if (label->isVisible() && label->width() < label->minimumSizeHint().width())
            return label->text();
    }
    return {};
}

} // namespace

class TestTabEvaluation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void thresholdsAreKeptWithTheProject();
    void tilesOpenTheirPages();
    void pictures_data();
    void pictures();
};

void TestTabEvaluation::initTestCase()
{
    prepareApplication(*qobject_cast<QApplication *>(QCoreApplication::instance()));
}

void TestTabEvaluation::thresholdsAreKeptWithTheProject()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("p.vnt"));
    Model model{QString()};
    fill(model, 2);
    TabEvaluation tab;
    tab.setModel(&model);
    auto *page = tab.findChild<TabEvaluationRuntime *>();
    model.setProjectModifiedFlag(false);
    page->findChild<QDoubleSpinBox *>(QStringLiteral("spinBoxStopValue"))->setValue(12.5);
    QVERIFY(model.isProjectModified());
    QVERIFY(model.save(file));
    model.clear();
    QCOMPARE(page->stopThreshold(0), 0.0);
    QVERIFY(model.open(file));
    QCOMPARE(page->stopThreshold(0), 12.5);
    QCOMPARE(page->findChild<QDoubleSpinBox *>(QStringLiteral("spinBoxStopValue"))->value(), 12.5);
    QVERIFY(!model.isProjectModified());
}

void TestTabEvaluation::tilesOpenTheirPages()
{
    Model model{QString()};
    fill(model, 2);
    TabEvaluation tab;
    tab.setModel(&model);
    tab.resize(1080, 640);
    tab.show();
    QVERIFY(tab.currentPage() == TabEvaluation::Page::Dashboard);
    tab.findChild<DashboardTile *>(QStringLiteral("tile3"))->click();
    QVERIFY(tab.currentPage() == TabEvaluation::Page::Values);
    QCOMPARE(tab.findChild<TabEvaluationValues *>()->currentSensor(), 3);
    tab.findChild<QAbstractButton *>(QStringLiteral("pageButton0"))->click();
    QVERIFY(tab.currentPage() == TabEvaluation::Page::Dashboard);
    tab.findChild<QAbstractButton *>(QStringLiteral("tileCycle"))->click();
    QVERIFY(tab.currentPage() == TabEvaluation::Page::Runtime);
    QVERIFY(tab.findChild<QAbstractButton *>(QStringLiteral("pageButton2"))->isChecked());
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
        QCOMPARE(clippedText(view.tabEvaluation()), QString());
    }
    auto *picker = view.tabEvaluation()->findChild<QuantityPicker *>();
    picker->popUpBelow(view.tabEvaluation());
    QTest::qWait(20);
    keep(*picker, QStringLiteral("eval-%1-picker").arg(tag));
    QCOMPARE(clippedText(picker), QString());
}

QTEST_MAIN(TestTabEvaluation)
#include "tst_tabevaluation.moc"
