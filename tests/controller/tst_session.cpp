#include "rig.h"

#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/project/tabproject.h"

#include <QComboBox>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

constexpr QSize kPictureSize(20, 10);

/// One edit of each kind that a project file has to keep.
void editProject(Bench &bench)
{
    emit bench.view.tabOszi()->markerChangedAbsolute(2, 17);
    emit bench.view.tabProject()->phaseEditChanged(1, "Füllen <ß>"_s);
    QPixmap picture(kPictureSize);
    picture.fill(Qt::darkCyan);
    bench.model.setImage(2, picture);
    bench.model.setComment("Größe \"7\"\n\tZeile 2"_s);
    bench.prompts->whileOpen = [] { QTest::qWait(30); };
    emit bench.view.calibrate();
}

void leave(View &view, const QByteArray &how, const QString &other)
{
    if (how == "quit")
        emit view.quit();
    else if (how == "new")
        emit view.newProject();
    else
        emit view.openProjectFile(other);
}

} // namespace

class TestSession : public QObject
{
    Q_OBJECT

private slots:
    void connectingDescribesTheBox()
    {
        Rig rig;
        QVERIFY(rig.isListening);
        QSignalSpy appState(&rig.bench.model, &Model::appStateChanged);
        emit rig.bench.view.connectDisconnect();
        QVERIFY(rig.bench.view.isProgressShown());
        QTRY_VERIFY(rig.bench.model.isConnected());
        QVERIFY(!rig.bench.view.isProgressShown());
        QVERIFY(!appState.isEmpty());
        QTRY_VERIFY(!rig.isWaitingForDescriptions());
        QCOMPARE(rig.box.receivedCommands(), (QStringList{"t=100"_s, "deviceDescription"_s, "sensorDescription"_s}));
        QCOMPARE(rig.bench.model.clock(), 100);
        QVERIFY(!rig.bench.model.hardwareVersion().isEmpty());
        QTest::qWait(200); // both waits are over
        QVERIFY(!rig.bench.controller.areValuesInThousandths());
        QVERIFY(rig.bench.prompts->messages.empty());
    }

    void fromBoxToProjectAndBack()
    {
        const QString file = m_folder.filePath("Tag.vnt"_s);
        Rig rig;
        Bench &bench = rig.bench;
        bench.view.show();
        QVERIFY(rig.connectQuickly());
        emit bench.view.terminalSend("t=1"_s);
        QTRY_COMPARE(bench.model.clock(), 1);
        for (int shot = 0; shot < 3; ++shot)
            QVERIFY(rig.recordShot(40));
        QCOMPARE(bench.shots(), 3);
        bench.prompts->answers = {QMessageBox::Yes};
        emit bench.view.tabOszi()->deleteMeasurements("2"_s);
        QCOMPARE(bench.shots(), 2);
        QVERIFY(rig.allArrived()); // in what is now shot 2
        editProject(bench);

        bench.prompts->saveNames = {file};
        emit bench.view.saveProject();
        QVERIFY(!bench.model.isProjectModified());
        emit bench.view.newProject();
        QCOMPARE(bench.shots(), 0);
        bench.prompts->openNames = {file};
        emit bench.view.openProject();
        QCOMPARE(bench.shots(), 2);
        QVERIFY(rig.allArrived()); // bit for bit
        QCOMPARE(bench.model.clock(), 1);
        QCOMPARE(bench.model.phaseName(1), "Füllen <ß>"_s);
        QCOMPARE(bench.model.image(2).size(), kPictureSize);
        const QString again = m_folder.filePath("again.vnt"_s);
        QVERIFY(bench.model.save(again));
        QVERIFY(contentOf(again) == contentOf(file));
        QVERIFY(bench.slotsMatchModel());
        QCOMPARE(bench.prompts->unexpected, 0);
    }

    void disconnectStopsTheBox()
    {
        Rig rig;
        QVERIFY(rig.connectToBox());
        QVERIFY(rig.start());
        QTRY_VERIFY(rig.sent.size() > 2);
        emit rig.bench.view.connectDisconnect();
        QVERIFY(!rig.bench.controller.isRecordingRunning());
        QVERIFY(!rig.bench.model.isConnected());
        QTRY_COMPARE(rig.box.receivedCommands().last(), "run=0"_s);
        QTRY_VERIFY(!rig.box.hasClient());
        QVERIFY(rig.bench.prompts->messages.empty());
        QCOMPARE(rig.bench.prompts->addressDialogs, 0);
        QVERIFY(rig.bench.samples(0, 0).size() > 0);
    }

    void leavingWhileRecording_data()
    {
        // answer: to the question about saving; saved: whether everything that the box sent has to be in the file
        columns<QByteArray, int, bool>("how", "answer", "saved");
        row("quit, Speichern", "quit"_ba, int(QMessageBox::Save), true);
        row("new, Speichern", "new"_ba, int(QMessageBox::Save), true);
        row("new, Verwerfen", "new"_ba, int(QMessageBox::Discard), false);
        row("open, Speichern", "open"_ba, int(QMessageBox::Save), true);
        row("open, Verwerfen", "open"_ba, int(QMessageBox::Discard), false);
    }

