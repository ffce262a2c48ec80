#include "rig.h"

#include "app/theme.h"
#include "device/mesotraconnector.h"
#include "device/scptransfer.h"
#include "tests/support/faketool.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"
#include "view/blackbox/tabblackbox.h"
#include "view/box/updatedialog.h"

#include <QtWidgets>

namespace {

/// Leaves two logger files and another one in the directory that the argument text names.
const QByteArray kFetches = "day=${1##*/data/}; day=${day%%\\\"*}; echo a >\"$day/b.bb\"; echo a >\"$day/a.bb\"; "
                            "echo a >\"$day/readme\"; ";

ControllerOptions optionsFor(const FakeTool &tool, const QTemporaryDir &folder, int finishTimeout = 20000)
{
    ControllerOptions options;
    options.deviceAddress = "192.168.4.1"_s;
    options.scpToolFile = tool.file();
    options.scpTimeouts = {2000, finishTimeout, 200};
    options.temporaryDirectory = folder.filePath("tmp-blackbox-dir"_s);
    options.restartWait = 200;
    return options;
}

/// The program with a tool that does what the test wants; three days are ticked.
struct Transfers
{
    explicit Transfers(const QByteArray &script, int finishTimeout = 20000)
        : tool(script)
        , bench(optionsFor(tool, folder, finishTimeout))
    {
        tab()->setList({"dir-20240305"_s, "dir-20240306"_s, "dir-20240307"_s});
        click("buttonSelectAll");
    }
    [[nodiscard]] TabBlackBox *tab() const { return bench.view.tabBlackBox(); }
    void click(const char *button) const { tab()->findChild<QPushButton *>(QLatin1String(button))->click(); }
    [[nodiscard]] QString target() const { return folder.filePath("tmp-blackbox-dir"_s); }
    [[nodiscard]] QStringList titles() const
    {
        QStringList result;
        for (const ScriptedPrompts::Shown &message : bench.prompts->messages)
            result.append(message.title);
        return result;
    }
    /// True if nothing is left of a transfer but its files.
    [[nodiscard]] bool isOver() const
    {
        return !QApplication::overrideCursor() && !bench.view.isProgressShown() && !tool.isRunning()
               && tab()->findChild<QPushButton *>("buttonFetch"_s)->isEnabled();
    }

    QTemporaryDir folder;
    FakeTool tool;
    Bench bench;
};

} // namespace

class TestTransfers : public QObject
{
    Q_OBJECT

private slots:
    void fetchesTheDays()
    {
        Transfers transfers(kFetches);
        const LogCapture log;
        transfers.click("buttonFetch");
        QCOMPARE(transfers.tool.arguments().size(), 3);
        const auto expected = "open pi:%1@192.168.4.1 -hostkey=* \" \"get -preservetime "
                              "/media/usbstick/data/dir-2024030%2\""_s;
        for (int i = 0; i < 3; ++i)
            QVERIFY(
                transfers.tool.arguments().at(i).contains(expected.arg(theme::devicePassword, QString::number(7 - i))));
        QCOMPARE(transfers.tool.folders(), QVector<QString>(3, QDir(transfers.target()).canonicalPath()).toList());
        QVERIFY(log.contains("dirListToFetch:"_s));
        QCOMPARE(log.count("New file:"_s), 6);
        const QStringList files = transfers.tab()->selectedFiles();
        QVERIFY(files.contains(transfers.target() + "/box-192.168.4.1/dir-20240307/a.bb"_s));
        QVERIFY(transfers.isOver());
        QVERIFY(transfers.titles().isEmpty());
    }

    void firstFailureAsksWhetherToGoOn_data()
    {
        columns<int, int, QString>("answer", "runs", "told");
        row("go on", 0, 4, "04.03.2024\n03.03.2024");
        row("leave out", 1, 2, "");
        row("closed", int(Choice::kClosed), 2, "");
    }

