#include "app/startup.h"
#include "app/theme.h"
#include "kit/qtmaterialstyle.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QFontInfo>
#include <QSplashScreen>
#include <QtTest>

/// Runs on a font configuration without any font, so that an installed Roboto cannot stand in for the resources.
class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fontsComeFromTheResources_data();
    void fontsComeFromTheResources();
    void kitThemeColors_data();
    void kitThemeColors();
    void projectPathNeedsExactlyOneArgument_data();
    void projectPathNeedsExactlyOneArgument();
    void deviceAddressPrefersTheEnvironment_data();
    void deviceAddressPrefersTheEnvironment();
    void splashIsWideAndGoneAfterItsTime();
};

void TestStartup::initTestCase()
{
    QVERIFY(!QFontDatabase().families().contains(QStringLiteral("Roboto")));
    prepareApplication(*qApp);
}

void TestStartup::fontsComeFromTheResources_data()
{
    QTest::addColumn<int>("weight");
    QTest::addColumn<QString>("style");
    QTest::newRow("regular") << int(QFont::Normal) << QStringLiteral("Regular");
    QTest::newRow("medium") << int(QFont::Medium) << QStringLiteral("Medium");
    QTest::newRow("bold") << int(QFont::Bold) << QStringLiteral("Bold");
}

void TestStartup::fontsComeFromTheResources()
{
    QFETCH(int, weight);
    QFETCH(QString, style);
    const QFontInfo found(QFont(QStringLiteral("Roboto"), 12, weight));
    QCOMPARE(found.family(), QStringLiteral("Roboto"));
    QCOMPARE(found.weight(), weight);
    QVERIFY(QFontDatabase().styles(QStringLiteral("Roboto")).contains(style));
}

void TestStartup::kitThemeColors_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("primary1") << QColor(0x23, 0x72, 0xa4);
    QTest::newRow("primary2") << QColor(0x00, 0x97, 0xa7);
    QTest::newRow("accent1") << QColor(0x23, 0x72, 0xa4);
    QTest::newRow("accent2") << QColor(0xf5, 0xf5, 0xf5);
    QTest::newRow("accent3") << QColor(0x9e, 0x9e, 0x9e);
    QTest::newRow("text") << QColor(0x23, 0x72, 0xa4);
    QTest::newRow("alternateText") << QColor(0xff, 0xff, 0xff);
    QTest::newRow("canvas") << QColor(0xff, 0xff, 0xff);
    QTest::newRow("border") << QColor(0xe0, 0xe0, 0xe0);
    QTest::newRow("disabled3") << QColor(0xe0, 0xe0, 0xe0);
    for (const char *black : {"primary3", "disabled", "disabled2"})
        QTest::newRow(black) << QColor(0, 0, 0);
}

void TestStartup::kitThemeColors()
{
    QFETCH(QColor, color);
    const QColor found = QtMaterialStyle::instance().themeColor(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(found.rgb() & RGB_MASK, color.rgb() & RGB_MASK);
    QCOMPARE(found.alpha() < 255, color == QColor(Qt::black)); // every black of the theme is transparent in part
    QVERIFY(found.alpha() > 0);
}

void TestStartup::projectPathNeedsExactlyOneArgument_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("path");
    const QString program = QStringLiteral("ventaro");
    const QString file = QStringLiteral("a file.vnt");
    QTest::newRow("none") << QStringList{program} << QString();
    QTest::newRow("one") << QStringList{program, file} << file;
    QTest::newRow("two") << QStringList{program, file, file} << QString();
    QTest::newRow("not even the program") << QStringList{} << QString();
}

void TestStartup::projectPathNeedsExactlyOneArgument()
{
    QFETCH(QStringList, arguments);
    QTEST(projectPath(arguments), "path");
}

void TestStartup::deviceAddressPrefersTheEnvironment_data()
{
    QTest::addColumn<QByteArray>("environment");
    QTest::addColumn<QString>("address");
    QTest::newRow("not set") << QByteArray() << theme::defaultDeviceAddress;
    QTest::newRow("blank") << QByteArray(" ") << theme::defaultDeviceAddress;
    QTest::newRow("set") << QByteArray("127.0.0.1 ") << QStringLiteral("127.0.0.1");
}

void TestStartup::deviceAddressPrefersTheEnvironment()
{
    QFETCH(QByteArray, environment);
    qputenv("VENTARO_DEVICE_ADDRESS", environment);
    QTEST(theme::deviceAddress(), "address");
    qunsetenv("VENTARO_DEVICE_ADDRESS");
}

void TestStartup::splashIsWideAndGoneAfterItsTime()
{
    QSplashScreen splash;
    QElapsedTimer timer;
    timer.start();
    showSplash(splash, std::chrono::milliseconds(50));
    QVERIFY(timer.elapsed() >= 50);
    QCOMPARE(splash.pixmap().width(), 1200);
    QVERIFY(splash.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(!splash.isVisible());
}

int main(int argc, char *argv[])
{
    qputenv("FONTCONFIG_FILE", VENTARO_TEST_DATA "/app/no-fonts.conf");
    QApplication application(argc, argv);
    TestStartup test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_startup.moc"
