#include "device/hostaddress.h"
#include "device/samplingperiod.h"

#include <QTest>

class TestAddresses : public QObject
{
    Q_OBJECT

private slots:
    void validatesHostAddresses_data();
    void validatesHostAddresses();
    void translatesPeriods_data();
    void translatesPeriods();
};

void TestAddresses::validatesHostAddresses_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("valid");
    for (const char *address : {"192.168.4.1", "0.0.0.0", "255.255.255.255", "localhost", "box", "box-2.hall3.example",
                                "3com.net", "1.2.3.box", "a", "X"})
        QTest::newRow(address) << QString::fromLatin1(address) << true;
    for (const char *address : {"",
                                " ",
                                "192.168.4",
                                "192.168.4.256",
                                "192.168.4.1.1",
                                "192.168.04.1",
                                "1.2.3.4 ",
                                " box",
                                "12",
                                "-box",
                                "box-",
                                "box..net",
                                ".box",
                                "box.",
                                "b_x",
                                "b x",
                                "box:2222",
                                "http://box",
                                "1.2.3.4/24",
                                "999999999999.1.1.1",
                                "b\nx",
                                "::1"})
        QTest::newRow(address) << QString::fromLatin1(address) << false;
    QTest::newRow("umlaut") << QStringLiteral("böx") << false;
    QTest::newRow("Arabic digits") << QStringLiteral("١.١.١.١") << false;
    QTest::newRow("label of 63") << QString(63, QLatin1Char('a')) << true;
    QTest::newRow("label of 64") << QString(64, QLatin1Char('a')) << false;
    QTest::newRow("name of 253") << QStringLiteral("a.").repeated(126) + QLatin1Char('a') << true;
    QTest::newRow("name of 255") << QStringLiteral("a.").repeated(127) + QLatin1Char('a') << false;
}

void TestAddresses::validatesHostAddresses()
{
    QFETCH(QString, address);
    QTEST(isValidHostAddress(address), "valid");
}

void TestAddresses::translatesPeriods_data()
{
    QTest::addColumn<int>("period");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("command");
    for (const int period : {1, 5, 10, 20, 25, 50, 100, 200, 250, 500, 1000}) {
        const QString number = QString::number(period);
        QTest::newRow(qPrintable(number))
            << period << number + QStringLiteral("ms") << QStringLiteral("t=%1\n").arg(number);
    }
    QTest::newRow("not offered") << 2 << QString() << QString();
    QTest::newRow("zero") << 0 << QString() << QString();
    QTest::newRow("negative") << -100 << QString() << QString();
}

void TestAddresses::translatesPeriods()
{
    QFETCH(int, period);
    QFETCH(QString, label);
    QTEST(samplingPeriodLabel(period), "label");
    QTEST(samplingPeriodCommand(label), "command");
    QCOMPARE(samplingPeriodLabels().contains(label), !label.isEmpty());
    for (const QString &wrong : {label.toUpper(), label + QLatin1Char(' '), QString::number(period)})
        QCOMPARE(samplingPeriodCommand(wrong), QString());
}

QTEST_APPLESS_MAIN(TestAddresses)
#include "tst_addresses.moc"
