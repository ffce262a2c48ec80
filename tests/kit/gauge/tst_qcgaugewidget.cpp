#include "kit/gauge/qcannouncer.h"
#include "kit/gauge/qcdegreesitem.h"
#include "kit/gauge/qcgaugewidget.h"
#include "kit/gauge/qcneedleitem.h"
#include "kit/gauge/qcscaleitem.h"
#include "kit/gauge/qcsensorgauge.h"
#include "kit/material/qtmaterialstyle.h"
#include "kit/material/qtmaterialtheme.h"

#include <QAccessible>
#include <QPaintEvent>
#include <QtTest>

#include <functional>
#include <limits>

namespace {

/// A gauge on a screen of any resolution.
class ScaledGauge : public QcGaugeWidget
{
public:
    int ratio = 1;

protected:
    int metric(PaintDeviceMetric kind) const override
    {
        if (kind == PdmDevicePixelRatio)
            return ratio;
        return kind == PdmDevicePixelRatioScaled ? qRound(ratio * devicePixelRatioFScale())
                                                 : QcGaugeWidget::metric(kind);
    }
};

using Action = std::function<void(ScaledGauge &)>;

void useTheme(const QColor &needle)
{
    auto theme = std::make_unique<QtMaterialTheme>();
    for (const QString &key : QtMaterialTheme::keys())
        theme->setColor(key, Qt::lightGray);
    theme->setColor(QStringLiteral("canvas"), Qt::white);
    theme->setColor(QStringLiteral("accent1"), needle);
    QtMaterialStyle::instance().setTheme(std::move(theme));
}

/// Records when it is painted.
class NotingItem : public QcItem
{
public:
    NotingItem(QChar name, QString &notes)
        : QcItem(50.0)
        , m_name(name)
        , m_notes(notes)
    {}
    void paint(QPainter &, const QcCanvas &, const QcReading &) const override { m_notes += m_name; }

private:
    QChar m_name;
    QString &m_notes;
};

class PaintedArea : public QObject
{
public:
    QRegion region;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }
};

} // namespace

Q_DECLARE_METATYPE(Action)

class TestQcGaugeWidget : public QObject
{
    Q_OBJECT

private slots:
    void init() { useTheme(Qt::darkBlue); }
    void stillPartsAreKept_data();
    void stillPartsAreKept();
    void partsArePaintedInOrder();
    void valueRepaintsLittle();
    void needleIsWhereTheValueIs_data();
    void needleIsWhereTheValueIs();
    void scaleHoldsForThePartsBehindIt();
    void marksHaveRoom_data();
    void marksHaveRoom();
    void needleMovesOnlyInSight();
    void trueValueIsSpoken();
    void screenReaderSeesADial();
    void announcesSparingly();
};

void TestQcGaugeWidget::stillPartsAreKept_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("painted"); // b: below the needle, a: above it
    const auto row = [](const char *name, const QString &painted, const Action &action) {
        QTest::newRow(name) << action << painted;
    };
    const QString all = QStringLiteral("ba");
    row("value", QString(), [](ScaledGauge &gauge) { gauge.setValue(70.0); });
    row("no value", QString(), [](ScaledGauge &gauge) { gauge.clearValue(); });
    row("held", QString(), [](ScaledGauge &gauge) { gauge.setHeld(10.0, 90.0); });
    row("same range", QString(), [](ScaledGauge &gauge) { gauge.setRange(0.0, 100.0); });
    const double nan = std::numeric_limits<double>::quiet_NaN();
    row("impossible bands", QString(), [nan](ScaledGauge &gauge) {
        gauge.setBands({{0.0, nan, Qt::red}, {0.0, 9.0, QColor()}});
    });
    row("needle", QString(), [](ScaledGauge &gauge) { gauge.parts().find<QcNeedleItem>()->setColor(Qt::red); });
    row("part below", QStringLiteral("b"),
        [](ScaledGauge &gauge) { gauge.parts().find<QcDegreesItem>()->setLength(9.0); });
    row("another step", all, [](ScaledGauge &gauge) { gauge.parts().find<QcScaleItem>()->setStep(25.0); });
    row("range", all, [](ScaledGauge &gauge) { gauge.setRange(0.0, 99.0); });
    row("bands", all, [](ScaledGauge &gauge) { gauge.setBands({{50.0, 60.0, Qt::red}}); });
    row("size", all, [](ScaledGauge &gauge) { gauge.resize(210, 200); });
    row("resolution", all, [](ScaledGauge &gauge) { gauge.ratio = 2; });
    row("theme", all, [](ScaledGauge &) { useTheme(Qt::red); });
    row("font", all, [](ScaledGauge &gauge) { gauge.setFont(QFont(QStringLiteral("Serif"))); });
    row("language", all, [](ScaledGauge &gauge) { gauge.setLocale(QLocale(QLocale::Arabic)); });
    row("stale", all, [](ScaledGauge &gauge) { gauge.setStale(true); });
    row("disabled", all, [](ScaledGauge &gauge) { gauge.setEnabled(false); });
}

