#include "device/protocol/hostaddress.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

class TestAddresses : public QObject
{
    Q_OBJECT

private slots:
    void validatesHostAddresses_data()
    {
        columns<QString, bool>("address", "valid");
        for (const char *address : {"192.168.4.1", "0.0.0.0", "255.255.255.255", "localhost", "box",
                                    "box-2.hall3.example", "3com.net", "1.2.3.box", "a", "X"})
            row(address, QString::fromLatin1(address), true);
        for (const char *address : {"",

                                    "192.168.4", "192.168.4.256",

                                    "192.168.04.1", "1.2.3.4 ",

                                    "-box",

                                    "box..net",

                                    "box.",

                                    "box:2222",

                                    "1.2.3.4/24",

                                    "b\nx", "::1"})
            row(address, QString::fromLatin1(address), false);
        row("Arabic digits", "١.١.١.١", false);
        row("label of 63", QString(63, QLatin1Char('a')), true);
        row("label of 64", QString(64, QLatin1Char('a')), false);
        row("name of 253", "a."_s.repeated(126) + QLatin1Char('a'), true);
        row("name of 255", "a."_s.repeated(127) + QLatin1Char('a'), false);
    }

    void validatesHostAddresses()
    {
        QFETCH(QString, address);
        QTEST(isValidHostAddress(address), "valid");
    }
};

QTEST_APPLESS_MAIN(TestAddresses)
#include "tst_addresses.moc"