    void firstFailureAsksWhetherToGoOn()
    {
        QFETCH(int, answer);
        QFETCH(QString, told);
        Transfers transfers("case \"$1\" in *0305*) exit 1;; *030[34]*) kill -SEGV $$;; esac; " + kFetches);
        transfers.tab()->setList({"dir-20240303"_s, "dir-20240304"_s, "dir-20240305"_s, "dir-20240306"_s});
        transfers.click("buttonSelectAll");
        transfers.bench.prompts->choices = {answer};
        const LogCapture log;
        transfers.click("buttonFetch");
        QTEST(transfers.tool.arguments().size(), "runs");
        QCOMPARE(transfers.bench.prompts->asked.size(), std::size_t{1});
        const Choice &asked = transfers.bench.prompts->asked.front();
        QCOMPARE(asked.title, "SCP Problem"_s);
        QVERIFY(asked.text.startsWith("SCP was NOT successful!!"_s) && asked.hint.contains(u'2'));
        QCOMPARE(transfers.titles(), told.isEmpty() ? QStringList() : QStringList("Problem"_s));
        QVERIFY(told.isEmpty() || transfers.bench.prompts->messages.front().text.endsWith(told));
        QCOMPARE(log.count("New file:"_s), 2); // of the day that came before
        QVERIFY(transfers.isOver());
    }

    void takesAsManyAttemptsAsBringSomething_data()
    {
        columns<int, int, QString, QStringList>("most", "runs", "state", "titles");
        row("to the end", 2, 3, "geladen", QStringList());
        row("stuck", 1, 3, "teilweise", QStringList("Problem"_s));
    }

    void takesAsManyAttemptsAsBringSomething()
    {
        QFETCH(int, most);
        QFETCH(QString, state);
        // Each attempt brings a file, up to the most; the one that finds 2 files ends.
        Transfers transfers("day=${1##*/data/}; day=${day%%\\\"*}; n=$(ls \"$day\" | wc -l); echo 3 files, 3 to fetch; "
                            "if [ $n -le "
                                + QByteArray::number(most)
                                + " ]; then echo $n >\"$day/$n.bb\"; fi; if [ $n -lt 2 ]; then exec sleep 30; fi; "
                                + (most < 2 ? "exec sleep 30" : ""),
                            700);
        transfers.tab()->setList({"dir-20240305"_s});
        transfers.click("buttonSelectAll");
        QStringList shown;
        QTimer looks;
        QObject::connect(&looks, &QTimer::timeout, &looks,
                         [&] { shown << transfers.tab()->findChild<QLabel *>("labelProgress"_s)->text(); });
        looks.start(100);
        transfers.click("buttonFetch");
        QTEST(transfers.tool.arguments().size(), "runs");
        QTEST(transfers.titles(), "titles");
        QVERIFY2(shown.contains("0 von 1 · 1 von 3 Dateien"_s), qPrintable(shown.join(u'|')));
        const auto *days = transfers.tab()->findChild<QTableView *>("tableDays"_s)->model();
        QCOMPARE(days->index(0, 2).data().toString(), state);
        QCOMPARE(transfers.tab()->selectedFiles().size(), most + 1);
        QVERIFY(transfers.isOver());
    }

    /// What was here of the box that had the address before is neither offered nor mixed with the other one's.
    void otherBoxAtTheAddress()
    {
        Transfers transfers("mkdir -p dir-20240305; echo A >dir-20240305/a.bb");
        transfers.tab()->setList({"dir-20240305"_s});
        transfers.click("buttonSelectAll");
        transfers.click("buttonFetch");
        QCOMPARE(transfers.tab()->selectedFiles().size(), 1);
        transfers.tool.setScript("[ -e seen ] || echo 'host key changed: 192.168.4.1: SHA256:old -> SHA256:new'; "
                                 "touch seen; echo B >dir-20240305/b.bb");
        transfers.click("buttonFetch");
        QCOMPARE(transfers.titles(), QStringList("Andere Box?"_s));
        QCOMPARE(transfers.tab()->selectedFiles(),
                 QStringList(transfers.target() + "/box-192.168.4.1/dir-20240305/b.bb"_s));
    }

    void leavingTheBoxEmptiesThePage()
    {
        Transfers transfers(kFetches);
        transfers.click("buttonFetch");
        QVERIFY(!transfers.tab()->selectedFiles().isEmpty());
        emit transfers.bench.view.connectToAddress("127.0.0.1"_s);
        QVERIFY(transfers.tab()->list().isEmpty());
        QVERIFY(transfers.tab()->selectedFiles().isEmpty());
    }

