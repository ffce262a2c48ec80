#include "controller/undo/undohistory.h"
#include "model/edit/editscope.h"
#include "tests/controller/bench.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/support/shots.h"
#include "view/sensors/tabsensors.h"

#include <QAction>
#include <QRandomGenerator>

#include <set>

namespace {

/// What recordings, deletions and edits leave, computed in the simplest way: a shot is the number of its recording, and
/// the project holds those that no step has removed, in the order of the recordings.
struct Reference
{
    struct Step
    {
        std::vector<int> shots; // removed
        QRgb before = 0;
        QRgb after = 0;
    };

    std::vector<QVector<double>> recorded; // the samples of all shots, in the project or not
    std::set<int> removed;
    QRgb color = defaultSensorColor(0).rgb();
    std::vector<Step> steps;
    std::size_t done = 0;
    int growing = -1; // the shot that gets the samples; -1: the next one begins a shot
    bool isRunning = false;

    [[nodiscard]] std::vector<int> present() const
    {
        std::vector<int> shots;
        for (int shot = 0; shot < int(recorded.size()); ++shot)
            if (removed.count(shot) == 0)
                shots.push_back(shot);
        return shots;
    }
    void begin()
    {
        growing = int(recorded.size());
        recorded.emplace_back();
    }
    void sample(double value)
    {
        if (growing < 0 || removed.count(growing) > 0)
            begin();
        recorded[std::size_t(growing)].append(value);
    }
    void make(const Step &step)
    {
        steps.resize(done++);
        steps.push_back(step);
        removed.insert(step.shots.begin(), step.shots.end());
        if (step.before != step.after)
            color = step.after;
    }
    void undo()
    {
        const Step &step = steps[--done];
        for (const int shot : step.shots)
            removed.erase(shot);
        if (step.before != step.after)
            color = step.before;
    }
    void redo()
    {
        const Step &step = steps[done++];
        for (const int shot : step.shots)
            if (!isRunning || shot != growing)
                removed.insert(shot);
        if (step.before != step.after)
            color = step.after;
    }
};

/// Does the same to the program and to the reference.
struct Pair
{
    explicit Pair(quint32 seed)
        : random(seed)
    {}

    void act()
    {
        switch (random.bounded(10)) {
        case 0:
        case 1:
            return reference.isRunning ? stop() : start();
        case 2:
        case 3:
            return reference.isRunning ? sample() : start();
        case 4:
            return deleteRange();
        case 5:
            return random.bounded(4) == 0 ? deleteAll() : deleteRange();
        case 6:
            return paint();
        case 7:
            return redo();
        default:
            return undo();
        }
    }

    void start()
    {
        bench.say("run=1");
        reference.isRunning = true;
        reference.begin();
    }
    void stop()
    {
        bench.say("run=0");
        reference.isRunning = false;
    }
    void sample()
    {
        const QByteArray value = QByteArray::number(++lastValue);
        bench.say("0;" + value + ";0;0;0;" + value);
        reference.sample(lastValue);
    }
    void deleteRange()
    {
        const std::vector<int> present = reference.present();
        if (present.empty())
            return;
        const int first = random.bounded(int(present.size()));
        const int last = random.bounded(first, int(present.size()));
        const bool isMalformed = random.bounded(5) == 0; // what comes before takes place all the same
        bench.prompts->answers = {QMessageBox::Yes};
        bench.controller.onTabOszi_deleteMeasurements(
            "%1-%2%3"_s.arg(QString::number(first + 1), QString::number(last + 1), isMalformed ? ",1-2-3"_s : ""_s));
        reference.make({{present.begin() + first, present.begin() + last + 1}});
    }
    void deleteAll()
    {
        if (reference.present().empty())
            return;
        bench.prompts->answers = {QMessageBox::Ok};
        bench.controller.onTabProject_clearDataClicked();
        reference.make({reference.present()});
        reference.growing = -1;
    }
    void paint()
    {
        const QColor color = QColor::fromRgb(random.bounded(256), random.bounded(256), ++lastValue % 256);
        emit bench.view.tabSensors()->sensorColorEdited(0, color);
        if (color.rgb() != reference.color)
            reference.make({{}, reference.color, color.rgb()});
    }
    void undo()
    {
        bench.view.findChild<QAction *>("actionUndo"_s)->trigger();
        if (reference.done > 0)
            reference.undo();
    }
    void redo()
    {
        bench.view.findChild<QAction *>("actionRedo"_s)->trigger();
        if (reference.done < reference.steps.size())
            reference.redo();
    }

    /// A label comes and goes with its shot.
    void labelNewShots()
    {
        const std::vector<int> present = reference.present();
        for (int shot = 0; shot < bench.shots() && shot < int(present.size()); ++shot)
            if (bench.model.shotLabel(shot).isEmpty())
                bench.model.setShotLabel(shot, QString::number(present[std::size_t(shot)]));
    }

