#include "kit/qtmaterialscrollbar.h"
#include "kit/qtmaterialstyle.h"
#include "kit/qtmaterialtheme.h"

#include <QtTest>

#include <limits>

namespace {

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

void moveMouse(QWidget &widget, const QPoint &position)
{
    QMouseEvent event(QEvent::MouseMove, position, Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&widget, &event);
}

} // namespace

class TestQtMaterialScrollBar : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void thumbOnTheTrack_data();
    void thumbOnTheTrack();
    void mouseScrolls_data();
    void mouseScrolls();
    void heldPageStopsAtTheMouse();
    void disabledTakesNoMouse();
    void hidesItselfOnlyOnWish();
    void widensInSightOnly();
};

void TestQtMaterialScrollBar::initTestCase()
{
    auto theme = std::make_unique<QtMaterialTheme>();
    for (const QString &key : QtMaterialTheme::keys())
        theme->setColor(key, Qt::darkBlue);
    QtMaterialStyle::instance().setTheme(std::move(theme));
}

void TestQtMaterialScrollBar::thumbOnTheTrack_data()
{
    QTest::addColumn<QVector<int>>("track"); // length, minimum, maximum, page
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("thumbLength");
    QTest::addColumn<int>("thumbStart");
    QTest::newRow("middle") << QVector<int>{200, 0, 100, 100} << 50 << 100 << 50;
    QTest::newRow("beyond the end") << QVector<int>{200, 0, 100, 100} << 170 << 100 << 100;
    QTest::newRow("never too short") << QVector<int>{200, 0, 100000, 1} << 100000 << 48 << 152;
    QTest::newRow("short bar") << QVector<int>{30, 0, 100, 10} << 100 << 15 << 15;
    QTest::newRow("no page") << QVector<int>{200, 0, 10, -5} << 5 << 48 << 76;
    QTest::newRow("nothing to scroll") << QVector<int>{200, 7, 7, 10} << 7 << 200 << 0;
    QTest::newRow("no length") << QVector<int>{0, 0, 10, 1} << 5 << 0 << 0;
    QTest::newRow("every int") << QVector<int>{248, kLowest, kHighest, kHighest} << kHighest << 83 << 165;
}

void TestQtMaterialScrollBar::thumbOnTheTrack()
{
    QFETCH(QVector<int>, track);
    QFETCH(int, value);
    QtMaterialScrollTrack bar;
    bar.length = track.at(0);
    bar.leastThumb = 48;
    bar.minimum = track.at(1);
    bar.maximum = track.at(2);
    bar.page = track.at(3);
    QTEST(bar.thumbLength(), "thumbLength");
    QTEST(bar.thumbStart(value), "thumbStart");
    QCOMPARE(bar.valueAt(-1000), bar.minimum);
    if (bar.isNeeded())
        QCOMPARE(bar.valueAt(kHighest), bar.maximum);
}

void TestQtMaterialScrollBar::mouseScrolls_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("rightToLeft");
    QTest::addColumn<int>("press"); // pixels from the thumb's middle, which is that of the bar
    QTest::addColumn<int>("move");
    QTest::addColumn<int>("value"); // of 0 to 100, from 50, by pages of 20
    for (const Qt::Orientation way : {Qt::Vertical, Qt::Horizontal}) {
        const char *name = way == Qt::Vertical ? "vertical" : "horizontal";
        QTest::addRow("%s drag", name) << way << false << 5 << 400 << 100;
        QTest::addRow("%s drag back", name) << way << false << -5 << -400 << 0;
        QTest::addRow("%s nudge", name) << way << false << 5 << 0 << 50;
        QTest::addRow("%s page on", name) << way << false << 140 << 0 << 70;
        QTest::addRow("%s page back", name) << way << false << -140 << 0 << 30;
    }
    QTest::addRow("RTL drag") << Qt::Horizontal << true << 0 << 400 << 0;
    QTest::addRow("RTL page") << Qt::Horizontal << true << 140 << 0 << 30;
    QTest::addRow("RTL vertical") << Qt::Vertical << true << 140 << 0 << 70;
}

void TestQtMaterialScrollBar::mouseScrolls()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(bool, rightToLeft);
    QFETCH(int, press);
    QFETCH(int, move);
    QtMaterialScrollBar bar(orientation);
    bar.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    bar.setPageStep(20);
    bar.setRange(0, 100);
    bar.setValue(50);
    bar.resize(orientation == Qt::Vertical ? QSize(20, 300) : QSize(300, 20));
    bar.show();
    const auto at = [&](int along) {
        return bar.thumbRect().center() + (orientation == Qt::Vertical ? QPoint(0, along) : QPoint(along, 0));
    };
    const QPoint from = at(press);
    const QPoint to = at(press + move);
    QTest::mousePress(&bar, Qt::LeftButton, {}, from);
    moveMouse(bar, to);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, to);
    QTEST(bar.value(), "value");
    QVERIFY(!bar.isSliderDown());
}

void TestQtMaterialScrollBar::heldPageStopsAtTheMouse()
{
    QtMaterialScrollBar bar(Qt::Vertical);
    bar.setPageStep(10);
    bar.setRange(0, 100);
    bar.resize(20, 300);
    bar.show();
    const QPoint target(10, 150);
    QTest::mousePress(&bar, Qt::LeftButton, {}, target);
    QTRY_VERIFY(bar.thumbRect().contains(target));
    const int reached = bar.value();
    QTest::qWait(200); // several repetitions
    QCOMPARE(bar.value(), reached);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, target);
}

void TestQtMaterialScrollBar::disabledTakesNoMouse()
{
    QtMaterialScrollBar bar(Qt::Vertical);
    bar.resize(20, 300);
    bar.show();
    QTest::mousePress(&bar, Qt::LeftButton, {}, bar.thumbRect().center());
    QVERIFY(bar.isSliderDown());
    bar.setEnabled(false);
    QVERIFY(!bar.isSliderDown());
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(10, 290));
    QCOMPARE(bar.value(), 0);
}

void TestQtMaterialScrollBar::hidesItselfOnlyOnWish()
{
    QWidget page;
    auto *bar = new QtMaterialScrollBar(Qt::Vertical, &page);
    page.show();
    bar->setRange(0, 0);
    QVERIFY(bar->isVisible() && bar->thumbRect().isEmpty());
    bar->setAutoHide(true);
    QVERIFY(!bar->isVisible());
    bar->setRange(0, 10);
    QVERIFY(bar->isVisible());
    bar->hide(); // someone else's wish
    bar->setRange(0, 0);
    bar->setRange(0, 10);
    QVERIFY(!bar->isVisible());

    QtMaterialScrollBar lonely;
    lonely.setAutoHide(true);
    lonely.setRange(0, 0);
    lonely.setRange(0, 10);
    QVERIFY(!lonely.isVisible()); // no window of its own
}

void TestQtMaterialScrollBar::widensInSightOnly()
{
    QtMaterialScrollBar bar(Qt::Vertical);
    bar.resize(20, 300);
    bar.show();
    const int slim = bar.thumbRect().width();
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(&bar, &enter);
    QVERIFY(bar.isAnimating());
    QTRY_VERIFY(!bar.isAnimating());
    QVERIFY(bar.thumbRect().width() > slim);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&bar, &leave);
    bar.hide();
    QVERIFY(!bar.isAnimating());
    QCOMPARE(bar.thumbRect().width(), slim);
}

QTEST_MAIN(TestQtMaterialScrollBar)

#include "tst_qtmaterialscrollbar.moc"
