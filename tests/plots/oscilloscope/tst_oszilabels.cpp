#include "app/stylesheets.h"
#include "plots/oscilloscope/labelmargin.h"
#include "plots/oscilloscope/osziwidget.h"
#include "plots/oscilloscope/plotgrid.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QApplication>
#include <QFontDatabase>
#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QScreen>
#include <QStaticText>

#include <functional>

namespace {

using Step = std::function<void(OsziWidget &)>;
constexpr int kClockGrid = 500; // milliseconds: whole and half seconds

QFont fontOf(int pixels)
{
    QFont font;
    font.setPixelSize(pixels);
    return font;
}

QImage onScreen(const QWidget &window)
{
    return window.screen()->grabWindow(window.winId()).toImage().convertToFormat(QImage::Format_RGB32);
}

/// A time label on an empty ground, where nothing cuts it off.
QImage wholeLabel(const QString &text, const QFont &font, const QColor &ground)
{
    QStaticText label(text);
    label.prepare(QTransform(), font);
    QImage image(qCeil(label.size().width()), qCeil(label.size().height()), QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.setFont(font);
    painter.drawStaticText(0, 0, label);
    return image;
}

/// The same, shades apart: where a glyph lies within its pixels depends on what was drawn before.
bool looksLike(const QImage &a, const QImage &b)
{
    constexpr int kShade = 32;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (qAbs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > kShade)
                return false;
        }
    }
    return a.size() == b.size();
}

/// The labels that differ from what they look like when they are whole. The first row is left out: it has the end of
/// the grid line.
QStringList cutLabels(const OsziWidget &plot)
{
    const QImage image = onScreen(plot);
    const PlotGeometry geometry = plot.plotGeometry();
    const QColor ground = image.pixelColor(62, geometry.bottom() + 5);
    QStringList cut;
    for (int time = kClockGrid; geometry.xOfTime(time) < plot.width() - 120; time += kClockGrid) {
        const QImage whole = wholeLabel(timeLabel(time), plot.font(), ground);
        const QRect place(QPoint(geometry.xOfTime(time) - 3, geometry.bottom()), whole.size());
        const QRect lower(0, 1, whole.width(), whole.height() - 1);
        if (!looksLike(image.copy(place).copy(lower), whole.copy(lower)))
            cut << timeLabel(time);
    }
    return cut;
}

} // namespace

Q_DECLARE_METATYPE(Step)

/// Labels in the fonts of style sheets, as in the program. Runs off-screen and in a real window.
class TestOsziLabels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QFontDatabase::addApplicationFont(":/fonts/Roboto-Regular.ttf"_s) >= 0);
        QLocale::setDefault(QLocale(QLocale::German));
        QApplication::setFont(fontOf(9)); // what a widget has before it gets the font of a style sheet
    }

    void cleanup()
    {
        qApp->setStyleSheet(QString());
        QLocale::setDefault(QLocale(QLocale::German));
    }

    void timeLabelsAreWhole_data()
    {
        columns<Step, Step>("beforeShowing", "whileShown");

        const Step nothing = [](OsziWidget &) {};
        const Step styled = [](OsziWidget &) { qApp->setStyleSheet(theme::styleApplication); };
        row("style sheet of the program", styled, nothing);
        row("measured before the style sheet", Step([](OsziWidget &plot) {
                (void)plot.plotGeometry();
                qApp->setStyleSheet(theme::styleApplication);
            }),
            nothing);
        row("style sheet while shown", nothing, styled);
        row("larger font while shown", nothing, Step([](OsziWidget &plot) { plot.setFont(fontOf(26)); }));
        row("style sheet taken away", styled, Step([](OsziWidget &) { qApp->setStyleSheet(QString()); }));
    }

    void timeLabelsAreWhole()
    {
        QFETCH(Step, beforeShowing);
        QFETCH(Step, whileShown);
        OsziWidget plot;
        plot.resize(700, 220);
        plot.setClock(10);
        plot.setZoom(3);
        plot.setClockGridAuto(false);
        plot.setClockGrid(kClockGrid);
        beforeShowing(plot);
        const int margin = plot.plotGeometry().margin; // as a page may ask for before its first paint
        plot.show();
        QVERIFY(QTest::qWaitForWindowExposed(&plot));
        QCOMPARE(plot.plotGeometry().margin, margin);
        QTRY_COMPARE(cutLabels(plot), QStringList());

        whileShown(plot);
        QTRY_COMPARE(cutLabels(plot), QStringList());
        QCOMPARE(plot.plotGeometry().margin, labelMargin(plot.font()));
    }

    /// Grid, time labels, end value and read-out look the same in every language.
    void onlyValueLabelsFollowTheLanguage()
    {
        const SampleList samples(300, 0.25);
        QVector<QImage> pictures;
        for (const QLocale::Language language : {QLocale::German, QLocale::English}) {
            QLocale::setDefault(QLocale(language));
            OsziWidget plot;
            plot.resize(700, 220);
            plot.setMaxValue(1.0);
            plot.setClock(10);
            plot.setCurve(0, &samples, Qt::blue, true);
            plot.highlightSingle(0);
            plot.showMouseMarker(200);
            pictures << plot.grab().toImage();
        }
        const QRect labels(0, 0, OsziWidget::kLeftMargin, 220);
        const QRect rest(OsziWidget::kLeftMargin, 0, 700 - OsziWidget::kLeftMargin, 220);
        QVERIFY(pictures.at(0).copy(labels) != pictures.at(1).copy(labels));
        QCOMPARE(pictures.at(0).copy(rest), pictures.at(1).copy(rest));
    }
};

QTEST_MAIN(TestOsziLabels)

#include "tst_oszilabels.moc"
