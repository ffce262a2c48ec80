#include "model/model.h"
#include "tests/support/logcapture.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

void writeText(const QString &fileName, const QByteArray &text)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

void addMeasurements(Model &model, int count, int samples)
{
    for (int i = 0; i < count; ++i) {
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            const int index = model.appendMeasurement(sensor);
            for (int k = 0; k < samples; ++k)
                (void)model.appendSample(sensor, index, 0.001 * k + index + sensor / 3.0);
        }
    }
}

QPixmap checkered(int width)
{
    QImage image(width, 9, QImage::Format_ARGB32);
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgba(x * 20, y * 20, 7, (x + y) % 2 ? 255 : 120));
    return QPixmap::fromImage(image);
}

void fill(Model &model)
{
    model.setProjectData({QStringLiteral("Deckel"), QStringLiteral("4711"), QStringLiteral("Öz"),
                          QStringLiteral("heute"), QStringLiteral("Kunde"), 850, 1.25, 0.1, -1200});
    model.setComment(QStringLiteral("Zeile 1\nZeile 2"));
    model.setClock(20);
    model.setDeviceDescription({QStringLiteral("hw"), QStringLiteral("fw"), 0, {}});
    for (int i = 0; i < 5; ++i) {
        model.setOffset(i, 0.1 * i - 0.2);
        model.setSensorName(i, QStringLiteral("Größe %1").arg(i));
        model.setSensorMinimum(0, i, -i - 0.5);
        model.setSensorMaximum(0, i, i + 0.5);
        model.setPhaseName(i, QStringLiteral("Phase %1").arg(i));
        model.setOsziMinimum(i, -1.0 * i);
        model.setOsziMaximum(i, 1e5 + i);
        model.setImage(i, i == 3 ? QPixmap() : checkered(i + 1));
    }
    model.setMarkersAbsolute(true);
    for (int marker = 0; marker < 4; ++marker)
        model.setVerticalMarkerAbsolute(marker, 100 * marker + 7);
    addMeasurements(model, 3, 50);
    model.appendMeasurement(0);
}

// Everything that a project file holds, as one comparable text.
QString summary(const Model &model)
{
    QString text;
    QDebug debug(&text);
    debug << model.projectData() << model.comment() << model.clock() << model.mesotraType() << model.hardwareVersion()
          << model.firmwareVersion() << model.markersAbsolute();
    for (int i = 0; i < 5; ++i) {
        const SensorGroup &group = model.sensorDescription().sensorGroup(0);
        debug << model.offset(i) << group.sensorName(i) << group.sensorMinimum(i) << group.sensorMaximum(i)
              << model.phaseName(i) << model.osziMinimum(i) << model.osziMaximum(i);
        debug << model.image(i).toImage().convertToFormat(QImage::Format_ARGB32).size() << model.numChannels(i);
        for (int m = 0; m < model.numChannels(i); ++m)
            debug << *model.measurement(i, m);
    }
    for (int marker = 0; marker < 4; ++marker)
        debug << model.verticalMarker(marker);
    return text;
}

} // namespace

class TestModelFiles : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(m_folder.isValid()); }
    void opensWhatItSaved();
    void startsWithAFile();
    void emitsInOrderAfterOpening();
    void failedOpenTouchesNothing_data();
    void failedOpenTouchesNothing();
    void readsOddFields_data();
    void readsOddFields();
    void readsOldVersions_data();
    void readsOldVersions();
    void readsOsziRanges_data();
    void readsOsziRanges();
    void readsImages_data();
    void readsImages();
    void failedSaveKeepsTheOldFile();
    void savesOnlyToRegularFiles();
    void refusesSecondTaskWhileBusy();
    void keepsSamplesThatArriveWhileSaving();
    void livesWhileWorking();
    void savesWithoutSensorGroup();

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