void TestQcGaugeWidget::stillPartsAreKept()
{
    QFETCH(Action, action);
    QString notes;
    ScaledGauge gauge;
    gauge.setLocale(QLocale(QLocale::German));
    gauge.resize(200, 200);
    gauge.append<QcScaleItem>();
    gauge.append<QcDegreesItem>();
    gauge.append<NotingItem>(QLatin1Char('b'), notes);
    gauge.append<QcNeedleItem>();
    gauge.append<NotingItem>(QLatin1Char('a'), notes);
    gauge.setValue(30.0);
    (void)gauge.grab();
    QCOMPARE(notes, QStringLiteral("ba"));
    notes.clear();
    action(gauge);
    (void)gauge.grab();
    (void)gauge.grab();
    QTEST(notes, "painted");
}

void TestQcGaugeWidget::partsArePaintedInOrder()
{
    QString notes;
    QcGaugeWidget gauge;
    const auto order = [&] {
        notes.clear();
        (void)gauge.grab();
        return notes;
    };
    for (const char name : {'a', 'b', 'c', 'd'})
        gauge.append<NotingItem>(QLatin1Char(name), notes);
    gauge.parts().move(0, 2);
    QCOMPARE(order(), QStringLiteral("bcad"));
    gauge.parts().move(3, 0);
    gauge.parts().move(4, 0); // no such part
    QCOMPARE(order(), QStringLiteral("dbca"));
    std::unique_ptr<QcItem> taken = gauge.parts().take(1);
    taken->setVisible(false); // no longer affects the gauge
    QVERIFY(!gauge.parts().take(3) && !gauge.parts().at(-1));
    gauge.parts().insert(99, std::move(taken));
    QCOMPARE(order(), QStringLiteral("dca"));
    gauge.parts().at(3)->setVisible(true);
    gauge.parts().remove(0);
    QCOMPARE(order(), QStringLiteral("cab"));
}

void TestQcGaugeWidget::valueRepaintsLittle()
{
    const std::unique_ptr<QcGaugeWidget> gauge(qcgauge::createSensorGauge());
    gauge->resize(300, 300);
    gauge->setValue(52.0);
    gauge->show();
    QVERIFY(QTest::qWaitForWindowExposed(gauge.get()));
    PaintedArea painted;
    QTRY_VERIFY(!gauge->testAttribute(Qt::WA_PendingUpdate));
    QCoreApplication::processEvents();
    gauge->installEventFilter(&painted);
    gauge->setValue(53.0);
    QTRY_VERIFY(!painted.region.isEmpty());
    QVERIFY(painted.region.contains(QPoint(150, 60)));   // needle
    QVERIFY(painted.region.contains(QPoint(150, 225)));  // number
    QVERIFY(!painted.region.contains(QPoint(60, 150)));  // numerals on the left
    QVERIFY(!painted.region.contains(QPoint(240, 150))); // and right
    painted.region = QRegion();
    gauge->setValue(53.001); // too small a difference to be visible
    QCoreApplication::processEvents();
    QVERIFY(painted.region.isEmpty());
    for (int i = 1; i < 200; ++i) // but all of them together make one
        gauge->setValue(53.001 + i * 0.001);
    QTRY_VERIFY(painted.region.contains(QPoint(150, 60)));
}

