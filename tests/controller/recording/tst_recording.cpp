#include "controller/recording/linehold.h"
#include "controller/recording/messagedispatch.h"
#include "controller/recording/projectedits.h"
#include "controller/recording/recorder.h"
#include "controller/recording/recordinglistener.h"
#include "device/mesotraconnector.h"
#include "model/model.h"
#include "simulator/boxsimulator.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QTemporaryDir>

#include <cmath>

namespace {

using Shots = QVector<QVector<double>>;
using Seconds = QVector<qint64>;

/// Counts what a window would show.
struct Counter : RecordingListener
{
    void measurementBegun() override { ++begun; }
    void sampleTaken(const std::array<double, kNumSensors> &, double time) override { seconds.append(time); }

    int begun = 0;
    QVector<double> seconds;
};

/// What a program without a window needs to record.
struct Headless
{
    explicit Headless(quint16 port = MesotraConnector::kDefaultPort)
        : connector(port)
    {
        dispatch.setHandler(MessageKind::RunStarted, [this](const QString &) { recorder.started(); });
        dispatch.setHandler(MessageKind::RunStopped, [this](const QString &) { recorder.stopped(); });
        dispatch.setHandler(MessageKind::Sample, [this](const QString &line) { recorder.takeSampleLine(line); });
        QObject::connect(&connector, &MesotraConnector::messageReceived, &connector,
                         [this](const QString &line) { lines.take(line); });
    }

    void say(const QByteArray &line) { lines.take(QString::fromLatin1(line + '\n')); }

    [[nodiscard]] Shots shots(int sensor) const
    {
        Shots result;
        for (int shot = 0; shot < model.numChannels(sensor); ++shot)
            result.append(*model.measurement(sensor, shot));
        return result;
    }

    Model model{QString()};
    MesotraConnector connector;
    ProjectEdits edits{model};
    Counter counter;
    Recorder recorder{model, edits, connector, counter};
    MessageDispatch dispatch;
    LineQueue lines{connector, model, [this](const QString &line) { dispatch.dispatch(line); }};
};

} // namespace

Q_DECLARE_METATYPE(Shots)

class TestRecording : public QObject
{
    Q_OBJECT

private slots:
    void shotClock_data()
    {
        // wall: seconds of the computer's clock at each shot; counted: those really passed; stamped: what shots get
        columns<Seconds, Seconds, Seconds>("wall", "counted", "stamped");
        row("in step", Seconds{0, 30, 60}, Seconds{0, 30, 60}, Seconds{0, 30, 60});
        row("set back by a day", Seconds{0, 30, 60 - 86400}, Seconds{5, 35, 65}, Seconds{0, 30, 60});
        row("set forward by a year", Seconds{0, 31536000}, Seconds{1000, 1030}, Seconds{0, 30});
        row("corrected a little", Seconds{0, 29, 61}, Seconds{0, 30, 60}, Seconds{0, 30, 60});
    }

    void shotClock()
    {
        QFETCH(Seconds, wall);
        QFETCH(Seconds, counted);
        QFETCH(Seconds, stamped);
        // Across the change to winter time, where there is one: local times repeat, time does not.
        const QDateTime start(QDate(2026, 10, 25), QTime(0, 59, 45), Qt::UTC);
        int shot = 0;
        const auto times = [&] { return std::make_pair(wall.at(shot), counted.at(shot)); };
        ShotClock clock([&] { return start.addSecs(times().first); }, [&] { return times().second * 1000; });
        for (; shot < wall.size(); ++shot)
            QCOMPARE(clock.now(), start.addSecs(stamped.at(shot)));
        --shot;
        clock.restart(); // for another project
        QCOMPARE(clock.now(), start.addSecs(wall.constLast()));
        QCOMPARE(clock.now().timeSpec(), Qt::LocalTime);
    }

    void shotsAreStampedByTheShotClock()
    {
        Headless box;
        const QDateTime before = QDateTime::currentDateTime().addMSecs(-1);
        box.say("run=1");
        QTest::qWait(20);
        box.say("run=1"); // nothing has come: no second shot
        box.say("0;1;1");
        box.say("run=0");
        box.say("run=1");
        const qint64 pause = box.model.timestamp(0).msecsTo(box.model.timestamp(1));
        QVERIFY2(pause >= 19 && pause < 1000, qPrintable(QString::number(pause)));
        QVERIFY(box.model.timestamp(0) >= before);
    }

    void lines_data()
    {
        // shots: of the second sensor
        columns<QByteArray, Shots, bool>("lines", "shots", "running");
        row("two shots", "run=1|0;1;2|0;3;4|run=0|run=1|0;5;6|run=0"_ba, Shots{{2, 4}, {6}}, false);
        row("before the start", "0;1;2|run=1"_ba, Shots{{}}, true);
        row("after the stop", "run=1|0;1;2|run=0|0;3;4"_ba, Shots{{2, 4}}, false); // an answer to a single request
        row("start echoed twice", "run=1|run=1|0;1;2"_ba, Shots{{2}}, true);
        row("started while running", "run=1|0;1;2|run=1|0;3;4"_ba, Shots{{2}, {4}}, true);
        row("unknown and malformed", "hello|run=1|0;1|0;x;y|-1;1;2"_ba, Shots{{0, 2}}, true);
    }

