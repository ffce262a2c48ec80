// The program records and edits in a child process, which tells this one about each step and is killed at a random
// moment. What is restored then must be a state that the child has been in, at most a second before its end.
//
//   tst_controller_journalcrash [--rounds N]    10 unless told otherwise

#include "tests/controller/bench.h"

#include "model/journal/journalreader.h"
#include "tests/support/literals.h"

#include <QApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <chrono>
#include <cmath>
#include <csignal>
#include <unistd.h>

namespace {

int rounds = 10;

qint64 now()
{
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count(); // of all processes
}

/// The state of a project in few words; the samples of a shot are consecutive numbers.
QByteArray digestOf(const Model &model)
{
    QByteArray digest = model.comment().toUtf8();
    for (int shot = 0; shot < model.numChannels(0); ++shot) {
        digest += '|' + model.shotLabel(shot).toUtf8();
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            const SampleList &samples = *model.measurement(sensor, shot);
            digest += ' ' + QByteArray::number(samples.size());
            if (!samples.isEmpty())
                digest += ':' + QByteArray::number(samples.first()) + '-' + QByteArray::number(samples.last());
        }
    }
    return digest;
}

bool areSamplesWhole(const Model &model)
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        for (int shot = 0; shot < model.numChannels(sensor); ++shot) {
            const SampleList &samples = *model.measurement(sensor, shot);
            for (int i = 1; i < samples.size(); ++i) {
                if (std::abs(samples.at(i) - samples.at(i - 1) - 1.0) > 0.01)
                    return false;
            }
        }
    }
    return true;
}

/// Records a line per millisecond, edits, deletes and saves at random, until it is killed.
class Worker
{
public:
    explicit Worker(const QString &folder)
        : m_bench(optionsFor(folder))
        , m_file(folder + "/project.vnt"_s)
    {
        m_clock.start();
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { work(); });
        m_timer.start(1);
        // Lines may have to wait for a file, and then take effect later.
        QObject::connect(&m_bench.model, &Model::dataChanged, &m_timer, [this] { report(); });
        report();
        m_bench.say("run=1");
        m_isRunning = true;
    }

private:
    static ControllerOptions optionsFor(const QString &folder)
    {
        ControllerOptions options;
        options.journal.folder = folder + "/journal"_s;
        return options;
    }

    void report()
    {
        const QByteArray line = QByteArray::number(now()) + ' ' + digestOf(m_bench.model) + '\n';
        if (::write(STDOUT_FILENO, line.constData(), std::size_t(line.size())) != line.size())
            std::abort();
    }

    void record()
    {
        for (; m_isRunning && m_lines < m_clock.elapsed(); ++m_lines) {
            QByteArray line = "0";
            for (int sensor = 0; sensor < kNumSensors; ++sensor)
                line += ';' + QByteArray::number(double(m_lines) + sensor * 0.125, 'g', 15);
            m_bench.say(line);
        }
        if (!m_isRunning)
            m_lines = m_clock.elapsed();
    }

    void work()
    {
        if (m_bench.model.isBusy())
            return;
        record();
        const int shots = m_bench.shots();
        const int choice = m_random.bounded(10000);
        if (choice < 100) {
            m_isRunning = !m_isRunning;
            m_bench.say(m_isRunning ? "run=1" : "run=0");
        } else if (choice < 300) {
            m_bench.model.setComment("comment %1"_s.arg(++m_edits));
            m_bench.model.setProjectModifiedFlag(true);
        } else if (choice < 400 && shots > 0) {
            m_bench.model.setShotLabel(m_random.bounded(shots), "label%1"_s.arg(++m_edits));
            m_bench.model.setProjectModifiedFlag(true);
        } else if (choice < 460 && shots > 4) {
            m_bench.controller.onTabOszi_deleteMeasurements(QString::number(1 + m_random.bounded(shots)));
        } else if (choice < 463) {
            m_bench.prompts->saveNames = {m_file};
            m_bench.controller.onSaveProject();
        } else {
            return;
        }
        report();
    }

    Bench m_bench;
    QString m_file;
    QTimer m_timer;
    QElapsedTimer m_clock;
    QRandomGenerator m_random{quint32(::getpid())};
    qint64 m_lines = 0;
    int m_edits = 0;
    bool m_isRunning = false;
};

struct Step
{
    qint64 time = 0;
    QByteArray digest;
};

std::vector<Step> stepsOf(const QByteArray &output)
{
    std::vector<Step> steps;
    for (const QByteArray &line : output.split('\n')) {
        const int blank = line.indexOf(' ');
        steps.push_back({line.left(blank).toLongLong(), line.mid(blank + 1)});
    }
    steps.pop_back(); // empty, or cut off
    return steps;
}

