#include "app/programarguments.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

class TestProgramArguments : public QObject
{
    Q_OBJECT

private slots:
    void arguments_data()
    {
        columns<QStringList, QStringList, QString, bool>("given", "files", "answer", "isMistaken");
        row("nothing", QStringList(), QStringList(), QString(), false);
        row("a file", QStringList{"a b.vnt"_s}, QStringList{"a b.vnt"_s}, QString(), false);
        row("two files", QStringList{"a"_s, "b"_s}, QStringList{"a"_s, "b"_s}, QString(), false);
        row("a hyphen in front", QStringList{"./-a.vnt"_s}, QStringList{"./-a.vnt"_s}, QString(), false);
        row("behind --", QStringList{"--"_s, "-a.vnt"_s}, QStringList{"-a.vnt"_s}, QString(), false);
        row("help", QStringList{"--help"_s}, QStringList(), "./-Name"_s, false);
        row("short help and a file", QStringList{"a"_s, "-h"_s}, QStringList{"a"_s}, "--version"_s, false);
        row("version", QStringList{"-v"_s}, QStringList(), "Ventaro 8.0\n"_s, false);
        row("unknown", QStringList{"--hlep"_s}, QStringList(), "Unbekannte Option: --hlep\n"_s, true);
        row("name of a file", QStringList{"-a.vnt"_s}, QStringList(), "Unbekannte Option: -a.vnt\n"_s, true);
        row("a value too many", QStringList{"--help=x"_s}, QStringList(), "--version"_s, false);
    }

    void arguments()
    {
        QFETCH(QStringList, given);
        QFETCH(QString, answer);
        const ProgramArguments line(QStringList{"ventaro"_s} + given);
        QCOMPARE(line.arguments().value(0), "ventaro"_s);
        QTEST(QStringList(line.arguments().mid(1)), "files");
        QCOMPARE(line.answer().isEmpty(), answer.isEmpty());
        QVERIFY2(line.answer().contains(answer), qPrintable(line.answer()));
        QTEST(line.isMistaken(), "isMistaken");
    }

    void asksWithoutADisplay_data()
    {
        columns<QByteArray, bool>("argument", "isQuestion");
        row("help", "--help"_ba, true);
        row("short", "-v"_ba, true);
        row("file", "help"_ba, false);
        row("other option", "--helpful"_ba, false);
    }

    void asksWithoutADisplay()
    {
        QFETCH(QByteArray, argument);
        const std::array<const char *, 3> first{"ventaro", argument.constData(), "x"};
        const std::array<const char *, 3> behind{"ventaro", "--", argument.constData()};
        QTEST(ProgramArguments::isQuestion(3, first.data()), "isQuestion");
        QVERIFY(!ProgramArguments::isQuestion(3, behind.data()));
    }
};

QTEST_GUILESS_MAIN(TestProgramArguments)
#include "tst_programarguments.moc"
