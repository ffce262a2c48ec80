#include "journalrig.h"

#include "model/changescope.h"
#include "model/storage/atomicfile.h"
#include "model/storage/rewrittenfile.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/support/shots.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <algorithm>
#include <functional>

Q_DECLARE_METATYPE(std::function<void(Model &)>)
Q_DECLARE_METATYPE(std::function<void(QString)>)

namespace {

/// All that a project consists of, as text: two projects are the same if their texts are.
QString textOf(const Model &model)
{
    QString text;
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        for (int shot = 0; shot < model.numChannels(sensor); ++shot) {
            text += "\n%1/%2:"_s.arg(sensor).arg(shot);
            for (const double sample : *model.measurement(sensor, shot))
                text += " %1"_s.arg(sample, 0, 'g', 17);
        }
        text += "\n%1 %2 %3 %4 %5"_s.arg(model.offset(sensor))
                    .arg(model.color(sensor).name(), QString::number(model.osziMinimum(sensor)),
                         QString::number(model.osziMaximum(sensor)),
                         model.sensorDescription().sensorGroup(0).sensorName(sensor));
        text += model.projectMeta().sensors[std::size_t(sensor)].chosenQuantity;
        text += model.sensorDescription().sensorGroup(0).sensorUnit(sensor);
        text += " image "_s + QString::number(model.image(sensor).width());
    }
    for (int shot = 0; shot < model.numChannels(0); ++shot) {
        const ShotOrigin origin = model.projectMeta().origin(shot);
        text += "\n"_s + model.shotLabel(shot) + model.timestamp(shot).toString(Qt::ISODateWithMs) + origin.box
                + origin.file + QString::fromLatin1(origin.hash.toHex());
        const ShotMeta meta = model.projectMeta().shot(shot);
        text += " %1 ms %2 "_s.arg(meta.period).arg(meta.missing)
                + QString::fromUtf8(QJsonDocument(meta.others).toJson(QJsonDocument::Compact));
    }
    QList<QByteArray> imported = model.projectMeta().importedFiles.values();
    std::sort(imported.begin(), imported.end());
    text += QString::fromLatin1(imported.join(' ').toHex());
    for (int marker = 0; marker < Model::kNumMarkers; ++marker)
        text += " %1"_s.arg(model.verticalMarker(marker));
    return text + "\n"_s + model.projectData().toDebugText() + model.comment() + model.currentFile();
}

QPixmap picture(int width)
{
    QPixmap pixmap(width, 10);
    pixmap.fill(Qt::red);
    return pixmap;
}

using Change = std::function<void(Model &)>;

const QDateTime kTime(QDate(2026, 5, 4), QTime(3, 2, 1, 500));

const QVector<std::pair<const char *, Change>> kChanges{
    {"nothing", [](Model &) {}},
    {"a new shot",
     [](Model &model) {
         addShot(model, {5.0, 6.0, 7.0}, 1.0, kTime);
     }},
    {"a shot without samples", [](Model &model) { addShot(model, {}); }},
    {"one sensor is ahead", [](Model &model) { (void)model.appendMeasurement(0); }},
    {"an old shot grows", [](Model &model) { (void)model.appendSample(2, 0, 3.5); }},
    {"the first shot is deleted", [](Model &model) { (void)model.deleteChannel(0); }},
    {"a shot in the middle is deleted", [](Model &model) { (void)model.deleteChannel(1); }},
    {"all is deleted", [](Model &model) { model.clearData(); }},
    {"project data",
     [](Model &model) {
         model.setProjectData({"Name"_s, "7"_s, {}, {}, {}, 12, 0.5, 1.5, 9});
     }},
    {"comment", [](Model &model) { model.setComment("äöü €"_s); }},
    {"offset", [](Model &model) { model.setOffset(3, -1.25); }},
    {"colour", [](Model &model) { model.setColor(2, QColor(1, 2, 3)); }},
    {"marker", [](Model &model) { model.setVerticalMarkerAbsolute(1, 77); }},
    {"range, which is not announced", [](Model &model) { model.setOsziMaximum(4, 99.5); }},
    {"sensor", [](Model &model) { model.setSensorName(1, "Druck"_s); }},
    {"label", [](Model &model) { model.setShotLabel(0, "gut"_s); }},
    {"origin",
     [](Model &model) {
         ProjectMeta meta = model.projectMeta();
         meta.setOrigin(0, {"192.168.4.1"_s, "dir-20240305/a.bb"_s, "hash"_ba});
         model.setProjectMeta(meta);
     }},
    {"period", [](Model &model) { model.setSamplingPeriod(1, 20); }},
    {"missing values, keys of others and an imported file",
     [](Model &model) {
         ProjectMeta meta = model.projectMeta();
         meta.setMissingValues(0, 7);
         meta.setOthers(0, {{"later"_s, 1}});
         meta.importedFiles.insert("fingerprint"_ba);
         model.setProjectMeta(meta);
     }},
    {"unit", [](Model &model) { model.setSensorUnit(2, "bar"_s); }},
    {"time stamp", [](Model &model) { model.setTimestamp(0, kTime.addDays(1)); }},
    {"settings of the evaluation",
     [](Model &model) {
         ProjectMeta meta = model.projectMeta();
         meta.sensors[2].chosenQuantity = "peak"_s;
         model.setProjectMeta(meta);
     }},
    {"a new picture", [](Model &model) { model.setImage(4, picture(40)); }},
    {"another picture", [](Model &model) { model.setImage(0, picture(50)); }},
    {"no picture", [](Model &model) { model.setImage(1, QPixmap()); }},
};

} // namespace

