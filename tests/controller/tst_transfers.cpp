#include "rig.h"

#include "app/theme.h"
#include "device/mesotraconnector.h"
#include "device/scptransfer.h"
#include "tests/support/faketool.h"
#include "tests/support/logcapture.h"
#include "view/tabblackbox.h"
#include "view/updatedialog.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>

namespace {

/// Leaves two logger files and another one in the directory that the argument text names.
const QByteArray kFetches = "day=${1##*/data/}; day=${day%%\\\"*}; echo a >\"$day/b.bb\"; echo a >\"$day/a.bb\"; "
                            "echo a >\"$day/readme\"; ";

ControllerOptions optionsFor(const FakeTool &tool, const QTemporaryDir &folder)
{
    ControllerOptions options;
    options.deviceAddress = QStringLiteral("192.168.4.1");
    options.scpToolFile = tool.file();
    options.scpTimeouts = {2000, 20000, 200};
    options.temporaryDirectory = folder.filePath(QStringLiteral("tmp-blackbox-dir"));
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
        tab()->setList(
            {QStringLiteral("dir-20240305"), QStringLiteral("dir-20240306"), QStringLiteral("dir-20240307")});
        click("buttonSelectAll");
    }
    [[nodiscard]] TabBlackBox *tab() const { return bench.view.tabBlackBox(); }
    void click(const char *button) const { tab()->findChild<QPushButton *>(QLatin1String(button))->click(); }
    [[nodiscard]] QString target() const { return folder.filePath(QStringLiteral("tmp-blackbox-dir")); }
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
               && tab()->findChild<QPushButton *>(QStringLiteral("buttonFetch"))->isEnabled();
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
    void fetchesTheDays();
    void goesOnAfterADay();
    void stopsWhereNothingCanWork_data();
    void stopsWhereNothingCanWork();
    void isShownAndCanBeCancelled();
    void programStaysWhileFetching();
    void localFolder();
    void firmwareAndRestart();
};

void TestTransfers::fetchesTheDays()
{
    Transfers transfers(kFetches);
    const LogCapture log;
    transfers.click("buttonFetch");
    QCOMPARE(transfers.tool.arguments().size(), 3);
    const auto expected = QStringLiteral("open pi:%1@192.168.4.1 -hostkey=* \" \"get -preservetime "
                                         "/media/usbstick/data/dir-2024030%2\"");
    for (int i = 0; i < 3; ++i)
        QVERIFY(transfers.tool.arguments().at(i).contains(expected.arg(theme::devicePassword, QString::number(7 - i))));
    QCOMPARE(transfers.tool.folders(), QVector<QString>(3, QDir(transfers.target()).canonicalPath()).toList());
    QVERIFY(log.contains(QStringLiteral("dirListToFetch:")));
    QCOMPARE(log.count(QStringLiteral("New file:")), 6);
    const QStringList files = transfers.tab()->selectedFiles();
    QVERIFY(files.contains(transfers.target() + QStringLiteral("/dir-20240307/a.bb")));
    QVERIFY(transfers.isOver());
    QVERIFY(transfers.titles().isEmpty());
}

void TestTransfers::goesOnAfterADay()
{
    Transfers transfers("case \"$1\" in *0306*) exit 1;; *0305*) kill -SEGV $$;; esac; " + kFetches);
    const LogCapture log;
    transfers.click("buttonFetch");
    QCOMPARE(transfers.tool.arguments().size(), 3);
    QCOMPARE(transfers.titles(), (QStringList{QStringLiteral("SCP Problem"), QStringLiteral("Problem")}));
    QCOMPARE(transfers.bench.prompts->warnings.size(), std::size_t{1});
    QCOMPARE(log.count(QStringLiteral("New file:")), 2);
    QVERIFY(transfers.isOver());
}

void TestTransfers::stopsWhereNothingCanWork_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("isToolThere");
    QTest::addColumn<bool>("isTargetFree");
    QTest::newRow("no tool") << QStringLiteral("box") << false << true;
    QTest::newRow("no address") << QString() << true << true;
    QTest::newRow("address of two words") << QStringLiteral("box -delete") << true << true;
    QTest::newRow("no folder") << QStringLiteral("box") << true << false;
}

