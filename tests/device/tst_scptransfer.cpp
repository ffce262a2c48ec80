#include "device/scptransfer.h"
#include "tests/support/faketool.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"

Q_DECLARE_METATYPE(ScpOutcome)

namespace {

const QString kDay = "dir-20240305"_s;
const QString kHost = "127.0.0.1"_s;

/// A transfer with short waits, and everything that it reported.
struct Rig
{
    explicit Rig(const QByteArray &script)
        : tool(script)
    {
        options.toolFile = tool.file();
        options.user = "pi"_s;
        options.password = "secret"_s;
        options.timeouts = {2000, 10000, 200};
        transfer.setOptions(options);
        transfer.setSurroundings({[this](const ScpMessage &message) { messages.append(message); },
                                  [this](bool waiting) { waits.append(waiting); }});
    }
    void setFinishTimeout(int milliseconds)
    {
        options.timeouts.finish = milliseconds;
        transfer.setOptions(options);
    }
    [[nodiscard]] ScpOutcome fetch() { return transfer.fetch(kHost, kDay, folder.path()); }

    FakeTool tool;
    QTemporaryDir folder;
    ScpTransfer::Options options;
    ScpTransfer transfer;
    QVector<ScpMessage> messages;
    QVector<bool> waits;
};

} // namespace

class TestScpTransfer : public QObject
{
    Q_OBJECT

private slots:
    void endings_data()
    {
        columns<QByteArray, ScpOutcome, QString, QString, QString>("script", "outcome", "title", "text", "logged");
        const auto problem = "Problem"_s;
        row("failure", "echo out; echo err >&2; exit 1"_ba, ScpOutcome::Failed, "SCP Problem",
            "SCP was NOT successful!!\n\nPlease check output:out\n\n*******\nerr\n", "  StdErr:  err");
        row("crash", "kill -SEGV $$"_ba, ScpOutcome::Crashed, problem, "The tool stopped!", "exit code: ");
        const QString late = "SCP did not end (yet)!"_s;
        row("hang", "exec sleep 30"_ba, ScpOutcome::NotFinished, problem, late, QString());
        row("cannot be asked to end", "trap '' TERM; while :; do sleep 0.1; done"_ba, ScpOutcome::NotFinished, problem,
            late, QString());
        row("endless output", "exec cat /dev/zero"_ba, ScpOutcome::NotFinished, problem, late, QString());
    }

