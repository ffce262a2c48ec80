#include "model/model.h"
#include "plots/cycletile.h"
#include "plots/dashboard.h"
#include "plots/dashboardtile.h"
#include "plots/evaluationdata.h"
#include "plots/limitfield.h"
#include "plots/normalboxwidget.h"
#include "plots/quantitypicker.h"
#include "plots/tabevaluationvalues.h"
#include "plots/trendchart.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

Q_DECLARE_METATYPE(CapabilityGrade)

namespace {

const Quantity kMaximum{Quantity::Kind::Maximum, Quantity::kWholeShot};

void addShot(Model &model, const QVector<double> &samples)
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const int shot = model.appendMeasurement(sensor);
        for (const double sample : samples)
            QVERIFY(model.appendSample(sensor, shot, sample));
    }
}

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
    /// What the table shows from its second row of shots on, cell by cell.
    [[nodiscard]] QString cell(int row, int column) const
    {
        return table()->model()->index(row, column).data().toString();
    }
    [[nodiscard]] QString header(int column) const
    {
        return table()->model()->headerData(column, Qt::Horizontal).toString();
    }
    [[nodiscard]] QTableView *table() const { return values.findChild<QTableView *>(QStringLiteral("tableValues")); }
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
        return dashboard.findChild<DashboardTile *>(QStringLiteral("tile%1").arg(sensor));
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
    void theTableHasWhatIsShown();
    void shotsWithoutTheQuantityStayEmpty();
    void columnsAreChosenInThePanel();
    void choosingIsNoChangeOfTheProject();
    void limitsColourAndCount();
    void limitsBelongToQuantityAndSensor();
    void aNumberThatIsBeingTypedStays();
    void nothingIsComputedWhileHidden();
    void manyChangesAreShownAtOnce();
    void removedShotsDisappear();
    void tilesJudgeFromTwentyShotsOn_data();
    void tilesJudgeFromTwentyShotsOn();
    void tilesLeadToTheirPages();
    void cyclesAreTakenFromTimestamps_data();
    void cyclesAreTakenFromTimestamps();
    void clickingAPointChoosesItsShot();
    void worksWithoutAModel();
};

void TestTabEvaluationValues::theTableHasWhatIsShown()
{
    Pages pages;
    addShot(pages.model, {1.0, 4.0, 1.0});
    pages.model.setTimestamp(0, QDateTime(QDate(2026, 3, 9), QTime(6, 5, 4)));
    pages.model.setOffset(0, 0.5);
    pages.show();
    QCOMPARE(pages.table()->model()->columnCount(), 5);
    QCOMPARE(pages.header(4), QStringLiteral("Mittelwert"));
    const QStringList expected{QStringLiteral("0"), QStringLiteral("2026/03/09 06:05:04"), QStringLiteral("1.5"),
                               QStringLiteral("4.5"), QStringLiteral("2.5")};
    for (int column = 0; column < 5; ++column)
        QCOMPARE(pages.cell(0, column), expected.at(column));
    pages.values.setCurrentSensor(1); // has no offset
    QCOMPARE(pages.cell(0, 3), QStringLiteral("4"));
}

void TestTabEvaluationValues::shotsWithoutTheQuantityStayEmpty()
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
    QCOMPARE(pages.cell(0, 2), QStringLiteral("2"));
    QCOMPARE(pages.cell(1, 2), QString());
    QCOMPARE(pages.cell(2, 2), QString());
    QCOMPARE(pages.cell(2, 4), QStringLiteral("7"));
    const auto *box = pages.values.findChild<NormalBoxWidget *>();
    QCOMPARE(box->figureText(0), QStringLiteral("1"));
    QCOMPARE(box->figureText(1), QStringLiteral("2"));
    QCOMPARE(pages.tile(0)->content().count, 1);
    QVERIFY(!pages.tile(0)->content().latest);
}

