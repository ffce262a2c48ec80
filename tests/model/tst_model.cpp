#include "model/model.h"
#include "tests/support/logcapture.h"

#include <QtTest>

#include <functional>
#include <limits>

namespace {

using Change = std::function<void(Model &model)>;

void addMeasurement(Model &model, const SampleList &samples)
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const int index = model.appendMeasurement(sensor);
        for (double sample : samples)
            QVERIFY(model.appendSample(sensor, index, sample + 100 * sensor));
    }
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestModel : public QObject
{
    Q_OBJECT

private slots:
    void clearResetsInOrder();
    void clearKeepsWhatIsNotTheProject();
    void announcesChanges_data();
    void announcesChanges();
    void ignoresBadIndices_data();
    void ignoresBadIndices();
    void knowsValuesOfMeasurements();
    void takesOnlyFiniteNumbers();
    void samplesStayWhereTheyAre();
    void keepsRemovedSamplesUntilReceiversLetGo();
    void deletesFromAllChannels();
    void boundsTheClock_data();
    void boundsTheClock();
};

void TestModel::clearResetsInOrder()
{
    Model model{QString()};
    addMeasurement(model, {1.0});
    model.setOffset(1, 2.0);
    model.setColor(2, Qt::white);
    model.setPhaseName(0, QStringLiteral("x"));
    model.setComment(QStringLiteral("x"));
    model.setClock(7);
    model.setImage(4, QPixmap(2, 2));
    model.setDeviceDescription({QStringLiteral("h"), QStringLiteral("f"), 0, {}});
    model.setSensorDescription(SensorDescription());
    model.setProjectModifiedFlag(true);
    model.setFileList({QStringLiteral("x")});
    const LogCapture log;
    model.clear();
    int at = -1;
    for (const char *text :
         {"void Model::clear()", "void Model::resetOffsets()", "emit projectChanged()", "min=", " clearing images",
          "void Model::clearData()", "emit dataChanged()", "void Model::clear() emit projectChanged()", " END"}) {
        at = log.indexOf(QString::fromLatin1(text), at + 1);
        QVERIFY2(at >= 0, text);
    }
    QCOMPARE(model.numChannels(0), 0);
    QCOMPARE(model.offset(1), 0.0);
    QCOMPARE(model.color(2), QColor(Qt::darkBlue));
    QCOMPARE(model.phaseName(0), QStringLiteral("WZ schließen"));
    QCOMPARE(model.comment() + model.hardwareVersion() + model.firmwareVersion(), QStringLiteral("8.0"));
    QCOMPARE(model.clock(), 100);
    QVERIFY(model.image(4).isNull() && model.fileList().isEmpty() && !model.isProjectModified());
    const SensorGroup &group = model.sensorDescription().sensorGroup(0);
    QCOMPARE(group.numSensors(), 5);
    QCOMPARE(group.sensorName(4), QString());
    QCOMPARE(group.sensorMinimum(4), -100000.0);
}

void TestModel::clearKeepsWhatIsNotTheProject()
{
    Model model{QString()};
    model.setVerticalMarkerAbsolute(3, 40);
    model.setMarkersAbsolute(true);
    model.setOsziMaximum(2, 12.5);
    model.setConnected(true);
    model.clear();
    QCOMPARE(model.verticalMarker(3), 40);
    QCOMPARE(model.osziMaximum(2), 12.5);
    QVERIFY(model.markersAbsolute() && model.isConnected());
}

void TestModel::announcesChanges_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("line");
    const auto row = [](const char *line, const Change &change) {
        QTest::newRow(line) << change << QString::fromLatin1(line);
    };
    row("void Model::setOffset(int, double) emit projectChanged()", [](Model &m) { m.setOffset(4, 1.5); });
    row("void Model::resetOffsets() emit projectChanged()", [](Model &m) { m.resetOffsets(); });
    row("void Model::setColor(uint8_t, const QColor&) emit projectChanged()", [](Model &m) { m.setColor(4, Qt::red); });
    row("void Model::setSensorName(int, const QString&) emit projectChanged()",
        [](Model &m) { m.setSensorName(4, {}); });
    row("void Model::setSensorMinimum(int, int, double) emit projectChanged()",
        [](Model &m) { m.setSensorMinimum(0, 4, 2); });
    row("void Model::setSensorMaximum(int, int, double) emit projectChanged()",
        [](Model &m) { m.setSensorMaximum(0, 4, 2); });
    row("void Model::setPhaseName(int, const QString&) emit projectChanged()", [](Model &m) { m.setPhaseName(4, {}); });
    row("void Model::setVerticalMarkerAbsolute(int, int) emit projectChanged()",
        [](Model &m) { m.setVerticalMarkerAbsolute(3, 2); });
    row("void Model::setVerticalMarkerRelative(int, int) emit projectChanged()",
        [](Model &m) { m.setVerticalMarkerRelative(3, 2); });
    row("void Model::setProjectData(const ProjectData&) emit projectChanged()", [](Model &m) { m.setProjectData({}); });
    row("void Model::setComment(const QString&) emit projectChanged()", [](Model &m) { m.setComment({}); });
    row("void Model::setClock(int) emit projectChanged()", [](Model &m) { m.setClock(5); });
    row("void Model::clearData() emit dataChanged()", [](Model &m) { m.clearData(); });
    row("void Model::emitAppStateChanged() emit appStateChanged()", [](Model &m) { m.emitAppStateChanged(); });
}

