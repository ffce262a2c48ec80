#include "model/blackbox/blackboxfile.h"
#include "model/blackbox/loggerfile.h"
#include "model/model.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"

#include <QBuffer>
#include <QTemporaryDir>

namespace {

BlackBoxDocument read(const QByteArray &bytes, const SensorDescription &known = {})
{
    QBuffer buffer;
    buffer.setData(bytes);
    (void)buffer.open(QIODevice::ReadOnly); // never fails
    return readBlackBox(buffer, known, [](qint64) {});
}

SensorDescription fiveSensors()
{
    SensorDescription description;
    description.setNumSensorGroups(1);
    description.modifiableSensorGroup(0)->setNumSensors(kNumSensors);
    return description;
}

/// "name type min max unit" of every sensor of group 0, behind the numbers of groups and sensors and the group's name.
QString summary(const SensorDescription &description)
{
    const SensorGroup &group = description.sensorGroup(0);
    QString text = "%1 %2 %3"_s.arg(description.numSensorGroups()).arg(group.numSensors()).arg(group.name());
    for (int i = 0; i < group.numSensors(); ++i) {
        text +=
            "|%1 %2 %3 %4 %5"_s.arg(group.sensorName(i), group.sensorType(i), QString::number(group.sensorMinimum(i)),
                                    QString::number(group.sensorMaximum(i)), group.sensorUnit(i));
    }
    return text;
}

const QByteArray kSample = "A=[1,2,3,4,5]\n";

} // namespace

Q_DECLARE_METATYPE(SampleList)

class TestBlackBoxFile : public QObject
{
    Q_OBJECT

private slots:
    void samples_data()
    {
        // first: of sensor 1
        // last: of sensor 5
        columns<QByteArray, SampleList, SampleList, int, int>("bytes", "first", "last", "skipped", "bad");
        const auto row = [](const char *name, const QByteArray &bytes, const SampleList &first, const SampleList &last,
                            int skipped = 0, int bad = 0) { ::row(name, bytes, first, last, skipped, bad); };
        row("no section", kSample, {1}, {5});
        row("no line end", "[data]\nA=[1,2,3,4,5]", {1}, {5});
        row("carriage returns", "[data]\r\nA=[1,2,3,4,5]\r\nT=20210729-143005\r\n", {1}, {5});
        row("byte order mark", "\xEF\xBB\xBF" + kSample, {1}, {5});
        row("blanks in brackets", "  A=[ 1.5 ,  2,3,4 , -5e-1 ] \n", {1.5}, {-0.5});
        row("blank separated", "A=1 2\t3  4 5\nA= 6 7 8 9 10\n", {1, 6}, {5, 10});
        row("four", "A=[1,2,3,4]\n" + kSample, {1}, {5}, 1);
        row("six", "A=[1,2,3,4,5,6]\nA=1 2 3 4 5 6\n", {}, {}, 2);
        row("brackets with blanks only", "A=[1 2 3 4 5]\n", {}, {}, 1);
        row("empty places", "A=[,,,,]\n", {0}, {0}, 0, 5);
        row("no numbers", "A=[a,1,2,3,4 5]\nA=[1;5,1,2,3,0x7]\n", {0, 0}, {0, 0}, 0, 4);
        row("decimal comma", "A=1,5 2 3 4 5\n", {0}, {5}, 0, 1);
        row("not finite", "A=[nan,1,2,3,inf]\nA=[1e999,1,2,3,-1e999]\n", {0, 0}, {0, 0}, 0, 4);
        row("zero bytes", QByteArray("A=[1,2,3,4,5]\nA=[1\0,2,3,4,5]\n\0\0\n", 32), {1, 0}, {5, 5}, 1, 1);
        row("rubbish", "\xFF\xFE\xC2\nB=[1,2,3,4,5]\n\n  \nt=100\n" + kSample, {1}, {5}, 2);
        row("overlong line", QByteArray(10000, 'A') + '\n' + kSample, {1}, {5}, 1);
        row("overlong sample", "A=[1,2,3,4,5" + QByteArray(5000, ' ') + "]\n" + kSample, {1}, {5}, 1);
        row("as long as a line may be", "A=[1,2,3,4,5" + QByteArray(4096 - 14, ' ') + "]\n", {1}, {5});
        row("other sections", "[device]\nA=[9,9,9,9,9]\n[sensors]\nA=[8,8,8,8,8]\n[data]\n" + kSample, {1}, {5});
        row("marker inside a line", "x[device]y\nA=[9,9,9,9,9]\n--[data]--\n" + kSample, {1}, {5});
        row("half a header", "[devi\n" + kSample + "[sensors", {1}, {5}, 2);
    }