    [[nodiscard]] bool agrees() const
    {
        const std::vector<int> present = reference.present();
        bool same = bench.shots() == int(present.size()) && bench.model.color(0).rgb() == reference.color;
        for (int shot = 0; same && shot < bench.shots(); ++shot) {
            const int number = present[std::size_t(shot)];
            same = bench.model.shotLabel(shot) == QString::number(number);
            for (const int sensor : {0, 4})
                same = same && bench.samples(sensor, shot) == reference.recorded[std::size_t(number)];
        }
        return same && bench.slotsMatchModel();
    }

    QRandomGenerator random;
    int lastValue = 0;
    Bench bench;
    Reference reference;
};

constexpr int kSamples = 10000; // of each sensor of a shot in the tests of the limits
constexpr qint64 kShotBytes = kNumSensors * kSamples * qint64(sizeof(double));

} // namespace

class TestUndoHistory : public QObject
{
    Q_OBJECT

private slots:
    void randomSequences_data()
    {
        columns<int>("seed");
        for (int seed = 1; seed <= 4; ++seed)
            row(QByteArray::number(seed).constData(), seed);
    }

    void randomSequences()
    {
        QFETCH(int, seed);
        Pair pair(static_cast<quint32>(seed));
        for (int action = 0; action < 250; ++action) {
            pair.act();
            pair.labelNewShots();
            QVERIFY2(pair.agrees(), qPrintable("after action %1"_s.arg(action)));
        }
        while (pair.reference.done > 0)
            pair.undo();
        QVERIFY(pair.agrees());
        while (pair.reference.done < pair.reference.steps.size())
            pair.redo();
        QVERIFY(pair.agrees());
    }

    /// The shot in progress goes on where it is, whatever comes and goes before it.
    void duringARecording()
    {
        Bench bench;
        bench.recordShots(3);
        bench.say("run=1");
        bench.say("0;4;4;4;4;4");
        bench.prompts->answers = {QMessageBox::Yes, QMessageBox::Ok};
        bench.controller.onTabOszi_deleteMeasurements("2"_s);
        bench.say("0;5;5;5;5;5");
        bench.view.findChild<QAction *>("actionUndo"_s)->trigger();
        QCOMPARE(bench.controller.seriesIndex(4), 3);
        bench.say("0;6;6;6;6;6");
        QCOMPARE(bench.samples(2, 3), (QVector<double>{4, 5, 6}));
        bench.controller.onTabProject_clearDataClicked(); // with the shot in progress
        bench.say("0;7;7;7;7;7");
        bench.view.findChild<QAction *>("actionUndo"_s)->trigger();
        bench.say("0;8;8;8;8;8");
        QCOMPARE(bench.firstSamples(), (QVector<double>{1, 2, 3, 4, 7}));
        bench.view.findChild<QAction *>("actionRedo"_s)->trigger(); // those that were deleted, and no other
        bench.say("0;9;9;9;9;9");
        QCOMPARE(bench.samples(0, 0), (QVector<double>{7, 8, 9}));
        QCOMPARE(bench.shots(), 1);
    }

    /// Another period would mean another time axis for half a shot; afterwards the box is asked for it.
    void samplingPeriod()
    {
        Bench bench;
        bench.recordShots(1);
        bench.say("t=250");
        bench.say("run=1");
        bench.view.findChild<QAction *>("actionUndo"_s)->trigger();
        QCOMPARE(bench.model.clock(), 250);
        bench.say("run=0");
        bench.view.findChild<QAction *>("actionUndo"_s)->trigger();
        QCOMPARE(bench.model.clock(), 100);
    }

    /// Neighbours move at once: shot by shot, all those behind would move thousands of times.
    void neighboursMoveAtOnce()
    {
        constexpr int kShots = 3000;
        Model model{QString()};
        UndoHistory history(model);
        for (int shot = 0; shot < kShots; ++shot)
            addShot(model, {double(shot)});
        model.setShotLabel(kShots - 1, "last"_s); // the lists of labels and periods have different lengths
        model.setShotLabel(1500, "in the middle"_s);
        model.setSamplingPeriod(1999, 250);
        (void)model.appendMeasurement(0); // one sensor is ahead
        const ProjectMeta meta = model.projectMeta();
        const auto isWhole = [&model, &meta] {
            bool same = model.projectMeta() == meta && model.numChannels(0) == kShots + 1;
            for (int shot = 0; same && shot < kShots; ++shot)
                same = model.measurement(4, shot) && *model.measurement(4, shot) == SampleList{double(shot)};
            return same;
        };
        {
            const EditScope edit(&model, [] { return "x"_s; });
            QCOMPARE(model.deleteChannels(1000, 1000), 1000);
            QCOMPARE(model.deleteChannels(1500, kShots), 501); // no more than there are
            QCOMPARE(model.deleteChannels(1500, 1), 0);
        }
        for (int turn = 0; turn < 2; ++turn) {
            QCOMPARE(model.numChannels(0), 1500);
            QCOMPARE(*model.measurement(2, 1000), SampleList{2000.0});
            QCOMPARE(model.shotLabel(1500 - 1), QString());
            const quint64 revision = model.structureRevision();
            history.undo();
            QVERIFY(isWhole());
            history.redo();
            QVERIFY(model.structureRevision() - revision <= 6); // two runs, and the shot of one sensor, twice
        }
        history.undo();
        QVERIFY(isWhole());
    }

