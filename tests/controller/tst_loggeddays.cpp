#include "rig.h"

#include "app/theme.h"
#include "simulator/datalogger.h"
#include "tests/support/literals.h"
#include "tests/support/sshserver.h"
#include "view/blackbox/tabblackbox.h"

#include <QLabel>
#include <QPushButton>

namespace {

constexpr int kDays = 3;
constexpr int kShotsADay = 2;

/// What the box measured: every value tells day, shot, sample and sensor.
double valueOf(int shot, int sample, int sensor)
{
    return shot * 1000.0 + sample * 10.0 + sensor + 0.125;
}

int samplesOf(int shot)
{
    return 20 + shot;
}

} // namespace

/// From the storage of the box into the project, over real connections.
class TestLoggedDays : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QString missing = SshServer::whatIsMissing();
        if (!missing.isEmpty())
            QSKIP(qPrintable(missing));
        QVERIFY(m_server.start());
        qputenv("VENTARO_SCP_PORT", QByteArray::number(m_server.port()));
        qputenv("VENTARO_SCP_KNOWN_BOXES", m_data.filePath("known_boxes"_s).toLocal8Bit());
        logDays();
    }

    void threeDaysAreListedFetchedImportedAndShown()
    {
        BoxOptions boxOptions;
        boxOptions.dataFolder = m_server.stick().filePath("data"_s);
        BoxSimulator box(boxOptions);
        QVERIFY(box.listen());
        const QTemporaryDir folder;
        ControllerOptions options = optionsFor(box.port());
        options.scpToolFile = QStringLiteral(VENTARO_SCP_BRIDGE);
        options.temporaryDirectory = folder.filePath("with blank/tmp-blackbox-dir"_s);
        Bench bench(options);
        bench.view.resize(1280, 800);
        bench.view.show();
        emit bench.view.connectDisconnect();
        QTRY_VERIFY(bench.model.isConnected());

        TabBlackBox *tab = bench.view.tabBlackBox();
        const auto click = [tab](const char *name) { tab->findChild<QPushButton *>(QLatin1String(name))->click(); };
        click("buttonList");
        QTRY_COMPARE(tab->list().size(), kDays);
        click("buttonSelectAll");
        QCOMPARE(tab->selectedDates(), (QStringList{"07.03.2024"_s, "06.03.2024"_s, "05.03.2024"_s}));
        click("buttonFetch");
        QVERIFY(bench.prompts->messages.empty());
        QCOMPARE(tab->selectedFiles().size(), kDays * kShotsADay);
        click("buttonImport");
        QVERIFY(bench.prompts->messages.empty());

        QCOMPARE(bench.shots(), kDays * kShotsADay);
        for (int shot = 0; shot < bench.shots(); ++shot) {
            for (int sensor = 0; sensor < kNumSensors; ++sensor) {
                QVector<double> expected;
                for (int sample = 0; sample < samplesOf(shot); ++sample)
                    expected.append(valueOf(shot, sample, sensor));
                QCOMPARE(bench.samples(sensor, shot), expected);
            }
        }
        QVERIFY(bench.slotsMatchModel());
    }

private:
    void logDays() const;

    QTemporaryDir m_data;
    SshServer m_server{theme::deviceUser, theme::devicePassword};
};

void TestLoggedDays::logDays() const
{
    DataLogger logger;
    logger.setFolder(m_server.stick().filePath("data"_s));
    for (int shot = 0; shot < kDays * kShotsADay; ++shot) {
        const QDateTime time({2024, 3, 5 + shot / kShotsADay}, {8 + shot % kShotsADay, 0});
        logger.begin(time, 100);
        for (int sample = 0; sample < samplesOf(shot); ++sample) {
            SampleValues values{};
            for (int sensor = 0; sensor < kNumSensors; ++sensor)
                values[static_cast<std::size_t>(sensor)] = valueOf(shot, sample, sensor);
            logger.add(values);
        }
        logger.end();
    }
}

QTEST_MAIN(TestLoggedDays)
#include "tst_loggeddays.moc"