    void samples()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(SampleList, first);
        const BlackBoxDocument document = read(bytes);
        QCOMPARE(document.samples[0], first);
        QTEST(document.samples[4], "last");
        for (const SampleList &list : document.samples)
            QCOMPARE(list.size(), first.size());
        QTEST(document.losses.skippedLines, "skipped");
        QTEST(document.losses.badValues, "bad");
    }

    void sensors_data()
    {
        columns<QByteArray, QString, int>("lines", "expected", "skipped");
        const QString untouched = "|Sensor X  -100000 100000 "_s;
        const auto row = [](const char *name, const char *lines, const QString &expected, int skipped = 0) {
            ::row(name, QByteArray(lines), expected, skipped);
        };
        row("every key",
            "numGroups=1\ngroup0/name=Werkzeug 1\ngroup0/numSensors=6\ngroup0/sensor0/name=Weg=X\n"
            "group0/sensor0/type=Distance\ngroup0/sensor0/min=-1.5\ngroup0/sensor0/max=2e2\ngroup0/sensor0/unit=mm\n"
            "group0/sensor5/name=F\n",
            "1 6 Werkzeug 1|Weg=X Distance -1.5 200 mm"_s + untouched.repeated(4) + "|F  -100000 100000 "_s);
        row("texts",
            "group0/name=Gr\xC3\xBC\xC3\x9F\ngroup0/sensor0/unit=\xB0"
            "C\n",
            "1 5 Grüß|Sensor X  -100000 100000 °C"_s + untouched.repeated(4));
        row("a shrink forgets", "group0/sensor0/name=Weg\ngroup0/numSensors=2\n", "1 2 "_s + untouched.repeated(2));
        row("no count", "group0/numSensors=0\ngroup0/numSensors=-3\ngroup0/numSensors=\ngroup0/numSensors=five\n",
            "1 5 "_s + untouched.repeated(5), 4);
        row("no number of groups", "numGroups=many\nnumGroups=99999999999\nnumGroups=1.5\n",
            "1 5 "_s + untouched.repeated(5), 3);
        row("billions of groups", "numGroups=2000000000\n", "1000 5 "_s + untouched.repeated(5));
        row("no groups left", "numGroups=0\ngroup0/name=A\ngroup0/numSensors=5\ngroup0/sensor0/name=B\n", "0 0 "_s, 3);
        row("no such sensor",
            "group0/sensor5/name=A\ngroup0/sensorX/name=A\ngroup0/sensor\xFF/name=A\n=group0/sensor\n",
            "1 5 "_s + untouched.repeated(5), 4);
        row("limits without sense", "group0/sensor4/min=nan\ngroup0/sensor4/max=high\n",
            "1 5 "_s + untouched.repeated(4) + "|Sensor X  0 0 "_s);
        row("flood", "numGroups=1\n"_ba.repeated(10003).constData(), "1 5 "_s + untouched.repeated(5), 3);
    }

    void sensors()
    {
        QFETCH(QByteArray, lines);
        const BlackBoxDocument document = read("[sensors]\n" + lines, fiveSensors());
        QTEST(summary(document.sensors), "expected");
        QTEST(document.losses.skippedLines, "skipped");
        QVERIFY(!document.hasMeasurement());
    }

    void timestamps_data()
    {
        columns<QByteArray, bool, QDateTime>("bytes", "given", "time");
        const QDateTime time(QDate(2021, 7, 29), QTime(14, 30, 5));
        row("as the box writes it", "T=20210729-143005"_ba, true, time);
        row("the last one counts", "T=20200101-000000\nT= 20210729-143005 \n"_ba, true, time);
        row("no such day", "T=20210231-143005\n"_ba, true, QDateTime());
        row("other section", "[device]\nT=20210729-143005\n"_ba, false, QDateTime());
    }

    void timestamps()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, given);
        QFETCH(QDateTime, time);
        const BlackBoxDocument document = read(bytes);
        QCOMPARE(document.timestamp.has_value(), given);
        QCOMPARE(document.timestamp.value_or(QDateTime()), time);
        QCOMPARE(document.losses.skippedLines, given && !time.isValid() ? 1 : 0);
    }

    void longLinesCostNoMemory()
    {
        constexpr qint64 kSize = 64 * 1024 * 1024;
        QBuffer device;
        device.setData(QByteArray(int(kSize), '1'));
        QVERIFY(device.open(QIODevice::ReadOnly));
        qint64 read = 0;
        qint64 longestStep = 0;
        const BlackBoxDocument document = readBlackBox(device, {}, [&](qint64 bytes) {
            longestStep = qMax(longestStep, bytes - read);
            read = bytes;
        });
        QCOMPARE(read, kSize);
        QCOMPARE(document.losses.skippedLines, 1);
        QVERIFY2(longestStep <= 65536, qPrintable(QString::number(longestStep))); // the window gets its turns meanwhile
    }

    void stopsAtTheByteLimit()
    {
        QBuffer buffer;
        buffer.setData(kSample.repeated(1000));
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        const BlackBoxDocument document = readBlackBox(
            buffer, {}, [](qint64) {}, 10 * kSample.size());
        QCOMPARE(document.sampleCount(), 10);
    }

    void importAppends()
    {
        Model model{QString()};
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            (void)model.appendMeasurement(sensor);
        QSignalSpy project(&model, &Model::projectChanged);
        QSignalSpy data(&model, &Model::dataChanged);
        const quint64 structure = model.structureRevision();
        const QString file = fileWith("[data]\nT=20210729-143005\nA=[1,2,3,4,5]\nA=[6,7,8]\nA=[x,7,8,9,10]\n");
        QVERIFY(model.addBlackBoxFile(file));
        QCOMPARE(project.count(), 2); // the time, and the end
        QCOMPARE(data.count(), 1);
        QVERIFY(model.structureRevision() != structure);
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            QCOMPARE(model.numChannels(sensor), 2);
            QVERIFY(model.measurement(sensor, 0)->isEmpty());
            QCOMPARE(*model.measurement(sensor, 1), (SampleList{sensor + 1.0, sensor == 0 ? 0.0 : sensor + 6.0}));
        }
        QCOMPARE(model.timestamp(1), QDateTime(QDate(2021, 7, 29), QTime(14, 30, 5)));
        QVERIFY(!model.timestamp(0).isValid());
        QCOMPARE(model.blackBoxLosses().skippedLines, 1);
        QCOMPARE(model.blackBoxLosses().badValues, 1);
        QVERIFY(model.addBlackBoxFile(file)); // a second time
        QCOMPARE(model.numChannels(4), 3);
        QCOMPARE(model.fileList(), QStringList{file});
        QCOMPARE(model.blackBoxLosses().skippedLines, 1);
    }

    void importTakesOverSensors()
    {
        Model model{QString()};
        model.setSensorName(1, "stays"_s);
        QVERIFY(model.addBlackBoxFile(fileWith("[sensors]\ngroup0/sensor0/name=Druck\ngroup0/sensor0/max=250\n")));
        const SensorGroup &group = model.sensorDescription().sensorGroup(0);
        QCOMPARE(group.sensorName(0), "Druck"_s);
        QCOMPARE(group.sensorMaximum(0), 250.0);
        QCOMPARE(group.sensorName(1), "stays"_s);
    }

    void importRefuses_data()
    {
        columns<QString>("name");
        row("nothing", QString());
        row("missing", "missing.bb");
        row("folder", ".");
#ifdef Q_OS_UNIX
        row("device", "/dev/zero");
#endif
    }

    void importRefuses()
    {
        QFETCH(QString, name);
        Model model{QString()};
        QSignalSpy project(&model, &Model::projectChanged);
        const LogCapture log;
        QVERIFY(!model.addBlackBoxFile(name.isEmpty() ? name : m_folder.filePath(name)));
        QVERIFY(log.contains("ERROR: could not open file:"_s));
        QCOMPARE(model.numChannels(0), 0);
        QVERIFY(model.fileList().isEmpty());
        QCOMPARE(project.count(), 0);
        model.setFileList({name}); // imported earlier; as it cannot be read now, it has no fingerprint
        QVERIFY(model.importedFiles().isEmpty());
    }

    /// Two shots may differ at their ends only.
    void fingerprints()
    {
        const QByteArray begin(1000000, 'x');
        const QByteArray first = blackBoxFingerprint(fileWith(begin + 'a'));
        QCOMPARE(first.size(), 20);
        QCOMPARE(blackBoxFingerprint(fileWith(begin + 'a')), first);
        QVERIFY(blackBoxFingerprint(fileWith(begin + 'b')) != first);
        QVERIFY(!blackBoxFingerprint(fileWith({})).isEmpty());
        for (const QString &name : {m_folder.path(), m_folder.filePath("missing"_s), "/proc/self/mem"_s})
            QVERIFY2(blackBoxFingerprint(name).isEmpty(), qPrintable(name));
        qint64 read = 0;
        const auto files = loggerFiles({fileWith(begin), fileWith("y")}, [&read](qint64 bytes) { read += bytes; });
        QCOMPARE(read, qint64(begin.size() + 1));
        QCOMPARE(files.at(0).size, qint64(begin.size()));
    }

private:
    [[nodiscard]] QString fileWith(const QByteArray &bytes)
    {
        const QString name = m_folder.filePath("%1.bb"_s.arg(++m_files));
        writeFile(name, bytes);
        return name;
    }

    QTemporaryDir m_folder;
    int m_files = 0;
};

QTEST_GUILESS_MAIN(TestBlackBoxFile)
#include "tst_blackboxfile.moc"