    void endings()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, logged);
        Rig rig(script);
        rig.setFinishTimeout(400);
        const LogCapture log;
        QTEST(rig.fetch(), "outcome");
        QCOMPARE(rig.messages.size(), 1);
        QTEST(rig.messages.front().title, "title");
        QTEST(rig.messages.front().text, "text");
        QCOMPARE(rig.messages.front().isWarning, rig.messages.front().title == "SCP Problem"_s);
        QCOMPARE(rig.waits, (QVector<bool>{true, false}));
        QVERIFY(!rig.tool.isRunning());
        QVERIFY(logged.isEmpty() || log.contains(logged));
        QCOMPARE(log.contains(QString(64, QLatin1Char('-'))), rig.messages.front().isWarning);
    }

    void missingTool()
    {
        Rig rig("");
        rig.options.toolFile = "/not/there/R&D<1>/winscp.com"_s;
        rig.transfer.setOptions(rig.options);
        QCOMPARE(rig.fetch(), ScpOutcome::NotStarted);
        QCOMPARE(rig.messages.size(), 1);
        const ScpMessage message = rig.messages.front();
        QCOMPARE(message.title, "Problem"_s);
        const auto begin = "The SCP tool could not be started!<br><br>Tool command: "
                           "\\not\\there\\R&D<1>\\winscp.com /command \"open pi:"_s;
        QCOMPARE(message.text.left(begin.size()), begin);
        QVERIFY(message.text.section("\"exit\"<br>Error: "_s, 1).size() > 5);
        QVERIFY(rig.waits.isEmpty());
    }

    void floodIsReadAndCut()
    {
        Rig rig("head -c 50000000 /dev/zero | tr '\\0' x; head -c 5000000 /dev/zero | tr '\\0' y >&2; exit 3");
        QCOMPARE(rig.fetch(), ScpOutcome::Failed);
        const QString text = rig.messages.value(0).text;
        QCOMPARE(text.count(QLatin1Char('x')), ChildScpProcess::kMaxOutput);
        QVERIFY(text.count(QLatin1Char('y')) >= ChildScpProcess::kMaxOutput);
        QVERIFY(text.size() < 3 * ChildScpProcess::kMaxOutput);
    }

    void eventsGoOn()
    {
        Rig rig("exec sleep 0.5");
        int ticks = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&ticks] { ++ticks; });
        timer.start(20);
        const std::clock_t before = std::clock();
        QCOMPARE(rig.fetch(), ScpOutcome::Done);
        QVERIFY2(ticks >= 8, qPrintable(QString::number(ticks)));
        QVERIFY2(std::clock() - before < CLOCKS_PER_SEC / 4, "the wait takes processor time");
    }

    /// Attempts follow each other as long as the caller wants; the message comes after the last one.
    void attempts()
    {
        Rig rig("echo once more; exec sleep 30");
        rig.setFinishTimeout(300);
        int left = 2;
        QByteArray said;
        const ScpOutcome outcome =
            rig.transfer.fetch(kHost, kDay, rig.folder.path(),
                               {[&said](const QByteArray &bytes) { said += bytes; }, [&left] { return left-- > 0; }});
        QCOMPARE(outcome, ScpOutcome::NotFinished);
        QCOMPARE(rig.tool.arguments().size(), 3);
        QCOMPARE(said, QByteArray("once more\n").repeated(3));
        QCOMPARE(rig.messages.size(), 1);
        QVERIFY(!rig.tool.isRunning());
    }

    void loginIsNoAddress()
    {
        for (const char *password : {"two words", "", "a\"b"}) {
            Rig rig("");
            rig.options.password = QLatin1String(password);
            rig.transfer.setOptions(rig.options);
            QCOMPARE(rig.fetch(), ScpOutcome::Refused);
            QVERIFY(rig.messages.value(0).text.contains("VENTARO_DEVICE_PASSWORD"_s));
            QVERIFY(*password == '\0' || !rig.messages.value(0).text.contains(QLatin1String(password)));
        }
    }

    void oneAtATime()
    {
        Rig rig("exec sleep 0.4");
        ScpOutcome second = ScpOutcome::Done;
        QTimer::singleShot(100, this, [&] { second = rig.transfer.upload(kHost, "/fw.tgz"_s); });
        QCOMPARE(rig.fetch(), ScpOutcome::Done);
        QCOMPARE(second, ScpOutcome::Refused);
        QCOMPARE(rig.messages.size(), 1);
        QCOMPARE(rig.tool.arguments().size(), 1);
        QVERIFY(!rig.transfer.isRunning());
    }

    void endedFromOutside_data()
    {
        columns<bool>("programEnds");
        row("cancelled", false);
        row("program ends", true);
    }

    void endedFromOutside()
    {
        QFETCH(bool, programEnds);
        Rig rig("exec sleep 30");
        ScpOutcome outcome = ScpOutcome::Done;
        QTimer::singleShot(0, this, [&] {
            outcome = rig.fetch();
            QCoreApplication::quit();
        });
        QTimer::singleShot(300, this, [&] { programEnds ? QCoreApplication::quit() : rig.transfer.cancel(); });
        QElapsedTimer clock;
        clock.start();
        QCoreApplication::exec();
        QVERIFY(clock.elapsed() < 5000);
        QCOMPARE(outcome, ScpOutcome::Cancelled);
        QCOMPARE(rig.waits, (QVector<bool>{true, false}));
        QVERIFY(rig.messages.isEmpty());
        QVERIFY(!rig.tool.isRunning());
    }

    void refusals()
    {
        Rig rig("");
        QCOMPARE(rig.transfer.fetch(kHost, "../dir-2024"_s, rig.folder.path()), ScpOutcome::Refused);
        QCOMPARE(rig.transfer.fetch("box -x"_s, kDay, rig.folder.path()), ScpOutcome::Refused);
        QCOMPARE(rig.transfer.fetch(QString(), kDay, rig.folder.path()), ScpOutcome::Refused);
        QCOMPARE(rig.transfer.upload(kHost, "/fw/a \"exit\".tgz"_s), ScpOutcome::Refused);
        QCOMPARE(rig.messages.size(), 4);
        QVERIFY(rig.tool.arguments().isEmpty());
        rig.options.defaultAddress = "192.168.4.1"_s;
        rig.transfer.setOptions(rig.options);
        QCOMPARE(rig.transfer.fetch(QString(), kDay, rig.folder.path()), ScpOutcome::Done);
        QVERIFY(rig.tool.arguments().value(0).contains("@192.168.4.1 "_s));
    }
};

QTEST_GUILESS_MAIN(TestScpTransfer)
#include "tst_scptransfer.moc"