void TestModel::announcesChanges()
{
    QFETCH(Change, change);
    QFETCH(QString, line);
    Model model{QString()};
    QStringList emitted;
    connect(&model, &Model::appStateChanged, &model, [&] { emitted << QStringLiteral("appStateChanged()"); });
    connect(&model, &Model::projectChanged, &model, [&] { emitted << QStringLiteral("projectChanged()"); });
    connect(&model, &Model::dataChanged, &model, [&] { emitted << QStringLiteral("dataChanged()"); });
    const LogCapture log;
    change(model);
    QCOMPARE(log.count(line), 1);
    QCOMPARE(emitted, QStringList{line.mid(line.indexOf(QLatin1String("emit ")) + 5)});
}

void TestModel::ignoresBadIndices_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const char *error, const Change &change) {
        QTest::newRow(name) << change << QString::fromLatin1(error);
    };
    row("channels", " ERROR: index out of range! (5", [](Model &m) { QCOMPARE(m.numChannels(5), 0); });
    row("negative channels", " ERROR: index out of range! (-1", [](Model &m) { QCOMPARE(m.numChannels(-1), 0); });
    row("latest of group", " ERROR: group out of range! (", [](Model &m) { QCOMPARE(m.latestValue(1, 0), 0.0); });
    row("latest of sensor", " ERROR: sensor out of range! (", [](Model &m) { QCOMPARE(m.latestValue(0, 5), 0.0); });
    row("minimum", " ERROR: index out of range! (1", [](Model &m) { QCOMPARE(m.minimumValue(0, 1), 0.0); });
    row("maximum", " ERROR: index out of range! (-1", [](Model &m) { QCOMPARE(m.maximumValue(0, -1), 0.0); });
    row("maximum of sensor", " ERROR: index out of range! (7", [](Model &m) { QCOMPARE(m.maximumValue(7, 0), 0.0); });
    row("offset", " ERROR: index out of range! (5", [](Model &m) { m.setOffset(5, 1); });
    row("color", " ERROR: index out of range! (255", [](Model &m) { m.setColor(255, Qt::red); });
    row("sensor name", " ERROR: index out of range! (5", [](Model &m) { m.setSensorName(5, {}); });
    row("sensor limit of group", "ERROR: i>=numGroups", [](Model &m) { m.setSensorMinimum(1, 0, 1); });
    row("sensor limit", " ERROR: index out of range! (-2", [](Model &m) { m.setSensorMaximum(0, -2, 1); });
    row("phase", "ERROR: index>=size !", [](Model &m) { QCOMPARE(m.phaseName(5), QString()); });
    row("negative phase", "ERROR: index>=size !", [](Model &m) { QCOMPARE(m.phaseName(-1), QString()); });
    row("phase to set", " ERROR: index out of range! (5", [](Model &m) { m.setPhaseName(5, {}); });
    row("marker", " index=4 pos=1", [](Model &m) { m.setVerticalMarkerAbsolute(4, 1); });
    row("relative marker", " index=-1 pos=1", [](Model &m) { m.setVerticalMarkerRelative(-1, 1); });
    row("image", " ERROR: index out of range! (5", [](Model &m) { m.setImage(5, QPixmap(1, 1)); });
    row("time stamp", " ERROR: index out of range! (1", [](Model &m) { m.setTimestamp(1, QDateTime()); });
    row("measurement", " ERROR: index out of range! (5", [](Model &m) { QCOMPARE(m.appendMeasurement(5), -1); });
    row("deletion", " ERROR: index out of range! (1", [](Model &m) { QVERIFY(!m.deleteChannel(1)); });
}