void TestTabEvaluationValues::columnsAreChosenInThePanel()
{
    Pages pages;
    addShot(pages.model, {1.0, 2.0});
    pages.show();
    auto *panel = pages.values.findChild<QuantityPicker *>();
    const auto box = [panel](const char *key) { return panel->findChild<QCheckBox *>(QLatin1String(key)); };
    QVERIFY(box("maximum")->isChecked() && !box("integral.phase5")->isChecked());
    box("integral.phase5")->click();
    QCOMPARE(pages.table()->model()->columnCount(), 6);
    QCOMPARE(pages.header(5), QStringLiteral("Integral: WZ öffnen [s]"));
    QVERIFY(pages.data.chosenQuantity(0) == (Quantity{Quantity::Kind::Integral, 5})); // to be looked at
    QVERIFY(pages.model.isProjectModified());
    for (const char *key : {"integral.phase5", "minimum", "mean"})
        box(key)->click();
    QVERIFY(!box("maximum")->isEnabled()); // one has to stay
    QCOMPARE(pages.table()->model()->columnCount(), 3);
    QVERIFY(pages.data.chosenQuantity(0) == kMaximum);
    QCOMPARE(pages.data.shownQuantities(1).size(), 3); // every sensor has its own
}

void TestTabEvaluationValues::choosingIsNoChangeOfTheProject()
{
    Pages pages;
    addShot(pages.model, {1.0, 2.0});
    pages.show();
    auto *list = pages.values.findChild<QComboBox *>(QStringLiteral("comboBoxQuantity"));
    QCOMPARE(list->currentText(), QStringLiteral("Maximum"));
    pages.table()->setCurrentIndex(pages.table()->model()->index(0, 4));
    QCOMPARE(list->currentText(), QStringLiteral("Mittelwert"));
    QTest::keyClick(list, Qt::Key_Up);
    QVERIFY(pages.data.chosenQuantity(0) == kMaximum);
    emit pages.table()->horizontalHeader()->sectionClicked(2);
    QCOMPARE(list->currentText(), QStringLiteral("Minimum"));
    QVERIFY(!pages.model.isProjectModified());
}

void TestTabEvaluationValues::limitsColourAndCount()
{
    Pages pages;
    for (const double peak : {8.0, 12.0, 8.0, 12.0})
        addShot(pages.model, {0.0, peak});
    pages.show();
    const auto isColoured = [&](int row) {
        return pages.table()->model()->index(row, 3).data(Qt::ForegroundRole).isValid();
    };
    QVERIFY(!isColoured(1));
    QCOMPARE(pages.label("labelOutside"), QStringLiteral("Keine Grenzen"));
    pages.setLimit("upperLimit", 11.0);
    QVERIFY(!isColoured(0) && isColoured(1));
    QCOMPARE(pages.label("labelOutside"), QStringLiteral("Außerhalb: 2 von 4"));
    QCOMPARE(pages.label("labelCpk"), QStringLiteral("Cpk 0.16")); // (11 - 10) / (3 * 2), never rounded up
    QCOMPARE(pages.label("labelCp"), QStringLiteral("Cp –"));
    pages.setLimit("lowerLimit", 5.0);
    QCOMPARE(pages.label("labelCp"), QStringLiteral("Cp 0.50"));
    QVERIFY(pages.values.findChild<QLabel *>(QStringLiteral("labelCp"))
                ->toolTip()
                .contains(QLatin1String("Grundgesamtheit")));
    pages.limitField("lowerLimit")->findChild<QDoubleSpinBox *>()->setValue(11.5);
    QCOMPARE(pages.label("labelOutside"), QStringLiteral("Untere Grenze über oberer!"));
    pages.limitField("lowerLimit")->findChild<QCheckBox *>()->click();
    pages.limitField("upperLimit")->findChild<QCheckBox *>()->click();
    QVERIFY(!isColoured(1));
    QVERIFY(pages.data.limits(0, kMaximum).isEmpty());
    QVERIFY(pages.model.isProjectModified());
}