    void stopsWithoutAFolder()
    {
        Transfers transfers(kFetches);
        writeFile(transfers.target(), {}); // a file where the folder belongs
        transfers.click("buttonFetch");
        QCOMPARE(transfers.titles(), QStringList("Problem"_s));
        QVERIFY(transfers.tool.arguments().isEmpty());
        QVERIFY(transfers.isOver());
    }

    void isShownAndCanBeCancelled()
    {
        Transfers transfers("exec sleep 30");
        QString shown;
        Qt::CursorShape cursor = Qt::ArrowCursor;
        QTimer::singleShot(300, &transfers.bench.view, [&] {
            shown = transfers.bench.view.findChild<QLabel *>("labelProgress"_s)->text();
            for (const QLabel *label : transfers.bench.view.findChildren<QLabel *>("labelProgress"_s))
                shown += label->text();
            cursor = QApplication::overrideCursor() ? QApplication::overrideCursor()->shape() : Qt::ArrowCursor;
            transfers.click("buttonFetch"); // disabled, and refused in any case
            transfers.bench.controller.onTabBlackBox_fetchBlackBoxDataClicked();
            transfers.bench.view.findChild<QPushButton *>("buttonCancelProgress"_s)->click();
        });
        transfers.click("buttonFetch");
        QVERIFY2(shown.contains("Dateien übertragen..."_s), qPrintable(shown));
        QCOMPARE(cursor, Qt::WaitCursor);
        QCOMPARE(transfers.tool.arguments().size(), 1);
        QVERIFY(transfers.isOver());
        QVERIFY(transfers.titles().isEmpty());
    }

    void programStaysWhileFetching()
    {
        Transfers transfers("sleep 0.3; " + kFetches);
        QTimer::singleShot(150, &transfers.bench.view, [&] {
            emit transfers.bench.view.quit();
            emit transfers.bench.view.newProject();
            emit transfers.bench.view.firmwareUpdate();
            transfers.bench.say("run=1");
            transfers.bench.say("0;1;2;3;4;5"); // samples are taken all the same
            transfers.bench.controller.connectionError(QAbstractSocket::RemoteHostClosedError);
        });
        transfers.click("buttonFetch");
        QVERIFY(transfers.bench.prompts->questions.empty());
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(transfers.tool.arguments().size(), 3);
        QCOMPARE(transfers.bench.firstSamples(), QVector<double>{1.0});
        QVERIFY(transfers.titles().isEmpty());
        QTRY_COMPARE(transfers.titles(), QStringList("Netzwerk Fehler"_s)); // afterwards
    }

    void localFolder()
    {
        Transfers transfers(kFetches);
        QTemporaryDir source;
        for (const char *name : {"b.bb", "a.bb", "c.txt"})
            writeFile(source.filePath(QLatin1String(name)), name);
        transfers.bench.prompts->folders = {source.path()};
        transfers.click("buttonOpenFolder");
        QCOMPARE(QDir(transfers.target()).entryList(QDir::Files), (QStringList{"a.bb"_s, "b.bb"_s}));
        const QTemporaryDir other;
        writeFile(other.filePath("a.bb"_s), "another shot");
        writeFile(other.filePath("b.bb"_s), "b.bb");
        writeFile(source.filePath("b.bb"_s), "grown");
        transfers.bench.prompts->folders = {other.path(), source.path()};
        transfers.click("buttonOpenFolder"); // must not replace what the tab offers
        transfers.click("buttonOpenFolder");
        QStringList contents;
        for (const char *name : {"a.bb", "a-2.bb", "b.bb"})
            contents += QString::fromLatin1(contentOf(QDir(transfers.target()).filePath(QLatin1String(name))));
        QCOMPARE(contents, (QStringList{"a.bb"_s, "another shot"_s, "grown"_s}));
        QCOMPARE(QDir(transfers.target()).entryList(QDir::Files).size(), 3);
    }