    void lines()
    {
        QFETCH(QByteArray, lines);
        QFETCH(Shots, shots);
        QFETCH(bool, running);
        Headless program;
        for (const QByteArray &line : lines.split('|'))
            program.say(line);
        QCOMPARE(program.shots(1), shots);
        QCOMPARE(program.shots(4).size(), shots.size());
        QCOMPARE(program.recorder.isRunning(), running);
        QCOMPARE(program.counter.begun, shots.size());
    }

    void tellsTheTimeOfASample()
    {
        Headless program;
        program.model.setClock(250);
        for (const char *line : {"0;1;1", "run=1", "0;1;1", "0;1;1", "0;1;1"})
            program.say(line);
        QCOMPARE(program.counter.seconds, (QVector<double>{0, 0, 0.25, 0.5}));
    }

    void shotThatIsDeletedWhileItIsRecorded()
    {
        Headless program;
        for (const char *line : {"run=1", "0;1;1", "run=0", "run=1", "0;2;2"})
            program.say(line);
        QVERIFY(program.model.deleteChannel(0));
        program.say("0;3;3");
        QCOMPARE(program.shots(0), (Shots{{2, 3}}));
        program.model.clearData();
        program.recorder.forgetSeries();
        program.say("0;4;4");
        QCOMPARE(program.shots(0), (Shots{{4}}));
    }

    /// The answer needs no shot, and each change is announced once.
    void calibration()
    {
        Headless program;
        program.recorder.setValuesInThousandths(true);
        program.recorder.requestCalibration();
        program.say("0;1500;-250;0");
        QSignalSpy project(&program.model, &Model::projectChanged);
        QSignalSpy data(&program.model, &Model::dataChanged);
        program.model.blockSignals(true); // as after a deletion that was broken off
        program.recorder.calibrate();
        QCOMPARE(program.model.offset(0), -1.5);
        QCOMPARE(program.model.offset(1), 0.25);
        QVERIFY(!std::signbit(program.model.offset(2)));
        QCOMPARE(project.count(), 1);
        QCOMPARE(data.count(), 1);
        QVERIFY(program.model.isProjectModified());
        program.recorder.calibrate(); // that answer is used up
        QCOMPARE(program.model.offset(0), 0.0);
    }

    void linesWaitInOrder()
    {
        const Model model{QString()};
        MesotraConnector connector;
        QStringList handled;
        LineQueue *queue = nullptr;
        LineQueue lines(connector, model, [&](const QString &line) {
            if (line == "a"_s)
                queue->take("b"_s); // arrives while the line before is being handled
            handled.append(line);
        });
        queue = &lines;
        lines.take("a"_s);
        {
            const LineHold hold(lines);
            lines.take("c"_s);
            const LineHold another(lines);
            QTest::qWait(50);
            QCOMPARE(handled, QStringList{"a"_s});
        }
        lines.take("d"_s); // must not overtake
        QCOMPARE(handled, QStringList{"a"_s});
        QTRY_COMPARE(handled, (QStringList{"a"_s, "b"_s, "c"_s, "d"_s}));
        const LineHold hold(lines);
        lines.take("e"_s);
        lines.flush(); // the link is gone
        QCOMPARE(handled.last(), "e"_s);
    }

    void editsWaitForTheFile_data()
    {
        columns<bool, QString>("applied", "comment");
        row("saved", true, "late");
        row("replaced", false, "early");
    }

    void editsWaitForTheFile()
    {
        QFETCH(bool, applied);
        const QTemporaryDir folder;
        const QString file = folder.filePath("edits.vnt"_s);
        Model model{QString()};
        ProjectEdits edits(model);
        model.setComment("early"_s);
        bool made = false;
        model.setYield([&](int) {
            if (!std::exchange(made, true))
                edits.apply([&] { model.setComment("late"_s); });
        });
        QVERIFY(model.save(file) && made);
        QVERIFY(!model.isProjectModified());
        if (applied)
            edits.applyKept();
        else
            edits.dropKept();
        edits.applyKept(); // none is left
        QTEST(model.comment(), "comment");
        QCOMPARE(model.isProjectModified(), applied);
        QCOMPARE(Model(file).comment(), "early"_s);
    }

    void recordsFromABox()
    {
        BoxSimulator box;
        QVERIFY(box.listen());
        QVector<double> sent;
        connect(&box, &BoxSimulator::sampleSent, &box,
                [&](const QByteArray &line) { sent.append(line.trimmed().split(';').value(1).toDouble()); });
        Headless program(box.port());
        program.connector.connect("127.0.0.1"_s);
        QTRY_VERIFY(program.connector.isConnected());
        program.connector.setClock("5ms"_s);
        program.recorder.requestStart();
        QTRY_VERIFY(sent.size() > 10);
        program.recorder.requestStop();
        QTRY_VERIFY(!program.recorder.isRunning());
        QTRY_COMPARE(program.shots(0), Shots{sent});
    }
};

QTEST_GUILESS_MAIN(TestRecording)
#include "tst_recording.moc"
