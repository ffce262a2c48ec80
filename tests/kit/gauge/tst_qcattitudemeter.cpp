#include "kit/gauge/qcattitudemeter.h"
#include "kit/material/qtmaterialstyle.h"
#include "kit/material/qtmaterialtheme.h"

#include <QAccessible>
#include <QtTest>

#include <limits>

class TestQcAttitudeMeter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void showsSkyAndGround_data();
    void showsSkyAndGround();
    void oddAnglesAreTamed();
};

void TestQcAttitudeMeter::initTestCase()
{
    auto theme = std::make_unique<QtMaterialTheme>();
    for (const QString &key : QtMaterialTheme::keys())
        theme->setColor(key, Qt::white);
    QtMaterialStyle::instance().setTheme(std::move(theme));
}

void TestQcAttitudeMeter::showsSkyAndGround_data()
{
    QTest::addColumn<double>("roll");
    QTest::addColumn<double>("pitch");
    QTest::addColumn<QString>("seen"); // S or G: above, right of, below and left of the middle
    QTest::newRow("level, a bit up") << 0.0 << 2.0 << QStringLiteral("SSGS");
    QTest::newRow("rolled right") << 45.0 << 0.0 << QStringLiteral("SGGS");
    QTest::newRow("rolled left") << -45.0 << 0.0 << QStringLiteral("SSGG");
    QTest::newRow("upside down") << 180.0 << 2.0 << QStringLiteral("GGSG");
    QTest::newRow("straight up") << 30.0 << 90.0 << QStringLiteral("SSSS");
    QTest::newRow("straight down") << 30.0 << -90.0 << QStringLiteral("GGGG");
}

void TestQcAttitudeMeter::showsSkyAndGround()
{
    QFETCH(double, roll);
    QFETCH(double, pitch);
    QcAttitudeMeter meter;
    meter.resize(200, 200);
    meter.setRoll(roll);
    meter.setPitch(pitch);
    const QImage image = meter.grab().toImage();
    QString seen;
    for (const QPoint &place : {QPoint(108, 43), QPoint(170, 92), QPoint(108, 157), QPoint(30, 92)}) {
        const QColor color = image.pixelColor(place);
        seen += QLatin1Char(color.blue() > color.red() ? 'S' : 'G');
    }
    QTEST(seen, "seen");
}

void TestQcAttitudeMeter::oddAnglesAreTamed()
{
    QcAttitudeMeter meter;
    meter.setLocale(QLocale(QLocale::German));
    meter.setRoll(-540.0);
    QCOMPARE(meter.roll(), 180.0);
    meter.setRoll(380.0);
    meter.setPitch(-100.0);
    meter.setRoll(std::numeric_limits<double>::quiet_NaN());
    meter.setPitch(std::numeric_limits<double>::infinity());
    QCOMPARE(meter.roll(), 20.0);
    QCOMPARE(meter.pitch(), -90.0);
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&meter);
    QCOMPARE(seen->role(), QAccessible::Indicator);
    QCOMPARE(seen->text(QAccessible::Value), QStringLiteral("Querneigung 20°, Längsneigung -90°"));
}

QTEST_MAIN(TestQcAttitudeMeter)
#include "tst_qcattitudemeter.moc"
