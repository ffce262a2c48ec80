#include "tests/controller/bench.h"

#include "controller/journal/journal.h"
#include "model/journal/journalreader.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/support/shots.h"

#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

namespace {

constexpr int kTick = 5; // ms

JournalOptions optionsIn(const QString &folder)
{
    JournalOptions options;
    options.folder = folder;
    options.programVersion = "8.0"_s;
    options.handOver = kTick;
    options.force = 60000;
    options.retry = 20;
    return options;
}

ControllerOptions controllerIn(const QString &folder)
{
    ControllerOptions options;
    options.journal = optionsIn(folder);
    return options;
}

QStringList journalsIn(const QString &folder)
{
    return QDir(folder).entryList({"*.journal"_s}, QDir::Files, QDir::Name);
}

std::optional<JournalContents> contentsOf(const QString &folder)
{
    const QStringList journals = journalsIn(folder);
    QFile file(folder + "/"_s + journals.value(0));
    return journals.size() == 1 && file.open(QIODevice::ReadOnly) ? readJournal(file) : std::nullopt;
}

int shotsIn(const QString &folder)
{
    const std::optional<JournalContents> contents = contentsOf(folder);
    return contents ? contents->shotCount() : -1;
}

/// Leaves a journal behind, as a program that was killed does.
void leaveJournal(const QString &folder, int shots, const QString &comment = {})
{
    QTemporaryDir running;
    Model model{QString()};
    Journal journal(model, optionsIn(running.path()), [] { return false; });
    for (int shot = 0; shot < shots; ++shot)
        addShot(model, {shot + 1.0, 0.5});
    model.setComment(comment);
    model.setProjectModifiedFlag(true);
    QVERIFY(journal.secure());
    QVERIFY(QDir().mkpath(folder));
    const QString name = journalsIn(running.path()).value(0);
    QVERIFY(QFile::copy(running.filePath(name), folder + "/"_s + name));
}

} // namespace

