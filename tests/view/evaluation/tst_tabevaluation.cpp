#include "app/startup.h"
#include "model/model.h"
#include "plots/evaluation/dashboard/dashboardtile.h"
#include "plots/evaluation/runtime/tabevaluationruntime.h"
#include "plots/evaluation/values/tabevaluationvalues.h"
#include "tests/support/literals.h"
#include "view/evaluation/tabevaluation.h"

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
    void initTestCase() { prepareApplication(*qobject_cast<QApplication *>(QCoreApplication::instance())); }

    void thresholdsAreKeptWithTheProject()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("p.vnt"_s);
        Model model{QString()};
        fill(model, 2);
        TabEvaluation tab;
        tab.setModel(&model);
        auto *page = tab.findChild<TabEvaluationRuntime *>();
        model.setProjectModifiedFlag(false);
        page->findChild<QDoubleSpinBox *>("spinBoxStopValue"_s)->setValue(12.5);
        QVERIFY(model.isProjectModified());
        QVERIFY(model.save(file));
        model.clear();
        QCOMPARE(page->stopThreshold(0), 0.0);
        QVERIFY(model.open(file));
        QCOMPARE(page->stopThreshold(0), 12.5);
        QCOMPARE(page->findChild<QDoubleSpinBox *>("spinBoxStopValue"_s)->value(), 12.5);
        QVERIFY(!model.isProjectModified());
    }

    void tilesOpenTheirPages()
    {
        Model model{QString()};
        fill(model, 2);
        TabEvaluation tab;
        tab.setModel(&model);
        tab.resize(1080, 640);
        tab.show();
        QVERIFY(tab.currentPage() == TabEvaluation::Page::Dashboard);
        tab.findChild<DashboardTile *>("tile3"_s)->click();
        QVERIFY(tab.currentPage() == TabEvaluation::Page::Values);
        QCOMPARE(tab.findChild<TabEvaluationValues *>()->currentSensor(), 3);
        tab.findChild<QAbstractButton *>("pageButton0"_s)->click();
        QVERIFY(tab.currentPage() == TabEvaluation::Page::Dashboard);
        tab.findChild<QAbstractButton *>("tileCycle"_s)->click();
        QVERIFY(tab.currentPage() == TabEvaluation::Page::Runtime);
        QVERIFY(tab.findChild<QAbstractButton *>("pageButton2"_s)->isChecked());
    }
};

QTEST_MAIN(TestTabEvaluation)
#include "tst_tabevaluation.moc"
