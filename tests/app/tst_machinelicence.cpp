#include "app/machinelicence.h"

#include <QtTest>

class TestMachineLicence : public QObject
{
    Q_OBJECT

private slots:
    void check_data();
    void check();
};

void TestMachineLicence::check_data()
{
    QTest::addColumn<QByteArray>("machineId");
    QTest::addColumn<QStringList>("licensed");
    QTest::addColumn<bool>("passes");

    // The published SHA-256 of "abc" and of the empty text.
    const QString abc = QStringLiteral("ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    const QString nothing = QStringLiteral("e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    const QString other = QString(64, QLatin1Char('0'));

    QTest::newRow("empty list") << QByteArray("abc") << QStringList{} << true;
    QTest::newRow("second of two") << QByteArray("abc") << QStringList{other, abc} << true;
    QTest::newRow("upper case and blanks") << QByteArray("abc") << QStringList{u' ' + abc.toUpper() + u' '} << true;
    QTest::newRow("another machine") << QByteArray("abd") << QStringList{other, abc} << false;
    QTest::newRow("part of the hash") << QByteArray("abc") << QStringList{abc.left(63)} << false;
    QTest::newRow("blank entry") << QByteArray("abc") << QStringList{QString()} << false;
    QTest::newRow("no id, its hash listed") << QByteArray() << QStringList{nothing} << false;
}

void TestMachineLicence::check()
{
    QFETCH(QByteArray, machineId);
    QFETCH(QStringList, licensed);
    QTEST(isMachineLicensed(machineId, licensed), "passes");
}

QTEST_APPLESS_MAIN(TestMachineLicence)

#include "tst_machinelicence.moc"