void TestModelFiles::opensWhatItSaved()
{
    Model model{QString()};
    fill(model);
    model.setProjectModifiedFlag(true);
    const QString file = path("saved.vnt");
    {
        const LogCapture log;
        QVERIFY(model.save(file));
        QVERIFY(log.contains(QStringLiteral("bool Model::save(const QString&) emit projectChanged()")));
    }
    QVERIFY(!model.isProjectModified());
    QCOMPARE(model.currentFile(), file);
    Model opened{QString()};
    opened.setVerticalMarkerAbsolute(0, 5000); // markers survive clear() and must not hold up smaller ones
    QVERIFY(opened.open(file));
    QCOMPARE(summary(opened), summary(model));
    for (int i = 0; i < 5; ++i)
        QCOMPARE(opened.image(i).toImage().convertToFormat(QImage::Format_ARGB32),
                 model.image(i).toImage().convertToFormat(QImage::Format_ARGB32));
    QCOMPARE(opened.timestamp(2), QDateTime());
    QVERIFY(opened.save(path("again.vnt")));
    QCOMPARE(contentOf(path("again.vnt")), contentOf(file));
}

void TestModelFiles::startsWithAFile()
{
    const QString file = path("start.vnt");
    writeText(file, R"({"projectName":"x","sensor 1":[[1,2]]})");
    const LogCapture log;
    const QString relative = QDir::current().relativeFilePath(file);
    const Model model(relative);
    QVERIFY(log.contains(QStringLiteral(" fileToOpen=") + relative));
    QCOMPARE(model.currentFile(), file);
    QCOMPARE(model.numChannels(0), 1);
    const Model empty(path("missing.vnt"));
    QCOMPARE(empty.currentFile(), QString());
}

void TestModelFiles::emitsInOrderAfterOpening()
{
    const QString file = path("order.vnt");
    writeText(file, "{}");
    Model model{QString()};
    addMeasurements(model, 1, 5);
    const SampleList *shown = model.measurement(0, 0);
    QStringList emitted;
    connect(&model, &Model::projectChanged, &model, [&] {
        emitted << QStringLiteral("project");
        QCOMPARE(shown->size(), 5); // a paint may still show the old shot
    });
    connect(&model, &Model::dataChanged, &model, [&] { emitted << QStringLiteral("data"); });
    connect(&model, &Model::viewDataChanged, &model, [&] { emitted << QStringLiteral("view"); });
    model.setProjectModifiedFlag(true);
    model.blockSignals(true); // as a deletion with a syntax error leaves it
    const LogCapture log;
    QVERIFY(model.open(file));
    QCOMPARE(emitted.join(QLatin1Char(' ')), QStringLiteral("project data view"));
    QVERIFY(log.indexOf(QStringLiteral("emitting projectChanged()")) > log.indexOf(QStringLiteral("no array!")));
    QVERIFY(log.indexOf(QStringLiteral("emitting viewDataChanged()")) > log.indexOf(QStringLiteral("emitting dataC")));
    QVERIFY(!model.isProjectModified() && !model.signalsBlocked());
}

void TestModelFiles::failedOpenTouchesNothing_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");
    const QString notOpened = QStringLiteral("could not open file:");
    const QString noObject = QStringLiteral(" jdoc is no object!");
    QTest::newRow("folder") << QByteArray("folder") << notOpened;
    QTest::newRow("missing") << QByteArray("missing") << notOpened;
    QTest::newRow("pipe") << QByteArray("pipe") << notOpened;
    QTest::newRow("empty") << QByteArray() << noObject;
    QTest::newRow("list") << QByteArray("[1]") << noObject;
    QTest::newRow("cut") << QByteArray(R"({"projectName":"x","sensor 1":[[1,2)") << noObject;
}

void TestModelFiles::failedOpenTouchesNothing()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, error);
    QString file = path("bad.vnt");
    QFile::remove(file);
    if (text == "folder")
        file = m_folder.path();
    else if (text == "pipe")
        QCOMPARE(mkfifo(QFile::encodeName(file).constData(), 0600), 0);
    else if (text != "missing")
        writeText(file, text);
    Model model{QString()};
    fill(model);
    model.setProjectModifiedFlag(true);
    const QString before = summary(model);
    QSignalSpy changed(&model, &Model::projectChanged);
    const LogCapture log;
    QVERIFY(!model.open(file));
    QVERIFY(log.contains(error));
    QVERIFY(log.contains(QStringLiteral("filename=") + file));
    QCOMPARE(summary(model), before);
    QVERIFY(model.isProjectModified() && changed.isEmpty() && !model.isBusy());
    QFile::remove(path("bad.vnt"));
}