void TestTabEvaluationValues::limitsBelongToQuantityAndSensor()
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
    // A column that is taken away and comes back has its limits again.
    pages.data.setShown(0, kMaximum, false);
    pages.data.setShown(0, kMaximum, true);
    QVERIFY(pages.data.limits(0, kMaximum).upper == 11.0);
}

void TestTabEvaluationValues::aNumberThatIsBeingTypedStays()
{
    Pages pages;
    addShot(pages.model, {1.0});
    pages.show();
    pages.setLimit("upperLimit", 11.0);
    auto *spinBox = pages.limitField("upperLimit")->findChild<QDoubleSpinBox *>();
    auto *edit = spinBox->findChild<QLineEdit *>();
    spinBox->setFocus();
    spinBox->selectAll();
    QTest::keyClicks(edit, QStringLiteral("12,7"));
    QVERIFY(pages.model.appendSample(0, 0, 3.0));
    pages.model.emitDataChanged();
    QTest::qWait(2 * EvaluationPage::kRefreshInterval);
    QCOMPARE(pages.cell(0, 3), QStringLiteral("3"));
    QTest::keyClicks(edit, QStringLiteral("5"));
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(pages.data.limits(0, kMaximum).upper == 12.75);
    QCOMPARE(spinBox->text(), QStringLiteral("12.75"));
}

void TestTabEvaluationValues::nothingIsComputedWhileHidden()
{
    Pages pages;
    addShot(pages.model, {1.0});
    pages.model.emitDataChanged();
    QTest::qWait(2 * EvaluationPage::kRefreshInterval);
    QCOMPARE(pages.table()->model()->rowCount(), 0);
    pages.show();
    QCOMPARE(pages.table()->model()->rowCount(), 1);
    pages.values.hide();
    pages.model.blockSignals(true);
    addShot(pages.model, {2.0});
    pages.values.show(); // nobody has told the page
    QCOMPARE(pages.table()->model()->rowCount(), 2);
}

void TestTabEvaluationValues::manyChangesAreShownAtOnce()
{
    Pages pages;
    addShot(pages.model, {1.0});
    pages.show();
    QSignalSpy changes(pages.table()->model(), &QAbstractItemModel::dataChanged);
    for (int i = 0; i < 20000; ++i) {
        (void)pages.model.appendSample(0, 0, i); // both indices are right
        pages.model.emitDataChanged();
    }
    QCOMPARE(changes.count(), 0);
    QTRY_COMPARE(pages.cell(0, 3), QStringLiteral("19999"));
    QVERIFY2(changes.count() <= 2, qPrintable(QString::number(changes.count())));
}

void TestTabEvaluationValues::removedShotsDisappear()
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
    QCOMPARE(pages.cell(1, 3), QStringLiteral("3"));
    QVERIFY(pages.values.chosenShot() < 2);
    pages.model.clear();
    QTRY_COMPARE(pages.table()->model()->rowCount(), 0);
    QVERIFY(!pages.tile(0)->grab().isNull());
}

void TestTabEvaluationValues::tilesJudgeFromTwentyShotsOn_data()
{
    QTest::addColumn<int>("shots");
    QTest::addColumn<double>("upper"); // peaks are 8 and 12: mean 10, sigma 2
    QTest::addColumn<CapabilityGrade>("grade");
    QTest::addColumn<QString>("verdict");
    QTest::addColumn<int>("outside");
    QTest::newRow("too few") << 18 << 18.0 << CapabilityGrade::Unknown << QStringLiteral("18/20 Schuss") << 0;
    QTest::newRow("good") << 20 << 18.0 << CapabilityGrade::Good << QStringLiteral("Cpk 1.33") << 0;
    QTest::newRow("fair") << 20 << 17.97 << CapabilityGrade::Fair << QStringLiteral("Cpk 1.32") << 0;
    QTest::newRow("poor") << 60 << 11.0 << CapabilityGrade::Poor << QStringLiteral("Cpk 0.16") << 30;
    QTest::newRow("none") << 0 << 11.0 << CapabilityGrade::Unknown << QStringLiteral("0/20 Schuss") << 0;
}

