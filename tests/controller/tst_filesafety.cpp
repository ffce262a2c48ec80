#include "bench.h"
#include "controller/project/projectlock.h"
#include "model/storage/atomicfile.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/support/smalldisk.h"

#include <QAction>
#include <QLabel>
#include <QProcess>
#include <QStatusBar>
#include <QTemporaryDir>

#include <memory>

namespace {

ControllerOptions startedWith(const QStringList &files)
{
    ControllerOptions options;
    options.filesGiven = files;
    return options;
}

/// A program that is started with one file.
struct Started
{
    explicit Started(const QString &file)
        : model(file)
        , view(&model, scripted(prompts))
    {}
    void run() { controller = std::make_unique<Controller>(&model, &view, startedWith({model.currentFile()})); }

    ScriptedPrompts *prompts = nullptr;
    Model model;
    View view;
    std::unique_ptr<Controller> controller;
};

} // namespace

class TestFileSafety : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_file = path("tool.vnt");
        Model model{QString()};
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            for (const double value : {1.0, 2.0})
                QVERIFY(model.appendSample(sensor, model.appendMeasurement(sensor), value));
        QVERIFY(model.save(m_file));
    }

    void theLockGoesWithTheProject()
    {
        Bench bench;
        bench.prompts->openNames = {m_file};
        emit bench.view.openProject();
        QVERIFY(QFile::exists(lockOf(m_file)));
        bench.prompts->saveNames = {path("no/such/b.vnt"), path("b.vnt")};
        emit bench.view.saveProjectAs(); // fails: nothing moves
        QVERIFY(QFile::exists(lockOf(m_file)));
        emit bench.view.saveProjectAs();
        QVERIFY(!QFile::exists(lockOf(m_file)) && QFile::exists(lockOf(path("b.vnt"))));
        emit bench.view.newProject();
        QVERIFY(!QFile::exists(lockOf(path("b.vnt"))));
        QCOMPARE(QDir(m_folder->path()).entryList({"*.lock"_s}), QStringList());
    }

    void opensWhatSomebodyElseHas_data()
    {
        columns<QByteArray, int, int, QString>("by", "answer", "shots", "file");
        row("read only", "name"_ba, 0, 2, "tool.vnt");
        row("read only, link", "link"_ba, 0, 2, "link.vnt");
        row("copy", "name"_ba, 1, 2, QString());
        row("cancelled", "name"_ba, 2, 0, QString());
        row("closed", "name"_ba, -1, 0, QString());
    }

    void opensWhatSomebodyElseHas()
    {
        QFETCH(QByteArray, by);
        QFETCH(int, answer);
        QFETCH(int, shots);
        QFETCH(QString, file);
        Bench other;
        other.prompts->openNames = {m_file};
        emit other.view.openProject();
        other.recordShots(1);

        QVERIFY(QFile::link(m_file, path("link.vnt")));
        Bench bench;
        bench.prompts->openNames = {by == "link" ? path("link.vnt") : m_file};
        bench.prompts->choices = {answer};
        emit bench.view.openProject();
        QCOMPARE(bench.prompts->asked.size(), std::size_t(1));
        QVERIFY(bench.prompts->asked[0].text.contains(QString::number(QCoreApplication::applicationPid())));
        QCOMPARE(bench.shots(), shots);
        QCOMPARE(bench.model.currentFile(), file.isEmpty() ? QString() : m_folder->filePath(file));
        QCOMPARE(bench.model.isProjectModified(), answer == 1);
        QCOMPARE(bench.view.findChild<QLabel *>("labelReadOnly"_s)->isHidden(), file.isEmpty());
        emit other.view.saveProject();
        const QByteArray saved = contentOf(m_file);
        if (file.isEmpty())
            return;
        bench.model.setProjectModifiedFlag(true);
        bench.prompts->saveNames = {m_file, path("mine.vnt")}; // the first one is refused
        bench.prompts->choices = {0};
        emit bench.view.saveProject();
        QCOMPARE(bench.prompts->asked.size(), std::size_t(2));
        QCOMPARE(contentOf(m_file), saved);
        QCOMPARE(bench.model.currentFile(), path("mine.vnt"));
        QVERIFY(bench.view.findChild<QLabel *>("labelReadOnly"_s)->isHidden());
    }

    void savesAgainWhenTheOtherHasClosed()
    {
        Bench bench;
        {
            Bench other;
            other.prompts->openNames = {m_file};
            emit other.view.openProject();
            bench.prompts->openNames = {m_file};
            bench.prompts->choices = {0};
            emit bench.view.openProject();
            bench.recordShots(1);
            emit bench.view.saveProject(); // no name is chosen
            QVERIFY(bench.model.isProjectModified());
        }
        emit bench.view.saveProject();
        QVERIFY(!bench.model.isProjectModified());
        QCOMPARE(bench.prompts->fileDialogs.size(), 2); // opening and the first save
        QCOMPARE(Model(m_file).numChannels(0), 3);
        QVERIFY(QFile::exists(lockOf(m_file)));
    }

    void theLockOfAnEndedProgramIsTakenOver()
    {
        QProcess holder; // another program
        holder.start("sleep"_s, {"60"_s});
        QVERIFY(holder.waitForStarted());
        const QByteArray host = QSysInfo::machineHostName().toUtf8();
        writeFile(lockOf(m_file), QByteArray::number(holder.processId()) + "\nsleep\n" + host + "\n");
        Bench bench;
        bench.prompts->openNames = {m_file, m_file};
        bench.prompts->choices = {2};
        emit bench.view.openProject();
        QCOMPARE(bench.shots(), 0);
        QVERIFY2(bench.prompts->asked[0].text.contains("sleep"_s), qPrintable(bench.prompts->asked[0].text));
        holder.kill();
        QVERIFY(holder.waitForFinished());
        emit bench.view.openProject();
        QCOMPARE(bench.shots(), 2);
        QCOMPARE(bench.prompts->asked.size(), std::size_t(1));
    }

    void anotherComputerKeepsItsLock()
    {
        writeFile(lockOf(m_file), "1\nventaro\nmachine-7\n");
        Bench bench;
        bench.prompts->openNames = {m_file};
        bench.prompts->choices = {2};
        emit bench.view.openProject();
        QVERIFY(bench.prompts->asked[0].text.contains("machine-7"_s));
        QVERIFY(bench.prompts->asked[0].text.contains(lockOf(m_file))); // what to do if it has crashed
        QVERIFY(QFile::exists(lockOf(m_file)));
    }

    /// As a power cut leaves it, which names no program.
    void anEmptyLockIsTakenOver()
    {
        for (const char *content : {"", "\0\0\0", "1\n"}) {
            writeFile(lockOf(m_file), content);
            Bench bench;
            bench.prompts->openNames = {m_file};
            emit bench.view.openProject();
            QCOMPARE(bench.shots(), 2);
            QVERIFY(bench.prompts->asked.empty());
            Bench other;
            other.prompts->openNames = {m_file};
            other.prompts->choices = {2};
            emit other.view.openProject();
            QCOMPARE(other.prompts->asked.size(), std::size_t(1));
        }
    }

    void opensWithoutALockWhereNoneCanBeMade()
    {
        const SmallDisk disk(1 << 20);
        const QString file = disk.path() + "/tool.vnt"_s;
        if (!disk.isMounted() || !QFile::copy(m_file, file) || !disk.makeReadOnly())
            QSKIP("this user may not mount a small file system");
        Bench bench;
        bench.prompts->openNames = {file};
        emit bench.view.openProject();
        QCOMPARE(bench.shots(), 2);
        QVERIFY(bench.prompts->asked.empty());
        bench.recordShots(1);
        bench.prompts->choices = {0};
        bench.prompts->saveNames = {path("elsewhere.vnt")};
        emit bench.view.saveProject();
        QVERIFY(
            bench.prompts->asked[0].text.startsWith("Das Projekt konnte nicht gespeichert werden!\n\nDer Datenträger "_s
                                                    + disk.path() + " ist schreibgeschützt."_s));
        QCOMPARE(bench.model.currentFile(), path("elsewhere.vnt"));
        QVERIFY(!bench.model.isProjectModified() && QFile::exists(lockOf(path("elsewhere.vnt"))));
    }

    void asksBeforeItReplacesWhatOthersChanged_data()
    {
        // outcome: "none": not asked
        columns<QByteArray, int, QByteArray>("change", "answer", "outcome");
        row("nothing", "nothing"_ba, 0, "none"_ba);
        row("touched", "touched"_ba, 0, "none"_ba);
        row("other content of the same size", "same size"_ba, 0, "here"_ba);
        row("other size, elsewhere", "other size"_ba, 1, "elsewhere"_ba);
        row("replaced, cancelled", "replaced"_ba, 2, "not"_ba);
        row("replaced, closed", "replaced"_ba, -1, "not"_ba);
        row("gone, made again", "gone"_ba, 0, "here"_ba);
        row("gone, closed", "gone"_ba, -1, "not"_ba);
    }

    void asksBeforeItReplacesWhatOthersChanged()
    {
        QFETCH(QByteArray, change);
        QFETCH(int, answer);
        QFETCH(QByteArray, outcome);
        Bench bench;
        bench.prompts->openNames = {m_file};
        emit bench.view.openProject();
        emit bench.view.saveProject(); // the state of a save counts like that of opening
        bench.recordShots(1);
        QByteArray content = contentOf(m_file);
        if (change == "same size")
            content.replace("\"7\"", "\"8\"");
        if (change == "other size")
            content += '\n';
        if (change == "gone" || change == "replaced")
            QVERIFY(QFile::remove(m_file));
        if (change == "replaced")
            content = "{}";
        if (change != "nothing" && change != "gone") {
            QTest::qWait(2); // for another time stamp
            writeFile(m_file, content);
        }
        bench.prompts->choices = {answer};
        bench.prompts->saveNames = {path("elsewhere.vnt")};
        emit bench.view.saveProject();
        QCOMPARE(bench.prompts->asked.size(), std::size_t(outcome == "none" ? 0 : 1));
        QVERIFY(outcome == "none" || bench.prompts->asked[0].safest == 1);
        QCOMPARE(bench.model.isProjectModified(), outcome == "not");
        QCOMPARE(bench.model.currentFile(), outcome == "elsewhere" ? path("elsewhere.vnt") : m_file);
        if (outcome == "none" || outcome == "here")
            QCOMPARE(Model(m_file).numChannels(0), 3);
        else
            QCOMPARE(contentOf(m_file), change == "gone" ? "cannot be read"_ba : content);
    }

    void somebodyWritesWhileItSaves()
    {
        Bench bench;
        bench.prompts->openNames = {m_file};
        emit bench.view.openProject();
        bench.recordShots(1);
        bool written = false;
        bench.model.setYield([&](int) {
            if (bench.prompts->asked.empty() && !std::exchange(written, true))
                writeFile(m_file, "theirs");
        });
        bench.prompts->choices = {2};
        emit bench.view.saveProject();
        QVERIFY(written);
        QCOMPARE(contentOf(m_file), "theirs"_ba);
        QVERIFY(bench.model.isProjectModified());
    }

    void failedSaveSaysWhyAndGoesElsewhere()
    {
        const SmallDisk disk(1 << 20);
        if (!disk.isMounted())
            QSKIP("this user may not mount a small file system");
        Bench bench;
        bench.recordShots(1);
        for (int i = 0; i < 400000; ++i)
            (void)bench.model.appendSample(0, 0, 1e6 + i);
        bench.prompts->saveNames = {disk.path() + "/full.vnt"_s, path("elsewhere.vnt")};
        bench.prompts->choices = {1, 0}; // once more, then elsewhere
        bench.prompts->whileOpen = [&] { QVERIFY(bench.model.isProjectModified()); };
        emit bench.view.saveProject();
        QCOMPARE(bench.prompts->asked.size(), std::size_t(2));
        const QString text = bench.prompts->asked[1].text;
        QVERIFY2(text.contains("Kein Speicherplatz auf "_s + disk.path() + ": "_s), qPrintable(text));
        QVERIFY2(text.contains(" MB fehlen"_s), qPrintable(text));
        QCOMPARE(bench.model.currentFile(), path("elsewhere.vnt"));
        QCOMPARE(QDir(disk.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
    }

    void whatIsNotSavedBesideTheProjectIsNotGivenUp()
    {
        Bench bench;
        bench.prompts->openNames = {m_file};
        emit bench.view.openProject();
        bench.model.setShotLabel(0, "good"_s);
        bench.model.setProjectModifiedFlag(true);
        QFile::remove(m_file + ".meta"_s);
        QVERIFY(QDir().mkpath(m_file + ".meta"_s));
        bench.prompts->answers = {QMessageBox::Save};
        emit bench.view.newProject();
        QCOMPARE(bench.prompts->warnings.size(), std::size_t(1));
        QVERIFY2(bench.prompts->warnings[0].text.contains("\n\nUnter diesem Namen gibt es einen Ordner."_s),
                 qPrintable(bench.prompts->warnings[0].text));
        QVERIFY(bench.model.isProjectModified());
        QCOMPARE(bench.model.shotLabel(0), "good"_s);
    }

    void aFileOfAnotherKindIsNotProposed()
    {
        const QString foreign = path("package.json");
        writeFile(foreign, "{\"license\": \"none\"}");
        Bench bench;
        bench.prompts->openNames = {foreign};
        emit bench.view.openProject();
        emit bench.view.saveProject(); // no name is chosen
        QCOMPARE(bench.prompts->fileStarts.size(), 2);
        QCOMPARE(bench.prompts->fileStarts[1], path("package (Kopie).vnt"));
    }

    void unreadableFilesSayWhy_data()
    {
        columns<QByteArray, QString>("content", "reason");
        row("empty", QByteArray(), "Die Datei ist leer."_s);
        row("cut", "{\n\"a\": [1,\n2"_ba, "bricht in Zeile 3 ab (Byte 12)"_s);
        row("text", "Hallo\n"_ba, "(Zeile 1, Byte 1)"_s);
        row("in the middle", "{\n\"a\": 1,\n\"b\": x}"_ba, "(Zeile 3, Byte 16)"_s);
        row("list", "[1, 2]\n"_ba, "enthält kein Ventaro-Projekt"_s);
    }

    void unreadableFilesSayWhy()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, reason);
        writeFile(m_file, content);
        for (const bool hasBackup : {false, true}) {
            if (hasBackup)
                writeFile(backupName(m_file), "{}");
            Bench bench;
            bench.prompts->openNames = {m_file};
            emit bench.view.openProject();
            QCOMPARE(bench.prompts->warnings.size(), std::size_t(1));
            const QString text = bench.prompts->warnings[0].text;
            QVERIFY2(text.startsWith("Cannot open file "_s + m_file + " !."_s) && text.contains(reason),
                     qPrintable(text));
            QCOMPARE(text.contains("tool.vnt~"_s), hasBackup);
            QVERIFY(!QFile::exists(lockOf(m_file)));
        }
    }

    void filesOfTheCommandLine_data()
    {
        columns<QStringList, QString>("files", "told");
        row("none", QStringList(), QString());
        row("good", QStringList{"tool.vnt"_s}, QString());
        row("missing", QStringList{"gone.vnt"_s}, "gone.vnt !.\n\nDie Datei ist nicht da."_s);
        row("two", QStringList{"tool.vnt"_s, "b.vnt"_s}, "Es wurden 2 Dateien angegeben"_s);
    }

    void filesOfTheCommandLine()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, told);
        for (QString &file : files)
            file = m_folder->filePath(file);
        Model model(files.size() == 1 ? files.constFirst() : QString());
        ScriptedPrompts *prompts = nullptr;
        View view(&model, scripted(prompts));
        const Controller controller(&model, &view, startedWith(files));
        QVERIFY(prompts->warnings.empty()); // only once the window is there
        if (!told.isEmpty()) {
            QTRY_COMPARE(prompts->warnings.size(), std::size_t(1));
            QVERIFY2(prompts->warnings[0].text.contains(told), qPrintable(prompts->warnings[0].text));
        }
        QTest::qWait(50);
        QCOMPARE(prompts->messages.size(), std::size_t(told.isEmpty() ? 0 : 1));
        QVERIFY(prompts->asked.empty());
    }

    void startedWithWhatSomebodyElseHas_data()
    {
        columns<int, QString, int>("answer", "file", "shots");
        row("read only", 0, "tool.vnt", 2);
        row("copy", 1, QString(), 2);
        row("closed", -1, QString(), 0);
    }

    void startedWithWhatSomebodyElseHas()
    {
        QFETCH(int, answer);
        QFETCH(QString, file);
        QFETCH(int, shots);
        Bench other;
        other.prompts->openNames = {m_file};
        emit other.view.openProject();
        Started started(m_file);
        started.prompts->choices = {answer};
        started.run();
        QTRY_COMPARE(started.prompts->asked.size(), std::size_t(1));
        QCOMPARE(started.model.currentFile(), file.isEmpty() ? QString() : m_file);
        QCOMPARE(started.model.numChannels(0), shots);
        QVERIFY(QFile::exists(lockOf(m_file))); // that of the other one
    }

    void theBackupCanBeSwitchedOff()
    {
        Bench bench;
        auto *keeps = bench.view.findChild<QAction *>("actionKeepBackup"_s);
        QVERIFY(keeps && keeps->isChecked());
        bench.prompts->openNames = {m_file};
        emit bench.view.openProject();
        const QByteArray before = contentOf(m_file);
        bench.recordShots(1);
        keeps->trigger();
        emit bench.view.saveProject();
        QVERIFY(!QFile::exists(backupName(m_file)));
        QVERIFY(!Bench().view.findChild<QAction *>("actionKeepBackup"_s)->isChecked()); // remembered
        keeps->trigger();
        const QByteArray second = contentOf(m_file);
        bench.recordShots(1);
        emit bench.view.saveProject();
        QCOMPARE(contentOf(backupName(m_file)), second);
        QVERIFY(QFile::exists(backupName(m_file + ".meta"_s)));
        QVERIFY(second != before);
    }

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    [[nodiscard]] static QString lockOf(const QString &file) { return file + ".lock"_s; }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
};

QTEST_MAIN(TestFileSafety)
#include "tst_filesafety.moc"
