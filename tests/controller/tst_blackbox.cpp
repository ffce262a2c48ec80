#include "rig.h"

#include "model/blackboxfile.h"
#include "view/tabblackbox.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableView>
#include <QTemporaryDir>

namespace {

struct Files
{
    [[nodiscard]] QString write(const QString &name, const QByteArray &bytes)
    {
        QFile file(folder.filePath(name));
        QDir().mkpath(QFileInfo(file).path());
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
    }
    /// A shot whose samples all are the number.
    [[nodiscard]] QString writeShot(int number, int samples = 3)
    {
        const QByteArray value = QByteArray::number(number);
        const QByteArray line = "A=[" + value + ',' + value + ',' + value + ',' + value + ',' + value + "]\n";
        return write(QStringLiteral("%1.bb").arg(number, 6, 10, QLatin1Char('0')), line.repeated(samples));
    }
    [[nodiscard]] QStringList writeShots(int count)
    {
        QStringList files;
        for (int number = 1; number <= count; ++number)
            files << writeShot(number);
        return files;
    }

    QTemporaryDir folder;
};

void import(Bench &bench, const QStringList &files)
{
    emit bench.view.tabBlackBox()->importClicked(files);
}

/// All logger files of all days, in the order in which they were recorded.
QStringList loggedFiles(const QDir &stick)
{
    QStringList files;
    for (const QFileInfo &day : stick.entryInfoList({QStringLiteral("dir-*")}, QDir::Dirs, QDir::Name)) {
        for (const QFileInfo &file : QDir(day.filePath()).entryInfoList({QStringLiteral("*.bb")}, QDir::Files))
            files << file.filePath();
    }
    return files;
}

QString result(const Bench &bench)
{
    return bench.view.tabBlackBox()->findChild<QLabel *>(QStringLiteral("labelResult"))->text();
}

} // namespace

class TestBlackBox : public QObject
{
    Q_OBJECT

private slots:
    void threeDaysFromTheBox();
    void tellsWhatWasLeftOut_data();
    void tellsWhatWasLeftOut();
    void asksBeforeRepeating_data();
    void asksBeforeRepeating();
    void newProjectForgets();
    void refusesWhileRecording();
    void recordingGoesOnBehind();
    void linesWaitMeanwhile();
    void nothingElseStartsMeanwhile();
    void calibrationAfterImport();
    void newLimitsAreShown();
    void manyFiles();
};

/// The box logs and lists; the files come by way of a folder; the shots are what the box has sent.
void TestBlackBox::threeDaysFromTheBox()
{
    Files files;
    BoxOptions options;
    options.dataFolder = files.folder.filePath(QStringLiteral("stick"));
    QVERIFY(!files.write(QStringLiteral("stick/lost+found"), "x").isEmpty());
    Rig rig(options);
    TabBlackBox *tab = rig.bench.view.tabBlackBox();
    QVERIFY(rig.connectQuickly());
    for (int shot = 0; shot < 3; ++shot)
        QVERIFY(rig.recordShot(10 + 5 * shot));
    const QDir stick(options.dataFolder);
    const QStringList days{QStringLiteral("dir-20240304"), QStringLiteral("dir-20240305"),
                           QStringLiteral("dir-20240306")};
    const QStringList logged = loggedFiles(stick);
    QCOMPARE(logged.size(), 3);
    QStringList moved;
    for (int day = 0; day < 3; ++day) {
        moved << stick.filePath(days.at(day)) + QLatin1Char('/') + QFileInfo(logged.at(day)).fileName();
        QVERIFY(stick.mkpath(days.at(day)) && QFile::rename(logged.at(day), moved.last()));
    }

    tab->findChild<QAbstractButton *>(QStringLiteral("buttonList"))->click();
    QTRY_VERIFY(tab->list().contains(days.at(2)));
    QVERIFY(tab->list().contains(QStringLiteral("lost+found")));
    tab->findChild<QAbstractButton *>(QStringLiteral("buttonSelectAll"))->click();
    const QStringList dates = tab->selectedDates();
    QCOMPARE(dates.mid(dates.size() - 3),
             (QStringList{QStringLiteral("06.03.2024"), QStringLiteral("05.03.2024"), QStringLiteral("04.03.2024")}));
    const std::array<QVector<SampleList>, 2> sent{
        QVector<SampleList>{rig.bench.samples(0, 0), rig.bench.samples(0, 1), rig.bench.samples(0, 2)},
        QVector<SampleList>{rig.bench.samples(4, 0), rig.bench.samples(4, 1), rig.bench.samples(4, 2)}};
    emit rig.bench.view.connectDisconnect();
    QTRY_VERIFY(!rig.bench.model.isConnected());
    rig.bench.model.clear();

    for (int day = 2; day >= 0; --day)
        tab->addFetchedFiles(dates.at(dates.size() - 1 - day), {moved.at(day)});
    QCOMPARE(tab->selectedFiles().size(), 3);
    tab->findChild<QAbstractButton *>(QStringLiteral("buttonImport"))->click();
    QCOMPARE(rig.bench.shots(), 3);
    for (int shot = 0; shot < 3; ++shot) {
        QCOMPARE(rig.bench.samples(0, shot), sent[0].at(shot));
        QCOMPARE(rig.bench.samples(4, shot), sent[1].at(shot));
        QVERIFY(rig.bench.model.timestamp(shot).isValid());
    }
    QVERIFY(rig.bench.slotsMatchModel());
    for (int row = 0; row < kNumSensors; ++row)
        QVERIFY(rig.bench.view.tabOszi()->row(row)->isShown(2));
    QCOMPARE(result(rig.bench), QStringLiteral("3 Messungen importiert"));
    QVERIFY(rig.bench.model.isProjectModified());
    QCOMPARE(rig.bench.model.sensorDescription().sensorGroup(0).name(), QStringLiteral("Werkzeug"));
    QVERIFY(tab->selectedFiles().isEmpty()); // imported ones lose their ticks
    QCOMPARE(rig.bench.prompts->unexpected, 0);
}