void TestTransfers::stopsWhereNothingCanWork()
{
    QFETCH(QString, address);
    QFETCH(bool, isToolThere);
    QFETCH(bool, isTargetFree);
    Transfers transfers(kFetches);
    transfers.bench.controller.connector()->scp().setOptions(
        {isToolThere ? transfers.tool.file() : QStringLiteral("/not/there"), QStringLiteral("pi"), QStringLiteral("x"),
         address, ScpTimeouts{}});
    if (!isTargetFree) {
        QFile obstacle(transfers.target());
        QVERIFY(obstacle.open(QIODevice::WriteOnly));
    }
    transfers.click("buttonFetch");
    QCOMPARE(transfers.titles(), QStringList(QStringLiteral("Problem")));
    QVERIFY(transfers.tool.arguments().isEmpty());
    QVERIFY(transfers.isOver());
}

void TestTransfers::isShownAndCanBeCancelled()
{
    Transfers transfers("exec sleep 30");
    QString shown;
    Qt::CursorShape cursor = Qt::ArrowCursor;
    QTimer::singleShot(300, &transfers.bench.view, [&] {
        shown = transfers.bench.view.findChild<QLabel *>(QStringLiteral("labelProgress"))->text();
        for (const QLabel *label : transfers.bench.view.findChildren<QLabel *>(QStringLiteral("labelProgress")))
            shown += label->text();
        cursor = QApplication::overrideCursor() ? QApplication::overrideCursor()->shape() : Qt::ArrowCursor;
        transfers.click("buttonFetch"); // disabled, and refused in any case
        transfers.bench.controller.onTabBlackBox_fetchBlackBoxDataClicked();
        transfers.bench.view.findChild<QPushButton *>(QStringLiteral("buttonCancelProgress"))->click();
    });
    transfers.click("buttonFetch");
    QVERIFY2(shown.contains(QStringLiteral("Dateien übertragen...")), qPrintable(shown));
    QCOMPARE(cursor, Qt::WaitCursor);
    QCOMPARE(transfers.tool.arguments().size(), 1);
    QVERIFY(transfers.isOver());
    QVERIFY(transfers.titles().isEmpty());
}

void TestTransfers::programStaysWhileFetching()
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
    QTRY_COMPARE(transfers.titles(), QStringList(QStringLiteral("Netzwerk Fehler"))); // afterwards
}

void TestTransfers::localFolder()
{
    Transfers transfers(kFetches);
    QTemporaryDir source;
    for (const char *name : {"b.bb", "a.bb", "c.txt"}) {
        QFile file(source.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(name);
    }
    transfers.bench.prompts->folders = {source.path()};
    transfers.click("buttonOpenFolder");
    QCOMPARE(QDir(transfers.target()).entryList(QDir::Files),
             (QStringList{QStringLiteral("a.bb"), QStringLiteral("b.bb")}));
}

/// The box goes away after the command and comes back; the program says so, offers to connect and waits for it.
void TestTransfers::firmwareAndRestart()
{
    BoxOptions boxOptions;
    boxOptions.rebootPause = 1500;
    BoxSimulator box(boxOptions);
    QVERIFY(box.listen());
    const FakeTool tool("exit 0");
    const QTemporaryDir folder;
    ControllerOptions options = optionsFor(tool, folder);
    options.deviceAddress = QStringLiteral("127.0.0.1");
    options.port = box.port();
    Bench bench(options);
    emit bench.view.connectDisconnect();
    QTRY_VERIFY(bench.model.isConnected());
    auto *action = bench.view.findChild<QAction *>(QStringLiteral("actionFirmwareUpdate"));
    QVERIFY(action && action->isVisible() && action->isEnabled());
    bench.prompts->openNames = {QStringLiteral("/fw/box-8.tgz")};
    bench.prompts->addresses = {QStringLiteral("127.0.0.1")};
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
    QCOMPARE(bench.prompts->messages.back().text, QStringLiteral("Die Mesotra Hardware ist nicht mehr erreichbar."));
    QVERIFY(bench.view.isProgressShown());
    QTRY_VERIFY(bench.model.isConnected());
    QCOMPARE(bench.prompts->addressDialogs, 1);
    QCOMPARE(bench.prompts->messages.size(), std::size_t{1});
    QVERIFY(!bench.view.isProgressShown());
    // Later errors are errors again.
    box.dropLink();
    QTRY_COMPARE(bench.prompts->messages.size(), std::size_t{2});
}

QTEST_MAIN(TestTransfers)
#include "tst_transfers.moc"
