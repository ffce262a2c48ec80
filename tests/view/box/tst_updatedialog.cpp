#include "app/startup.h"
#include "device/mesotraconnector.h"
#include "device/scptransfer.h"
#include "model/model.h"
#include "simulator/boxsimulator.h"
#include "tests/support/faketool.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"
#include "tests/support/scriptedprompts.h"
#include "view/box/updatedialog.h"
#include "view/window/view.h"

#include <QLabel>
#include <QPushButton>

namespace {

const QString kFile = "/firmware/box-8.tgz"_s;
const QString kHost = "127.0.0.1"_s;
constexpr int kShortWait = 300;

/// The dialog over a window, with a box that may be reachable and a tool that does what the test wants.
struct Bench
{
    explicit Bench(const QByteArray &toolScript = "exit 0", bool boxListens = true)
        : tool(toolScript)
        , isListening(!boxListens || box.listen())
        , view(&model, scripted(prompts))
        , connector(boxListens ? box.port() : quint16{1})
        , dialog(
              &view, [this](const QString &title, const QString &filter) { return view.askOpenFile(title, filter); },
              &connector, kHost, kShortWait)
    {
        connector.scp().setOptions({tool.file(), "pi"_s, "secret"_s, kHost, ScpTimeouts{2000, 10000, 200}});
        connector.scp().setSurroundings({[this](const ScpMessage &message) { told.append(message.title); }, {}});
    }

    [[nodiscard]] QPushButton *button(const char *name) const
    {
        return dialog.findChild<QPushButton *>(QLatin1String(name));
    }
    [[nodiscard]] QString text(const char *label) const
    {
        return dialog.findChild<QLabel *>(QLatin1String(label))->text();
    }
    /// Which of the buttons can be pressed: Select, Upload, Reset, Cancel, OK.
    [[nodiscard]] QString enabled() const
    {
        QString letters;
        for (const char *name : {"buttonSelectFile", "buttonUpload", "buttonReset", "buttonCancel", "buttonOK"}) {
            if (button(name)->isEnabled())
                letters += QLatin1Char(name[6]);
        }
        return letters;
    }
    void chooseFile()
    {
        prompts->openNames = {kFile};
        button("buttonSelectFile")->click();
    }

    FakeTool tool;
    BoxSimulator box;
    bool isListening;
    ScriptedPrompts *prompts = nullptr; ///< owned by the view
    Model model{QString()};
    View view;
    MesotraConnector connector;
    UpdateDialog dialog;
    QStringList told;
};

} // namespace

class TestUpdateDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { prepareApplication(*qApp); }

    void selection()
    {
        Bench bench;
        const LogCapture log;
        bench.button("buttonSelectFile")->click(); // cancelled
        QVERIFY(log.contains(" filename is empty!"_s));
        QCOMPARE(bench.enabled(), "SC"_s);
        bench.chooseFile();
        QVERIFY(log.contains(" filename="_s + kFile));
        QCOMPARE(bench.prompts->fileDialogs.back(), "Firmware auswählen|Mesotra Firmware (*.tgz)"_s);
        QCOMPARE(bench.text("labelFilename"), kFile);
        QCOMPARE(bench.enabled(), "SUC"_s);
        bench.button("buttonSelectFile")->click(); // cancelled again: everything stays
        QCOMPARE(bench.dialog.fileName(), kFile);
        QCOMPARE(bench.enabled(), "SUC"_s);
    }

    void uploads_data()
    {
        columns<QByteArray, QString, QString, QStringList>("script", "result", "enabled", "told");
        row("success", "exit 0"_ba, "Hochladen erfolgreich.", "SURC", QStringList());
        row("failure", "exit 1"_ba, "Fehler beim Hochladen!", "SUC", QStringList("SCP Problem"_s));
    }

    void uploads()
    {
        QFETCH(QByteArray, script);
        Bench bench(script);
        bench.chooseFile();
        bench.dialog.show();
        bench.button("buttonUpload")->click();
        QVERIFY(bench.tool.arguments().value(0).contains("put -preservetime "_s + kFile));
        QTEST(bench.text("labelResult"), "result");
        QTEST(bench.enabled(), "enabled");
        QTEST(bench.told, "told");
        QVERIFY(bench.dialog.isVisible());
    }

    void cancelEndsTheUpload()
    {
        Bench bench("exec sleep 30");
        bench.chooseFile();
        bench.dialog.show();
        QString during;
        QTimer::singleShot(200, &bench.dialog, [&] {
            during = bench.enabled();
            bench.dialog.close();
            bench.button("buttonCancel")->click();
        });
        bench.button("buttonUpload")->click();
        QCOMPARE(during, "C"_s);
        QCOMPARE(bench.text("labelResult"), "Fehler beim Hochladen!"_s);
        QVERIFY(bench.dialog.isVisible());
        QVERIFY(!bench.tool.isRunning());
        QCOMPARE(bench.told, QStringList());
        bench.dialog.close();
        QVERIFY(!bench.dialog.isVisible());
    }

    /// What is shown belongs to the last attempt: an upload after a restart has not been restarted with yet.
    void resultsOfTheLastAttempt()
    {
        Bench bench;
        bench.chooseFile();
        bench.button("buttonUpload")->click();
        bench.dialog.onRestart();
        QCOMPARE(bench.text("labelResult2"), "Reboot Kommando gesendet."_s);
        QCOMPARE(bench.enabled(), "SURCO"_s);
        bench.tool.setScript("exit 1");
        bench.button("buttonUpload")->click();
        QCOMPARE(bench.text("labelResult"), "Fehler beim Hochladen!"_s);
        QCOMPARE(bench.text("labelResult2"), QString());
        QCOMPARE(bench.enabled(), "SUC"_s);
        bench.chooseFile();
        QCOMPARE(bench.text("labelResult"), QString());
    }

    void restartConnectsFirst()
    {
        Bench bench;
        QVERIFY(bench.isListening);
        QElapsedTimer clock;
        clock.start();
        bench.dialog.onRestart();
        QVERIFY(clock.elapsed() >= kShortWait);
        QCOMPARE(bench.text("labelResult2"), "Reboot Kommando gesendet."_s);
        QTRY_COMPARE(bench.box.receivedCommands(), QStringList("reboot"_s));
    }

    void restartOfAnUnreachableBox()
    {
        Bench bench("exit 0", false);
        bench.chooseFile();
        bench.dialog.show();
        QSignalSpy written(&bench.connector, &MesotraConnector::written);
        QString during;
        QString text;
        QTimer::singleShot(100, &bench.dialog, [&] {
            during = bench.enabled();
            text = bench.text("labelResult2");
            bench.dialog.close();
            bench.dialog.onRestart(); // not a second time
        });
        QElapsedTimer clock;
        clock.start();
        bench.dialog.onRestart();
        QVERIFY2(clock.elapsed() >= kShortWait && clock.elapsed() < 10 * kShortWait,
                 qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(text, "Connecting..."_s);
        QCOMPARE(during, QString());
        QVERIFY(bench.dialog.isVisible());
        QCOMPARE(bench.text("labelResult2"), "NO CONNECTION!"_s);
        QVERIFY(written.isEmpty());
        QVERIFY(!bench.enabled().contains(QLatin1Char('O')));
    }
};

QTEST_MAIN(TestUpdateDialog)
#include "tst_updatedialog.moc"
