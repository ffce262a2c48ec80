#include "tools/scp-bridge/script.h"

#include <QtTest>

namespace {

const QString kOpen = QStringLiteral("open pi:secret@192.168.4.1 -hostkey=* ");

} // namespace

class TestScpScript : public QObject
{
    Q_OBJECT

private slots:
    void arguments_data();
    void arguments();
    void scripts_data();
    void scripts();
    void account();
};

void TestScpScript::arguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("commands");
    const QStringList both{QStringLiteral("open a b "), QStringLiteral("exit")};
    QTest::newRow("one text") << QStringList(QStringLiteral("/command \"open a b \" \"exit\"")) << both;
    QTest::newRow("arguments") << QStringList{QStringLiteral("/command"), both[0], both[1]} << both;
    QTest::newRow("quoted arguments") << QStringList{QStringLiteral("/command"), QStringLiteral("\"open a b \""),
                                                     QStringLiteral("\"exit\"")}
                                      << both;
    QTest::newRow("not closed") << QStringList(QStringLiteral("/command \"open a b")) << QStringList();
    QTest::newRow("something else") << QStringList{QStringLiteral("/log"), QStringLiteral("x")} << QStringList();
    QTest::newRow("nothing") << QStringList() << QStringList();
    QTest::newRow("blank") << QStringList(QStringLiteral(" ")) << QStringList();
}

void TestScpScript::arguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, commands);
    QCOMPARE(scriptCommands(arguments).value_or(QStringList()), commands);
}

void TestScpScript::scripts_data()
{
    QTest::addColumn<QStringList>("commands");
    QTest::addColumn<QString>("batch"); // empty: an error
    const auto row = [](const char *name, const QString &command, const char *batch) {
        QTest::newRow(name) << QStringList{kOpen, command, QStringLiteral("exit")} << QString::fromLatin1(batch);
    };
    row("get", QStringLiteral("get -preservetime /media/usbstick/data/dir-20240305"),
        "get -r -p \"/media/usbstick/data/dir-20240305\"\n");
    row("put", QStringLiteral("put -preservetime /fw/a.tgz /media/usbstick/"),
        "put -p \"/fw/a.tgz\" \"/media/usbstick/\"\n");
    row("without times", QStringLiteral("put /fw/a.tgz /media/"), "put  \"/fw/a.tgz\" \"/media/\"\n");
    row("blanks", QStringLiteral("put -preservetime /my fw/a 8.tgz /media/"),
        "put -p \"/my fw/a 8.tgz\" \"/media/\"\n");
    row("quoted for sftp", QStringLiteral("put -preservetime /a\\n\"!rm /media/"),
        "put -p \"/a\\\\n\\\"!rm\" \"/media/\"\n");
    row("two lines", QStringLiteral("put -preservetime /a\n!rm /media/"), "");
    row("no target", QStringLiteral("put -preservetime /a"), "");
    row("no source", QStringLiteral("get -preservetime "), "");
    row("unknown option", QStringLiteral("put -preservetime -delete /a /media/"), "");
    row("unknown command", QStringLiteral("rm /a"), "");
    QTest::newRow("not opened") << QStringList{QStringLiteral("get /a")} << QString();
    QTest::newRow("nothing moved") << QStringList{kOpen, QStringLiteral("exit")} << QString();
    QTest::newRow("two moves") << QStringList{kOpen, QStringLiteral("get /a"), QStringLiteral("get /b")} << QString();
    for (const char *open : {"open", "open pi@host", "open pi:x@ho st", "open :x@host", "open -o:x@host",
                             "open pi:x@-host", "open pi:x@host -rawsettings"})
        QTest::newRow(open) << QStringList{QString::fromLatin1(open), QStringLiteral("get /a")} << QString();
}

void TestScpScript::scripts()
{
    QFETCH(QStringList, commands);
    QFETCH(QString, batch);
    const TransferScript script = parseScript(commands);
    QCOMPARE(script.error.isEmpty(), !batch.isEmpty());
    if (!batch.isEmpty())
        QCOMPARE(sftpBatch(script), batch);
}

void TestScpScript::account()
{
    const TransferScript script = parseScript({QStringLiteral("open pi:s@:c@box"), QStringLiteral("get /a")});
    QCOMPARE(script.error, QString());
    QCOMPARE(script.password, QStringLiteral("s@:c"));
    const QStringList strict = sftpArguments(script, 2200);
    QCOMPARE(strict.last(), QStringLiteral("pi@box"));
    QVERIFY(strict.contains(QStringLiteral("2200")));
    QVERIFY(strict.contains(QStringLiteral("StrictHostKeyChecking=yes")));
    QCOMPARE(strict.filter(script.password), QStringList());
    const TransferScript any = parseScript({kOpen, QStringLiteral("get /a")});
    QVERIFY(sftpArguments(any, 22).contains(QStringLiteral("StrictHostKeyChecking=no")));
}

QTEST_GUILESS_MAIN(TestScpScript)
#include "tst_scpscript.moc"
