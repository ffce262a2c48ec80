#include "plots/oscilloscope/osziwidget.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QImage>
#include <QLabel>

namespace {

constexpr int kWidth = 600;
constexpr int kHeight = 240;

QImage picture(OsziWidget &plot)
{
    return plot.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// The rows between which a colour occurs in a column; (-1, -1) where it does not.
QPair<int, int> rowsOf(const QImage &image, int column, const QColor &color)
{
    QPair<int, int> rows(-1, -1);
    for (int y = 0; y < image.height(); ++y) {
        if (image.pixelColor(column, y) != color)
            continue;
        rows.first = rows.first < 0 ? y : rows.first;
        rows.second = y;
    }
    return rows;
}

bool occurs(const QImage &image, const QRect &where, const QColor &color)
{
    for (int x = where.left(); x <= where.right(); ++x) {
        if (rowsOf(image.copy(x, where.top(), 1, where.height()), 0, color).first >= 0)
            return true;
    }
    return false;
}

int inkIn(const QImage &image, const QRect &where)
{
    int ink = 0;
    for (int y = where.top(); y <= where.bottom(); ++y) {
        for (int x = where.left(); x <= where.right(); ++x)
            ink += image.pixelColor(x, y) != QColor(Qt::white);
    }
    return ink;
}

} // namespace

class TestOsziPainting : public QObject
{
    Q_OBJECT

private slots:
    /// An empty plot of the values 0 to 1 on white, without grid lines that could be taken for curves.
    void init()
    {
        m_plot = new OsziWidget;
        m_plot->setStyleSheet("OsziWidget { background-color: white; }"_s);
        m_plot->resize(kWidth, kHeight);
        m_plot->setMaxValue(1.0);
        m_plot->setValueGridAuto(false);
        m_plot->setValueGrid(1e6);
        m_plot->setClockGridAuto(false);
        m_plot->setClockGrid(1000000);
        const QImage image = picture(*m_plot);
        m_margin = rowsOf(image.copy(0, 1, kWidth, kHeight - 2), OsziWidget::kLeftMargin, Qt::black).first + 1;
    }

    void cleanup() { delete m_plot; }

    void gridLinesAndLabels()
    {
        m_plot->setValueGrid(0.5);
        m_plot->setClockGrid(100);
        const QImage image = picture(*m_plot);
        QCOMPARE(image.pixelColor(350, yOf(0.0)), QColor(Qt::black));
        QCOMPARE(image.pixelColor(350, yOf(0.5)), QColor(Qt::gray));
        QCOMPARE(image.pixelColor(350, yOf(0.25)), QColor(Qt::white));
        QCOMPARE(image.pixelColor(OsziWidget::kLeftMargin + 100, yOf(0.25)), QColor(Qt::gray));
        QCOMPARE(image.pixelColor(OsziWidget::kLeftMargin, yOf(0.25)), QColor(Qt::black));
        const QRect leftLabel(2, yOf(0.5) - m_margin / 2, 53, m_margin);
        QVERIFY(inkIn(image, leftLabel) > 20);
        const QRect timeLabel(OsziWidget::kLeftMargin + 98, kHeight - m_margin + 2, 30, m_margin - 4);
        QVERIFY(inkIn(image, timeLabel) > 20);
    }

    void longValueLabelsAreWhole_data()
    {
        columns<double>("limit");
        row("moved to the right", 8e4);
        row("drawn smaller", 8e7);
    }

    /// The label below zero begins with its sign, a low stroke, and neither touches the edge or the axis.
    void longValueLabelsAreWhole()
    {
        QFETCH(double, limit);
        m_plot->setStyleSheet(m_plot->styleSheet() + "OsziWidget { font-size: 18px; }"_s);
        m_plot->setMaxValue(limit);
        m_plot->setMinValue(-limit);
        m_plot->setValueGrid(limit);
        const QImage image = picture(*m_plot);
        for (const bool negative : {false, true}) {
            const int y = negative ? kHeight - m_margin : m_margin;
            QCOMPARE(inkIn(image, QRect(1, y - 9, 1, 18)), 0);
            QCOMPARE(inkIn(image, QRect(68, y - 9, 2, 18)), 0);
            int left = 2;
            while (left < 60 && inkIn(image, QRect(left, y - 9, 1, 18)) == 0)
                ++left;
            QCOMPARE(inkIn(image, QRect(left + 1, y - 9, 1, 18)) <= 3, negative);
        }
    }

    void curvesJoinTheirSamples()
    {
        const SampleList samples = {9.0, 0.2, 0.8, 0.8, 0.8};
        m_plot->setZoom(20);
        m_plot->setStartIndex(1);
        m_plot->setCurve(0, &samples, Qt::blue, true);
        const QImage image = picture(*m_plot);
        QCOMPARE(rowsOf(image, 70, Qt::blue).second, yOf(0.2));
        QCOMPARE(rowsOf(image, 90, Qt::blue).first, yOf(0.8));
        QCOMPARE(rowsOf(image, 100, Qt::blue), qMakePair(yOf(0.8), yOf(0.8)));
        QCOMPARE(rowsOf(image, 110 + 1, Qt::blue), qMakePair(yOf(0.8), yOf(0.8)));
        QVERIFY(!occurs(image, QRect(0, 0, 70, kHeight), Qt::blue));
        QVERIFY(!occurs(image, QRect(131, 0, 300, kHeight), Qt::blue));
        m_plot->setDisabled(0);
        QVERIFY(!occurs(picture(*m_plot), QRect(0, 0, kWidth, kHeight), Qt::blue));
    }

