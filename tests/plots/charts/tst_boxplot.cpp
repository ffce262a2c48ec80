#include "app/theme.h"
#include "plots/charts/boxwhiskerswidget.h"
#include "plots/charts/normalboxwidget.h"
#include "plots/charts/normaldistributionwidget.h"
#include "tests/support/rows.h"

#include <QLocale>

#include <limits>

namespace {

constexpr double kHuge = std::numeric_limits<double>::max();
const QColor kFill(0, 200, 0);

QImage picture(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    widget.render(&image);
    return image;
}

int countOf(const QImage &image, const QColor &color, const QRect &area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            count += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
}

} // namespace

class BoxPlotTest : public QObject
{
    Q_OBJECT

private slots:
    void mapsValues_data()
    {
        // pixel: of the value, 3 pixels across
        columns<bool, double, double, double, int, QPoint>("vertical", "axisMinimum", "axisMaximum", "value", "along",
                                                           "pixel");

        // 230 x 160 with margins 20, 5, 10, 15: 200 pixels of axis when horizontal, 140 when vertical.
        row("end", false, 0.0, 10.0, 10.0, 200, QPoint(220, 8));
        row("rounds up at the half", false, 0.0, 80.0, 1.0, 3, QPoint(23, 8));
        row("axis not from 0", false, -5.0, 5.0, 2.5, 150, QPoint(170, 8));
        row("vertical start", true, 0.0, 10.0, 0.0, 0, QPoint(23, 145));
        row("vertical middle", true, 100.0, 200.0, 125.0, 35, QPoint(23, 110));
        row("axis without length", false, 7.0, 7.0, 8.0, 0, QPoint(20, 8));
        row("far outside", false, 0.0, 1e-9, 1e9, BoxPlotGeometry::kFarAway, QPoint(20 + BoxPlotGeometry::kFarAway, 8));
        row("infinite span", false, -kHuge, kHuge, 1.0, 0, QPoint(20, 8));
        row("not a number", false, 0.0, 10.0, std::numeric_limits<double>::quiet_NaN(), 0, QPoint(20, 8));
    }

    void mapsValues()
    {
        QFETCH(bool, vertical);
        QFETCH(double, axisMinimum);
        QFETCH(double, axisMaximum);
        QFETCH(double, value);
        QFETCH(int, along);
        QFETCH(QPoint, pixel);
        const BoxPlotGeometry geometry{QSize(230, 160), QMargins(20, 5, 10, 15), vertical, axisMinimum, axisMaximum};
        QCOMPARE(geometry.along(value), along);
        QCOMPARE(geometry.pixel(geometry.along(value), 3), pixel);
    }

    void placesLabels_data()
    {
        // numbers: minimum, median, maximum
        columns<QVector<double>, QVector<int>>("numbers", "expected");

        const int hidden = LabelPlaces::kHidden;
        // 30 pixels of label each on an axis of 200 pixels with 20 before and 10 after it.
        row("outer two give way", QVector<double>{99, 100, 101}, QVector<int>{46, 80, 114});
        row("one value, one label", QVector<double>{60, 60, 60}, QVector<int>{hidden, 40, hidden});
        row("kept inside", QVector<double>{0, 100, 205}, QVector<int>{-20, 80, 180});
        row("no room left of the median", QVector<double>{0, 5, 150}, QVector<int>{hidden, -15, 130});
        row("no room right of the median", QVector<double>{50, 195, 200}, QVector<int>{30, 175, hidden});
    }

    void placesLabels()
    {
        QFETCH(QVector<double>, numbers);
        const BoxPlotGeometry geometry{QSize(230, 60), QMargins(20, 0, 10, 20), false, 0.0, 200.0};
        const LabelPlaces places = placeLabels(
            geometry, {numbers.at(0), numbers.at(1), numbers.at(1), numbers.at(1), numbers.at(2)}, {30, 30, 30});
        QTEST(QVector<int>({places.minimum, places.median, places.maximum}), "expected");
    }

    void paintsPartsWhereTheyBelong_data()
    {
        columns<bool>("vertical");
        row("horizontal", false);
        row("vertical", true);
    }

    // 1 to 8 on an axis of 100 pixels from 0 to 10, 40 pixels thick: minimum at 10, Q1 at 30, median at 45, Q3 at 70,
    // maximum at 80.
    void paintsPartsWhereTheyBelong()
    {
        QFETCH(bool, vertical);
        BoxWhiskersWidget widget;
        widget.setVertical(vertical);
        widget.resize(vertical ? QSize(100, 130) : QSize(130, 100));
        if (vertical)
            widget.setMargins(25, 10, 35, 20);
        else
            widget.setMargins(20, 25, 10, 35);
        widget.setFillColor(kFill);
        widget.setAxisRange(0.0, 10.0);
        widget.set({8, 1, 7, 2, 6, 3, 5, 4});
        const QImage image = picture(widget);

        const auto at = [&](int along, int across) {
            return image.pixelColor(vertical ? QPoint(25 + across, 110 - along) : QPoint(20 + along, 25 + across));
        };
        const QColor black(Qt::black);
        const QColor &ground = theme::qColorLight;
        QCOMPARE(at(10, 5), black); // whisker ends: from 4 to 5 before the bottom of the plot
        QCOMPARE(at(10, 2), ground);
        QCOMPARE(at(80, 10), black);
        QCOMPARE(at(15, 20), black); // the line between them
        QCOMPARE(at(3, 20), ground);
        QCOMPARE(at(30, 10), black); // box
        QCOMPARE(at(70, 10), black);
        QCOMPARE(at(50, 0), black);
        QCOMPARE(at(33, 10), kFill);
        QCOMPARE(at(50, 20), kFill); // hides the whisker line
        QCOMPARE(at(45, 10), black); // median
    }

