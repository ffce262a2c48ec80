#include "app/startup.h"
#include "model/model.h"
#include "plots/dashboardtile.h"
#include "plots/tabevaluationruntime.h"
#include "plots/tabevaluationvalues.h"
#include "view/tabevaluation.h"

#include <QAbstractButton>
#include <QDoubleSpinBox>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// Shots that differ from each other.
void fill(Model &model, int shots)
{
    for (int shot = 0; shot < shots; ++shot) {
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            const int index = model.appendMeasurement(sensor);
            for (int i = 0; i < 400; ++i)
                model.appendSample(sensor, index, i * (1.0 + shot) + sensor);
        }
    }
    model.emitDataChanged();
}

} // namespace

class TestTabEvaluation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void thresholdsAreKeptWithTheProject();
    void tilesOpenTheirPages();
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

QTEST_MAIN(TestTabEvaluation)
#include "tst_tabevaluation.moc"