void TestBlackBox::tellsWhatWasLeftOut_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const QByteArray line = "A=[1,2,3,4,5]\n";
    QTest::newRow("nothing") << line << QStringLiteral("1 Messung importiert");
    QTest::newRow("three lines") << line + "x\nA=[1]\nA=\n"
                                 << QStringLiteral("1 Messung importiert, 3 Zeilen übersprungen");
    QTest::newRow("one line") << line + "x\n" << QStringLiteral("1 Messung importiert, 1 Zeile übersprungen");
    QTest::newRow("values") << QByteArray("A=[a,b,c,d,5]\nx")
                            << QStringLiteral("1 Messung importiert, 1 Zeile übersprungen, "
                                              "4 Werte waren nicht lesbar und sind jetzt 0");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("0 Messungen importiert");
}

void TestBlackBox::tellsWhatWasLeftOut()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    Files files;
    Bench bench;
    const QString good = files.write(QStringLiteral("a.bb"), bytes);
    import(bench, {good});
    QCOMPARE(result(bench), text);
    QCOMPARE(bench.view.statusBar()->currentMessage(), text);
    QVERIFY(bench.prompts->messages.empty());
    import(bench, {files.folder.filePath(QStringLiteral("missing.bb")), files.folder.path()});
    QCOMPARE(result(bench), QStringLiteral("0 Messungen importiert, 2 Dateien nicht lesbar"));
    QCOMPARE(bench.prompts->warnings.size(), std::size_t(1));
    QVERIFY(bench.prompts->warnings[0].text.contains(QStringLiteral("missing.bb")));
}

void TestBlackBox::asksBeforeRepeating_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("shots");
    QTest::newRow("again") << int(QMessageBox::Yes) << 5;
    QTest::newRow("new ones only") << int(QMessageBox::No) << 3;
}

void TestBlackBox::asksBeforeRepeating()
{
    QFETCH(int, answer);
    QFETCH(int, shots);
    Files files;
    const QStringList names = files.writeShots(3);
    Bench bench;
    import(bench, names.mid(0, 2));
    QVERIFY(bench.prompts->questions.empty());
    bench.prompts->answers = {QMessageBox::StandardButton(answer)};
    import(bench, names);
    QCOMPARE(bench.prompts->questions.size(), std::size_t(1));
    QVERIFY(bench.prompts->questions[0].text.startsWith(QLatin1String("2 der Dateien")));
    QCOMPARE(bench.shots(), shots);
    QCOMPARE(bench.firstSamples().last(), 3.0);
}

void TestBlackBox::newProjectForgets()
{
    Files files;
    const QStringList names = files.writeShots(2);
    Bench bench;
    import(bench, names);
    bench.prompts->answers = {QMessageBox::Discard};
    emit bench.view.newProject();
    import(bench, names);
    QCOMPARE(bench.shots(), 2);
    bench.prompts->answers = {QMessageBox::Ok};
    bench.controller.onTabProject_clearDataClicked();
    QCOMPARE(bench.shots(), 0);
    const auto asked = bench.prompts->questions.size();
    import(bench, names);
    QCOMPARE(bench.shots(), 2);
    QCOMPARE(bench.prompts->questions.size(), asked);
}

