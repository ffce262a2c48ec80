#include "tests/support/faildevice.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"
#include "tests/support/shots.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace {

const QDateTime kMorning(QDate(2026, 3, 9), QTime(6, 0, 1, 250));

void addShots(Model &model, int count)
{
    for (int shot = 0; shot < count; ++shot)
        addShot(model, {10.0 * shot}, 1.0);
}

void fill(Model &model)
{
    addShots(model, 3);
    ProjectMeta meta;
    meta.sensors[1].startThreshold = 12.5;
    meta.sensors[4].stopThreshold = -0.1;
    meta.sensors[2].chosenQuantity = "mean"_s;
    meta.sensors[2].at("mean"_s) = {"mean"_s, true, 1.0, std::nullopt};
    meta.sensors[2].at("marker1"_s) = {"marker1"_s, false, std::nullopt, 0.3};
    meta.setMissingValues(2, 34);
    meta.setOrigin(2, {"192.168.4.1"_s, "dir-20260309/\"ä\".bb"_s, QByteArray::fromHex("00ff8010")});
    model.setProjectMeta(meta);
    model.setShotLabel(1, "Anfahrteil \"ö\"\n"_s);
    model.setTimestamp(0, kMorning);
    model.setTimestamp(2, kMorning.addSecs(60));
}

std::optional<ProjectMeta> readText(const QByteArray &text, const ShotChecks &checks = {})
{
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    return readProjectMeta(buffer, checks);
}

} // namespace

class TestProjectMeta : public QObject
{
    Q_OBJECT

private slots:
    void savedAndOpenedAgain()
    {
        Model model{QString()};
        fill(model);
        QVERIFY(model.save(path("a.vnt")));
        QVERIFY(model.isProjectMetaSaved());
        Model opened(path("a.vnt"));
        QVERIFY(opened.projectMeta().sensors == model.projectMeta().sensors);
        QCOMPARE(opened.shotLabel(0), QString());
        QCOMPARE(opened.shotLabel(1), "Anfahrteil \"ö\"\n"_s);
        QCOMPARE(opened.timestamp(0), kMorning);
        QVERIFY(!opened.timestamp(1).isValid());
        QCOMPARE(opened.timestamp(2), kMorning.addSecs(60));
        QCOMPARE(opened.projectMeta().missing(0), 0);
        QCOMPARE(opened.projectMeta().missing(2), 34);
        QVERIFY(!opened.isProjectModified());
        opened.clear();
        QVERIFY(opened.projectMeta() == ProjectMeta());
    }

    void unitsPeriodsAndImportsAreKept()
    {
        Model model{QString()};
        fill(model);
        model.setSensorUnit(2, "bar"_s);
        model.setSensorUnit(4, QString(30, QLatin1Char('x')));
        for (int shot = 0; shot < 3; ++shot)
            model.setSamplingPeriod(shot, shot * 50);
        writeFile(path("shot.bb"), "A=[1,2,3,4,5]\n");
        QVERIFY(model.addBlackBoxFile(path("shot.bb")));
        const QSet<QByteArray> imported = model.importedFiles();
        QCOMPARE(imported.size(), 1);
        QVERIFY(model.deleteChannel(0));
        QVERIFY(model.save(path("u.vnt")));
        Model opened(path("u.vnt"));
        const SensorGroup &group = opened.sensorDescription().sensorGroup(0);
        QCOMPARE(group.sensorUnit(2), "bar"_s);
        QCOMPARE(group.sensorUnit(3), QString());
        QCOMPARE(group.sensorUnit(4), QString(SensorGroup::kLongestUnit, QLatin1Char('x')));
        QCOMPARE(opened.samplingPeriod(0), 50);
        QCOMPARE(opened.samplingPeriod(1), 100);
        QCOMPARE(opened.samplingPeriod(2), 0); // nobody knows how fast the logger was
        QCOMPARE(opened.importedFiles(), imported);
        opened.clear();
        QVERIFY(opened.importedFiles().isEmpty());
    }

