#include "plots/charts/normalboxwidget.h"
#include "plots/evaluation/common/evaluationdata.h"
#include "plots/evaluation/common/limitfield.h"
#include "plots/evaluation/common/trendchart.h"
#include "plots/evaluation/dashboard/cycletile.h"
#include "plots/evaluation/dashboard/dashboard.h"
#include "plots/evaluation/dashboard/dashboardtile.h"
#include "plots/evaluation/values/tabevaluationvalues.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/support/shots.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

namespace {

const Quantity kMaximum{Quantity::Kind::Maximum, Quantity::kWholeShot};

struct Pages
{
    Pages()
    {
        data.setModel(&model);
        values.setData(&data);
        dashboard.setData(&data);
    }
    void show()
    {
        values.resize(1080, 590);
        dashboard.resize(1080, 590);
        values.show();
        dashboard.show();
        QVERIFY(QTest::qWaitForWindowExposed(&values));
    }
    /// The text of a cell of the table.
    [[nodiscard]] QString cell(int row, int column) const
    {
        return table()->model()->index(row, column).data().toString();
    }
    [[nodiscard]] QTableView *table() const { return values.findChild<QTableView *>("tableValues"_s); }
    [[nodiscard]] QString label(const char *name) const
    {
        return values.findChild<QLabel *>(QLatin1String(name))->text();
    }
    [[nodiscard]] LimitField *limitField(const char *name) const
    {
        return values.findChild<LimitField *>(QLatin1String(name));
    }
    [[nodiscard]] DashboardTile *tile(int sensor) const
    {
        return dashboard.findChild<DashboardTile *>("tile%1"_s.arg(sensor));
    }
    void setLimit(const char *name, double value) const
    {
        limitField(name)->findChild<QCheckBox *>()->click();
        limitField(name)->findChild<QDoubleSpinBox *>()->setValue(value);
    }

    Model model{QString()};
    EvaluationData data;
    TabEvaluationValues values;
    Dashboard dashboard;
};

} // namespace

class TestTabEvaluationValues : public QObject
{
    Q_OBJECT

private slots:
    void shotsWithoutTheQuantityStayEmpty()
    {
        Pages pages;
        addShot(pages.model, {1.0, 2.0});
        addShot(pages.model, {});
        addShot(pages.model, {7.0});
        const Quantity atSecond{Quantity::Kind::AtMarker, 0};
        pages.model.setVerticalMarkerAbsolute(0, 1);
        pages.data.setShown(0, atSecond, true);
        pages.data.choose(0, atSecond);
        pages.show();
        QCOMPARE(pages.cell(0, 2), "2"_s);
        QCOMPARE(pages.cell(1, 2), QString());
        QCOMPARE(pages.cell(2, 2), QString());
        QCOMPARE(pages.cell(2, 4), "7"_s);
        const auto *box = pages.values.findChild<NormalBoxWidget *>();
        QCOMPARE(box->figureText(0), "1"_s);
        QCOMPARE(box->figureText(1), "2"_s);
        QCOMPARE(pages.tile(0)->content().count, 1);
        QVERIFY(!pages.tile(0)->content().latest);
    }

    void limitsColourAndCount()
    {
        Pages pages;
        for (const double peak : {8.0, 12.0, 8.0, 12.0})
            addShot(pages.model, {0.0, peak});
        pages.show();
        const auto isColoured = [&](int row) {
            return pages.table()->model()->index(row, 3).data(Qt::ForegroundRole).isValid();
        };
        pages.setLimit("upperLimit", 11.0);
        QVERIFY(!isColoured(0) && isColoured(1));
        QCOMPARE(pages.label("labelOutside"), "Außerhalb: 2 von 4"_s);
        QCOMPARE(pages.label("labelCpk"), "Cpk 0.16"_s); // (11 - 10) / (3 * 2), never rounded up
        QCOMPARE(pages.label("labelCp"), "Cp –"_s);
        pages.setLimit("lowerLimit", 5.0);
        QCOMPARE(pages.label("labelCp"), "Cp 0.50"_s);
        pages.limitField("lowerLimit")->findChild<QDoubleSpinBox *>()->setValue(11.5);
        QCOMPARE(pages.label("labelOutside"), "Untere Grenze über oberer!"_s);
        QVERIFY(pages.model.isProjectModified());
    }

    void limitsBelongToQuantityAndSensor()
    {
        Pages pages;
        addShot(pages.model, {1.0});
        pages.show();
        pages.setLimit("upperLimit", 11.0);
        const auto isSet = [&] { return pages.limitField("upperLimit")->limit().has_value(); };
        pages.values.setCurrentSensor(2);
        QVERIFY(!isSet());
        pages.values.setCurrentSensor(0);
        QVERIFY(isSet());
        emit pages.table()->horizontalHeader()->sectionClicked(2);
        QVERIFY(!isSet());
        QCOMPARE(pages.data.shownQuantities(0).size(), 3); // limits alone make no column
        // A column that is removed and added again still has its limits.
        pages.data.setShown(0, kMaximum, false);
        pages.data.setShown(0, kMaximum, true);
        QVERIFY(pages.data.limits(0, kMaximum).upper == 11.0);
    }

