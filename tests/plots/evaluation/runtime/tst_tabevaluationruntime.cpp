#include "plots/charts/boxwhiskerswidget.h"
#include "plots/evaluation/runtime/runtimetablemodel.h"
#include "plots/evaluation/runtime/tabevaluationruntime.h"
#include "plots/oscilloscope/osziwidget.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/support/shots.h"

#include <QAbstractButton>
#include <QDoubleSpinBox>
#include <QTableView>

#include <memory>

namespace {

using Doubles = QVector<double>;

/// `high` samples of 300, then `low` samples of 50, then `rest` samples of 300.
SampleList shotOf(int high, int low, int rest)
{
    return SampleList(high, 300.0) + SampleList(low, 50.0) + SampleList(rest, 300.0);
}

} // namespace

class TabEvaluationRuntimeTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qputenv("TZ", "UTC"); }

    void init()
    {
        m_model = std::make_unique<Model>(QString());
        m_page = std::make_unique<TabEvaluationRuntime>();
        m_page->setModel(m_model.get());
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            m_page->setThresholds(sensor, 100.0, 100.0);
    }

    void cleanup()
    {
        QLocale::setDefault(QLocale::c());
        m_page.reset();
        m_model.reset();
    }

    void tableShowsShots()
    {
        const QDateTime start(QDate(2026, 3, 9), QTime(23, 59, 50), Qt::UTC);
        addShot(*m_model, shotOf(12, 100, 47), 1.0, start);
        addShot(*m_model, shotOf(20, 130, 0), 1.0, start.addMSecs(29900));
        addShot(*m_model, shotOf(9, 0, 0), 1.0); // never falls below; no time stamp
        m_page->update();

        const QAbstractItemModel *table = child<QTableView>("tableRuntime")->model();
        QCOMPARE(table->rowCount(), 5);
        const auto row = [this](int index) { return rowTexts(index).join(QLatin1Char('|')); };
        QCOMPARE(row(0), "0|2026/03/09 23:59:50|1.2|9.9|11.1|15|29"_s);
        QCOMPARE(row(1), "1|2026/03/10 00:00:19|2|12.9|14.9|15|"_s);
        QCOMPARE(row(2), "2||-0.1|0|-0.1|0|"_s);
        QCOMPARE(row(3), "Mittelwert||1.03333|7.6|8.63333|10|29"_s);
        QCOMPARE(row(4), "Sigma||0.865384|5.51181|6.36728|7.07107|0"_s);

        m_model->setTimestamp(2, start.addSecs(60));
        m_page->update();
        QCOMPARE(cell(1, RuntimeTableModel::Pause), "30"_s);
        QCOMPARE(cell(2, RuntimeTableModel::Pause), QString());
        QCOMPARE(cell(3, RuntimeTableModel::Pause), "29.5"_s);
    }

    void breaksAreNotPartOfTheMeanPause()
    {
        const QDateTime start(QDate(2026, 3, 9), QTime(11, 0), Qt::UTC);
        for (const int second : {0, 30, 58, 90, 1890, 1920})
            addShot(*m_model, shotOf(12, 100, 47), 1.0, start.addSecs(second));
        m_page->update();
        QCOMPARE(cell(3, RuntimeTableModel::Pause), "1800"_s);
        QCOMPARE(rowTexts(6).mid(0, 2), QStringList({"Mittelwert"_s, "ohne 1 lange Pause"_s}));
        QCOMPARE(cell(6, RuntimeTableModel::Pause), "30"_s);
        const QAbstractItemModel *table = child<QTableView>("tableRuntime")->model();
        const auto tip = [table](int row) { return table->index(row, RuntimeTableModel::Pause).data(Qt::ToolTipRole); };
        QVERIFY(tip(6).toString().contains("Fünffache"_s));
        QVERIFY(!tip(3).isValid());
    }

    void figuresHaveADecimalPointInEveryLanguage()
    {
        QLocale::setDefault(QLocale(QLocale::German));
        addShot(*m_model, shotOf(12, 100, 47), 1.0);
        m_page->update();
        QCOMPARE(rowTexts(0).mid(2, 4), QStringList({"1.2"_s, "9.9"_s, "11.1"_s, "15"_s}));
        QCOMPARE(cell(1, RuntimeTableModel::Start), "1.2"_s);
    }

    void summariesGetTheirLists()
    {
        addShot(*m_model, shotOf(10, 20, 5), 1.0);
        addShot(*m_model, shotOf(30, 1, 24), 1.0); // start and stop coincide
        addShot(*m_model, shotOf(4, 0, 0), 1.0);
        m_page->update();
        QCOMPARE(summary("boxStart"), Doubles({-0.1, 1.0, 3.0}));
        QCOMPARE(summary("boxDuration"), Doubles({1.9}));
        QCOMPARE(summary("boxStop"), Doubles({-0.1, 2.9, 3.0}));
        for (const char *name : {"boxStart", "boxDuration", "boxStop"}) {
            QCOMPARE(child<BoxWhiskersWidget>(name)->axisMinimum(), 0.0);
            QCOMPARE(child<BoxWhiskersWidget>(name)->axisMaximum(), 5.5);
        }
    }

    void sensorsHaveTheirOwnThresholds()
    {
        addShot(*m_model, {300, 200, 100, 50, 10, 50, 100, 200, 300}, 1.0);
        m_page->update();
        child<QDoubleSpinBox>("spinBoxStartValue")->setValue(250.0);
        child<QDoubleSpinBox>("spinBoxStopValue")->setValue(20.0);
        QCOMPARE(rowTexts(0).mid(2, 3), QStringList({"0.1"_s, "0.3"_s, "0.4"_s}));

        chooseSensor(3);
        QCOMPARE(m_page->currentSensor(), 3);
        QCOMPARE(child<QDoubleSpinBox>("spinBoxStartValue")->value(), 100.0);
        QCOMPARE(cell(0, RuntimeTableModel::Start), "0.3"_s); // 53 is the first below 100
        chooseSensor(0);
        QCOMPARE(child<QDoubleSpinBox>("spinBoxStopValue")->value(), 20.0);
        QCOMPARE(cell(0, RuntimeTableModel::Start), "0.1"_s);
    }

    void thresholdsStayInRange()
    {
        m_page->setThresholds(0, 1e300, -1e300);
        QCOMPARE(m_page->startThreshold(0), child<QDoubleSpinBox>("spinBoxStartValue")->value());
        QCOMPARE(m_page->stopThreshold(0), child<QDoubleSpinBox>("spinBoxStopValue")->value());
    }

    void chosenShotIsDrawn()
    {
        addShot(*m_model, shotOf(1, 2, 3), 1.0);
        addShot(*m_model, shotOf(4, 5, 6), 1.0);
        addShot(*m_model, shotOf(7, 8, 9), 1.0);
        m_page->update();
        const OsziWidget *plot = child<OsziWidget>("osziWidget");
        QCOMPARE(*plot->curve(0), shotOf(7, 8, 9)); // the newest until one is chosen

        m_page->onCellClicked(1, 2);
        QCOMPARE(*plot->curve(0), shotOf(4, 5, 6));
        QTableView *table = child<QTableView>("tableRuntime");
        table->setCurrentIndex(table->model()->index(0, 3));
        QCOMPARE(*plot->curve(0), shotOf(1, 2, 3));
        m_page->onCellClicked(3, 0); // the row of means is no shot
        QCOMPARE(m_page->shownShot(), 0);

        addShot(*m_model, shotOf(1, 1, 1), 1.0);
        m_page->update();
        QCOMPARE(m_page->shownShot(), 0);
        chooseSensor(2);
        QCOMPARE(plot->curve(0)->at(0), 302.0);
    }

    // Signals stay blocked where a deletion fails half-way; a plot that still drew removed samples would read freed
    // memory.
    void plotSurvivesRemovalItWasNotToldOf()
    {
        addShot(*m_model, shotOf(50, 50, 50), 1.0);
        addShot(*m_model, shotOf(60, 60, 60), 1.0);
        m_page->resize(900, 600);
        m_page->show();
        m_page->update();
        m_model->blockSignals(true);
        QVERIFY(m_model->deleteChannel(1));
        QVERIFY(m_model->deleteChannel(0));
        m_model->discardRemoved();
        QVERIFY(!m_page->grab().isNull());
        QTest::mouseMove(child<OsziWidget>("osziWidget"), QPoint(100, 50));
        m_page->onCellClicked(1, 1);
        m_model->blockSignals(false);
        m_model->emitDataChanged();
        QTRY_COMPARE(child<QTableView>("tableRuntime")->model()->rowCount(), 2);
        QCOMPARE(child<OsziWidget>("osziWidget")->curve(0), nullptr);
        m_model.reset();
        m_page->resize(400, 400);
        QVERIFY(!m_page->grab().isNull());
    }

    void choiceIsForgottenWithItsShot()
    {
        for (int shot = 0; shot < 4; ++shot)
            addShot(*m_model, shotOf(shot + 1, 1, 1), 1.0);
        m_page->update();
        QTableView *table = child<QTableView>("tableRuntime");
        table->setCurrentIndex(table->model()->index(3, 0));
        QVERIFY(m_model->deleteChannel(3));
        QVERIFY(m_model->deleteChannel(2));
        m_page->update();
        QVERIFY(!table->selectionModel()->hasSelection());
        addShot(*m_model, shotOf(9, 9, 9), 1.0);
        m_page->update();
        QCOMPARE(*child<OsziWidget>("osziWidget")->curve(0), shotOf(9, 9, 9)); // the newest again
    }

private:
    template <typename Widget>
    [[nodiscard]] Widget *child(const char *name) const
    {
        return m_page->findChild<Widget *>(QLatin1String(name));
    }
    [[nodiscard]] QString cell(int row, int column) const
    {
        const QAbstractItemModel *table = child<QTableView>("tableRuntime")->model();
        return table->index(row, column).data().toString();
    }
    [[nodiscard]] QStringList rowTexts(int row) const
    {
        QStringList texts;
        for (int column = 0; column < RuntimeTableModel::NumColumns; ++column)
            texts << cell(row, column);
        return texts;
    }
    [[nodiscard]] Doubles summary(const char *name) const { return child<BoxWhiskersWidget>(name)->sortedValues(); }
    void chooseSensor(int sensor)
    {
        child<QAbstractButton>(qPrintable("sensorButton%1"_s.arg(sensor)))->setChecked(true);
    }

    std::unique_ptr<Model> m_model;
    std::unique_ptr<TabEvaluationRuntime> m_page;
};

QTEST_MAIN(TabEvaluationRuntimeTest)
#include "tst_tabevaluationruntime.moc"
