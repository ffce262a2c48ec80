#include "plots/oscilloscope/osziwidget.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QSpinBox>

#include <functional>
#include <limits>

namespace {

using Step = std::function<void(OsziWidget &)>;
using Reading = std::function<double(const OsziWidget &)>;
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr int kIntMax = std::numeric_limits<int>::max();

} // namespace

Q_DECLARE_METATYPE(Step)
Q_DECLARE_METATYPE(Reading)

class TestOsziWidget : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_plot = new OsziWidget;
        m_plot->resize(400, 220);
    }

    void cleanup() { delete m_plot; }

    void settersKeepWhatMakesSense_data()
    {
        columns<Step, Reading, double>("step", "reading", "expected");

        const auto row = [](const char *name, const Reading &reading, double expected, const Step &step) {
            ::row(name, step, reading, expected);
        };
        row("minimum at the maximum", &OsziWidget::minValue, 0.0, [](OsziWidget &w) { w.setMinValue(254.9999); });
        row("minimum not a number", &OsziWidget::minValue, 0.0, [](OsziWidget &w) { w.setMinValue(kNan); });
        row("maximum at the minimum", &OsziWidget::maxValue, 255.0, [](OsziWidget &w) { w.setMaxValue(0.0001); });
        row("maximum infinite", &OsziWidget::maxValue, 255.0, [](OsziWidget &w) { w.setMaxValue(kInf); });
        row("zoom 0", &OsziWidget::zoom, 1, [](OsziWidget &w) { w.setZoom(0); });
        row("zoom beyond int", &OsziWidget::zoom, kIntMax, [](OsziWidget &w) { w.setZoom(1e20); });
        row("zoom not a number", &OsziWidget::zoom, 1, [](OsziWidget &w) { w.setZoom(kNan); });
        row("clock 0", &OsziWidget::clock, 1, [](OsziWidget &w) { w.setClock(0); });
        row("clock grid below the clock", &OsziWidget::clockGrid, 100,
            [](OsziWidget &w) { w.setClock(20), w.setClockGrid(19); });
        row("value grid 0", &OsziWidget::valueGrid, 50.0, [](OsziWidget &w) { w.setValueGrid(0.0); });
        row("value grid not a number", &OsziWidget::valueGrid, 50.0, [](OsziWidget &w) { w.setValueGrid(kNan); });
        row("offset not a number", &OsziWidget::offset, 0.0, [](OsziWidget &w) { w.setOffset(kNan); });
    }

    void settersKeepWhatMakesSense()
    {
        QFETCH(Step, step);
        QFETCH(Reading, reading);
        step(*m_plot);
        QTEST(reading(*m_plot), "expected");
    }

    void slotsOutsideTheRangeAreIgnored()
    {
        for (const int slot : {0, 9999, -1, 10000}) {
            const bool exists = slot >= 0 && slot < 10000;
            m_plot->setCurve(slot, &m_samples, Qt::blue, true);
            QCOMPARE(m_plot->isShown(slot), exists);
            m_plot->setAutoChannelOffset(slot, 2);
            QCOMPARE(m_plot->channelOffset(slot), exists ? -30.0 : 0.0);
            m_plot->setDisabled(slot);
            QCOMPARE(m_plot->curve(slot), exists ? &m_samples : nullptr);
        }
    }

    void curvesPassThroughZero_data()
    {
        columns<int, double>("time", "offset");

        row("first sample", 0, -10.0);
        row("time within a sample", 299, -30.0);
        row("last sample", 300, -40.0);
        row("past the end", 400, 1.5);
        row("before the start", -100, 1.5);
    }

    void curvesPassThroughZero()
    {
        QFETCH(int, time);
        QFETCH(double, offset);
        m_plot->setClock(100);
        for (const int slot : {0, 9999})
            m_plot->setCurve(slot, &m_samples, Qt::blue, true);
        for (const int slot : {0, 1, 9999})
            m_plot->setChannelOffset(slot, 1.5);
        m_plot->setAutoChannelOffsets(time);
        QCOMPARE(m_plot->channelOffset(0), offset);
        QCOMPARE(m_plot->channelOffset(1), 1.5);
        QCOMPARE(m_plot->channelOffset(9999), offset);
    }

    void markerListsGrowAndShrink()
    {
        m_plot->setVerticalMarkerCount(5);
        m_plot->setVerticalMarkerCount(-1);
        QCOMPARE(m_plot->verticalMarkerCount(), 0);
        m_plot->setHorizontalLineCount(2);
        // None of these may touch what is not there.
        m_plot->setVerticalMarker3(100);
        m_plot->setPhaseName(0, "Kühlzeit"_s);
        m_plot->setHorizontalLine(2, 1.0, Qt::red);
        m_plot->setHorizontalLine(-1, 1.0, Qt::red);
        (void)m_plot->grab();
    }

    void mouseMarkerFollowsTheHighlightedCurve_data()
    {
        // text: empty: nothing is shown
        columns<int, int, QString>("highlighted", "x", "text");

        row("at a sample", 0, 81, "21.5");
        row("between two samples", 0, 89, "21.5");
        row("left margin, truncated to the start", 0, 61, "11.5");
        row("farther left", 0, 60, QString());
        row("past the end", 0, 110, QString());
        row("none highlighted", -1, 81, QString());
    }

    void mouseMarkerFollowsTheHighlightedCurve()
    {
        QFETCH(int, highlighted);
        QFETCH(int, x);
        QFETCH(QString, text);
        m_plot->setCurve(0, &m_samples, Qt::blue, true);
        m_plot->setOffset(1.0);
        m_plot->setChannelOffset(0, 0.5);
        m_plot->setZoom(10);
        m_plot->highlightSingle(0);
        m_plot->showMouseMarker(75);
        m_plot->highlightSingle(highlighted);
        m_plot->showMouseMarker(x);

        const auto *hairLine = m_plot->findChild<QLabel *>("hairLine"_s);
        const auto *readOut = m_plot->findChild<QLabel *>("mouseReadOut"_s);
        QCOMPARE(hairLine->isHidden(), text.isEmpty());
        QCOMPARE(readOut->isHidden(), text.isEmpty());
        if (text.isEmpty())
            return;
        QCOMPARE(readOut->text(), text);
        QCOMPARE(hairLine->x(), x);
        QCOMPARE(readOut->x(), x + 10);
        QCOMPARE(readOut->geometry().bottom() + 1 - hairLine->y(), 400 - 11);
        m_plot->hideMouseMarker();
        QVERIFY(hairLine->isHidden() && readOut->isHidden());
    }

    void mouseReadOutStaysInSight_data()
    {
        // isRight: of the hair line
        columns<double, int, bool>("value", "x", "isRight");
        row("above the range", 900.0, 81, true);
        row("below the range", -900.0, 81, true);
        row("right edge", 100.0, 295, false);
    }

    void mouseReadOutStaysInSight()
    {
        QFETCH(double, value);
        QFETCH(int, x);
        QFETCH(bool, isRight);
        const SampleList samples(500, value);
        m_plot->resize(300, 120);
        m_plot->setCurve(0, &samples, Qt::blue, true);
        m_plot->highlightSingle(0);
        m_plot->showMouseMarker(x);
        const QRect place = m_plot->findChild<QLabel *>("mouseReadOut"_s)->geometry();
        QVERIFY(m_plot->rect().contains(place));
        QCOMPARE(isRight ? place.left() - x : x - place.right() - 1, 10);
    }

    void spinBoxesDoNotEchoForever()
    {
        QDoubleSpinBox valueBox; // two decimals: rounds the grid of a tiny range to 0.00
        QSpinBox clockBox;       // ends at 99
        connect(&valueBox, qOverload<double>(&QDoubleSpinBox::valueChanged), m_plot, &OsziWidget::setValueGrid);
        connect(m_plot, &OsziWidget::valueGridChanged, &valueBox, &QDoubleSpinBox::setValue);
        connect(&clockBox, qOverload<int>(&QSpinBox::valueChanged), m_plot, &OsziWidget::setClockGrid);
        connect(m_plot, &OsziWidget::clockGridChanged, &clockBox, &QSpinBox::setValue);
        m_plot->setMaxValue(0.01);
        m_plot->setClock(10);
        m_plot->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_plot));
        const QSignalSpy announced(m_plot, &OsziWidget::valueGridChanged);
        for (int turn = 0; turn < 20; ++turn)
            QCoreApplication::processEvents();
        QVERIFY(announced.count() <= 1);
        QVERIFY(m_plot->valueGrid() > 0.0);
        QCOMPARE(m_plot->clockGrid(), 800);
    }

    void extremeSettingsPaint_data()
    {
        columns<Step>("step");

        const auto row = [](const char *name, const Step &step) { ::row(name, step); };
        row("no room", [](OsziWidget &w) { w.resize(0, 0); });
        row("narrower than the labels", [](OsziWidget &w) { w.resize(60, 200); });
        row("first start", [](OsziWidget &w) { w.setStartIndex(std::numeric_limits<int>::min()); });
        row("last start", [](OsziWidget &w) { w.setStartIndex(kIntMax); });
        row("largest zoom from the left", [](OsziWidget &w) { w.setZoom(kIntMax), w.setStartIndex(-1); });
        row("slowest clock", [](OsziWidget &w) { w.setClock(kIntMax); });
        row("smallest range", [](OsziWidget &w) { w.setMaxValue(0.00011); });
        row("largest range", [](OsziWidget &w) { w.setMinValue(-1e308), w.setMaxValue(1e308); });
        row("tiny grid", [](OsziWidget &w) { w.setValueGridAuto(false), w.setValueGrid(1e-300); });
        row("markers far away", [](OsziWidget &w) { w.setVerticalMarker0(kIntMax), w.setVerticalMarker1(-kIntMax); });
        row("line far away", [](OsziWidget &w) { w.setHorizontalLine(0, 1e300, Qt::red); });
        row("offset far away", [](OsziWidget &w) { w.setOffset(1e308), w.setChannelOffset(0, 1e308); });
        row("fine clock grid",
            [](OsziWidget &w) { w.setClockGridAuto(false), w.setClockGrid(1), w.setClock(1000000); });
    }

    void extremeSettingsPaint()
    {
        QFETCH(Step, step);
        m_plot->setVerticalMarkerCount(2);
        m_plot->setHorizontalLineCount(1);
        m_plot->setPhaseName(1, "Einspritzzeit"_s);
        m_plot->setCurve(0, &m_samples, Qt::blue, true);
        m_plot->setCurve(1, &m_samples, Qt::blue, true);
        m_plot->highlightSingle(1);
        step(*m_plot);
        (void)m_plot->grab(); // has to return, and the sanitizers must not complain
        m_plot->showMouseMarker(80);
    }

private:
    OsziWidget *m_plot = nullptr;
    SampleList m_samples = {10.0, 20.0, 30.0, 40.0};
};

QTEST_MAIN(TestOsziWidget)

#include "tst_osziwidget.moc"
