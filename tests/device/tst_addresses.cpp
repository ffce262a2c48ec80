#include "device/hostaddress.h"

#include <QTest>

class TestAddresses : public QObject
{
    Q_OBJECT

private slots:
    void validatesHostAddresses_data();
    void validatesHostAddresses();
};

void TestAddresses::validatesHostAddresses_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("valid");
    for (const char *address : {"192.168.4.1", "0.0.0.0", "255.255.255.255", "localhost", "box", "box-2.hall3.example",
                                "3com.net", "1.2.3.box", "a", "X"})
        QTest::newRow(address) << QString::fromLatin1(address) << true;
    for (const char *address : {"",

                                "192.168.4", "192.168.4.256",

                                "192.168.04.1", "1.2.3.4 ",

                                "-box",

                                "box..net",

                                "box.",

                                "box:2222",

                                "1.2.3.4/24",

                                "b\nx", "::1"})
        QTest::newRow(address) << QString::fromLatin1(address) << false;
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

QTEST_APPLESS_MAIN(TestAddresses)
#include "tst_addresses.moc"