    /// At the shortest period, all that the box sends until it is stopped is in the file, and it is stopped.
    void leavingWhileRecording()
    {
        QFETCH(QByteArray, how);
        QFETCH(int, answer);
        QFETCH(bool, saved);
        const QString file = m_folder.filePath(QString::fromLatin1(QTest::currentDataTag()) + ".vnt"_s);
        const QString other = m_folder.filePath("other.vnt"_s);
        QVERIFY(Model(QString()).save(other));
        Rig rig;
        Bench &bench = rig.bench;
        QVERIFY(rig.connectQuickly());
        emit bench.view.terminalSend("t=1"_s);
        QTRY_COMPARE(bench.model.clock(), 1);
        QVERIFY(rig.start());
        QTRY_VERIFY(rig.sent.size() > 30);
        bench.prompts->answers = {QMessageBox::StandardButton(answer)};
        bench.prompts->choices = {1};
        bench.prompts->saveNames = {file};
        bench.prompts->whileOpen = [] { QTest::qWait(20); }; // samples come in while a box is up
        leave(bench.view, how, other);
        QTRY_VERIFY(rig.box.receivedCommands().contains("run=0"_s));
        QVERIFY(!bench.controller.isRecordingRunning());
        QTest::qWait(30);
        const int sent = rig.sent.size();
        QTest::qWait(30);
        QCOMPARE(rig.sent.size(), sent); // the box has stopped
        QCOMPARE(bench.model.isConnected(), how == "open" || (how == "new" && saved));
        QCOMPARE(QFile::exists(file), saved);
        if (saved) {
            const Model written(file);
            QCOMPARE(written.numChannels(0), 1);
            QCOMPARE(*written.measurement(2, 0), rig.sentValues(2));
        }
        if (how != "quit")
            QCOMPARE(bench.shots(), 0);
    }

    /// The user chooses the period of the project; a new one brings its own, which the box takes, and keeps the
    /// sensors.
    void boxAndProjectStayMatched()
    {
        Rig rig;
        Bench &bench = rig.bench;
        auto *periods = bench.view.findChild<QComboBox *>("comboBoxClock"_s);
        QVERIFY(periods && periods->count() == 11 && !periods->isEnabled());
        QVERIFY(rig.connectToBox());
        QVERIFY(periods->isEnabled());
        const auto choose = [&](const char *text) {
            periods->setCurrentText(QLatin1String(text));
            emit periods->activated(periods->currentIndex());
        };
        choose("5 ms");
        QTRY_COMPARE(bench.model.clock(), 5);
        QCOMPARE(periods->currentText(), "5 ms"_s);
        QVERIFY(rig.start());
        choose("1 ms"); // refused
        QVERIFY(rig.stopAfter(3));
        bench.prompts->answers = {QMessageBox::No, QMessageBox::Yes};
        choose("20 ms");
        QCOMPARE(periods->currentText(), "5 ms"_s);
        choose("10 ms");
        QTRY_COMPARE(bench.model.clock(), 10);
        QCOMPARE(rig.box.receivedCommands().filter("t="_s), (QStringList{"t=100"_s, "t=5"_s, "t=10"_s}));
        bench.model.setProjectModifiedFlag(false);
        emit bench.view.newProject();
        QTRY_COMPARE(rig.box.receivedCommands().constLast(), "t=100"_s);
        QVERIFY(!bench.model.sensorDescription().sensorGroup(0).sensorName(0).isEmpty()); // the box is still the same
        QVERIFY(!bench.model.hardwareVersion().isEmpty() && !bench.model.isProjectModified());
        bench.model.setProjectModifiedFlag(true);
        bench.prompts->answers = {QMessageBox::Discard};
        emit bench.view.newProject(); // what is thrown away takes its box along
        QVERIFY(!bench.model.isConnected());
    }

    void independentBox()
    {
        QProcess box;
        box.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        box.start("python3"_s, {QStringLiteral(VENTARO_INDEPENDENT_BOX), "--port"_s, "0"_s, "--period"_s, "5"_s});
        while (!box.canReadLine())
            QVERIFY2(box.waitForReadyRead(10000), "the box says which port it listens on");
        const quint16 port = box.readLine().trimmed().split(' ').last().toUShort();
        QVERIFY(port != 0);
        Bench bench(optionsFor(port));
        emit bench.view.connectDisconnect();
        QTRY_VERIFY(bench.model.isConnected());
        QTRY_VERIFY(!bench.model.sensorDescription().sensorGroup(0).sensorName(0).isEmpty());
        for (int shot = 0; shot < 2; ++shot) {
            emit bench.view.startStopRecording();
            QTRY_COMPARE(bench.shots(), shot + 1);
            QTRY_VERIFY(bench.samples(4, shot).size() >= 20);
            emit bench.view.startStopRecording();
            QTRY_VERIFY(!bench.controller.isRecordingRunning());
        }
        box.kill();
        QTRY_VERIFY(!bench.model.isConnected());
        box.waitForFinished(5000);
        QCOMPARE(bench.shots(), 2);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(TestSession)
#include "tst_session.moc"