class TestJournalKeeping : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_folder = m_dir->filePath("journal"_s);
    }

    void beginsWithTheFirstChangeAndEndsWithTheSave()
    {
        Bench bench(controllerIn(m_folder));
        QTest::qWait(4 * kTick);
        QVERIFY(journalsIn(m_folder).isEmpty());
        bench.recordShots(3);
        QTRY_COMPARE(shotsIn(m_folder), 3);
        QVERIFY(!bench.model.journalInfo().file.isEmpty());
        bench.prompts->saveNames = {m_dir->filePath("a.vnt"_s)};
        bench.controller.onSaveProject();
        QTRY_VERIFY(journalsIn(m_folder).isEmpty());
        QVERIFY(bench.model.journalInfo().file.isEmpty());
        bench.recordShots(1);
        QTRY_COMPARE(shotsIn(m_folder), 4);
        QCOMPARE(contentsOf(m_folder)->samples.size(), std::size_t(20)); // of which 15 are in the file
        QCOMPARE(contentsOf(m_folder)->base.file, m_dir->filePath("a.vnt"_s));
    }

    void whatEndsIt_data()
    {
        columns<QString, bool>("how", "isKept");
        row("new project", "new", false);
        row("another project", "open", false);
        row("quit with discarding", "quit", false);
        row("the end without a question", "signal", true);
        row("the end of the event loop", "nothing", true);
    }

    void whatEndsIt()
    {
        QFETCH(QString, how);
        QFETCH(bool, isKept);
        const QString other = m_dir->filePath("other.vnt"_s);
        QVERIFY(Model(QString()).save(other));
        {
            Bench bench(controllerIn(m_folder));
            bench.recordShots(2);
            bench.model.setComment("said"_s);
            QTRY_COMPARE(shotsIn(m_folder), 2);
            bench.prompts->answers = {QMessageBox::Discard};
            bench.prompts->openNames = {other};
            if (how == "new"_s)
                bench.controller.onNewProject();
            else if (how == "open"_s)
                bench.controller.onOpenProject();
            else if (how == "quit"_s)
                bench.controller.onActionQuit();
            else if (how == "signal"_s)
                bench.controller.leaveAtOnce();
            QTest::qWait(4 * kTick);
        }
        QCOMPARE(shotsIn(m_folder), isKept ? 2 : -1);
        QCOMPARE(isKept && contentsOf(m_folder)->settings.contains("\"said\""), isKept);
    }

    void nothingIsKeptOfAProjectThatIsSaved()
    {
        Bench bench(controllerIn(m_folder));
        bench.controller.leaveAtOnce();
        QVERIFY(journalsIn(m_folder).isEmpty()); // else it would be offered if the program were killed now
    }

    /// What somebody else wrote between the opening and the first change must not be replaced unasked.
    void aFileThatSomebodyElseChanged_data()
    {
        columns<bool, bool, int>("isChanged", "isOpened", "state");
        using State = DiskCopy::State;
        row("nobody", false, false, int(State::Same));
        row("nobody, opened again before", false, true, int(State::Same));
        row("somebody", true, false, int(State::Changed));
        row("somebody, opened again before", true, true, int(State::Changed));
    }

    void aFileThatSomebodyElseChanged()
    {
        QFETCH(bool, isChanged);
        QFETCH(bool, isOpened);
        QFETCH(int, state);
        const QString file = m_dir->filePath("a.vnt"_s);
        QVERIFY(Model(QString()).save(file));
        Model model(file);
        if (isChanged) {
            Model other(file);
            addShot(other, {9.0});
            QVERIFY(other.save(file));
        }
        Journal journal(model, optionsIn(m_folder), [] { return false; });
        addShot(model, {1.0});
        model.setProjectModifiedFlag(true);
        QVERIFY(journal.secure());
        std::optional<JournalContents> contents = contentsOf(m_folder);
        QVERIFY(contents);
        Model second{QString()};
        QVERIFY(!isOpened || second.open(file));
        QVERIFY(second.restore(*contents));
        QCOMPARE(second.numChannels(0), 1);
        QCOMPARE(int(second.fileOnDisk()), state);
    }

    /// Its shot must not land in the restored project.
    void aRecordingThatBeginsDuringTheQuestion()
    {
        leaveJournal(m_folder, 3);
        Bench bench(controllerIn(m_folder));
        bench.prompts->choices = {0};
        bench.prompts->whileOpen = [&bench] {
            bench.prompts->whileOpen = nullptr;
            bench.say("run=1");
        };
        QTRY_COMPARE(int(bench.prompts->warnings.size()), 1);
        bench.say("0;1;2;3;4;5");
        QCOMPARE(bench.shots(), 1);
        QTRY_COMPARE(journalsIn(m_folder).size(), 2);
    }

    void aRunningProgramsJournalIsLeftAlone()
    {
        Bench running(controllerIn(m_folder));
        running.recordShots(1);
        QTRY_COMPARE(shotsIn(m_folder), 1);
        Bench second(controllerIn(m_folder));
        QTest::qWait(60);
        QVERIFY(second.prompts->asked.empty());
    }

    void restored()
    {
        leaveJournal(m_folder, 3, "found"_s);
        Bench bench(controllerIn(m_folder));
        bench.prompts->choices = {0};
        QTRY_COMPARE(bench.shots(), 3);
        QCOMPARE(bench.model.comment(), "found"_s);
        QVERIFY(bench.model.isProjectModified());
        QVERIFY(bench.slotsMatchModel());
        QCOMPARE(bench.prompts->asked.front().title, "Wiederherstellung"_s);
        QVERIFY(bench.prompts->asked.front().text.contains("Messungen: 3"_s));
        QVERIFY(bench.prompts->asked.front().text.contains("Messwerte: 30"_s));
        // Protected by this program's own journal, and by no other.
        QCOMPARE(shotsIn(m_folder), 3);
        QCOMPARE(m_folder + "/"_s + journalsIn(m_folder).value(0), bench.model.journalInfo().file);
        bench.recordShots(1);
        QCOMPARE(bench.shots(), 4);
        QTRY_COMPARE(shotsIn(m_folder), 4);
    }

    void answersThatDoNotRestore_data()
    {
        columns<QVector<int>, int, int>("answers", "questions", "left");
        row("later", QVector<int>{1}, 1, 1);
        row("closed", QVector<int>{Choice::kClosed}, 1, 1);
        row("discarded", QVector<int>{2, 1}, 2, 0);
        row("not discarded after all", QVector<int>{2, 0, 1}, 3, 1);
        row("closed when asked again", QVector<int>{2, Choice::kClosed, Choice::kClosed}, 3, 1);
    }

    void answersThatDoNotRestore()
    {
        QFETCH(QVector<int>, answers);
        QFETCH(int, questions);
        QFETCH(int, left);
        leaveJournal(m_folder, 1);
        Bench bench(controllerIn(m_folder));
        bench.prompts->choices.assign(answers.begin(), answers.end());
        QTRY_COMPARE(int(bench.prompts->asked.size()), questions);
        QTest::qWait(40);
        QCOMPARE(int(bench.prompts->asked.size()), questions);
        QCOMPARE(journalsIn(m_folder).size(), left);
        QCOMPARE(bench.shots(), 0);
        QVERIFY(!bench.model.isProjectModified());
    }

    /// The second one must not take the place of the first, which is not saved yet.
    void severalOneAfterTheOther_data()
    {
        columns<int, int, bool>("answer", "shots", "isSaved");
        row("saved before", 0, 2, true);
        row("later", 1, 1, false);
    }

    void severalOneAfterTheOther()
    {
        QFETCH(int, answer);
        QFETCH(int, shots);
        QFETCH(bool, isSaved);
        leaveJournal(m_folder, 1);
        QTest::qWait(2);
        leaveJournal(m_folder, 2);
        const QString file = m_dir->filePath("first.vnt"_s);
        Bench bench(controllerIn(m_folder));
        bench.prompts->choices = {0, 0, answer};
        bench.prompts->saveNames = {file};
        QTRY_COMPARE(int(bench.prompts->asked.size()), 3);
        QTRY_COMPARE(bench.shots(), shots);
        QTest::qWait(40);
        QCOMPARE(QFile::exists(file), isSaved);
        QCOMPARE(journalsIn(m_folder).size(), isSaved ? 1 : 2);
    }

    void unreadableIsKeptAside()
    {
        QVERIFY(QDir().mkpath(m_folder));
        writeFile(m_folder + "/1.journal"_s, "Ventaro journal 1\nsomething else");
        writeFile(m_folder + "/2.journal"_s, "");
        Bench bench(controllerIn(m_folder));
        QTRY_COMPARE(int(bench.prompts->warnings.size()), 1);
        QTRY_VERIFY(journalsIn(m_folder).isEmpty());
        QVERIFY(QFile::exists(m_folder + "/1.journal.bad"_s));
        QVERIFY(!QFile::exists(m_folder + "/2.journal.bad"_s));
    }

    /// A limit of the file's size acts as a full disk does: writes fall short.
    void aFullDiskIsToldOnceAndEndsNothing()
    {
        const auto ignored = std::signal(SIGXFSZ, SIG_IGN);
        rlimit before{};
        ::getrlimit(RLIMIT_FSIZE, &before);
        Model model{QString()};
        Journal journal(model, optionsIn(m_folder), [] { return true; });
        QStringList told;
        connect(&journal, &Journal::told, &journal, [&told](const QString &text) { told << text; });
        addShot(model, {1.0});
        model.setProjectModifiedFlag(true);
        QTRY_COMPARE(shotsIn(m_folder), 1);

        const auto size = rlim_t(QFileInfo(model.journalInfo().file).size());
        const rlimit full{size + 100, before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &full);
        for (int i = 0; i < 100; ++i)
            (void)model.appendSample(0, 0, i);
        QTRY_COMPARE(told.size(), 1);
        QTest::qWait(100);
        const int toldWhileFull = told.size();
        const rlim_t sizeWhileFull = rlim_t(QFileInfo(model.journalInfo().file).size());
        ::setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, ignored);
        QCOMPARE(toldWhileFull, 1);
        QVERIFY2(!told.front().contains("Unknown error"_s), qPrintable(told.front()));
        QCOMPARE(sizeWhileFull, size); // no torn block
        QTRY_COMPARE(int(contentsOf(m_folder)->sampleCount()), 105);
    }

    void aReadOnlyFolder()
    {
        if (::geteuid() == 0)
            m_folder = "/proc/journal"_s; // nobody may create anything there
        else
            QVERIFY(QFile::setPermissions(m_dir->path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner));
        Bench bench(controllerIn(m_folder));
        QSignalSpy modified(&bench.model, &Model::fileStateChanged);
        bench.recordShots(2);
        QTest::qWait(60);
        QCOMPARE(bench.shots(), 2);
        QVERIFY(bench.model.journalInfo().file.isEmpty());
        QVERIFY(QFile::setPermissions(m_dir->path(),
                                      QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner));
    }

    void forcedAtTheEndOfAShot()
    {
        Model model{QString()};
        bool isRecording = true;
        Journal journal(model, optionsIn(m_folder), [&isRecording] { return isRecording; });
        addShot(model, {1.0});
        model.setProjectModifiedFlag(true);
        QTRY_VERIFY(model.journalInfo().lastForced >= 0); // the new shot is the end of the one before
        const int longest = model.journalInfo().longestForced;
        QVERIFY(longest >= model.journalInfo().lastForced);
        (void)model.appendSample(0, 0, 2.0);
        QTest::qWait(10 * kTick);
        model.setJournalInfo({});
        isRecording = false;
        QTRY_VERIFY(model.journalInfo().lastForced >= 0);
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_folder;
};

QTEST_MAIN(TestJournalKeeping)

#include "tst_journalkeeping.moc"
