#include "kit/material/qtmaterialscrollbar.h"
#include "tests/support/kittheme.h"
#include "tests/support/rows.h"

#include <QtTest>

#include <limits>

using Numbers = QVector<int>;

namespace {

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

} // namespace

class TestQtMaterialScrollBar : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useKitTheme(Qt::darkBlue); }

    void thumbOnTheTrack_data()
    {
        columns<Numbers, int, int, int>("track", "value", "thumbLength", "thumbStart"); // length, range, page
        row("middle", Numbers{200, 0, 100, 100}, 50, 100, 50);
        row("beyond the end", Numbers{200, 0, 100, 100}, 170, 100, 100);
        row("never too short", Numbers{200, 0, 100000, 1}, 100000, 48, 152);
        row("short bar", Numbers{30, 0, 100, 10}, 100, 15, 15);
        row("no page", Numbers{200, 0, 10, -5}, 5, 48, 76);
        row("nothing to scroll", Numbers{200, 7, 7, 10}, 7, 200, 0);
        row("no length", Numbers{0, 0, 10, 1}, 5, 0, 0);
        row("every int", Numbers{248, kLowest, kHighest, kHighest}, kHighest, 83, 165);
    }

    void thumbOnTheTrack()
    {
        QFETCH(Numbers, track);
        QFETCH(int, value);
        const QtMaterialScrollTrack bar{track.at(0), 48, track.at(1), track.at(2), track.at(3)};
        QTEST(bar.thumbLength(), "thumbLength");
        QTEST(bar.thumbStart(value), "thumbStart");
        QCOMPARE(bar.valueAt(-1000), bar.minimum);
        QCOMPARE(bar.valueAt(kHighest), bar.isNeeded() ? bar.maximum : bar.minimum);
    }

    void mouseScrolls_data()
    {
        // Pressed and moved: pixels, the first from the middle of bar and thumb. From 50 of 100, by pages of 20.
        columns<Qt::Orientation, bool, int, int, int>("orientation", "rightToLeft", "press", "move", "value");
        row("drag", Qt::Vertical, false, 5, 400, 100);
        row("drag back", Qt::Vertical, false, -5, -400, 0);
        row("nudge", Qt::Vertical, false, 5, 0, 50);
        row("page", Qt::Vertical, false, 140, 0, 70);
        row("page back", Qt::Vertical, false, -140, 0, 30);
        row("horizontal drag", Qt::Horizontal, false, 5, 400, 100);
        row("horizontal page", Qt::Horizontal, false, -140, 0, 30);
        row("RTL drag", Qt::Horizontal, true, 0, 400, 0);
        row("RTL page", Qt::Horizontal, true, 140, 0, 30);
        row("RTL vertical", Qt::Vertical, true, 140, 0, 70);
    }

    void mouseScrolls()
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
        const QPoint along = orientation == Qt::Vertical ? QPoint(0, 1) : QPoint(1, 0);
        const QPoint from = bar.thumbRect().center() + press * along;
        const QPoint to = from + move * along;
        QTest::mousePress(&bar, Qt::LeftButton, {}, from);
        QMouseEvent event(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&bar, &event);
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, to);
        QTEST(bar.value(), "value");
        QVERIFY(!bar.isSliderDown());
    }

    void heldPageStopsAtTheMouse()
    {
        QtMaterialScrollBar bar(Qt::Vertical);
        bar.resize(20, 300);
        const QPoint target(10, 150);
        QTest::mousePress(&bar, Qt::LeftButton, {}, target);
        QTRY_VERIFY(bar.thumbRect().contains(target));
        const int reached = bar.value();
        QTest::qWait(200); // several repetitions
        QCOMPARE(bar.value(), reached);
    }

    void disablingLetsGo()
    {
        QtMaterialScrollBar bar(Qt::Vertical);
        bar.resize(20, 300);
        QTest::mousePress(&bar, Qt::LeftButton, {}, bar.thumbRect().center());
        QVERIFY(bar.isSliderDown());
        bar.setEnabled(false);
        QVERIFY(!bar.isSliderDown());
    }

    void hidesItselfOnlyOnWish()
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
        bar->hide(); // hidden by the program
        bar->setRange(0, 0);
        bar->setRange(0, 10);
        QVERIFY(!bar->isVisible());
        QtMaterialScrollBar lonely;
        lonely.setAutoHide(true);
        lonely.setRange(0, 0);
        lonely.setRange(0, 10);
        QVERIFY(!lonely.isVisible()); // it must not open a window
    }

    void widensInSightOnly()
    {
        QtMaterialScrollBar bar(Qt::Vertical);
        bar.resize(20, 300);
        bar.show();
        const int slim = bar.thumbRect().width();
        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(&bar, &enter);
        QTRY_VERIFY(!bar.isAnimating() && bar.thumbRect().width() > slim);
        bar.hide();
        QVERIFY(!bar.isAnimating());
        QCOMPARE(bar.thumbRect().width(), slim);
    }
};

QTEST_MAIN(TestQtMaterialScrollBar)

#include "tst_qtmaterialscrollbar.moc"
