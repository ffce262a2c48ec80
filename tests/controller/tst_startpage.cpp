#include "rig.h"
#include "tests/support/faketool.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/home/recentbutton.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>

#include <csignal>

namespace {

ControllerOptions demoOptions(const QString &program = QStringLiteral(VENTARO_BOX_SIMULATOR))
{
    ControllerOptions options;
    options.demoProgram = program;
    return options;
}

QStringList stored(const QString &key)
{
    return QSettings("Tarnwald"_s, "Ventaro"_s).value(key).toStringList();
}

bool isAlive(qint64 process)
{
    return process > 0 && ::kill(static_cast<pid_t>(process), 0) == 0;
}

} // namespace

class TestStartPage : public QObject
{
    Q_OBJECT

private slots:
    void init() { QSettings("Tarnwald"_s, "Ventaro"_s).clear(); }

    void demoEnds_data()
    {
        columns<QString>("how");
        row("button", "button");
        row("disconnect", "disconnect");
        row("simulator dies", "dies");
        row("program ends", "destroyed");
    }

    void demoEnds()
    {
        QFETCH(QString, how);
        auto bench = std::make_unique<Bench>(demoOptions());
        const View &view = bench->view;
        auto *button = view.findChild<QPushButton *>("buttonHomeDemo"_s);
        const auto *label = view.findChild<QLabel *>("labelDemo"_s);
        button->click();
        QTRY_VERIFY(bench->model.isConnected() && !bench->model.hardwareVersion().isEmpty());
        QVERIFY(label->isVisibleTo(&view)
                && view.findChild<QLabel *>("labelHomeDemo"_s)->isVisibleTo(view.centralWidget()));
        QCOMPARE(stored("recentAddresses"_s), QStringList());
        emit bench->view.startStopRecording();
        QTRY_VERIFY(bench->samples(0, 0).size() > 2);
        const qint64 process = bench->controller.demoProcessId();
        QVERIFY(isAlive(process));
        if (how == "destroyed"_s)
            bench.reset();
        else if (how == "dies"_s)
            ::kill(static_cast<pid_t>(process), SIGKILL);
        else if (how == "disconnect"_s)
            emit bench->view.connectDisconnect();
        else
            button->click();
        QTRY_VERIFY(!isAlive(process));
        if (!bench)
            return;
        QTRY_VERIFY(!bench->model.isConnected() && button->isEnabled() && !label->isVisibleTo(&view));
        QTRY_COMPARE(bench->prompts->messages.size(), std::size_t(how == "dies"_s ? 1 : 0));
        QVERIFY(!bench->controller.isRecordingRunning() && bench->samples(0, 0).size() > 2);
        QCOMPARE(bench->prompts->addressDialogs, 0);  // nobody reconnects to a simulator
        bench->prompts->answers = {QMessageBox::Yes}; // there is a shot, which is asked about
        button->click();
        QTRY_VERIFY(bench->model.isConnected());
    }

    void demoCannotStart_data()
    {
        columns<QString, bool, int>("program", "offered", "messages");
        row("no simulator", "/no/such/program", false, 0);
        row("a program that ends at once", "/bin/false", true, 1);
        row("a program that hangs", "hangs", true, 1);
    }

    void demoCannotStart()
    {
        QFETCH(QString, program);
        QFETCH(bool, offered);
        QFETCH(int, messages);
        const FakeTool hanging("exec sleep 60");
        ControllerOptions options = demoOptions(program == "hangs"_s ? hanging.file() : program);
        options.demoStartTimeout = 300;
        Bench bench(options);
        auto *button = bench.view.findChild<QPushButton *>("buttonHomeDemo"_s);
        QCOMPARE(button->isEnabled(), offered);
        emit bench.view.startStopDemo();
        QTRY_COMPARE(bench.prompts->messages.size(), std::size_t(messages));
        QCOMPARE(button->isEnabled(), offered);
        QVERIFY(!bench.view.isProgressShown());
    }

