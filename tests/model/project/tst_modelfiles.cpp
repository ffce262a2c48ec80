#include "model/model.h"
#include "model/project/filework.h"
#include "model/storage/atomicfile.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"

#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

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
    model.setProjectData({"Deckel"_s, "4711"_s, "Öz"_s, "heute"_s, "Kunde"_s, 850, 1.25, 0.1, -1200});
    model.setComment("Zeile 1\nZeile 2"_s);
    model.setClock(20);
    model.setDeviceDescription({"hw"_s, "fw"_s, 0, {}});
    for (int i = 0; i < 5; ++i) {
        model.setOffset(i, 0.1 * i - 0.2);
        model.setSensorName(i, "Größe %1"_s.arg(i));
        model.setSensorMinimum(0, i, -i - 0.5);
        model.setSensorMaximum(0, i, i + 0.5);
        model.setPhaseName(i, "Phase %1"_s.arg(i));
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

    void opensWhatItSaved()
    {
        Model model{QString()};
        fill(model);
        model.setProjectModifiedFlag(true);
        const QString file = path("saved.vnt");
        QVERIFY(model.save(file));
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

    void emitsInOrderAfterOpening()
    {
        const QString file = path("order.vnt");
        writeFile(file, "{}");
        Model model{QString()};
        addMeasurements(model, 1, 5);
        const SampleList *shown = model.measurement(0, 0);
        QStringList emitted;
        connect(&model, &Model::projectChanged, &model, [&] {
            emitted << "project"_s;
            QCOMPARE(shown->size(), 5); // a paint may still show the old shot
        });
        connect(&model, &Model::dataChanged, &model, [&] { emitted << "data"_s; });
        connect(&model, &Model::viewDataChanged, &model, [&] { emitted << "view"_s; });
        model.setProjectModifiedFlag(true);
        model.blockSignals(true); // as a deletion with a syntax error leaves it
        QVERIFY(model.open(file));
        QCOMPARE(emitted.join(QLatin1Char(' ')), "project data view"_s);
        QVERIFY(!model.isProjectModified() && !model.signalsBlocked());
    }

    /// What is opened is what is in the file then, however long ago it was read.
    void opensWhatWasReadAhead_data()
    {
        // meanwhile: what happens before it is opened
        columns<QByteArray, int>("meanwhile", "shots");
        row("nothing", ""_ba, 3);
        row("changed", "write"_ba, 1);
        row("saved by this program", "save"_ba, 2);
        row("forgotten", "forget"_ba, 3);
        row("removed", "remove"_ba, 2);
    }

    void opensWhatWasReadAhead()
    {
        QFETCH(QByteArray, meanwhile);
        QFETCH(int, shots);
        const QString file = path("ahead.vnt");
        Model written{QString()};
        addMeasurements(written, 3, 1);
        QVERIFY(written.save(file));
        Model model{QString()};
        addMeasurements(model, 2, 1);
        QVERIFY(!model.readAhead(path("none.vnt")));
        QVERIFY(model.readAhead(file));
        QCOMPARE(model.numChannels(0), 2);
        QVERIFY(model.currentFile().isEmpty() && !model.isBusy());
        Model other{QString()};
        addMeasurements(other, 1, 1);
        if (meanwhile == "write")
            QVERIFY(other.save(file));
        else if (meanwhile == "save")
            QVERIFY(model.save(file));
        else if (meanwhile == "forget")
            model.forgetReadAhead();
        else if (meanwhile == "remove")
            QVERIFY(QFile::remove(file));
        QCOMPARE(model.open(file), meanwhile != "remove");
        QCOMPARE(model.numChannels(0), shots);
    }

    void failedOpenTouchesNothing_data()
    {
        columns<QByteArray, QString>("text", "error");
        const QString notOpened = "could not open file:"_s;
        const QString noObject = " jdoc is no object!"_s;
        row("folder", "folder"_ba, notOpened);
        row("pipe", "pipe"_ba, notOpened);
        row("empty", QByteArray(), noObject);
        row("list", "[1]"_ba, noObject);
        row("cut", R"({"projectName":"x","sensor 1":[[1,2)"_ba, noObject);
    }

    void failedOpenTouchesNothing()
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
            writeFile(file, text);
        Model model{QString()};
        fill(model);
        model.setProjectModifiedFlag(true);
        const QString before = summary(model);
        QSignalSpy changed(&model, &Model::projectChanged);
        const LogCapture log;
        QVERIFY(!model.open(file));
        QVERIFY(log.contains(error));
        QVERIFY(log.contains("filename="_s + file));
        QCOMPARE(summary(model), before);
        QVERIFY(model.isProjectModified() && changed.isEmpty() && !model.isBusy());
        QFile::remove(path("bad.vnt"));
    }

    void failedSaveKeepsTheOldFile()
    {
        Model model{QString()};
        fill(model);
        const QString file = path("kept.vnt");
        QVERIFY(model.save(file));
        const QByteArray old = contentOf(file);
        addMeasurements(model, 20, 500);
        QVERIFY(model.save(path("whole.vnt")));
        const auto size = static_cast<rlim_t>(contentOf(path("whole.vnt")).size());
        model.setCurrentFile(file);
        model.setProjectModifiedFlag(true);
        QVERIFY(!model.save(path("no such folder/x.vnt")));

        // A limit of the file size makes writes fail as a full disk does.
        rlimit before{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        for (rlim_t limit : {rlim_t(0), rlim_t(1), rlim_t(65536), size / 2, size - 5000, size - 1}) {
            const rlimit low{limit, before.rlim_max};
            QCOMPARE(setrlimit(RLIMIT_FSIZE, &low), 0);
            const bool saved =
                model.save(file)
                || (limit < 1000 && Model(QString()).save(file)); // a small project is only written at the end
            QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
            QVERIFY(!saved);
            QCOMPARE(contentOf(file), old);
            QVERIFY(model.isProjectModified() && !model.isBusy());
        }
        (void)std::signal(SIGXFSZ, handler);
        QCOMPARE(model.currentFile(), file);
        QCOMPARE(QDir(m_folder.path()).entryList({"kept*"_s}, QDir::Files).size(), 1);
        QVERIFY(model.save(file));
        QCOMPARE(contentOf(file), contentOf(path("whole.vnt")));
    }

    void savesOnlyToRegularFiles()
    {
        Model model{QString()};
        QVERIFY(!model.save(QString()));
        QVERIFY(!model.save(m_folder.path()));
        const QString pipe = path("pipe");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(!model.save(pipe) && !model.saveCsv(pipe));
        QVERIFY(QFileInfo::exists(pipe) && !QFileInfo(pipe).isFile());
        const QString target = path("target.vnt");
        writeFile(target, "old");
        QVERIFY(QFile::link(target, path("link.vnt")));
        QVERIFY(model.save(path("link.vnt")));
        QVERIFY(QFileInfo(path("link.vnt")).isSymLink());
        QVERIFY(contentOf(target).startsWith('{'));
    }

    /// The space of a large old file is given back step by step, but never under another name or another reader.
    void freesWhatItReplaces()
    {
        const QByteArray content(20000000, 'x');
        const auto replace = [this] {
            int pauses = 0;
            const auto write = [](QIODevice &target) { return target.write("new") == 3; };
            const bool replaced(replaceFile(path("big.csv"), write, [&pauses] { ++pauses; }));
            return replaced && contentOf(path("big.csv")) == "new" ? pauses : -1;
        };
        QCOMPARE(replace(), 0);
        writeFile(path("big.csv"), content);
        QVERIFY(replace() > 3);
        writeFile(path("big.csv"), content);
        QCOMPARE(::link(qPrintable(path("big.csv")), qPrintable(path("other.csv"))), 0);
        QCOMPARE(replace(), 0);
        QVERIFY(contentOf(path("other.csv")) == content);
        writeFile(path("big.csv"), content);
        QFile reader(path("big.csv"));
        QVERIFY(reader.open(QIODevice::ReadOnly));
        QCOMPARE(replace(), 0);
        QVERIFY(reader.readAll() == content);
    }

    void survivesALackOfMemory()
    {
        FileWork work;
        const LogCapture log;
        const auto task = [&work]() -> std::optional<int> {
            if (work.isBusy())
                throw std::bad_alloc();
            return 1;
        };
        QVERIFY(!work.run(task, "open"));
        QVERIFY(log.contains("open ERROR: out of memory!"_s));
        QVERIFY(!work.isBusy() && !work.refuses("open"));
    }

    void refusesSecondTaskWhileBusy()
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

    void keepsSamplesThatArriveWhileSaving()
    {
        Model model{QString()};
        addMeasurements(model, 2, 100);
        QVERIFY(model.save(path("before.vnt")));
        model.setYield([&](int) {
            for (int sensor = 0; sensor < kNumSensors; ++sensor) {
                QVERIFY(model.appendSample(sensor, 1, 1e6));
                QVERIFY(model.appendSample(sensor, model.appendMeasurement(sensor), 2e6));
            }
            model.setComment("later"_s);
        });
        QVERIFY(model.save(path("during.vnt")));
        QCOMPARE(contentOf(path("during.vnt")), contentOf(path("before.vnt")));
        QVERIFY(model.isProjectModified()); // the file lacks what has arrived since
        QCOMPARE(model.measurement(4, 1)->constLast(), 1e6);
        model.setYield([](int) {});
        QVERIFY(model.save(path("during.vnt")));
        QVERIFY(!model.isProjectModified());
        QVERIFY(contentOf(path("during.vnt")) != contentOf(path("before.vnt")));
    }

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

QTEST_MAIN(TestModelFiles)
#include "tst_modelfiles.moc"