void TestModelFiles::readsOddFields_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("logged");
    QTest::addColumn<QString>("found");
    const auto row = [](const QByteArray &text, const char *logged, const char *found) {
        QTest::newRow(qPrintable(QString::fromUtf8(text + logged)))
            << text << QString::fromUtf8(logged) << QString::fromUtf8(found);
    };
    // found: clock, firmware version, closing force, marker 4, phase 5, offset 1, maximum 1, name 5, shots
    const char *defaults = "100 8.0 0 40 WZ öffnen 0 100000 Sensor 5 00000";
    row("{}", " jSensor1 is no array!", defaults);
    row("{}", " jSensor5 is no array!", defaults);
    row("{}", " jMarkers is no array!", defaults);
    row("{}", " jPhases is no array!", defaults);
    row("{}", " jCorrections is no array!", defaults);
    row("{}", " jMinValues is no array!", defaults);
    row("{}", " jMaxValues is no array!", defaults);
    row(R"({"sensor 2":{},"sensor 3":"[]"})", " jSensor3 is no array!", defaults);
    row(R"({"sensor 2":[[1,2],[]],"sensor 4":[[]]})", "jSensor1Array.size()=2",
        "100 8.0 0 40 WZ öffnen 0 100000 Sensor 5 02010");
    row(R"({"sensor 2":[[1,2,3,4]]})", "jValues.size()=4", "100 8.0 0 40 WZ öffnen 0 100000 Sensor 5 01000");
    row(R"({"clock":99.5,"swVersion":"x","paramClosingForce":12,"markers":[1,2,3,4.6]})", " index=3 pos=5",
        "100 x 12 5 WZ öffnen 0 100000 Sensor 5 00000");
    row(R"({"clock":"20","swVersion":7,"paramClosingForce":null,"corrections":5})", " jCorrections is no array!",
        defaults);
    row(R"({"clock":1e300,"paramClosingForce":1e300,"markers":[0,0,0,1e300]})", " pos=2147483647",
        "3600000 8.0 2147483647 2147483647 WZ öffnen 0 100000 Sensor 5 00000");
    row(R"({"clock":-3,"phases":["a","b","c","d","e","f"]})", " ERROR: index out of range! (5",
        "1 8.0 0 40 e 0 100000 Sensor 5 00000");
    row(R"({"clock":1e999,"corrections":[1.5,2,3,4,5,6,7]})", " offset[0]=1.5",
        "1 8.0 0 40 WZ öffnen 1.5 100000 Sensor 5 00000");
    row(R"({"sensor maxValues":[7.25],"sensor minValues":[-3]})", " sensor maximum(0)=7.25",
        "100 8.0 0 40 WZ öffnen 0 7.25 Sensor 5 00000");
    row(R"({"sensorName 5":"N","sensorName 1":3})", " numSensors(0)=5", "100 8.0 0 40 WZ öffnen 0 100000 N 00000");
    row(R"({"measurement":[[1]],"sensor 6":[[1]],"sensor1":[[1]]})", " numSensorGroups=1", defaults);
}

void TestModelFiles::readsOddFields()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, logged);
    QFETCH(QString, found);
    writeText(path("odd.vnt"), text);
    Model model{QString()};
    model.setVerticalMarkerAbsolute(3, 40);
    const LogCapture log;
    QVERIFY(model.open(path("odd.vnt")));
    QVERIFY(log.contains(logged));
    const SensorGroup &group = model.sensorDescription().sensorGroup(0);
    QString state =
        QStringLiteral("%1 %2 %3 %4 %5 %6 %7 %8 ")
            .arg(QString::number(model.clock()), model.firmwareVersion(),
                 QString::number(model.projectData().closingForce), QString::number(model.verticalMarker(3)),
                 model.phaseName(4), QString::number(model.offset(0)), QString::number(group.sensorMaximum(0)),
                 group.sensorName(4));
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        state += QString::number(model.numChannels(sensor));
    QCOMPARE(state, found);
}

