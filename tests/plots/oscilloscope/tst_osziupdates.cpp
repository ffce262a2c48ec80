#include "plots/oscilloscope/osziwidget.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QScreen>
#include <QWindow>

#include <deque>
#include <random>

namespace {

constexpr int kCurves = 12;
constexpr int kHighlighted = 7;
using Random = std::mt19937;

double real(Random &random, double low, double high)
{
    return std::uniform_real_distribution<double>(low, high)(random);
}

int between(Random &random, int low, int high)
{
    return std::uniform_int_distribution<int>(low, high)(random);
}

void grow(Random &random, SampleList &samples, int count)
{
    for (; count > 0; --count)
        samples.append(real(random, 60.0, 200.0) + (between(random, 0, 40) ? 0.0 : 2000.0));
}

} // namespace

/// After partial updates, the screen shows the same as after painting the whole plot.
class TestOsziUpdates : public QObject
{
    Q_OBJECT

private slots:
    /// A busy plot on the screen.
    void init()
    {
        m_plot = new OsziWidget;
        m_plot->setStyleSheet("OsziWidget { background-color: white; }"_s);
        m_plot->resize(500, 220);
        m_plot->setVerticalMarkerCount(2);
        m_plot->setVerticalMarker(0, 150, Qt::darkGreen);
        m_plot->setVerticalMarker(1, 300, Qt::darkBlue);
        m_plot->setPhaseName(0, "Einspritzzeit"_s);
        m_plot->setPhaseName(1, "Nachdruckzeit"_s);
        m_plot->setHorizontalLineCount(1);
        m_plot->setHorizontalLine(0, 120.0, Qt::darkRed);
        m_lists.clear();
        for (int slot = 0; slot < kCurves; ++slot) {
            m_lists.emplace_back();
            grow(m_random, m_lists.back(), between(m_random, 20, 500));
            m_plot->setCurve(slot, &m_lists.back(), slot % 2 ? Qt::black : Qt::blue, true);
        }
        m_lists[kHighlighted].resize(30);
        m_plot->highlightSingle(kHighlighted);
        m_plot->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_plot));
        QCoreApplication::processEvents();
    }

    void cleanup() { delete m_plot; }

    void growthShows_data()
    {
        columns<int, int, int>("slot", "zoom", "start");

        row("highlighted", kHighlighted, 1, 0);
        row("highlighted, scrolled", kHighlighted, 1, 40);
        row("highlighted, large zoom", kHighlighted, 150, 29);
        row("top-most", kCurves - 1, 1, 0);
        row("top-most, zoomed", kCurves - 1, 3, 10);
    }

    void growthShows()
    {
        QFETCH(int, slot);
        QFETCH(int, zoom);
        QFETCH(int, start);
        SampleList &samples = m_lists[size_t(slot)];
        samples.resize(30);
        m_plot->setZoom(zoom);
        m_plot->setStartIndex(start);
        m_plot->refresh();
        QCoreApplication::processEvents();
        for (int frame = 0; frame < 25; ++frame) {
            grow(m_random, samples, between(m_random, 1, 30));
            m_plot->samplesAppended();
            QCoreApplication::processEvents();
            QCOMPARE(onScreen(), repainted());
        }
    }

    void unexpectedGrowthShowsSoon()
    {
        for (const int slot : {2, 4})
            m_lists[size_t(slot)].resize(20);
        m_plot->refresh();
        QCoreApplication::processEvents();
        for (const int slot : {2, 4}) {
            grow(m_random, m_lists[size_t(slot)], 60);
            m_plot->samplesAppended();
            const QImage before = onScreen();
            QTRY_VERIFY_WITH_TIMEOUT(onScreen() != before, 2000);
            QCOMPARE(onScreen(), repainted());
        }
    }

    void scrollingShows()
    {
        for (const int start : {5, 6, 30, 29, 500, 20, -10, 0}) {
            m_plot->setStartIndex(start);
            QCoreApplication::processEvents();
            const QImage scrolled = onScreen();
            m_plot->refresh();
            QCOMPARE(scrolled, repainted());
        }
    }

private:
    [[nodiscard]] QImage onScreen() const
    {
        return m_plot->screen()->grabWindow(m_plot->winId()).toImage().convertToFormat(QImage::Format_RGB32);
    }
    [[nodiscard]] QImage repainted() const { return m_plot->grab().toImage().convertToFormat(QImage::Format_RGB32); }

    Random m_random{5};
    std::deque<SampleList> m_lists;
    OsziWidget *m_plot = nullptr;
};

QTEST_MAIN(TestOsziUpdates)

#include "tst_osziupdates.moc"