    /// The project was changed without the file beside it: a unit may not fit the sensor any more.
    void unitsOfOtherSensorsAreNotTaken()
    {
        Model model{QString()};
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            model.setSensorName(sensor, "s%1"_s.arg(sensor));
            model.setSensorUnit(sensor, "bar"_s);
        }
        QVERIFY(model.save(path("units.vnt")));
        QByteArray project = contentOf(path("units.vnt"));
        writeFile(path("units.vnt"), project.replace("\"s1\"", "\"s9\""));
        const Model opened(path("units.vnt"));
        QCOMPARE(opened.sensorDescription().sensorGroup(0).sensorUnit(0), "bar"_s);
        QCOMPARE(opened.sensorDescription().sensorGroup(0).sensorUnit(1), QString());
    }

    void isFoundThroughLinks()
    {
        Model model{QString()};
        fill(model);
        QVERIFY(QDir().mkpath(path("real")) && model.save(path("real/p.vnt")));
        QVERIFY(QFile::link(path("real/p.vnt"), path("link.vnt")));
        QVERIFY(model.open(path("link.vnt")));
        QCOMPARE(model.shotLabel(1), "Anfahrteil \"ö\"\n"_s);
        model.setShotLabel(1, "through the link"_s);
        QVERIFY(model.save(path("link.vnt")));
        QVERIFY(contentOf(path("real/p.vnt.meta")).contains("through the link"));
        QVERIFY(!QFile::exists(path("link.vnt.meta")));
        // Earlier versions wrote it beside the link.
        QVERIFY(QFile::rename(path("real/p.vnt.meta"), path("link.vnt.meta")));
        QVERIFY(model.open(path("link.vnt")));
        QCOMPARE(model.shotLabel(1), "through the link"_s);
    }

    void thePreviousVersionHasItsOwn()
    {
        Model model{QString()};
        fill(model);
        model.setShotLabel(0, "before"_s);
        QVERIFY(model.save(path("p.vnt")));
        model.setShotLabel(0, "after"_s);
        QVERIFY(model.save(path("p.vnt")));
        QVERIFY(model.open(path("p.vnt~")));
        QCOMPARE(model.shotLabel(0), "before"_s);
        QVERIFY(model.open(path("p.vnt")));
        QCOMPARE(model.shotLabel(0), "after"_s);
    }

    void theProjectFileStaysAsItIs()
    {
        Model plain{QString()};
        addShots(plain, 3);
        QVERIFY(plain.save(path("plain.vnt")));
        Model model{QString()};
        fill(model);
        QVERIFY(model.save(path("full.vnt")));
        QCOMPARE(contentOf(path("full.vnt")), contentOf(path("plain.vnt")));
    }

    void labelsStayWithTheirShots()
    {
        Model model{QString()};
        fill(model);
        QVERIFY(model.deleteChannel(0));
        QCOMPARE(model.shotLabel(0), "Anfahrteil \"ö\"\n"_s);
        QCOMPARE(model.timestamp(1), kMorning.addSecs(60));
        QCOMPARE(model.projectMeta().missing(1), 34);
        model.clearData();
        addShots(model, 2);
        QCOMPARE(model.shotLabel(0), QString());
        QCOMPARE(model.projectMeta().sensors[1].startThreshold, 12.5); // settings are not data: clearing keeps them
    }

    // Another program has written the project and knows nothing of the file beside it.
    void labelsOfOtherShotsAreNotTaken()
    {
        Model model{QString()};
        fill(model);
        QVERIFY(model.save(path("b.vnt")));
        const QByteArray meta = contentOf(path("b.vnt.meta"));
        QVERIFY(model.deleteChannel(0));
        QVERIFY(model.save(path("b.vnt")));
        writeFile(path("b.vnt.meta"), meta);
        Model opened(path("b.vnt"));
        QCOMPARE(opened.numChannels(0), 2);
        for (int shot = 0; shot < 2; ++shot) {
            QCOMPARE(opened.shotLabel(shot), QString());
            QVERIFY(!opened.timestamp(shot).isValid());
        }
        QCOMPARE(opened.projectMeta().sensors[1].startThreshold, 12.5);
    }

    void opensDespiteABadMetaFile_data()
    {
        columns<QByteArray>("text");
        row("no JSON", QByteArray("\xFF\x00garbage", 9));
        row("cut off", "{\"metaVersion\":1,\"sensors\":[{\"startThre"_ba);
        row("later version", "{\"metaVersion\":2,\"sensors\":[{\"startThreshold\":3}]}"_ba);
        row("deep", "{\"metaVersion\":1,\"shots\":"_ba + QByteArray(100000, '['));
        row("huge", QByteArray(static_cast<int>(kLargestMeta) + 1, ' '));
    }

    void opensDespiteABadMetaFile()
    {
        QFETCH(QByteArray, text);
        Model model{QString()};
        addShots(model, 2);
        QVERIFY(model.save(path("c.vnt")));
        writeFile(path("c.vnt.meta"), text);
        LogCapture log;
        QVERIFY(model.open(path("c.vnt")));
        QVERIFY(log.contains("ERROR: could not read file:"_s));
        QCOMPARE(model.numChannels(4), 2);
        QVERIFY(model.projectMeta() == ProjectMeta());
        QVERIFY(model.openLosses().meta == (text.contains(":2") ? MetaState::Newer : MetaState::Damaged));
        QVERIFY(model.openLosses().isAny());
        // It is not replaced by what the program has, be it nothing.
        for (const char *kept : {"c.vnt.meta.bad", "c.vnt.meta.bad2"}) {
            QVERIFY(!QFile::exists(path(kept)));
            QVERIFY(model.save(path("c.vnt")) && model.isProjectMetaSaved());
            QVERIFY(contentOf(path(kept)) == text);
            QVERIFY(model.open(path("c.vnt")) && !model.openLosses().isAny());
            writeFile(path("c.vnt.meta"), text); // damaged a second time
            model.setShotLabel(0, "new"_s);
        }
        for (const char *name : {"c.vnt.meta", "c.vnt.meta.bad", "c.vnt.meta.bad2"})
            QVERIFY(QFile::remove(path(name)));
    }

    /// What a version to come adds to the file without changing the rest.
    void unknownKeysAreKept()
    {
        Model model{QString()};
        fill(model);
        QVERIFY(model.save(path("k.vnt")));
        QJsonObject root = QJsonDocument::fromJson(contentOf(path("k.vnt.meta"))).object();
        root["metaVersion"_s] = 1.5;
        root["more"_s] = QJsonArray{1, 2};
        QJsonArray sensors = root["sensors"_s].toArray();
        QJsonObject sensor = sensors[3].toObject();
        sensor["color"_s] = "red"_s;
        sensors[3] = sensor;
        root["sensors"_s] = sensors;
        QJsonArray shots = root["shots"_s].toArray();
        QJsonObject shot = shots[1].toObject();
        shot["part"_s] = true;
        shots[1] = shot;
        root["shots"_s] = shots;
        writeFile(path("k.vnt.meta"), QJsonDocument(root).toJson());
        QVERIFY(model.open(path("k.vnt")) && model.deleteChannel(0) && model.save(path("k2.vnt")));
        root = QJsonDocument::fromJson(contentOf(path("k2.vnt.meta"))).object();
        QCOMPARE(root["more"_s], QJsonValue(QJsonArray{1, 2}));
        QCOMPARE(root["sensors"_s].toArray()[3].toObject()["color"_s].toString(), "red"_s);
        QVERIFY(root["shots"_s].toArray()[0].toObject()["part"_s].toBool());
        QVERIFY(!root["shots"_s].toArray()[1].toObject().contains("part"_s));
    }

    void onlyRegularFilesAreRead()
    {
        Model model{QString()};
        fill(model);
        QCOMPARE(::mkfifo(qPrintable(path("d.vnt.meta")), 0600), 0);
        QVERIFY(model.save(path("d.vnt")));
        QVERIFY(!model.isProjectMetaSaved());
        QElapsedTimer timer;
        timer.start();
        QVERIFY(model.open(path("d.vnt")));
        QVERIFY(timer.elapsed() < 10000); // nobody writes to the pipe
        QCOMPARE(model.numChannels(0), 3);
    }

    void reportsAFailedWrite()
    {
        Model model{QString()};
        fill(model);
        QVERIFY(QDir().mkpath(path("e.vnt.meta")));
        LogCapture log;
        QVERIFY(model.save(path("e.vnt")));
        QVERIFY(!model.isProjectMetaSaved() && model.isProjectModified());
        QCOMPARE(model.projectMetaFault().kind, FileFault::Kind::IsFolder);
        QVERIFY(log.contains("ERROR: could not write file:"_s));
        QVERIFY(QDir().rmdir(path("e.vnt.meta")));
        QVERIFY(model.save(path("e.vnt")));
        QVERIFY(model.isProjectMetaSaved() && !model.isProjectModified());
        QVERIFY(QFile::exists(path("e.vnt.meta")));
        // A project that cannot be written leaves the file beside it alone.
        const QByteArray before = contentOf(path("e.vnt.meta"));
        QVERIFY(QFile::remove(path("e.vnt")) && QDir().mkpath(path("e.vnt")));
        model.setShotLabel(0, "later"_s);
        QVERIFY(!model.save(path("e.vnt")));
        QCOMPARE(contentOf(path("e.vnt.meta")), before);
    }

    void badEntriesAreLeftOut()
    {
        const auto meta =
            readText("{\"metaVersion\":1,\"sensors\":[7,{\"startThreshold\":\"x\",\"stopThreshold\":2,"
                     "\"quantities\":[{\"quantity\":\"mean\",\"lowerLimit\":\"low\",\"upperLimit\":4},3,"
                     "{\"quantity\":\"mean\",\"upperLimit\":5},{\"upperLimit\":6}]},{},{},{},{},{}],"
                     "\"shots\":[{\"check\":1,\"label\":5,\"time\":\"soon\",\"period\":-5},\"no\",{\"check\":3,"
                     "\"label\":\"l\"},{\"check\":4,\"label\":\"too many\"}],"
                     "\"imported\":[5,\"\",\"xyz\",\"0aff\"]}",
                     {1, 2, 3});
        QVERIFY(meta);
        QCOMPARE(meta->sensors[1].startThreshold, 0.0);
        QCOMPARE(meta->sensors[1].stopThreshold, 2.0);
        QCOMPARE(meta->sensors[1].quantities.size(), size_t(1));
        QVERIFY(!meta->sensors[1].quantities[0].lowerLimit);
        QVERIFY(meta->sensors[1].quantities[0].upperLimit == 4.0);
        QCOMPARE(meta->labels.size(), size_t(3));
        QCOMPARE(meta->labels[2], "l"_s);
        QVERIFY(!meta->timestamps[0].isValid());
        QCOMPARE(meta->period(0), 0);
        QCOMPARE(meta->importedFiles, QSet<QByteArray>{QByteArray::fromHex("0aff")});
    }

    void noticesAShortWrite()
    {
        FailDevice device(20);
        QVERIFY(!writeProjectMeta(device, ProjectMeta(), {1, 2}));
    }

    void idsTellMeasurementsApart()
    {
        Model model{QString()};
        addShots(model, 3);
        QSet<quint64> seen;
        for (int shot = 0; shot < 3; ++shot)
            for (int sensor = 0; sensor < kNumSensors; ++sensor)
                seen.insert(model.measurementId(sensor, shot));
        QCOMPARE(seen.size(), 15);
        const quint64 last = model.measurementId(0, 2);
        QVERIFY(model.deleteChannel(1));
        QCOMPARE(model.measurementId(0, 1), last);
        model.clearData();
        addShots(model, 1);
        QVERIFY(!seen.contains(model.measurementId(0, 0)));
        QVERIFY(model.save(path("g.vnt")) && model.open(path("g.vnt")));
        QVERIFY(model.measurementId(0, 0) > last);
    }

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    QTemporaryDir m_folder;
};

QTEST_MAIN(TestProjectMeta)
#include "tst_projectmeta.moc"
