#include "app/startup.h"
#include "app/theme.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QtTest>

/// Runs on a font configuration without any font, so that an installed Roboto cannot stand in for the resources.
class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fontsComeFromTheResources_data();
    void fontsComeFromTheResources();
    void projectPathNeedsExactlyOneArgument_data();
    void projectPathNeedsExactlyOneArgument();
    void deviceAddressPrefersTheEnvironment_data();
    void deviceAddressPrefersTheEnvironment();
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

void TestStartup::projectPathNeedsExactlyOneArgument_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("path");
    const QString program = QStringLiteral("ventaro");
    const QString file = QStringLiteral("a file.vnt");
    QTest::newRow("none") << QStringList{program} << QString();
    QTest::newRow("one") << QStringList{program, file} << file;
    QTest::newRow("two") << QStringList{program, file, file} << QString();
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

int main(int argc, char *argv[])
{
    qputenv("FONTCONFIG_FILE", VENTARO_TEST_DATA "/app/no-fonts.conf");
    QApplication application(argc, argv);
    TestStartup test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_startup.moc"