void TestQcGaugeWidget::needleIsWhereTheValueIs_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("angle"); // where the needle is seen
    QTest::addColumn<bool>("colored");
    QTest::newRow("middle") << 50.0 << 0.0 << true;
    QTest::newRow("quarter") << 25.0 << -60.0 << true;
    QTest::newRow("end") << 100.0 << 120.0 << true;
    QTest::newRow("above the end") << 1e9 << 125.0 << true;
    QTest::newRow("below the beginning") << -3e5 << -125.0 << true;
    QTest::newRow("none") << std::numeric_limits<double>::quiet_NaN() << -125.0 << false;
}

void TestQcGaugeWidget::needleIsWhereTheValueIs()
{
    QFETCH(double, value);
    QFETCH(double, angle);
    QFETCH(bool, colored);
    const std::unique_ptr<QcGaugeWidget> gauge(qcgauge::createSensorGauge());
    gauge->resize(320, 300);
    gauge->setValue(10.0);
    (void)gauge->grab();
    gauge->setValue(value);
    const QImage seen = gauge->grab().toImage();
    const QcCanvas canvas = gauge->canvas(0);
    const auto isBlue = [&](double at) {
        const QColor color = seen.pixelColor(canvas.point(at, 70.0).toPoint());
        return color.blue() > color.red() + 80;
    };
    QCOMPARE(isBlue(angle), colored);
    QVERIFY(!isBlue(angle + 6.0) && !isBlue(angle - 6.0));
}

void TestQcGaugeWidget::scaleHoldsForThePartsBehindIt()
{
    QcGaugeWidget gauge;
    gauge.resize(400, 400);
    gauge.setRange(0.0, 10.0);
    gauge.append<QcScaleItem>()->setAngles(-90.0, 180.0);
    gauge.append<QcDegreesItem>();
    auto *inner = gauge.append<QcScaleItem>(50.0);
    gauge.append<QcDegreesItem>(40.0);
    inner->setOwnRange(0.0, 145.0);
    QCOMPARE(gauge.canvas(1).scale.sweep, 180.0);
    QCOMPARE(gauge.canvas(1).step, 1.0);
    QCOMPARE(gauge.canvas(3).scale.to, 145.0);
    QCOMPARE(gauge.canvas(3).step, 20.0);
    gauge.parts().remove(2);
    QCOMPARE(gauge.canvas(2).scale.to, 10.0);
}

void TestQcGaugeWidget::marksHaveRoom_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("least"); // of the step, for fonts of any width
    QTest::addColumn<double>("most");
    QTest::newRow("large") << 900 << 100.0 << 10.0 << 10.0;
    QTest::newRow("small") << 96 << 100.0 << 10.0 << 50.0;
    QTest::newRow("small, long numbers") << 96 << 1e6 << 2e5 << 1e6;
    QTest::newRow("tiny") << 12 << 1e6 << 5e5 << 1e6;
    QTest::newRow("empty range") << 300 << 0.0 << 0.0 << 0.0;
}

void TestQcGaugeWidget::marksHaveRoom()
{
    QFETCH(int, size);
    QFETCH(double, to);
    QFETCH(double, least);
    QFETCH(double, most);
    const std::unique_ptr<QcGaugeWidget> gauge(qcgauge::createSensorGauge());
    gauge->resize(size, size);
    gauge->setRange(0.0, to);
    const double step = gauge->canvas(gauge->parts().count() - 1).step;
    QVERIFY2(step >= least && step <= most, qPrintable(QString::number(step)));
    QVERIFY(!gauge->grab().isNull());
}

