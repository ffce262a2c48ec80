#include "device/scpcommand.h"
#include "device/scpprocess.h"

#include <QDir>
#include <QtTest>

namespace {

const ScpAccount kAccount{QStringLiteral("pi"), QStringLiteral("secret"), QStringLiteral("192.168.4.1")};

} // namespace

class TestScpCommand : public QObject
{
    Q_OBJECT

private slots:
    void commandText();
    void dates_data();
    void dates();
    void accounts_data();
    void accounts();
    void files_data();
    void files();
};

void TestScpCommand::commandText()
{
    ScpCommand fetch;
    fetch.program = scpToolFile(QStringLiteral("C:/Program Files/Ventaro"));
    fetch.arguments = scpFetchArguments(kAccount, QStringLiteral("dir-20240305"));
    QCOMPARE(fetch.program, QStringLiteral("C:/Program Files/Ventaro/winscp/winscp.com"));
    QCOMPARE(fetch.commandLine(),
             QStringLiteral("C:\\Program Files\\Ventaro\\winscp\\winscp.com /command \"open pi:secret@192.168.4.1 "
                            "-hostkey=* \" \"get -preservetime /media/usbstick/data/dir-20240305\" \"exit\""));
    QCOMPARE(scpUploadArguments(kAccount, QStringLiteral("D:/fw/box-8.tgz")),
             QStringLiteral("/command \"open pi:secret@192.168.4.1 -hostkey=* \" \"put -preservetime D:/fw/box-8.tgz "
                            "/media/usbstick/\" \"exit\""));
}

void TestScpCommand::dates_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("directory"); // empty: refused
    QTest::newRow("day") << QStringLiteral("05.03.2024") << QStringLiteral("dir-20240305");
    QTest::newRow("leap day") << QStringLiteral("29.02.2024") << QStringLiteral("dir-20240229");
    for (const char *bad : {"", "5.3.2024", "05.03.24", "05-03-2024", "31.02.2024", "00.00.0000", "05.03.2024 ",
                            "05.03.2024\" \"exit", "aa.bb.cccc", "+5.03.2024", "05.03.-024"})
        QTest::newRow(bad) << QString::fromLatin1(bad) << QString();
    QTest::newRow("digits of another script") << QStringLiteral("٠٥.٠٣.٢٠٢٤") << QString();
}

void TestScpCommand::dates()
{
    QFETCH(QString, date);
    QFETCH(QString, directory);
    const std::optional<QString> result = blackBoxDirectory(date);
    QCOMPARE(result.value_or(QString()), directory);
    QCOMPARE(result && isBlackBoxDirectory(*result), !directory.isEmpty());
}

void TestScpCommand::accounts_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("usable");
    const auto row = [](const char *name, const char *user, const char *password, const char *address, bool usable) {
        QTest::newRow(name) << QString::fromLatin1(user) << QString::fromLatin1(password)
                            << QString::fromLatin1(address) << usable;
    };
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

void TestScpCommand::accounts()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QString, address);
    QTEST(isUsableAccount({user, password, address}), "usable");
}

void TestScpCommand::files_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("name"); // empty: refused
    QTest::addColumn<QString>("folder");
    const auto row = [](const QString &file, const QString &name, const QString &folder = {}) {
        QTest::newRow(qPrintable(file)) << file << name << folder;
    };
    row(QStringLiteral("/home/öl/box-8.tgz"), QStringLiteral("/home/öl/box-8.tgz"));
    row(QStringLiteral("/my files/box.tgz"), QStringLiteral("./box.tgz"), QStringLiteral("/my files"));
    row(QStringLiteral("/a\"b/box.tgz"), QStringLiteral("./box.tgz"), QStringLiteral("/a\"b"));
    row(QStringLiteral("/my files/-delete"), QStringLiteral("./-delete"), QStringLiteral("/my files"));
    row(QStringLiteral("-delete.tgz"), QStringLiteral("./-delete.tgz"), QDir::currentPath());
    for (const char *bad : {"", "/fw/", "/fw/box 8.tgz", "/fw/a\".tgz", "/fw/a\n.tgz", "/fw/a\t.tgz", "/fw/a\x7f.tgz",
                            "/fw/*.tgz", "/fw/a?.tgz"})
        row(QString::fromLatin1(bad), QString());
    row(QStringLiteral("/fw/a\u00a0b.tgz"), QString()); // a blank that does not break
    row(QStringLiteral("/fw/a\u2028b.tgz"), QString()); // ends a line
}

void TestScpCommand::files()
{
    QFETCH(QString, file);
    QFETCH(QString, name);
    QFETCH(QString, folder);
    const ScpSource source = scpSource(file).value_or(ScpSource());
    QCOMPARE(source.name, name);
    QCOMPARE(source.workingDirectory, folder);
}

QTEST_GUILESS_MAIN(TestScpCommand)
#include "tst_scpcommand.moc"
