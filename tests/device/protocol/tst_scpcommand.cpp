#include "device/protocol/scpcommand.h"
#include "device/scpprocess.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QDir>

namespace {

const ScpAccount kAccount{"pi"_s, "secret"_s, "192.168.4.1"_s};

} // namespace

class TestScpCommand : public QObject
{
    Q_OBJECT

private slots:
    void commandText()
    {
        ScpCommand fetch;
        fetch.program = scpToolFile("C:/Program Files/Ventaro"_s);
        fetch.arguments = scpFetchArguments(kAccount, "dir-20240305"_s);
        QCOMPARE(fetch.program, "C:/Program Files/Ventaro/winscp/winscp.com"_s);
        QCOMPARE(fetch.commandLine(),
                 "C:\\Program Files\\Ventaro\\winscp\\winscp.com /command \"open pi:secret@192.168.4.1 "
                 "-hostkey=* \" \"get -preservetime /media/usbstick/data/dir-20240305\" \"exit\""_s);
        QCOMPARE(scpUploadArguments(kAccount, "D:/fw/box-8.tgz"_s),
                 "/command \"open pi:secret@192.168.4.1 -hostkey=* \" \"put -preservetime D:/fw/box-8.tgz "
                 "/media/usbstick/\" \"exit\""_s);
    }

    void dates_data()
    {
        // directory: empty: refused
        columns<QString, QString>("date", "directory");
        row("day", "05.03.2024", "dir-20240305");
        row("leap day", "29.02.2024", "dir-20240229");
        for (const char *bad : {"", "5.3.2024", "05.03.24", "05-03-2024", "31.02.2024", "00.00.0000", "05.03.2024 ",
                                "05.03.2024\" \"exit", "aa.bb.cccc", "+5.03.2024", "05.03.-024"})
            row(bad, QString::fromLatin1(bad), QString());
        row("digits of another script", "٠٥.٠٣.٢٠٢٤", QString());
    }

    void dates()
    {
        QFETCH(QString, date);
        QFETCH(QString, directory);
        const std::optional<QString> result = blackBoxDirectory(date);
        QCOMPARE(result.value_or(QString()), directory);
        QCOMPARE(result && isBlackBoxDirectory(*result), !directory.isEmpty());
    }

    void accounts_data()
    {
        columns<QString, QString, QString, bool>("user", "password", "address", "usable");
        row("address", "pi", "secret", "192.168.4.1", true);
        row("host name", "pi", "s@:c", "box-7.example", true);
        row("no address", "pi", "secret", "", false);
        row("option", "pi", "secret", "-hostkey", false);
        row("further words", "pi", "secret", "box -delete", false);
        row("further command", "pi", "secret", "box\" \"rm /\"", false);
        row("line feed", "pi", "secret", "box\nrm", false);
        row("user with password", "pi:x", "secret", "box", false);
        row("password of two words", "pi", "sec ret", "box", false);
        row("password with a quotation mark", "pi", "sec\"ret", "box", false);
    }

    void accounts()
    {
        QFETCH(QString, user);
        QFETCH(QString, password);
        QFETCH(QString, address);
        QTEST(isUsableAccount({user, password, address}), "usable");
    }

    void files_data()
    {
        // name: empty: refused
        columns<QString, QString, QString>("file", "name", "folder");
        const auto row = [](const QString &file, const QString &name, const QString &folder = {}) {
            ::row(qPrintable(file), file, name, folder);
        };
        row("/home/öl/box-8.tgz"_s, "/home/öl/box-8.tgz"_s);
        row("/my files/box.tgz"_s, "./box.tgz"_s, "/my files"_s);
        row("/a\"b/box.tgz"_s, "./box.tgz"_s, "/a\"b"_s);
        row("/my files/-delete"_s, "./-delete"_s, "/my files"_s);
        row("-delete.tgz"_s, "./-delete.tgz"_s, QDir::currentPath());
        for (const char *bad : {"", "/fw/", "/fw/box 8.tgz", "/fw/a\".tgz", "/fw/a\n.tgz", "/fw/a\t.tgz",
                                "/fw/a\x7f.tgz", "/fw/*.tgz", "/fw/a?.tgz"})
            row(QString::fromLatin1(bad), QString());
        row("/fw/a\u00a0b.tgz"_s, QString()); // a blank that does not break
        row("/fw/a\u2028b.tgz"_s, QString()); // ends a line
    }

    void files()
    {
        QFETCH(QString, file);
        QFETCH(QString, name);
        const ScpSource source = scpSource(file).value_or(ScpSource());
        QCOMPARE(source.name, name);
        QTEST(source.workingDirectory, "folder");
    }
};

QTEST_GUILESS_MAIN(TestScpCommand)
#include "tst_scpcommand.moc"