void TestTabEvaluationValues::tilesJudgeFromTwentyShotsOn()
{
    QFETCH(int, shots);
    QFETCH(double, upper);
    Pages pages;
    for (int shot = 0; shot < shots; ++shot)
        addShot(pages.model, {shot % 2 == 0 ? 8.0 : 12.0});
    pages.data.setLimits(0, kMaximum, {std::nullopt, upper});
    pages.show();
    const DashboardTile *tile = pages.tile(0);
    QTEST(tile->grade(), "grade");
    QTEST(tile->verdict(), "verdict");
    QTEST(tile->content().outside, "outside");
    QCOMPARE(tile->content().count, shots);
    QCOMPARE(int(tile->content().lastShots.size()), std::min(shots, 50));
    QVERIFY(tile->accessibleName().contains(tile->verdict()));
    QCOMPARE(pages.tile(1)->verdict(), QStringLiteral("Keine Grenzen"));
    QVERIFY(pages.tile(1)->grade() == CapabilityGrade::Unknown);
}

void TestTabEvaluationValues::tilesLeadToTheirPages()
{
    Pages pages;
    pages.show();
    QSignalSpy values(&pages.dashboard, &Dashboard::valuesWanted);
    QSignalSpy runtimes(&pages.dashboard, &Dashboard::runtimesWanted);
    QTest::mouseClick(pages.tile(3), Qt::LeftButton);
    QTest::keyClick(pages.tile(4), Qt::Key_Space);
    QCOMPARE(values.count(), 2);
    QCOMPARE(values.at(0).at(0).toInt(), 3);
    QCOMPARE(values.at(1).at(0).toInt(), 4);
    QTest::mouseClick(pages.dashboard.findChild<CycleTile *>(), Qt::LeftButton);
    QCOMPARE(runtimes.count(), 1);
}

void TestTabEvaluationValues::cyclesAreTakenFromTimestamps_data()
{
    const QDateTime start(QDate(2026, 3, 9), QTime(6, 0));
    QTest::addColumn<QDateTime>("from");
    QTest::addColumn<QDateTime>("to");
    QTest::addColumn<double>("seconds"); // three samples at 200 ms: 0.6 s
    QTest::newRow("both") << start << start.addMSecs(24350) << 24.35;
    QTest::newRow("first missing") << QDateTime() << start << 0.6;
    QTest::newRow("second missing") << start << QDateTime() << 0.6;
    QTest::newRow("backwards") << start << start.addSecs(-3600) << 0.6;
    QTest::newRow("the same") << start << start << 0.6;
}

void TestTabEvaluationValues::cyclesAreTakenFromTimestamps()
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

void TestTabEvaluationValues::clickingAPointChoosesItsShot()
{
    Pages pages;
    for (int shot = 0; shot < 9; ++shot)
        addShot(pages.model, {1.0 * shot});
    pages.show();
    auto *chart = pages.values.findChild<TrendChart *>();
    QTest::mouseClick(chart, Qt::LeftButton, Qt::NoModifier, QPoint(int(chart->geometryOfPlot().x(6)) + 2, 60));
    QCOMPARE(pages.values.chosenShot(), 6);
    QCOMPARE(chart->chosenShot(), 6);
    pages.data.setShown(0, {Quantity::Kind::Integral, 0}, true); // other columns
    QTRY_COMPARE(pages.table()->model()->columnCount(), 6);
    QCOMPARE(pages.values.chosenShot(), 6);
}

void TestTabEvaluationValues::worksWithoutAModel()
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
        QTRY_COMPARE(page.findChild<QTableView *>(QStringLiteral("tableValues"))->model()->rowCount(), 1);
    }
    page.findChild<LimitField *>()->findChild<QCheckBox *>()->click(); // the model is gone
    QTest::qWait(2 * EvaluationPage::kRefreshInterval);
    QVERIFY(!page.grab().isNull());
}

QTEST_MAIN(TestTabEvaluationValues)
#include "tst_tabevaluationvalues.moc"