void TestBlackBox::refusesWhileRecording()
{
    Files files;
    Bench bench;
    bench.say("run=1");
    import(bench, files.writeShots(2));
    QCOMPARE(bench.shots(), 1);
    QCOMPARE(bench.prompts->messages.size(), std::size_t(1));
    bench.say("0;7;7;7;7;7");
    bench.say("run=0");
    QCOMPARE(bench.samples(2, 0), QVector<double>{7.0});
    import(bench, files.writeShots(2));
    QCOMPARE(bench.firstSamples(), (QVector<double>{7.0, 1.0, 2.0}));
}

void TestBlackBox::recordingGoesOnBehind()
{
    Files files;
    Bench bench;
    bench.recordShots(2);
    import(bench, files.writeShots(2));
    bench.recordShots(1);
    QCOMPARE(bench.firstSamples(3), (QVector<double>{1.0, 2.0, 1.0, 2.0, 5.0}));
    QVERIFY(bench.slotsMatchModel());
}

/// A run that the box starts while files are being read begins behind them.
void TestBlackBox::linesWaitMeanwhile()
{
    Files files;
    Bench bench;
    bool started = false;
    QObject::connect(&bench.model, &Model::dataChanged, &bench.model, [&] {
        if (std::exchange(started, true))
            return;
        bench.say("run=1");
        bench.say("0;9;9;9;9;9");
    });
    import(bench, files.writeShots(3));
    QTRY_COMPARE(bench.firstSamples(), (QVector<double>{1.0, 2.0, 3.0, 9.0}));
    QVERIFY(bench.controller.isRecordingRunning());
}

void TestBlackBox::nothingElseStartsMeanwhile()
{
    Files files;
    const QStringList names = files.writeShots(4);
    Bench bench;
    int turns = 0;
    QSignalSpy quit(QCoreApplication::instance(), &QCoreApplication::aboutToQuit);
    QObject::connect(&bench.model, &Model::dataChanged, &bench.model, [&] {
        ++turns;
        emit bench.view.newProject();
        emit bench.view.openProject();
        emit bench.view.saveProject();
        emit bench.view.quit();
        emit bench.view.tabOszi()->deleteMeasurements(QStringLiteral("1"));
        import(bench, names);
    });
    import(bench, names);
    QCOMPARE(turns, 4);
    QCOMPARE(bench.firstSamples(), (QVector<double>{1.0, 2.0, 3.0, 4.0}));
    QVERIFY(bench.prompts->questions.empty() && bench.prompts->fileDialogs.isEmpty());
    QVERIFY(quit.isEmpty());
}

/// The answer of the box counts, not the last sample that was imported.
void TestBlackBox::calibrationAfterImport()
{
    Files files;
    Bench bench;
    bench.recordShots(1);
    import(bench, files.writeShots(3));
    bench.prompts->whileOpen = [&] { bench.say("0;20;20;20;20;20"); };
    emit bench.view.calibrate();
    QCOMPARE(bench.model.offset(1), -20.0);
    QCOMPARE(bench.samples(1, 0).size(), 1);
}

void TestBlackBox::newLimitsAreShown()
{
    Files files;
    Bench bench;
    import(bench, {files.write(QStringLiteral("a.bb"), "[sensors]\ngroup0/sensor1/min=-5\ngroup0/sensor1/max=75\n"
                                                       "[data]\nA=[1,2,3,4,5]\n")});
    QCOMPARE(bench.view.tabOszi()->row(1)->minValue(), -5.0);
    QCOMPARE(bench.view.tabOszi()->row(1)->maxValue(), 75.0);
}

void TestBlackBox::manyFiles()
{
    Files files;
    const QStringList names = files.writeShots(300);
    Bench bench;
    bench.view.show();
    auto *progress = bench.view.tabBlackBox()->findChild<QLabel *>(QStringLiteral("labelProgress"));
    QStringList shown;
    QObject::connect(&bench.model, &Model::dataChanged, &bench.model, [&] { shown << progress->text(); });
    bool turned = false;
    QTimer::singleShot(0, &bench.view, [&] { turned = shown.size() < names.size(); });
    import(bench, names);
    QVERIFY(turned); // the event loop, before the end
    QCOMPARE(shown.value(3), QStringLiteral("3 von 300"));
    QVERIFY(progress->text().isEmpty());
    QCOMPARE(bench.shots(), 300);
    QVERIFY(!bench.view.findChild<QProgressBar *>()->isVisible());
}

QTEST_MAIN(TestBlackBox)
#include "tst_blackbox.moc"