void TestQcGaugeWidget::needleMovesOnlyInSight()
{
    QcGaugeWidget gauge;
    gauge.append<QcScaleItem>();
    gauge.append<QcNeedleItem>();
    gauge.show();
    gauge.setValue(10.0);
    gauge.setValue(90.0);
    QVERIFY(!gauge.isOnTheWay()); // no damping
    gauge.setDamping(40);
    gauge.setValue(1e300); // far off the scale, but the needle moves only to the end
    QVERIFY(gauge.isOnTheWay() && gauge.reading().shown == 90.0);
    QTRY_VERIFY(!gauge.isOnTheWay());
    QCOMPARE(gauge.reading().shown, 1e300);
    gauge.setDamping(10000);
    gauge.setValue(20.0);
    gauge.hide();
    QVERIFY(!gauge.isOnTheWay() && gauge.reading().shown == 20.0);
    gauge.setValue(30.0);
    QVERIFY(!gauge.isOnTheWay());
    QCOMPARE(gauge.reading().shown, 30.0);
}

void TestQcGaugeWidget::trueValueIsSpoken()
{
    QcGaugeWidget gauge;
    gauge.setLocale(QLocale(QLocale::German));
    gauge.setDecimals(2);
    QCOMPARE(gauge.spokenValue(), QStringLiteral("kein Wert"));
    gauge.setUnit(QStringLiteral("bar"));
    gauge.setValue(-1234.5); // far below the scale
    QCOMPARE(gauge.spokenValue(), QStringLiteral("-1234,50 bar"));
    gauge.setStale(true);
    QCOMPARE(gauge.spokenValue(), QStringLiteral("-1234,50 bar, veraltet"));
    gauge.setValue(-std::numeric_limits<double>::infinity());
    QCOMPARE(gauge.spokenValue(), QStringLiteral("kein Wert"));
}

void TestQcGaugeWidget::screenReaderSeesADial()
{
    QcGaugeWidget gauge;
    gauge.setTitle(QStringLiteral("Druck"));
    gauge.setRange(250.0, -50.0);
    gauge.setValue(300.0);
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&gauge);
    QVERIFY(seen && seen->valueInterface());
    QCOMPARE(seen->role(), QAccessible::Dial);
    QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Druck"));
    QCOMPARE(seen->text(QAccessible::Value), gauge.spokenValue());
    QCOMPARE(seen->valueInterface()->currentValue().toDouble(), 300.0);
    QCOMPARE(seen->valueInterface()->minimumValue().toDouble(), -50.0);
    QCOMPARE(seen->valueInterface()->maximumValue().toDouble(), 250.0);
    seen->valueInterface()->setCurrentValue(7.0); // read only
    QCOMPARE(gauge.value(), 300.0);
    gauge.clearValue();
    QVERIFY(!seen->valueInterface()->currentValue().isValid());
    gauge.setAccessibleName(QStringLiteral("Düse"));
    QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Düse"));
}

void TestQcGaugeWidget::announcesSparingly()
{
    QcGaugeWidget gauge;
    gauge.setLocale(QLocale(QLocale::German));
    QStringList told;
    QcAnnouncer announcer(&gauge, [&told](const QString &text) { told.append(text); });
    announcer.changed(); // nobody sees it
    gauge.show();
    for (int i = 1; i <= 50; ++i) {
        gauge.setValue(i);
        announcer.changed();
    }
    QCOMPARE(told, QStringList(QStringLiteral("1,0")));
    QTRY_COMPARE(told.size(), 2); // the last value, when the pause is over
    announcer.changed();
    QCOMPARE(told.last(), QStringLiteral("50,0"));
}

QTEST_MAIN(TestQcGaugeWidget)
#include "tst_qcgaugewidget.moc"