    void largeLocalFolder()
    {
        Transfers transfers(kFetches);
        constexpr int kFiles = 3000;
        const QTemporaryDir source;
        for (int i = 0; i < kFiles; ++i)
            writeFile(source.filePath("%1.bb"_s.arg(i)),
                      QByteArray("A=[1,2,3,4,5]\n").repeated(500) + QByteArray::number(i));
        QDir().mkpath(transfers.target() + "/7.bb.part"_s); // cannot be written to
        transfers.bench.prompts->folders = {source.path()};
        QElapsedTimer turn;
        qint64 longest = 0;
        int turns = 0;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            longest = std::max(longest, turn.restart());
            ++turns;
            emit transfers.bench.view.quit(); // has to wait
        });
        timer.start(0);
        turn.start();
        QElapsedTimer clock;
        clock.start();
        transfers.click("buttonOpenFolder");
        qInfo() << kFiles << "files in" << clock.elapsed() << "ms, longest time without an event" << longest << "ms";
        QVERIFY(turns > 3);
        QCOMPARE(transfers.tab()->selectedFiles().size(), kFiles - 1);
        QCOMPARE(QDir(transfers.target()).entryList(QDir::Files).size(), kFiles - 1);
        QCOMPARE(transfers.titles(), QStringList("Problem"_s));
        QVERIFY(transfers.bench.prompts->messages.front().text.contains("7.bb: "_s));
        QVERIFY(transfers.bench.prompts->questions.empty());
        QVERIFY(transfers.isOver());
    }

    void cancelledLocalFolder()
    {
        Transfers transfers(kFetches);
        const QTemporaryDir source;
        for (int i = 0; i < 2000; ++i)
            writeFile(source.filePath("%1.bb"_s.arg(i)), "A=[1,2,3,4,5]\n");
        transfers.bench.prompts->folders = {source.path()};
        QTimer::singleShot(0, &transfers.bench.view, [&] { emit transfers.bench.view.progressCancelled(); });
        transfers.click("buttonOpenFolder");
        const int copied = transfers.tab()->selectedFiles().size();
        QVERIFY2(copied < 2000, qPrintable(QString::number(copied)));
        QVERIFY(transfers.titles().isEmpty());
        QVERIFY(transfers.isOver());
    }

    /// The box goes away after the command and comes back; the program says so, offers to connect and waits for it.
    void firmwareAndRestart()
    {
        BoxOptions boxOptions;
        boxOptions.rebootPause = 1500;
        BoxSimulator box(boxOptions);
        QVERIFY(box.listen());
        const FakeTool tool("exit 0");
        const QTemporaryDir folder;
        ControllerOptions options = optionsFor(tool, folder);
        options.deviceAddress = "127.0.0.1"_s;
        options.port = box.port();
        Bench bench(options);
        emit bench.view.connectDisconnect();
        QTRY_VERIFY(bench.model.isConnected());
        auto *action = bench.view.findChild<QAction *>("actionFirmwareUpdate"_s);
        QVERIFY(action && action->isVisible() && action->isEnabled());
        bench.prompts->openNames = {"/fw/box-8.tgz"_s};
        bench.prompts->addresses = {"127.0.0.1"_s};
        QTimer::singleShot(0, &bench.view, [&] {
            auto *dialog = qobject_cast<UpdateDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->onSelectFile();
            dialog->onUpload();
            dialog->onRestart();
            QTRY_VERIFY(!bench.model.isConnected());
            QVERIFY(bench.prompts->messages.empty()); // waits until the dialog is closed
            dialog->accept();
        });
        action->trigger();
        QTRY_COMPARE(bench.prompts->addressDialogs, 1);
        QCOMPARE(bench.prompts->messages.back().text, "Die Mesotra Hardware ist nicht mehr erreichbar."_s);
        QVERIFY(bench.view.isProgressShown());
        QTRY_VERIFY(bench.model.isConnected());
        QCOMPARE(bench.prompts->addressDialogs, 1);
        QCOMPARE(bench.prompts->messages.size(), std::size_t{1});
        QVERIFY(!bench.view.isProgressShown());
        // Later errors are errors again.
        box.dropLink();
        QTRY_COMPARE(bench.prompts->messages.size(), std::size_t{2});
    }
};

QTEST_MAIN(TestTransfers)
#include "tst_transfers.moc"