void TestModel::ignoresBadIndices()
{
    QFETCH(Change, change);
    QFETCH(QString, error);
    Model model{QString()};
    addMeasurement(model, {1.0});
    const quint64 revision = model.structureRevision();
    QSignalSpy projectChanged(&model, &Model::projectChanged);
    const LogCapture log;
    change(model);
    QCOMPARE(log.count(error), 1);
    QCOMPARE(projectChanged.count(), 0);
    QCOMPARE(model.structureRevision(), revision);
    QVERIFY(!model.measurement(5, 0) && !model.measurement(0, 1) && !model.measurement(-1, -1));
    QVERIFY(!model.appendSample(0, 1, 1.0) && !model.appendSample(5, 0, 1.0) && !model.appendSample(0, -1, 1.0));
}

void TestModel::knowsValuesOfMeasurements()
{
    Model model{QString()};
    QCOMPARE(model.latestValue(0, 0), 0.0);
    addMeasurement(model, {3.0, -7.5, 2.0});
    QCOMPARE(model.latestValue(0, 1), 102.0);
    QCOMPARE(model.minimumValue(1, 0), 92.5);
    QCOMPARE(model.maximumValue(1, 0), 103.0);
    addMeasurement(model, {});
    QCOMPARE(model.latestValue(0, 1), 0.0);
    QCOMPARE(model.minimumValue(1, 1), 9999999.0);
    QCOMPARE(model.maximumValue(1, 1), -9999999.0);
}

void TestModel::takesOnlyFiniteNumbers()
{
    Model model{QString()};
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    addMeasurement(model, {nan, inf, -inf});
    QCOMPARE(*model.measurement(0, 0), (SampleList{0.0, 0.0, 0.0}));
    model.setOffset(0, nan);
    model.setSensorMinimum(0, 0, inf);
    model.setOsziMinimum(0, nan);
    QCOMPARE(model.offset(0) + model.sensorDescription().sensorGroup(0).sensorMinimum(0) + model.osziMinimum(0), 0.0);
}

void TestModel::samplesStayWhereTheyAre()
{
    Model model{QString()};
    addMeasurement(model, {1.0});
    const SampleList *first = model.measurement(2, 0);
    for (int i = 0; i < 200; ++i)
        addMeasurement(model, {2.0, 3.0});
    QVERIFY(model.deleteChannel(50));
    model.endRecording();
    QCOMPARE(model.measurement(2, 0), first);
    QCOMPARE(first->constFirst(), 201.0);
}

void TestModel::keepsRemovedSamplesUntilReceiversLetGo()
{
    Model model{QString()};
    addMeasurement(model, {1.0, 2.0});
    addMeasurement(model, {3.0});
    const SampleList *shown = model.measurement(0, 0);
    int read = 0;
    connect(&model, &Model::dataChanged, &model, [&] {
        if (shown)
            read += shown->size(); // a receiver may look at its curves once more before it lets go
        shown = nullptr;
    });
    model.blockSignals(true);
    const quint64 revision = model.structureRevision();
    QVERIFY(model.deleteChannel(0));
    model.clearData();
    model.emitDataChanged();
    QVERIFY(model.structureRevision() != revision);
    QCOMPARE(shown->size(), 2); // signals are blocked: nobody has been told
    model.blockSignals(false);
    model.emitDataChanged();
    QCOMPARE(read, 2);
}

void TestModel::deletesFromAllChannels()
{
    Model model{QString()};
    for (int i = 0; i < 3; ++i)
        addMeasurement(model, {double(i)});
    QCOMPARE(model.appendMeasurement(3), 3); // one channel is ahead of the others
    const QDateTime stamp(QDate(2021, 7, 29), QTime(14, 30, 5));
    model.setTimestamp(2, stamp);
    QVERIFY(!model.timestamp(0).isValid());
    QVERIFY(model.deleteChannel(1));
    QCOMPARE(model.numChannels(0), 2);
    QCOMPARE(model.numChannels(3), 3);
    QCOMPARE(model.measurement(4, 1)->constFirst(), 402.0);
    QCOMPARE(model.timestamp(1), stamp);
    QVERIFY(model.deleteChannel(2));
    QCOMPARE(model.numChannels(0), 2);
    QVERIFY(!model.deleteChannel(2) && !model.deleteChannel(-1));
}

void TestModel::boundsTheClock_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("expected");
    QTest::newRow("usual") << 250 << 250;
    QTest::newRow("zero") << 0 << 1;
    QTest::newRow("negative") << std::numeric_limits<int>::min() << 1;
    QTest::newRow("huge") << std::numeric_limits<int>::max() << Model::kMaxClock;
}

void TestModel::boundsTheClock()
{
    QFETCH(int, given);
    QFETCH(int, expected);
    Model model{QString()};
    model.setClock(given);
    QCOMPARE(model.clock(), expected);
}

QTEST_MAIN(TestModel)
#include "tst_model.moc"