    void clipsWhatLiesOutside()
    {
        BoxWhiskersWidget widget;
        widget.resize(130, 60);
        widget.setMargins(20, 0, 10, 20);
        widget.setFillColor(kFill);
        widget.setAxisRange(3.0, 6.0);
        widget.set({1, 2, 3, 4, 5, 6, 7, 8});
        const QImage image = picture(widget);
        QCOMPARE(countOf(image, kFill, QRect(0, 0, 19, 40)), 0);
        QCOMPARE(countOf(image, kFill, QRect(121, 0, 9, 40)), 0);
        QVERIFY(countOf(image, kFill, QRect(20, 0, 100, 40)) > 2000);

        widget.setAxisRange(100.0, 200.0); // all of it below the axis: neither whiskers nor box
        QCOMPARE(countOf(picture(widget), theme::qColorLight, QRect(22, 0, 98, 40)), 98 * 40);
    }

    void survivesOddInput_data()
    {
        columns<QList<double>, double, double, QSize>("values", "axisMinimum", "axisMaximum", "size");

        row("empty", QList<double>{}, 0.0, 0.0, QSize(100, 60));
        row("inverted axis", QList<double>{1, 2}, 10.0, -10.0, QSize(100, 60));
        row("smaller than its margins", QList<double>{1, 2}, 0.0, 1.0, QSize(5, 5));
        row("huge values", QList<double>{-kHuge, kHuge}, -1.0, 1.0, QSize(100, 60));
        row("huge axis", QList<double>{1, 2}, -kHuge, kHuge, QSize(100, 60));
    }

    // Nothing to compare: the sanitizers find what goes wrong.
    void survivesOddInput()
    {
        QFETCH(QList<double>, values);
        QFETCH(double, axisMinimum);
        QFETCH(double, axisMaximum);
        QFETCH(QSize, size);
        for (const bool vertical : {false, true}) {
            BoxWhiskersWidget box;
            box.setVertical(vertical);
            box.setAxisRange(axisMinimum, axisMaximum);
            box.set(values);
            box.resize(size);
            picture(box);
            QVERIFY(box.axisMinimum() <= box.axisMaximum());
        }
        NormalDistributionWidget bell;
        bell.set(values);
        bell.resize(size);
        picture(bell);
        NormalBoxWidget figures;
        figures.set(values);
        picture(figures);
    }

    void labelsAreTheSameInEveryLanguage()
    {
        QVector<QImage> boxes;
        QVector<QImage> bells;
        for (const QLocale::Language language : {QLocale::German, QLocale::English}) {
            QLocale::setDefault(QLocale(language));
            BoxWhiskersWidget box;
            box.resize(240, 60);
            box.setAxisRange(0.0, 3.0);
            box.set({0.25, 1.5, 2.75});
            boxes << picture(box);
            NormalDistributionWidget bell;
            bell.resize(320, 180);
            bell.set({0.25, 1.5, 2.75});
            bells << picture(bell);
        }
        QCOMPARE(boxes.at(0), boxes.at(1));
        QCOMPARE(bells.at(0), bells.at(1));
    }

    void bellPeaksInTheMiddle()
    {
        NormalDistributionWidget widget;
        widget.setMargins(50, 10, 50, 30);
        widget.setCurveColor(Qt::red);
        widget.resize(301, 140);
        widget.set({-1.0, 1.0});
        const QImage image = picture(widget);
        const QColor red(Qt::red);
        QCOMPARE(image.pixelColor(150, 10), red); // density at the mean: top of the plot
        // One sigma is a sixth of 201 pixels; there the curve has fallen to exp(-1/2) of 100 pixels.
        QCOMPARE(image.pixelColor(183, 110 - 61), red);
        QCOMPARE(image.pixelColor(117, 110 - 61), red);
        QCOMPARE(image.pixelColor(150, 60), QColor(Qt::white));
        QCOMPARE(image.pixelColor(150, 110), QColor(Qt::black)); // base line
        QCOMPARE(image.pixelColor(20, 110), QColor(Qt::white));
        QCOMPARE(countOf(image, red, QRect(0, 0, 48, 140)), 0);
    }

    void bellOfEqualValuesIsALine()
    {
        NormalDistributionWidget widget;
        widget.setMargins(50, 10, 50, 30);
        widget.setCurveColor(Qt::red);
        widget.resize(301, 140);
        widget.set({4.0, 4.0, 4.0});
        const QImage image = picture(widget);
        QCOMPARE(image.pixelColor(150, 60), QColor(Qt::red));
        QCOMPARE(countOf(image, Qt::red, QRect(50, 0, 95, 140)), 0);
        widget.set({});
        QCOMPARE(countOf(picture(widget), Qt::red, widget.rect()), 0);
    }
};

QTEST_MAIN(BoxPlotTest)
#include "tst_boxplot.moc"