void TestModelFiles::readsOldVersions_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QString>("logged");
    QTest::addColumn<bool>("isOld");
    QTest::newRow("current") << QByteArray(R"("7")") << QStringLiteral(" file version=7") << false;
    QTest::newRow("later") << QByteArray(R"("12")") << QStringLiteral(" file version=12") << false;
    QTest::newRow("older") << QByteArray(R"("5")") << QStringLiteral(" file version=5") << true;
    QTest::newRow("not an integer") << QByteArray(R"("7.5")") << QStringLiteral(" file version=7.5") << true;
    QTest::newRow("number") << QByteArray("7") << QStringLiteral(" file version=6.0") << true;
    QTest::newRow("empty") << QByteArray(R"("")") << QStringLiteral(" file version=6.0") << true;
    QTest::newRow("null") << QByteArray("null") << QStringLiteral(" file version=6.0") << true;
}

void TestModelFiles::readsOldVersions()
{
    QFETCH(QByteArray, version);
    QFETCH(QString, logged);
    QFETCH(bool, isOld);
    writeText(path("version.vnt"), "{\"fileVersion\":" + version + "}");
    const LogCapture log;
    Model model{QString()};
    SensorDescription description;
    description.setNumSensorGroups(3);
    model.setSensorDescription(description);
    QVERIFY(model.open(path("version.vnt")));
    QVERIFY(log.contains(logged));
    QCOMPARE(log.contains(QStringLiteral(" file version < 7 -> using defaults (1 group, 5 sensors, distance)")), isOld);
    QCOMPARE(model.sensorDescription().numSensorGroups(), 1);
    QCOMPARE(model.sensorDescription().sensorGroup(0).numSensors(), 5);
    QCOMPARE(model.sensorDescription().sensorGroup(0).sensorType(4), isOld ? QStringLiteral("Distance") : QString());
}

void TestModelFiles::readsOsziRanges_data()
{
    QTest::addColumn<QByteArray>("viewData");
    QTest::addColumn<QString>("logged");
    QTest::addColumn<double>("firstMaximum");
    QTest::addColumn<bool>("absolute");
    const QString undefined = QStringLiteral("jViewData is undefined (key 'ViewData' not found)!");
    const QString empty = QStringLiteral("jViewDataObj is empty!  (Qt bug? doesn't matter!)");
    const QString limits = QStringLiteral("osziMin and osziMax not given or equal -> use sensor min/max values:");
    QTest::newRow("missing") << QByteArray(R"("x":0)") << undefined << 8.0 << false;
    QTest::newRow("text") << QByteArray(R"("ViewData":"x")") << QStringLiteral("jViewData is no object!") << 8.0
                          << false;
    QTest::newRow("null") << QByteArray(R"("ViewData":null)") << QStringLiteral("jViewData is no object!") << 8.0
                          << false;
    QTest::newRow("empty") << QByteArray(R"("ViewData":{})") << empty << 8.0 << false;
    QTest::newRow("no ranges") << QByteArray(R"("ViewData":{"checkBoxMarkerAbsolute":true})")
                               << QStringLiteral("jOsziMinArray is no array!") << 8.0 << true;
    QTest::newRow("no maximum") << QByteArray(R"("ViewData":{"osziMinValues":[0]})")
                                << QStringLiteral("jOsziMaxArray is no array!") << 8.0 << false;
    QTest::newRow("first alone") << QByteArray(
        R"("ViewData":{"osziMinValues":[0,0,0,0,0],"osziMaxValues":[10,0,0,0,0,9],"checkBoxMarkerAbsolute":1})")
                                 << limits << 10.0 << false;
}

