#include "rig.h"

#include "app/theme.h"
#include "device/mesotraconnector.h"
#include "device/scptransfer.h"
#include "tests/support/faketool.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "view/blackbox/tabblackbox.h"
#include "view/box/updatedialog.h"

#include <QtWidgets>

namespace {

/// Leaves two logger files and another one in the directory that the argument text names.
const QByteArray kFetches = "day=${1##*/data/}; day=${day%%\\\"*}; echo a >\"$day/b.bb\"; echo a >\"$day/a.bb\"; "
                            "echo a >\"$day/readme\"; ";

ControllerOptions optionsFor(const FakeTool &tool, const QTemporaryDir &folder)
{
    ControllerOptions options;
    options.deviceAddress = "192.168.4.1"_s;
    options.scpToolFile = tool.file();
    options.scpTimeouts = {2000, 20000, 200};
    options.temporaryDirectory = folder.filePath("tmp-blackbox-dir"_s);
    options.restartWait = 200;
    return options;
}

/// The program with a tool that does what the test wants; three days are ticked.
struct Transfers
{
    explicit Transfers(const QByteArray &script)
        : tool(script)
        , bench(optionsFor(tool, folder))
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
        QVERIFY(files.contains(transfers.target() + "/dir-20240307/a.bb"_s));
        QVERIFY(transfers.isOver());
        QVERIFY(transfers.titles().isEmpty());
    }

    void goesOnAfterADay()
    {
        Transfers transfers("case \"$1\" in *0306*) exit 1;; *0305*) kill -SEGV $$;; esac; " + kFetches);
        const LogCapture log;
        transfers.click("buttonFetch");
        QCOMPARE(transfers.tool.arguments().size(), 3);
        QCOMPARE(transfers.titles(), (QStringList{"SCP Problem"_s, "Problem"_s}));
        QCOMPARE(transfers.bench.prompts->warnings.size(), std::size_t{1});
        QCOMPARE(log.count("New file:"_s), 2);
        QVERIFY(transfers.isOver());
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
