#include "kit/small/throttle.h"
#include "tests/support/rows.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <functional>

namespace {

constexpr int kInterval = 60; // ms

using Action = std::function<void(Throttle &)>;

} // namespace

Q_DECLARE_METATYPE(Action)

class TestThrottle : public QObject
{
    Q_OBJECT

private slots:
    void requestsAreBundled_data()
    {
        columns<Action, int, int, bool>("action", "atOnce", "atTheEnd", "pending");
        const auto ask = [](Throttle &throttle) { throttle.request(); };
        row("nothing asked", Action([](Throttle &) {}), 0, 0, false);
        row("first request", Action(ask), 0, 1, true);
        row("requests in between", Action([](Throttle &throttle) {
                for (int i = 0; i < 1000; ++i)
                    throttle.request();
            }),
            0, 1, true);
        row("cancelled", Action([](Throttle &throttle) {
                throttle.request();
                throttle.cancel();
            }),
            0, 0, false);
        row("asked again after cancelling", Action([](Throttle &throttle) {
                throttle.request();
                throttle.cancel();
                throttle.request();
            }),
            0, 1, true);
        row("flushed", Action([](Throttle &throttle) {
                throttle.request();
                throttle.flush();
            }),
            1, 1, false);
        row("flushed without a request", Action([](Throttle &throttle) { throttle.flush(); }), 0, 0, false);
        row("asked by the one who is told", Action([](Throttle &throttle) {
                QObject::connect(&throttle, &Throttle::due, &throttle, &Throttle::request);
                throttle.request();
                throttle.flush();
                throttle.disconnect(&throttle);
            }),
            1, 2, true);
    }

    void requestsAreBundled()
    {
        QFETCH(Action, action);
        Throttle throttle(kInterval, Qt::PreciseTimer);
        const QSignalSpy due(&throttle, &Throttle::due);
        action(throttle);
        QTEST(due.count(), "atOnce");
        QTEST(throttle.isPending(), "pending");
        QTest::qWait(4 * kInterval);
        QTEST(due.count(), "atTheEnd");
        QVERIFY(!throttle.isPending());
    }

    void intervalIsKept_data()
    {
        columns<int, int, int>("before", "after", "least"); // ms
        row("as made", kInterval, -1, kInterval);
        row("longer, for the next request", 1, kInterval, kInterval);
        row("next turn of the event loop", 0, -1, 0);
    }

    // The interval begins with the first request: later ones do not put due() off.
    void intervalIsKept()
    {
        QFETCH(int, before);
        QFETCH(int, after);
        QFETCH(int, least);
        Throttle throttle(before, Qt::PreciseTimer);
        if (after >= 0)
            throttle.setInterval(after);
        const QSignalSpy due(&throttle, &Throttle::due);
        QElapsedTimer clock;
        clock.start();
        throttle.request();
        while (due.isEmpty() && clock.elapsed() < 5000) {
            throttle.request();
            QTest::qWait(1);
        }
        QVERIFY2(!due.isEmpty() && clock.elapsed() >= least, qPrintable(QString::number(clock.elapsed())));
    }

    void aPendingRequestKeepsItsTime()
    {
        Throttle throttle(kInterval, Qt::PreciseTimer);
        const QSignalSpy due(&throttle, &Throttle::due);
        throttle.request();
        throttle.setInterval(3600000);
        QTRY_COMPARE(due.count(), 1);
        throttle.request();
        QTest::qWait(2 * kInterval);
        QCOMPARE(due.count(), 1);
    }
};

QTEST_MAIN(TestThrottle)
#include "tst_throttle.moc"