    void limits_data()
    {
        // deletions of one shot each; left: that can still be undone
        columns<qint64, qint64, int>("bytes", "inUse", "left");
        row("fixed", 3 * kShotBytes + 100000, qint64(0), 3);
        row("share of the memory", kShotBytes, 5 * (4 * kShotBytes + 100000), 4);
        row("the latest always stays", qint64(1000), qint64(0), 1);
        row("all", 20 * kShotBytes, qint64(0), 6);
    }

    void limits()
    {
        QFETCH(qint64, bytes);
        QFETCH(qint64, inUse);
        QFETCH(int, left);
        Model model{QString()};
        UndoLimits limits;
        limits.bytes = bytes;
        limits.memoryInUse = [inUse] { return inUse; };
        UndoHistory history(model, limits);
        for (int shot = 0; shot < 6; ++shot) {
            addShot(model, SampleList(kSamples, shot));
            model.endRecording(); // gives back what the lists have in reserve
        }
        for (int shot = 0; shot < 6; ++shot) {
            const EditScope edit(&model, [] { return "x"_s; });
            QVERIFY(model.deleteChannel(0));
        }
        model.discardRemoved();
        QCOMPARE(history.count(), left);
        QVERIFY(left == 1 || history.bytes() <= std::max(bytes, inUse / 5));
        // What is left works, and the latest comes first.
        for (int shot = 5; shot > 5 - left; --shot) {
            history.undo();
            QCOMPARE(*model.measurement(4, 0), SampleList(kSamples, shot));
        }
        QVERIFY(!history.stepToUndo());
        QCOMPARE(model.numChannels(0), left);
        while (history.stepToRedo())
            history.redo();
        QCOMPARE(model.numChannels(0), 0);
    }

    /// Shots that were added are kept by the steps that are undone: those that are the last to be redone go first.
    void limitsOfWhatIsUndone()
    {
        Model model{QString()};
        UndoLimits limits;
        limits.bytes = 2 * kShotBytes + 100000;
        limits.memoryInUse = [] { return 0; };
        UndoHistory history(model, limits);
        const QTemporaryDir folder;
        for (int shot = 0; shot < 4; ++shot) {
            QFile file(folder.filePath("%1.bb"_s.arg(shot)));
            QVERIFY(file.open(QIODevice::WriteOnly));
            const QByteArray value = QByteArray::number(shot);
            file.write(("A=[" + value + ",0,0,0,0]\n").repeated(kSamples));
            file.close();
            const EditScope edit(&model, [] { return "x"_s; });
            QVERIFY(model.addBlackBoxFile(file.fileName()));
        }
        while (history.stepToUndo())
            history.undo();
        QCOMPARE(model.numChannels(0), 0);
        model.discardRemoved();
        QVERIFY(history.bytes() <= limits.bytes);
        int redone = 0;
        for (; history.stepToRedo(); ++redone)
            history.redo();
        QVERIFY(redone >= 1 && redone < 4);
        for (int shot = 0; shot < redone; ++shot)
            QCOMPARE(model.measurement(0, shot)->constFirst(), double(shot));
    }

    void pausesEndAStep_data()
    {
        columns<int, int>("pause", "steps");
        row("typed at once", 5000, 1);
        row("every key after a pause", 0, 3);
    }

    void pausesEndAStep()
    {
        QFETCH(int, pause);
        QFETCH(int, steps);
        Model model{QString()};
        UndoLimits limits;
        limits.pause = pause;
        UndoHistory history(model, limits);
        for (const QString &text : {"a"_s, "ab"_s, "abc"_s}) {
            const EditScope edit(
                &model, [] { return "x"_s; }, "key"_s);
            model.setComment(text);
        }
        QCOMPARE(history.count(), steps);
        history.undo();
        QCOMPARE(model.comment(), steps == 1 ? ""_s : "ab"_s);
    }

    /// Samples that no step keeps any more are freed.
    void freesWhatItDrops()
    {
        Model model{QString()};
        auto history = std::make_unique<UndoHistory>(model);
        addShot(model, {1.0, 2.0});
        const SampleList *samples = model.measurement(0, 0);
        const quint64 id = model.measurementId(0, 0);
        {
            const EditScope edit(&model, [] { return "x"_s; });
            model.clearData();
        }
        history->undo();
        QCOMPARE(model.measurement(0, 0), samples); // the same list, not a copy
        QCOMPARE(model.measurementId(0, 0), id);
        history->redo();
        QVERIFY(history->bytes() > 0);
        model.clear(); // as before another project
        QCOMPARE(history->count(), 0);
        history.reset();
        const EditScope edit(&model, [] { return "x"_s; }); // nobody listens
        model.setComment("x"_s);
    }
};

QTEST_MAIN(TestUndoHistory)
#include "tst_undohistory.moc"