QByteArray withoutLabels(const QByteArray &digest)
{
    static const QRegularExpression label("\\|label\\d+"_s);
    return QString::fromUtf8(digest).replace(label, "|"_s).toUtf8();
}

bool isKnownWithoutLabels(const std::vector<Step> &steps, const QByteArray &digest)
{
    return std::any_of(steps.begin(), steps.end(),
                       [&digest](const Step &step) { return withoutLabels(step.digest) == withoutLabels(digest); });
}

/// Every project that a user could go on with: the file, and what each journal restores.
std::vector<std::unique_ptr<Model>> projectsIn(const QString &folder)
{
    std::vector<std::unique_ptr<Model>> projects;
    projects.push_back(std::make_unique<Model>(folder + "/project.vnt"_s));
    const QDir journals(folder + "/journal"_s);
    for (const QString &name : journals.entryList({"*.journal"_s}, QDir::Files)) {
        QFile file(journals.filePath(name));
        std::optional<JournalContents> contents;
        if (file.open(QIODevice::ReadOnly))
            contents = readJournal(file);
        auto model = std::make_unique<Model>(QString());
        if (contents && model->restore(*contents))
            projects.push_back(std::move(model));
    }
    return projects;
}

} // namespace

class TestJournalCrash : public QObject
{
    Q_OBJECT

private slots:
    void killedAtRandomMoments()
    {
        for (int round = 0; round < rounds; ++round) {
            const QTemporaryDir folder;
            QByteArray output;
            runAndKill(folder.path(), round % 4 != 0, output);
            if (!QTest::currentTestFailed())
                checkWhatIsLeft(folder.path(), stepsOf(output));
            if (QTest::currentTestFailed())
                return;
        }
        qInfo("%d ends, %d with a journal; at most the last %d ms of work were lost, begun %d ms before the end",
              rounds, m_restored, int(m_longestLost / 1000000), int(m_longestToEnd / 1000000));
        QVERIFY(m_restored * 4 > rounds);
    }

private:
    /// Some children end before there is a journal; on a busy computer it takes long until there is one.
    void runAndKill(const QString &folder, bool waitForJournal, QByteArray &output)
    {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {"--child"_s, folder});
        QVERIFY(child.waitForReadyRead(20000));
        const QDir journals(folder + "/journal"_s);
        if (waitForJournal)
            QVERIFY(QTest::qWaitFor([&] { return !journals.isEmpty(); }, 20000));
        QTest::qWait(int(QRandomGenerator::global()->bounded(1500)));
        m_end = now();
        ::kill(pid_t(child.processId()), SIGKILL);
        QVERIFY(child.waitForFinished());
        output = child.readAllStandardOutput();
    }

    void checkWhatIsLeft(const QString &folder, const std::vector<Step> &steps)
    {
        QVERIFY(!steps.empty());
        qint64 latest = steps.front().time; // until when the states that are left lasted
        const std::vector<std::unique_ptr<Model>> projects = projectsIn(folder);
        m_restored += projects.size() > 1 ? 1 : 0;
        for (const std::unique_ptr<Model> &project : projects) {
            const QByteArray digest = digestOf(*project);
            const auto found = std::find_if(steps.rbegin(), steps.rend(),
                                            [&digest](const Step &step) { return step.digest == digest; });
            // The labels are in a file of their own: if the end came between the two, the journal has them.
            const bool isHalf =
                found == steps.rend() && project == projects.front() && isKnownWithoutLabels(steps, digest);
            QVERIFY2(found != steps.rend() || isHalf || digest.isEmpty(), "invented: "_ba + digest);
            QVERIFY(areSamplesWhole(*project));
            if (found != steps.rend())
                latest = qMax(latest, found == steps.rbegin() ? m_end : std::prev(found)->time);
        }
        // Not until its end: on a busy computer the child may have got no turn for a while before that.
        const qint64 lost = qMax(qint64(0), steps.back().time - latest);
        QVERIFY2(lost < 1000000000, "lost ms: "_ba + QByteArray::number(lost / 1000000));
        m_longestLost = qMax(m_longestLost, lost);
        m_longestToEnd = qMax(m_longestToEnd, m_end - latest);
    }

    int m_restored = 0;
    qint64 m_end = 0; // of the last child, in ns like those below
    qint64 m_longestLost = 0;
    qint64 m_longestToEnd = 0;
};

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == "--child"_s) {
        const Worker worker(arguments.value(2));
        return QApplication::exec();
    }
    if (arguments.value(1) == "--rounds"_s)
        rounds = arguments.value(2).toInt();
    TestJournalCrash test;
    return QTest::qExec(&test, arguments.value(1) == "--rounds"_s ? QStringList{arguments.first()} : arguments);
}

#include "tst_journalcrash.moc"
