#include "model/model.h"
#include "model/storage/atomicfile.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"

#include <QLoggingCategory>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <csignal>

#include <unistd.h>

namespace {

constexpr int kKills = 8; // in the usual run; "--kills N" makes more

void addShot(Model &model, double value)
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const int shot = model.appendMeasurement(sensor);
        for (int sample = 0; sample < 20000; ++sample)
            (void)model.appendSample(sensor, shot, value + sample * 0.001);
    }
}

/// Saves one project over and over, one shot more or less each time, until it is killed.
int saveForEver(const QString &file)
{
    QLoggingCategory::setFilterRules("*.debug=false"_s);
    Model model{QString()};
    model.setYield([](int) {});
    addShot(model, 1);
    for (int round = 0;; ++round) {
        if (round % 2 == 0)
            addShot(model, 2);
        else
            (void)model.deleteChannel(1);
        model.discardRemoved();
        if (!model.save(file))
            return 1;
    }
}

/// One or two shots, every sample of them right.
bool isWhole(const QString &file)
{
    Model model{QString()};
    if (!model.open(file) || model.numChannels(0) < 1 || model.numChannels(0) > 2)
        return false;
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        for (int shot = 0; shot < model.numChannels(sensor); ++shot) {
            const SampleList &samples = *model.measurement(sensor, shot);
            if (samples.size() != 20000 || samples.constLast() != shot + 1 + 19999 * 0.001)
                return false;
        }
    }
    return true;
}

} // namespace

class TestKilledSave : public QObject
{
    Q_OBJECT

public:
    int kills = kKills;

private slots:
    void theFileIsWholeAtEveryMoment()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("killed.vnt"_s);
        int backups = 0;
        for (int kill = 0; kill < kills; ++kill) {
            QProcess program;
            program.setProcessChannelMode(QProcess::ForwardedChannels);
            program.start(QCoreApplication::applicationFilePath(), {"--save-for-ever"_s, file});
            QVERIFY(program.waitForStarted());
            QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(file), 20000);
            ::usleep(static_cast<useconds_t>(QRandomGenerator::global()->bounded(250000)));
            QVERIFY(::kill(static_cast<pid_t>(program.processId()), SIGKILL) == 0);
            QVERIFY(program.waitForFinished());
            QCOMPARE(program.exitStatus(), QProcess::CrashExit);
            QVERIFY2(isWhole(file), qPrintable("after kill %1"_s.arg(kill)));
            if (QFileInfo::exists(backupName(file))) {
                ++backups;
                QVERIFY(isWhole(backupName(file)));
            }
            const QStringList left = QDir(folder.path()).entryList({".*"_s}, QDir::Files | QDir::Hidden);
            m_leftOver += left.size();
            for (const QString &name : left)
                QVERIFY(QFile::remove(folder.filePath(name)));
        }
        QVERIFY(backups > 0);
        qInfo() << kills << "kills," << backups << "times with a backup," << m_leftOver << "files left over";
    }

private:
    int m_leftOver = 0; // names that a whole file had for a moment
};

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--save-for-ever"_s)
        return saveForEver(arguments.value(2));
    TestKilledSave test;
    const int kills = arguments.indexOf("--kills"_s);
    if (kills > 0) {
        test.kills = arguments.value(kills + 1).toInt();
        arguments.erase(arguments.begin() + kills, arguments.begin() + kills + 2);
    }
    return QTest::qExec(&test, arguments);
}
#include "tst_killedsave.moc"