class TestJournal : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_file = m_folder->filePath("project.vnt"_s);
        Model model{QString()};
        for (int shot = 0; shot < 4; ++shot)
            addShot(model, {shot + 0.1, shot + 0.2}, 10.0, kTime.addSecs(shot));
        model.setShotLabel(1, "second"_s);
        model.setImage(0, picture(20));
        model.setImage(1, picture(30));
        QVERIFY(model.save(m_file));
    }

    void everyChangeIsRestored_data()
    {
        columns<bool, Change>("hasFile", "change");
        for (const auto &[name, change] : kChanges) {
            row((QByteArray(name) + ", in a file").constData(), true, change);
            row((QByteArray(name) + ", without a file").constData(), false, change);
        }
    }

    void everyChangeIsRestored()
    {
        QFETCH(bool, hasFile);
        QFETCH(std::function<void(Model &)>, change);
        Model model(hasFile ? m_file : QString());
        if (!hasFile)
            addShot(model, {1.0, 2.0}, 1.0, kTime);
        JournalRig journal(model);
        change(model);
        journal.write();
        const QString wanted = textOf(model);
        QCOMPARE(restored(journal), wanted);
        QCOMPARE(journal.write(), 0); // nothing is written twice
    }

    void aLongStoryIsRestoredAtEveryStep()
    {
        Model model(m_file);
        JournalRig journal(model);
        for (int step = 0; step < 200; ++step) {
            const int shots = model.numChannels(0);
            switch (step % 7) {
            case 0:
                addShot(model, {double(step)}, 0.5);
                break;
            case 3:
                if (shots > 3)
                    (void)model.deleteChannel((step * 31) % shots);
                break;
            case 5:
                model.setShotLabel(shots - 1, QString::number(step));
                break;
            default:
                for (int sensor = 0; sensor < kNumSensors; ++sensor)
                    (void)model.appendSample(sensor, step % 2 == 0 ? shots - 1 : (step * 13) % shots, step + sensor);
            }
            if (step % 3 == 0)
                journal.write();
        }
        journal.write();
        QCOMPARE(restored(journal), textOf(model));
    }

    void blockedSignalsHideNothing()
    {
        Model model(m_file);
        JournalRig journal(model);
        model.blockSignals(true);
        const ChangeScope changes(&model);
        model.setComment("unseen"_s);
        (void)model.deleteChannel(2);
        journal.write();
        QCOMPARE(restored(journal), textOf(model));
    }

    /// As when a file is saved while a shot is being recorded.
    void aShotThatGrowsBeyondItsFile()
    {
        Model model(m_file);
        (void)model.appendSample(0, 3, 5.5);
        QVERIFY(model.save(m_file));
        JournalRig journal(model);
        (void)model.appendSample(0, 3, 6.5);
        journal.write();
        (void)model.appendSample(0, 3, 7.5);
        journal.write();
        QCOMPARE(restored(journal), textOf(model));
    }

    /// As when the end comes after a save, before the journal is removed.
    void aFileThatWasSavedOnceMore()
    {
        Model model(m_file);
        JournalRig journal(model);
        (void)model.appendSample(0, 3, 6.5);
        journal.write();
        const QString wanted = textOf(model);
        (void)model.appendSample(0, 3, 7.5);
        addShot(model, {1.0});
        QVERIFY(model.save(m_file));
        QCOMPARE(restored(journal), wanted);
    }

    void restoredProjectIsUnsavedAndCanBeRestoredAgain()
    {
        Model model(m_file);
        JournalRig journal(model);
        (void)model.deleteChannel(1);
        model.setImage(1, QPixmap());
        addShot(model, {8.0}, 1.0);
        journal.write();
        const QString wanted = textOf(model);

        Model second{QString()};
        std::optional<JournalContents> contents = journal.read();
        QVERIFY(contents && second.restore(*contents));
        QVERIFY(second.isProjectModified());
        QCOMPARE(second.currentFile(), m_file);
        JournalRig next(second);
        QVERIFY(next.write() > 0);
        QCOMPARE(restored(next), wanted);
        QCOMPARE(next.read()->samples.count(second.measurementId(0, 0)), std::size_t(1));
        QVERIFY(next.read()->samples.at(second.measurementId(0, 0)).samples.isEmpty()); // the file has them
    }

    /// What the program does not understand, but keeps, is in the restored project too.
    void whatIsNotUnderstoodIsKept()
    {
        QJsonObject object = QJsonDocument::fromJson(contentOf(m_file)).object();
        object["later"_s] = QJsonArray{1, 2.5};
        object["projectImage2"_s] = "bm8gcGljdHVyZQ=="_s;
        writeFile(m_file, QJsonDocument(object).toJson());
        Model model(m_file);
        JournalRig journal(model);
        model.setComment("changed"_s);
        journal.write();
        Model second{QString()};
        std::optional<JournalContents> contents = journal.read();
        QVERIFY(contents && second.restore(*contents));
        const QString wanted = m_folder->filePath("wanted.vnt"_s);
        const QString saved = m_folder->filePath("saved.vnt"_s);
        QVERIFY(model.save(wanted) && second.save(saved));
        QVERIFY(contentOf(saved).contains("later"));
        QCOMPARE(contentOf(saved), contentOf(wanted));
    }

    /// Saving must not replace it, as if it had just been opened.
    void aForeignFileStaysForeign()
    {
        writeFile(m_file, "{\"somebody's\": 1}");
        Model model(m_file);
        JournalRig journal(model);
        addShot(model, {1.0});
        journal.write();
        Model second{QString()};
        std::optional<JournalContents> contents = journal.read();
        QVERIFY(contents && second.restore(*contents));
        QVERIFY(second.openLosses().isForeign);
    }

    /// Its shots are in no file of its own, and the other one may be gone.
    void aCopyNeedsNoFile()
    {
        Model model(m_file);
        model.setCurrentFile({});
        JournalRig journal(model);
        journal.write();
        QVERIFY(QFile::remove(m_file));
        QCOMPARE(restored(journal), textOf(model));
    }

    /// A measurement without samples looks like none.
    void aFileThatLacksAMeasurement()
    {
        Model model{QString()};
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            (void)model.appendMeasurement(sensor);
        (void)model.appendSample(0, 0, 1.5);
        QVERIFY(model.save(m_file));
        JournalRig journal(model);
        model.setComment("changed"_s);
        journal.write();
        const QString wanted = textOf(model);
        QJsonObject object = QJsonDocument::fromJson(contentOf(m_file)).object();
        object["sensor 5"_s] = QJsonArray();
        writeFile(m_file, QJsonDocument(object).toJson());
        QCOMPARE(restored(journal), wanted);
    }

    /// Many samples take several blocks.
    void aFirstLookThatIsCutOffCostsNothingOfTheFile()
    {
        Model model(m_file);
        model.setComment("changed"_s);
        const QString wanted = textOf(model);
        JournalRig journal(model);
        addShot(model, SampleList(600000, 1.5));
        journal.write();
        QVERIFY(journal.bytes.size() > 5000000);
        journal.bytes.chop(100);
        QCOMPARE(restored(journal), wanted);
    }

    void aFileThatIsGoneOrChanged_data()
    {
        columns<std::function<void(QString)>, int, int, int>("happens", "shots", "missing", "pictures");
        using Event = std::function<void(QString)>;
        row("gone", Event([](const QString &file) { QFile::remove(file); }), 1, 3, 2);
        row("shot deleted", Event([](const QString &file) {
                Model other(file);
                QVERIFY(other.deleteChannel(0) && other.save(file) && other.save(file));
            }),
            3, 1, 0);
        row("replaced once, so that it is still there", Event([](const QString &file) {
                Model other(file);
                QVERIFY(other.deleteChannel(0) && other.save(file));
            }),
            4, 0, 0);
        row("torn while it was rewritten where it is", Event([](const QString &file) {
                const QString folder = SaveOptions().folderForRescue();
                const QString copy = RewrittenFile::copyNameIn(folder, realFile(file));
                QVERIFY(QDir().mkpath(folder) && QFile::copy(file, copy) && QFile::resize(file, 50));
            }),
            4, 0, 0);
        row("shot added in front", Event([](const QString &file) {
                Model other(file);
                const SampleList first = *other.measurement(0, 0);
                other.clearData();
                addShot(other, {99.0});
                for (int shot = 0; shot < 4; ++shot)
                    addShot(other, {shot + 0.1, shot + 0.2}, 10.0);
                QVERIFY(other.save(file));
            }),
            4, 0, 0);
    }

    void aFileThatIsGoneOrChanged()
    {
        QFETCH(std::function<void(QString)>, happens);
        QFETCH(int, shots);
        QFETCH(int, missing);
        QFETCH(int, pictures);
        Model model(m_file);
        JournalRig journal(model);
        QVERIFY(model.deleteChannel(3));
        addShot(model, {8.0, 9.0}, 1.0);
        journal.write();
        happens(m_file);

        Model second{m_file}; // what was opened before has nothing to do with it
        std::optional<JournalContents> contents = journal.read();
        QVERIFY(contents);
        const std::optional<RecoveryLosses> losses = second.restore(*contents);
        QVERIFY(losses);
        QCOMPARE(second.numChannels(4), shots);
        QCOMPARE(losses->shots, missing);
        QCOMPARE(losses->pictures, pictures);
        const int last = shots - 1;
        QCOMPARE(*second.measurement(4, last), (SampleList{12.0, 13.0}));
        if (shots > 1)
            QCOMPARE(*second.measurement(4, last - 1), *model.measurement(4, 2));
        QVERIFY(second.fileOnDisk() != DiskCopy::State::Same); // asked about before it is replaced
        JournalRig next(second);
        next.write();
        QCOMPARE(restored(next), textOf(second));
    }

    /// Every byte of a journal is cut off, or changed: what is before it is read, and nothing else.
    void tornAndFalseBlocks()
    {
        Model model{QString()};
        JournalRig journal(model);
        std::vector<std::pair<int, int>> steps; // bytes of the journal and samples in it
        addShot(model, {});
        for (int step = 0; step < 4; ++step) {
            (void)model.appendSample(0, 0, step);
            journal.write();
            steps.emplace_back(journal.bytes.size(), step + 1);
        }
        const auto samplesIn = [&steps](int end) {
            int samples = 0;
            for (const auto &[size, count] : steps)
                samples = size <= end ? count : samples;
            return samples;
        };
        for (int place = 0; place < journal.bytes.size(); ++place) {
            QByteArray flipped = journal.bytes;
            flipped[place] = char(flipped.at(place) ^ (1 << (place % 8)));
            for (const QByteArray &bytes : {journal.bytes.left(place), flipped}) {
                const std::optional<JournalContents> contents = JournalRig::readFrom(bytes);
                QCOMPARE(contents ? int(contents->sampleCount()) : 0, samplesIn(place));
            }
        }
    }

    /// Whatever a block says behind a right check number, its numbers reserve no memory and lead nowhere.
    void numbersAreNotTrusted_data()
    {
        columns<QByteArray>("record");
        const QByteArray many = QByteArray::fromHex("ffffffff");
        const QByteArray id = QByteArray::fromHex("0100000000000000");
        row("unknown record", QByteArray("\x63"));
        row("samples that are not there", QByteArray("\x02") + id + QByteArray(4, '\0') + many);
        row("samples behind a gap", QByteArray("\x02") + id + QByteArray("\x05\0\0\0\0\0\0\0", 8));
        row("samples that are no numbers",
            QByteArray("\x02") + id + QByteArray("\0\0\0\0\x01\0\0\0", 8) + QByteArray::fromHex("000000000000f07f"));
        row("order beyond the end", QByteArray("\x03\0", 2) + many + QByteArray(8, '\0'));
        row("more removed than there are", QByteArray("\x03\0\0\0\0\0", 6) + many + QByteArray(4, '\0'));
        row("a sixth sensor", QByteArray("\x03\x05", 2) + QByteArray(12, '\0'));
        row("many notes", QByteArray("\x04") + many);
        row("long text", QByteArray("\x05\xf0\xff\xff\x7f"));
        row("picture of no kind", QByteArray("\x08\0\x09", 3) + many);
    }

    void numbersAreNotTrusted()
    {
        QFETCH(QByteArray, record);
        Model model{QString()};
        JournalRig journal(model);
        journal.write();
        const QByteArray good = journal.bytes;
        addShot(model, {1.0});
        const QByteArray before = journal.bytes + journalblock::packed(record);
        journal.write();
        const std::optional<JournalContents> contents = JournalRig::readFrom(before + journal.bytes.mid(good.size()));
        QVERIFY(contents);
        QCOMPARE(contents->sampleCount(), qint64(0)); // what comes behind does not count
        QVERIFY(!JournalRig::readFrom(journalblock::mark() + journalblock::packed(record)));
        QVERIFY(!JournalRig::readFrom(journalblock::mark() + many()));
    }

private:
    static QByteArray many() { return QByteArray(64, '\xff'); }

    static QString restored(const JournalRig &journal)
    {
        std::optional<JournalContents> contents = journal.read();
        Model model{QString()};
        return contents && model.restore(*contents) ? textOf(model) : "not restored"_s;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
};

QTEST_MAIN(TestJournal)

#include "tst_journal.moc"
