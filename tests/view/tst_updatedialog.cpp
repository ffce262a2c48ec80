#include "app/startup.h"
#include "device/mesotraconnector.h"
#include "device/scptransfer.h"
#include "model/model.h"
#include "simulator/boxsimulator.h"
#include "tests/support/faketool.h"
#include "tests/support/logcapture.h"
#include "tests/support/scriptedprompts.h"
#include "view/updatedialog.h"
#include "view/view.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

namespace {

const QString kFile = QStringLiteral("/firmware/box-8.tgz");
const QString kHost = QStringLiteral("127.0.0.1");
constexpr int kShortWait = 300;

/// The dialog over a window, with a box that may be reachable and a tool that does what the test wants.
struct Bench
{
    explicit Bench(const QByteArray &toolScript = "exit 0", bool boxListens = true)
        : tool(toolScript)
        , isListening(!boxListens || box.listen())
        , view(&model, scripted())
        , connector(boxListens ? box.port() : quint16{1})
        , dialog(&view, &connector, kHost, kShortWait)
    {
        connector.scp().setOptions(
            {tool.file(), QStringLiteral("pi"), QStringLiteral("secret"), kHost, ScpTimeouts{2000, 10000, 200}});
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

private:
    std::unique_ptr<UserPrompts> scripted()
    {
        auto script = std::make_unique<ScriptedPrompts>();
        prompts = script.get();
        return script;
    }
};

} // namespace

class TestUpdateDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void selection();
    void uploads_data();
    void uploads();
    void cancelEndsTheUpload();
    void restart();
    void restartConnectsFirst();
    void restartOfAnUnreachableBox();
};

void TestUpdateDialog::initTestCase()
{
    prepareApplication(*qApp);
}

void TestUpdateDialog::selection()
{
    Bench bench;
    const LogCapture log;
    bench.button("buttonSelectFile")->click(); // cancelled
    QVERIFY(log.contains(QStringLiteral(" filename is empty!")));
    QCOMPARE(bench.enabled(), QStringLiteral("SC"));
    bench.chooseFile();
    QVERIFY(log.contains(QStringLiteral(" filename=") + kFile));
    QCOMPARE(bench.prompts->fileDialogs.back(), QStringLiteral("Firmware auswählen|Mesotra Firmware (*.tgz)"));
    QCOMPARE(bench.text("labelFilename"), kFile);
    QCOMPARE(bench.enabled(), QStringLiteral("SUC"));
    bench.button("buttonSelectFile")->click(); // cancelled again: everything stays
    QCOMPARE(bench.dialog.fileName(), kFile);
    QCOMPARE(bench.enabled(), QStringLiteral("SUC"));
}

void TestUpdateDialog::uploads_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("enabled");
    QTest::addColumn<QStringList>("told");
    QTest::newRow("success") << QByteArray("exit 0") << QStringLiteral("Hochladen erfolgreich.")
                             << QStringLiteral("SURC") << QStringList();
    QTest::newRow("failure") << QByteArray("exit 1") << QStringLiteral("Fehler beim Hochladen!")
                             << QStringLiteral("SUC") << QStringList(QStringLiteral("SCP Problem"));
}

void TestUpdateDialog::uploads()
{
    QFETCH(QByteArray, script);
    Bench bench(script);
    bench.chooseFile();
    bench.dialog.show();
    bench.button("buttonUpload")->click();
    QVERIFY(bench.tool.arguments().value(0).contains(QStringLiteral("put -preservetime ") + kFile));
    QTEST(bench.text("labelResult"), "result");
    QTEST(bench.enabled(), "enabled");
    QTEST(bench.told, "told");
    QVERIFY(bench.dialog.isVisible());
}

void TestUpdateDialog::cancelEndsTheUpload()
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
    QCOMPARE(during, QStringLiteral("C"));
    QCOMPARE(bench.text("labelResult"), QStringLiteral("Fehler beim Hochladen!"));
    QVERIFY(bench.dialog.isVisible());
    QVERIFY(!bench.tool.isRunning());
    QCOMPARE(bench.told, QStringList());
    bench.dialog.close();
    QVERIFY(!bench.dialog.isVisible());
}

void TestUpdateDialog::restart()
{
    Bench bench;
    QVERIFY(bench.isListening);
    bench.connector.connect(kHost);
    QTRY_VERIFY(bench.connector.isConnected());
    QSignalSpy sent(&bench.dialog, &UpdateDialog::restartSent);
    bench.chooseFile();
    bench.button("buttonUpload")->click();
    bench.button("buttonReset")->click();
    QCOMPARE(bench.text("labelResult2"), QStringLiteral("Reboot Kommando gesendet."));
    QCOMPARE(bench.enabled(), QStringLiteral("SURCO"));
    QCOMPARE(sent.size(), 1);
    QTRY_VERIFY(bench.box.receivedCommands().contains(QStringLiteral("reboot")));
    bench.dialog.show();
    bench.button("buttonOK")->click();
    QCOMPARE(bench.dialog.result(), int(QDialog::Accepted));
}

void TestUpdateDialog::restartConnectsFirst()
{
    Bench bench;
    QVERIFY(bench.isListening);
    QElapsedTimer clock;
    clock.start();
    bench.dialog.onRestart();
    QVERIFY(clock.elapsed() >= kShortWait);
    QCOMPARE(bench.text("labelResult2"), QStringLiteral("Reboot Kommando gesendet."));
    QTRY_COMPARE(bench.box.receivedCommands(), QStringList(QStringLiteral("reboot")));
}

void TestUpdateDialog::restartOfAnUnreachableBox()
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
    QCOMPARE(text, QStringLiteral("Connecting..."));
    QCOMPARE(during, QString());
    QVERIFY(bench.dialog.isVisible());
    QCOMPARE(bench.text("labelResult2"), QStringLiteral("NO CONNECTION!"));
    QVERIFY(written.isEmpty());
    QVERIFY(!bench.enabled().contains(QLatin1Char('O')));
}

QTEST_MAIN(TestUpdateDialog)
#include "tst_updatedialog.moc"