    void aNumberThatIsBeingTypedStays()
    {
        Pages pages;
        addShot(pages.model, {1.0});
        pages.show();
        pages.setLimit("upperLimit", 11.0);
        auto *spinBox = pages.limitField("upperLimit")->findChild<QDoubleSpinBox *>();
        auto *edit = spinBox->findChild<QLineEdit *>();
        spinBox->setFocus();
        spinBox->selectAll();
        QTest::keyClicks(edit, "12,7"_s);
        QVERIFY(pages.model.appendSample(0, 0, 3.0));
        pages.model.emitDataChanged();
        QTest::qWait(2 * EvaluationPage::kRefreshInterval);
        QCOMPARE(pages.cell(0, 3), "3"_s);
        QTest::keyClicks(edit, "5"_s);
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY(pages.data.limits(0, kMaximum).upper == 12.75);
        QCOMPARE(spinBox->text(), "12.75"_s);
    }

    void removedShotsDisappear()
    {
        Pages pages;
        for (const double peak : {1.0, 2.0, 3.0})
            addShot(pages.model, {peak});
        pages.show();
        pages.table()->setCurrentIndex(pages.table()->model()->index(2, 2));
        QCOMPARE(pages.values.findChild<TrendChart *>()->chosenShot(), 2);
        QVERIFY(pages.model.deleteChannel(0));
        pages.model.emitDataChanged();
        pages.values.repaint();
        pages.dashboard.repaint();
        QTRY_COMPARE(pages.table()->model()->rowCount(), 2);
        QCOMPARE(pages.cell(1, 3), "3"_s);
        QVERIFY(pages.values.chosenShot() < 2);
        pages.model.clear();
        QTRY_COMPARE(pages.table()->model()->rowCount(), 0);
        QVERIFY(!pages.tile(0)->grab().isNull());
    }

    void tilesJudgeFromTwentyShotsOn()
    {
        Pages pages;
        for (int shot = 0; shot < 19; ++shot)
            addShot(pages.model, {shot % 2 == 0 ? 8.0 : 12.0});
        pages.data.setLimits(0, kMaximum, {std::nullopt, 11.0});
        pages.show();
        QCOMPARE(pages.tile(0)->verdict(), "19/20 Schuss"_s);
        QVERIFY(pages.tile(0)->grade() == CapabilityGrade::Unknown);
        addShot(pages.model, {12.0});
        pages.model.emitDataChanged();
        QTRY_COMPARE(pages.tile(0)->verdict(), "Cpk 0.16"_s);
        QVERIFY(pages.tile(0)->grade() == CapabilityGrade::Poor);
        QCOMPARE(pages.tile(0)->content().outside, 10);
        QCOMPARE(pages.tile(1)->verdict(), "Keine Grenzen"_s);
    }

    void cyclesAreTakenFromTimestamps_data()
    {
        const QDateTime start(QDate(2026, 3, 9), QTime(6, 0));
        // seconds: three samples at 200 ms: 0.6 s
        columns<QDateTime, QDateTime, double>("from", "to", "seconds");
        row("both", start, start.addMSecs(24350), 24.35);
        row("second missing", start, QDateTime(), 0.6);
        row("backwards", start, start.addSecs(-3600), 0.6);
    }

    void cyclesAreTakenFromTimestamps()
    {
        QFETCH(QDateTime, from);
        QFETCH(QDateTime, to);
        QFETCH(double, seconds);
        Pages pages;
        pages.model.setClock(200);
        addShot(pages.model, {1.0});
        addShot(pages.model, {1.0, 2.0, 3.0});
        pages.model.setTimestamp(0, from);
        pages.model.setTimestamp(1, to);
        QCOMPARE(pages.data.cycleSeconds(1).value_or(-1.0), seconds);
        QCOMPARE(pages.data.cycleSeconds(0).value_or(-1.0), 0.2);
        QVERIFY(!pages.data.cycleSeconds(2) && !pages.data.cycleSeconds(-1));
        pages.show();
        const CycleTile::Content &content = pages.dashboard.findChild<CycleTile *>()->content();
        QCOMPARE(content.latestCycle.value_or(-1.0), seconds);
        QCOMPARE(content.cyclesInMean, 1);
    }

    void breaksAreNotPartOfTheMeanCycle()
    {
        const QDateTime start(QDate(2026, 3, 9), QTime(6, 0));
        Pages pages;
        for (const int second : {0, 20, 40, 3640, 3660})
            addShot(pages.model, {1.0}, 1.0, start.addSecs(second));
        pages.show();
        const CycleTile *tile = pages.dashboard.findChild<CycleTile *>();
        QCOMPARE(tile->content().meanCycle.value_or(-1.0), 20.0);
        QCOMPARE(tile->content().cyclesInMean, 3);
        QVERIFY(tile->toolTip().contains("Fünffache"_s));
    }

    void worksWithoutAModel()
    {
        EvaluationData data;
        TabEvaluationValues page;
        Dashboard dashboard;
        page.setData(&data);
        dashboard.setData(&data);
        page.show();
        dashboard.show();
        emit page.findChild<QHeaderView *>()->sectionClicked(3);
        page.findChild<LimitField *>()->findChild<QCheckBox *>()->click();
        {
            Model model{QString()};
            data.setModel(&model);
            addShot(model, {1.0});
            QTRY_COMPARE(page.findChild<QTableView *>("tableValues"_s)->model()->rowCount(), 1);
        }
        page.findChild<LimitField *>()->findChild<QCheckBox *>()->click(); // the model is gone
        QTest::qWait(2 * EvaluationPage::kRefreshInterval);
        QVERIFY(!page.grab().isNull());
    }
};

QTEST_MAIN(TestTabEvaluationValues)
#include "tst_tabevaluationvalues.moc"