    /// Every index of the time axis shows the sample that a curve without a shift has there when the view starts
    /// earlier.
    void shiftedCurveIsTheScrolledOne()
    {
        const SampleList samples{0.1, 0.9, 0.3, 0.5, 0.2, 0.7, 0.6};
        m_plot->setZoom(9);
        m_plot->highlightSingle(1);
        m_plot->setCurve(0, &samples, Qt::blue, true);
        m_plot->setCurve(1, &samples, Qt::red, true);
        m_plot->setChannelOffset(1, 0.2);
        m_plot->setStartIndex(-3);
        const QImage scrolled = picture(*m_plot);
        m_plot->setStartIndex(0);
        QVERIFY(picture(*m_plot) != scrolled);
        m_plot->setCurvePlace(0, 3, 0.0);
        m_plot->setCurvePlace(1, 3, 0.2);
        QCOMPARE(picture(*m_plot), scrolled);

        m_plot->showMouseMarker(70 + 9 * 4);
        QCOMPARE(m_plot->findChild<QLabel *>("mouseReadOut"_s)->text(), "1.1"_s);
        m_plot->showMouseMarker(70 + 9 * 2); // before the first sample
        QVERIFY(m_plot->findChild<QLabel *>("mouseReadOut"_s)->isHidden());
    }

    void highlightedIsOnTop()
    {
        const SampleList samples(300, 0.5);
        for (const int slot : {3, 4, 9999})
            m_plot->setCurve(slot, &samples, slot == 4 ? Qt::green : Qt::blue, true);
        QCOMPARE(picture(*m_plot).pixelColor(200, yOf(0.5)), QColor(Qt::blue));
        m_plot->setDisabled(9999);
        QCOMPARE(picture(*m_plot).pixelColor(200, yOf(0.5)), QColor(Qt::green));
        m_plot->highlightSingle(3);
        const QImage image = picture(*m_plot);
        QCOMPARE(rowsOf(image, 200, Qt::red), qMakePair(yOf(0.5) - 1, yOf(0.5) + 1));
    }

    void endValueStaysInside_data()
    {
        columns<int, double, bool, QRect>("count", "value", "written", "where");

        row("right of the end", 200, 0.5, true, QRect(275, 100, 60, 40));
        row("on the curve at the right edge", 528, 0.5, true, QRect(555, 95, 35, 18));
        row("below it where there is no room above", 528, 1.05, true, QRect(555, 21, 35, 14));
        row("end out of view", 530, 0.5, false, QRect(555, 95, 35, 18));
        row("below", 200, -7.0, true, QRect(275, 220, 60, 18));
    }

    void endValueStaysInside()
    {
        QFETCH(int, count);
        QFETCH(double, value);
        QFETCH(QRect, where);
        const SampleList samples(count, value);
        m_plot->setCurve(0, &samples, Qt::blue, true);
        m_plot->highlightSingle(0);
        const QImage image = picture(*m_plot);
        QTEST(inkIn(image, where) > 20, "written");
    }

    void markersAndPhases()
    {
        m_plot->setClock(10);
        m_plot->setVerticalMarkerCount(4);
        m_plot->setVerticalMarker(0, 0, Qt::red);
        m_plot->setVerticalMarker(1, 1500, Qt::green);
        m_plot->setVerticalMarker(2, -1, Qt::magenta);
        m_plot->setVerticalMarker(3, 3000, Qt::blue);
        for (int phase = 0; phase < 4; ++phase)
            m_plot->setPhaseName(phase, "Phase"_s);
        const QImage image = picture(*m_plot);
        QCOMPARE(rowsOf(image, 70 + 150, Qt::green).first, 0);
        QVERIFY(!occurs(image, image.rect(), Qt::red));
        QVERIFY(!occurs(image, image.rect(), Qt::magenta));
        // Phase 1 ends at its marker; the last begins at the marker before it, here at the left edge.
        const int middle = 70 + 75;
        QVERIFY(inkIn(image, QRect(middle - 15, 2, 30, m_margin - 4)) > 20);
        QCOMPARE(inkIn(image, QRect(70 + 155, 2, 140, m_margin - 4)), 0);
    }

    void referenceLines()
    {
        m_plot->setHorizontalLineCount(2);
        m_plot->setHorizontalLine(0, 0.25, Qt::green);
        m_plot->setHorizontalLine(1, 0.75, Qt::blue);
        const QImage image = picture(*m_plot);
        QCOMPARE(rowsOf(image, 75, Qt::green), qMakePair(yOf(0.25) - 1, yOf(0.25) + 1));
        QVERIFY(occurs(image, QRect(560, yOf(0.75), 38, 1), Qt::blue));
        QVERIFY(occurs(image, QRect(100, yOf(0.75), 50, 1), Qt::white)); // dashed
        QVERIFY(!occurs(image, QRect(0, 0, 68, kHeight), Qt::green));

        QImage dense(m_plot->size() * 2, QImage::Format_RGB32); // of a screen with twice as many pixels
        dense.setDevicePixelRatio(2.0);
        m_plot->render(&dense);
        const auto rows = rowsOf(dense, 150, Qt::green);
        QVERIFY(qAbs(rows.first + rows.second - 4 * yOf(0.25)) <= 2);
        QCOMPARE(rows.second - rows.first, 5);
    }

private:
    [[nodiscard]] int yOf(double value) const { return qRound(kHeight - m_margin - (kHeight - 2 * m_margin) * value); }

    OsziWidget *m_plot = nullptr;
    int m_margin = 0;
};

QTEST_MAIN(TestOsziPainting)

#include "tst_oszipainting.moc"