void TestModelFiles::readsOsziRanges()
{
    QFETCH(QByteArray, viewData);
    QFETCH(QString, logged);
    QFETCH(double, firstMaximum);
    QFETCH(bool, absolute);
    writeText(path("view.vnt"), "{" + viewData + R"(,"sensor minValues":[0,-2,0,0,0],"sensor maxValues":[8,9,0,0,0]})");
    const LogCapture log;
    Model model{QString()};
    QVERIFY(model.open(path("view.vnt")));
    QVERIFY(log.contains(logged));
    QCOMPARE(model.osziMaximum(0), firstMaximum);
    QCOMPARE(model.osziMinimum(1), -2.0);
    QCOMPARE(model.osziMaximum(1), 9.0);
    QCOMPARE(model.markersAbsolute(), absolute);
}

void TestModelFiles::readsImages_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QSize>("size");
    QByteArray png;
    QBuffer buffer(&png);
    QVERIFY(buffer.open(QIODevice::WriteOnly) && checkered(3).save(&buffer, "PNG"));
    QByteArray huge = png;
    huge.replace(16, 8, QByteArray::fromHex("0000ffff0000ffff")); // width and height in its head
    QTest::newRow("image") << QByteArray('"' + png.toBase64() + '"') << QSize(3, 9);
    QTest::newRow("gigabytes") << QByteArray('"' + huge.toBase64() + '"') << QSize();
    QTest::newRow("no image") << QByteArray(R"("AAAA")") << QSize();
    QTest::newRow("cut") << QByteArray('"' + png.left(20).toBase64() + '"') << QSize();
    QTest::newRow("not Base64") << QByteArray(R"("\u00e4%&")") << QSize();
    QTest::newRow("empty") << QByteArray(R"("")") << QSize();
    QTest::newRow("number") << QByteArray("1") << QSize();
}

void TestModelFiles::readsImages()
{
    QFETCH(QByteArray, json);
    QFETCH(QSize, size);
    writeText(path("image.vnt"), "{\"projectImage4\":" + json + "}");
    const LogCapture log;
    const Model model(path("image.vnt"));
    QCOMPARE(model.currentFile(), path("image.vnt"));
    QCOMPARE(model.image(4).size(), size.isValid() ? size : QSize(0, 0));
}

void TestModelFiles::failedSaveKeepsTheOldFile()
{
    Model model{QString()};
    fill(model);
    const QString file = path("kept.vnt");
    QVERIFY(model.save(file));
    const QByteArray old = contentOf(file);
    addMeasurements(model, 20, 500);
    model.setProjectModifiedFlag(true);
    QVERIFY(!model.save(path("no such folder/x.vnt")));

    // A limit of the file size makes writes fail as a full disk does.
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    for (rlim_t limit : {rlim_t(0), rlim_t(1), rlim_t(65536), rlim_t(100000), rlim_t(700000)}) {
        const rlimit low{limit, before.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &low), 0);
        const bool saved = model.save(file);
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
        QVERIFY(!saved);
        QCOMPARE(contentOf(file), old);
        QVERIFY(model.isProjectModified() && !model.isBusy());
    }
    (void)std::signal(SIGXFSZ, handler);
    QCOMPARE(model.currentFile(), file);
    QCOMPARE(QDir(m_folder.path()).entryList({QStringLiteral("kept*")}, QDir::Files).size(), 1);
    QVERIFY(model.save(file));
    QVERIFY(contentOf(file).size() > 700000);
}

