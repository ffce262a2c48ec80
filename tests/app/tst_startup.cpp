#include "app/startup.h"
#include "app/theme.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>

/// Runs on a font configuration without any font, so that an installed Roboto cannot stand in for the resources.
class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(!QFontDatabase().families().contains("Roboto"_s));
        prepareApplication(*qApp);
    }

    void fontsComeFromTheResources_data()
    {
        columns<int, QString>("weight", "style");
        row("regular", int(QFont::Normal), "Regular");
        row("medium", int(QFont::Medium), "Medium");
        row("bold", int(QFont::Bold), "Bold");
    }

    void fontsComeFromTheResources()
    {
        QFETCH(int, weight);
        QFETCH(QString, style);
        const QFontInfo found(QFont("Roboto"_s, 12, weight));
        QCOMPARE(found.family(), "Roboto"_s);
        QCOMPARE(found.weight(), weight);
        QVERIFY(QFontDatabase().styles("Roboto"_s).contains(style));
    }

    void projectPathNeedsExactlyOneArgument_data()
    {
        columns<QStringList, QString>("arguments", "path");
        const QString program = "ventaro"_s;
        const QString file = "a file.vnt"_s;
        row("none", QStringList{program}, QString());
        row("one", QStringList{program, file}, file);
        row("two", QStringList{program, file, file}, QString());
    }

    void projectPathNeedsExactlyOneArgument()
    {
        QFETCH(QStringList, arguments);
        QTEST(projectPath(arguments), "path");
    }

    void deviceAddressPrefersTheEnvironment_data()
    {
        columns<QByteArray, QString>("environment", "address");
        row("not set", QByteArray(), theme::defaultDeviceAddress);
        row("blank", " "_ba, theme::defaultDeviceAddress);
        row("set", "127.0.0.1 "_ba, "127.0.0.1");
    }

    void deviceAddressPrefersTheEnvironment()
    {
        QFETCH(QByteArray, environment);
        qputenv("VENTARO_DEVICE_ADDRESS", environment);
        QTEST(theme::deviceAddress(), "address");
        qunsetenv("VENTARO_DEVICE_ADDRESS");
    }
};

int main(int argc, char *argv[])
{
    qputenv("FONTCONFIG_FILE", VENTARO_TEST_DATA "/app/no-fonts.conf");
    QApplication application(argc, argv);
    TestStartup test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_startup.moc"