    void demoAsksBeforeItMixesShots()
    {
        Rig rig({}, QStringLiteral(VENTARO_BOX_SIMULATOR));
        QVERIFY(rig.connectToBox());
        rig.bench.prompts->answers = {QMessageBox::No, QMessageBox::Yes};
        emit rig.bench.view.startStopDemo();
        QVERIFY(rig.bench.model.isConnected() && rig.bench.controller.demoProcessId() == 0);
        emit rig.bench.view.startStopDemo();
        QTRY_VERIFY(rig.bench.model.isConnected() && !rig.box.hasClient());
        QCOMPARE(rig.bench.prompts->questions.size(), std::size_t(2));
    }

    void simulatorEndsWithItsInput()
    {
        QProcess simulator;
        simulator.start(QStringLiteral(VENTARO_BOX_SIMULATOR), {"--port"_s, "0"_s, "--until-input-closes"_s});
        QVERIFY(simulator.waitForReadyRead());
        QVERIFY(!simulator.waitForFinished(300));
        simulator.closeWriteChannel();
        QVERIFY(simulator.waitForFinished());
        QCOMPARE(simulator.exitCode(), 0);
    }

    void oneClickConnectsToARecentBox()
    {
        Rig rig;
        View &view = rig.bench.view;
        const auto *shown = view.findChild<RecentButton *>("buttonRecentAddress1"_s);
        QVERIFY(!shown->isVisibleTo(view.centralWidget()));
        emit view.connectToAddress("127.0.0"_s);
        QVERIFY(!view.isProgressShown());
        QVERIFY(rig.connectToBox());
        QCOMPARE(stored("recentAddresses"_s), QStringList{"127.0.0.1"_s});
        emit view.connectDisconnect();
        QTRY_VERIFY(!rig.box.hasClient());
        emit view.findChild<RecentButton *>("buttonRecentAddress1"_s)->clicked();
        QTRY_VERIFY(rig.bench.model.isConnected());
        emit view.connectToAddress("127.0.0.1"_s); // is connected to it
        QVERIFY(rig.bench.model.isConnected() && rig.bench.prompts->questions.empty());
        rig.bench.prompts->answers = {QMessageBox::No};
        emit view.connectToAddress("localhost"_s);
        QVERIFY(rig.bench.model.isConnected());
    }

    void recentProjects()
    {
        const QTemporaryDir folder;
        const auto path = [&folder](const QString &name) { return QDir(folder.path()).canonicalPath() + u'/' + name; };
        Bench bench;
        bench.prompts->saveNames = {path("a.vnt"_s), path("b.vnt"_s)};
        emit bench.view.saveProjectAs();
        emit bench.view.saveProjectAs();
        QCOMPARE(stored("recentProjects"_s), (QStringList{path("b.vnt"_s), path("a.vnt"_s)}));
        QVERIFY(QFile::link(path("a.vnt"_s), path("link.vnt"_s)));
        emit bench.view.openProjectFile(path("link.vnt"_s)); // another way to a project that is listed
        QCOMPARE(stored("recentProjects"_s), (QStringList{path("a.vnt"_s), path("b.vnt"_s)}));

        QVERIFY(QFile::remove(path("b.vnt"_s)));
        emit bench.view.openProjectFile(path("b.vnt"_s));
        auto *gone = bench.view.findChild<RecentButton *>("buttonRecentProject2"_s);
        QCOMPARE(gone->title(), "b"_s);
        QVERIFY(!gone->isEnabled());
        bench.view.findChild<QPushButton *>("buttonRemoveProject2"_s)->click();
        QCOMPARE(stored("recentProjects"_s), QStringList{path("a.vnt"_s)});

        bench.model.setProjectModifiedFlag(true);
        bench.prompts->answers = {QMessageBox::Discard};
        bench.view.findChild<RecentButton *>("buttonRecentProject1"_s)->click();
        QCOMPARE(bench.prompts->questions.size(), std::size_t(1));
        QVERIFY(!bench.model.isProjectModified());
    }
};

QTEST_MAIN(TestStartPage)
#include "tst_startpage.moc"