void TestModelFiles::savesOnlyToRegularFiles()
{
    Model model{QString()};
    QVERIFY(!model.save(QString()));
    QVERIFY(!model.save(m_folder.path()));
    const QString pipe = path("pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(!model.save(pipe) && !model.saveCsv(pipe));
    QVERIFY(QFileInfo::exists(pipe) && !QFileInfo(pipe).isFile());
    const QString target = path("target.vnt");
    writeText(target, "old");
    QVERIFY(QFile::link(target, path("link.vnt")));
    QVERIFY(model.save(path("link.vnt")));
    QVERIFY(QFileInfo(path("link.vnt")).isSymLink());
    QVERIFY(contentOf(target).startsWith('{'));
}

void TestModelFiles::refusesSecondTaskWhileBusy()
{
    Model model{QString()};
    fill(model);
    const QString file = path("busy.vnt");
    QVERIFY(model.save(file));
    const QString before = summary(model);
    int turns = 0;
    model.setYield([&](int) {
        ++turns;
        QVERIFY(model.isBusy());
        QVERIFY(!model.open(file) && !model.save(path("second.vnt")) && !model.saveCsv(path("second.csv")));
        QVERIFY(!model.deleteChannel(0));
        model.clearData();
        model.clear();
        QCOMPARE(summary(model), before);
    });
    QVERIFY(model.save(file));
    QVERIFY(model.saveCsv(path("busy.csv")));
    QVERIFY(model.open(file));
    QVERIFY(turns >= 3);
    QCOMPARE(summary(model), before);
    QVERIFY(!model.isBusy() && !QFile::exists(path("second.vnt")) && !QFile::exists(path("second.csv")));
}

void TestModelFiles::keepsSamplesThatArriveWhileSaving()
{
    Model model{QString()};
    addMeasurements(model, 2, 100);
    QVERIFY(model.save(path("before.vnt")));
    model.setYield([&](int) {
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            QVERIFY(model.appendSample(sensor, 1, 1e6));
            QVERIFY(model.appendSample(sensor, model.appendMeasurement(sensor), 2e6));
        }
        model.setComment(QStringLiteral("later"));
    });
    QVERIFY(model.save(path("during.vnt")));
    QCOMPARE(contentOf(path("during.vnt")), contentOf(path("before.vnt")));
    QVERIFY(model.isProjectModified()); // the file lacks what has come since
    QCOMPARE(model.measurement(4, 1)->constLast(), 1e6);
    model.setYield([](int) {});
    QVERIFY(model.save(path("during.vnt")));
    QVERIFY(!model.isProjectModified());
    QVERIFY(contentOf(path("during.vnt")) != contentOf(path("before.vnt")));
}

void TestModelFiles::livesWhileWorking()
{
    Model model{QString()};
    addMeasurements(model, 40, 1000);
    QVector<int> progress;
    QElapsedTimer timer;
    qint64 longestGap = 0;
    model.setYield([&](int percent) {
        if (timer.isValid())
            longestGap = qMax(longestGap, timer.elapsed());
        progress << percent;
        timer.start();
    });
    const auto work = [&](const std::function<bool()> &task) {
        progress.clear();
        timer.invalidate();
        QVERIFY(task());
        QVERIFY(progress.first() == 0 && std::is_sorted(progress.begin(), progress.end()) && progress.last() <= 100);
    };
    work([&] { return model.save(path("long.vnt")); });
    work([&] { return model.saveCsv(path("long.csv")); });
    QVERIFY(progress.size() > 2);
    work([&] { return model.open(path("long.vnt")); });
    QVERIFY2(longestGap < 500, qPrintable(QString::number(longestGap))); // wide: the machine may be busy
}

void TestModelFiles::savesWithoutSensorGroup()
{
    Model model{QString()};
    model.setSensorDescription(SensorDescription());
    QVERIFY(model.save(path("nogroup.vnt")));
    const QJsonObject json = QJsonDocument::fromJson(contentOf(path("nogroup.vnt"))).object();
    QCOMPARE(json[QStringLiteral("sensor minValues")].toArray(), (QJsonArray{0, 0, 0, 0, 0}));
    QCOMPARE(json[QStringLiteral("sensor maxValues")].toArray(), (QJsonArray{0, 0, 0, 0, 0}));
    QCOMPARE(json[QStringLiteral("sensor 5")].toArray(), QJsonArray());
    QCOMPARE(json[QStringLiteral("fileVersion")].toString(), QStringLiteral("7"));
}

QTEST_MAIN(TestModelFiles)
#include "tst_modelfiles.moc"
