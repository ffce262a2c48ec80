#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tools/scp-bridge/script.h"

namespace {

const QString kOpen = "open pi:secret@192.168.4.1 -hostkey=* "_s;

} // namespace

class TestScpScript : public QObject
{
    Q_OBJECT

private slots:
    void arguments_data()
    {
        columns<QStringList, QStringList>("arguments", "commands");
        const QStringList both{"open a b "_s, "exit"_s};
        row("one text", QStringList("/command \"open a b \" \"exit\""_s), both);
        row("arguments", QStringList{"/command"_s, both[0], both[1]}, both);
        row("quoted arguments", QStringList{"/command"_s, "\"open a b \""_s, "\"exit\""_s}, both);
        row("not closed", QStringList("/command \"open a b"_s), QStringList());
        row("something else", QStringList{"/log"_s, "x"_s}, QStringList());
        row("nothing", QStringList(), QStringList());
        row("blank", QStringList(" "_s), QStringList());
    }

    void arguments()
    {
        QFETCH(QStringList, arguments);
        QTEST(scriptCommands(arguments).value_or(QStringList()), "commands");
    }

    void scripts_data()
    {
        // batch: empty: an error; "-": a get, which needs none
        columns<QStringList, QString>("commands", "batch");
        const auto move = [](const char *name, const QString &command, const char *batch) {
            row(name, QStringList{kOpen, command, "exit"_s}, QString::fromLatin1(batch));
        };
        move("get", "get -preservetime /media/usbstick/data/dir-20240305"_s, "-");
        move("put", "put -preservetime /fw/a.tgz /media/usbstick/"_s, "put -p \"/fw/a.tgz\" \"/media/usbstick/\"\n");
        move("without times", "put /fw/a.tgz /media/"_s, "put  \"/fw/a.tgz\" \"/media/\"\n");
        move("blanks", "put -preservetime /my fw/a 8.tgz /media/"_s, "put -p \"/my fw/a 8.tgz\" \"/media/\"\n");
        move("quoted for sftp", "put -preservetime /a\\n\"!rm /media/"_s, "put -p \"/a\\\\n\\\"!rm\" \"/media/\"\n");
        move("two lines", "put -preservetime /a\n!rm /media/"_s, "");
        move("no target", "put -preservetime /a"_s, "");
        move("no source", "get -preservetime "_s, "");
        move("unknown option", "put -preservetime -delete /a /media/"_s, "");
        move("unknown command", "rm /a"_s, "");
        row("not opened", QStringList{"get /a"_s}, QString());
        row("nothing moved", QStringList{kOpen, "exit"_s}, QString());
        row("two moves", QStringList{kOpen, "get /a"_s, "get /b"_s}, QString());
        for (const char *open : {"open", "open pi@host", "open pi:x@ho st", "open :x@host", "open -o:x@host",
                                 "open pi:x@-host", "open pi:x@host -rawsettings"})
            row(open, QStringList{QString::fromLatin1(open), "get /a"_s}, QString());
    }

    void scripts()
    {
        QFETCH(QStringList, commands);
        QFETCH(QString, batch);
        const TransferScript script = parseScript(commands);
        QCOMPARE(script.error.isEmpty(), !batch.isEmpty());
        if (!batch.isEmpty() && batch != "-"_s)
            QCOMPARE(sftpBatch(script), batch);
    }

    void account()
    {
        const TransferScript script = parseScript({"open pi:s@:c@box"_s, "get /a"_s});
        QCOMPARE(script.error, QString());
        QCOMPARE(script.password, "s@:c"_s);
        const QStringList strict = sftpArguments(script, 2200, "/known"_s);
        QCOMPARE(strict.last(), "pi@box"_s);
        QVERIFY(strict.contains("2200"_s));
        QVERIFY(strict.contains("StrictHostKeyChecking=yes"_s));
        QCOMPARE(strict.filter(script.password), QStringList());
    }

    void hostKeys_data()
    {
        columns<QString, QStringList>("file", "expected");
        row("remembered", "/my data/100%"_s,
            QStringList{"StrictHostKeyChecking=accept-new"_s, "UserKnownHostsFile=\"/my data/100%%\""_s});
        row("nowhere to remember", QString(),
            QStringList{"StrictHostKeyChecking=no"_s, "UserKnownHostsFile=/dev/null"_s});
    }

    void hostKeys()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, expected);
        const TransferScript any = parseScript({kOpen, "get /a"_s});
        for (const QString &option : expected) {
            QVERIFY(sftpArguments(any, 22, file).contains(option));
            QVERIFY(sshArguments(any, 22, file).contains(option));
        }
    }
};

QTEST_GUILESS_MAIN(TestScpScript)
#include "tst_scpscript.moc"
