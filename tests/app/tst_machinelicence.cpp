#include "app/machinelicence.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

class TestMachineLicence : public QObject
{
    Q_OBJECT

private slots:
    void check_data()
    {
        columns<QByteArray, QStringList, bool>("machineId", "licensed", "passes");

        // The published SHA-256 of "abc" and of the empty text.
        const QString abc = "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"_s;
        const QString nothing = "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"_s;
        const QString other = QString(64, QLatin1Char('0'));

        row("empty list", "abc"_ba, QStringList{}, true);
        row("second of two", "abc"_ba, QStringList{other, abc}, true);
        row("upper case and blanks", "abc"_ba, QStringList{u' ' + abc.toUpper() + u' '}, true);
        row("another machine", "abd"_ba, QStringList{other, abc}, false);
        row("part of the hash", "abc"_ba, QStringList{abc.left(63)}, false);
        row("blank entry", "abc"_ba, QStringList{QString()}, false);
        row("no id, its hash listed", QByteArray(), QStringList{nothing}, false);
    }

    void check()
    {
        QFETCH(QByteArray, machineId);
        QFETCH(QStringList, licensed);
        QTEST(isMachineLicensed(machineId, licensed), "passes");
    }
};

QTEST_APPLESS_MAIN(TestMachineLicence)

#include "tst_machinelicence.moc"
