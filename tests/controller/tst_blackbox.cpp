#include "bench.h"

#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/blackbox/tabblackbox.h"

#include <QtWidgets>

namespace {

struct Files
{
    [[nodiscard]] QString write(const QString &name, const QByteArray &bytes)
    {
        QFile file(folder.filePath(name));
        QDir().mkpath(QFileInfo(file).path());
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
    }
    /// A shot whose samples all have this value.
    [[nodiscard]] QString writeShot(int number, int samples = 3)
    {
        const QByteArray value = QByteArray::number(number);
        const QByteArray line = "A=[" + value + ',' + value + ',' + value + ',' + value + ',' + value + "]\n";
        return write("%1.bb"_s.arg(number, 6, 10, QLatin1Char('0')), line.repeated(samples));
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

QString result(const Bench &bench)
{
    return bench.view.tabBlackBox()->findChild<QLabel *>("labelResult"_s)->text();
}

} // namespace

class TestBlackBox : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatWasLeftOut_data()
    {
        columns<QByteArray, QString>("bytes", "text");
        const QByteArray line = "A=[1,2,3,4,5]\n";
        row("nothing", line, "1 Messung importiert");
        row("three lines", line + "x\nA=[1]\nA=\n", "1 Messung importiert, 3 Zeilen übersprungen");
        row("values", "A=[a,b,c,d,5]\nx"_ba,
            "1 Messung importiert, 1 Zeile übersprungen, "
            "4 Werte waren nicht lesbar und sind jetzt 0");
        row("empty", QByteArray(), "0 Messungen importiert");
    }

    void tellsWhatWasLeftOut()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        Files files;
        Bench bench;
        const QString good = files.write("a.bb"_s, bytes);
        import(bench, {good});
        QCOMPARE(result(bench), text);
        QCOMPARE(bench.view.statusBar()->currentMessage(), text);
        QVERIFY(bench.prompts->messages.empty());
        import(bench, {files.folder.filePath("missing.bb"_s), files.folder.path()});
        QCOMPARE(result(bench), "0 Messungen importiert, 2 Dateien nicht lesbar"_s);
        QCOMPARE(bench.prompts->warnings.size(), std::size_t(1));
        QVERIFY(bench.prompts->warnings[0].text.contains("missing.bb"_s));
    }

    void asksBeforeRepeating_data()
    {
        columns<int, int>("answer", "shots");
        row("again", int(QMessageBox::Yes), 5);
        row("new ones only", int(QMessageBox::No), 3);
        row("closed", int(QMessageBox::NoButton), 2);
    }

    void asksBeforeRepeating()
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
        QVERIFY(bench.prompts->questions[0].text.startsWith("2 der Dateien"_s));
        QCOMPARE(bench.shots(), shots);
        QCOMPARE(bench.firstSamples().last(), shots == 2 ? 2.0 : 3.0);
    }

    void tellsWhichNamesAndLimitsChange_data()
    {
        columns<QByteArray, QString>("header", "told"); // empty: nothing is asked
        row("the same", "group0/sensor0/name=Druck\ngroup0/sensor0/max=250\n"_ba, QString());
        row("name", "group0/sensor0/name=Hall\n"_ba, "Sensor 1: Name „Druck“ wird „Hall“");
        row("limits", "group0/sensor0/min=5\n"_ba, "Sensor 1: Grenzen 0 … 250 werden 5 … 250");
        row("unit", "group0/sensor0/unit=mm\n"_ba, "Sensor 1: Einheit „bar“ wird „mm“");
        row("unknown before", "group0/sensor3/name=Weg\ngroup0/sensor3/unit=mm\n"_ba, QString());
    }

    void tellsWhichNamesAndLimitsChange()
    {
        QFETCH(QByteArray, header);
        QFETCH(QString, told);
        for (const int answer : {0, 1, int(Choice::kClosed)}) {
            Files files;
            Bench bench;
            SensorDescription sensors = bench.model.sensorDescription();
            SensorGroup *group = sensors.modifiableSensorGroup(0);
            group->setSensorName(0, "Druck"_s);
            group->setSensorUnit(0, "bar"_s);
            group->setSensorMinimum(0, 0.0);
            group->setSensorMaximum(0, 250.0);
            bench.model.setSensorDescription(sensors);
            bench.prompts->choices = {answer};
            import(bench, {files.write("a.bb"_s, "[sensors]\nnumGroups=1\n" + header + "[data]\nA=[1,2,3,4,5]\n")});
            QCOMPARE(bench.prompts->asked.size(), std::size_t(told.isEmpty() ? 0 : 1));
            const bool imports = told.isEmpty() || answer != Choice::kClosed;
            QCOMPARE(bench.shots(), imports ? 1 : 0);
            if (told.isEmpty())
                continue;
            QVERIFY2(bench.prompts->asked.front().text.endsWith(told), qPrintable(bench.prompts->asked.front().text));
            const SensorGroup &now = bench.model.sensorDescription().sensorGroup(0);
            const bool same =
                now.sensorName(0) == "Druck"_s && now.sensorMinimum(0) == 0.0 && now.sensorUnit(0) == "bar"_s;
            QCOMPARE(same, answer != 0);
        }
    }

    void keepsTheOrigin()
    {
        Files files;
        ControllerOptions options;
        options.temporaryDirectory = files.folder.filePath("tmp"_s);
        Bench bench(options);
        const QByteArray shot = "A=[1,2,3,4,5]\n";
        const QString ofBox = files.write("tmp/box-192.168.4.1/dir-20240305/a.bb"_s, shot);
        const QString other = files.write("b.bb"_s, shot + shot);
        const QString empty = files.write("c.bb"_s, "nothing\n");
        import(bench, {ofBox, empty, other});
        QCOMPARE(bench.shots(), 2);
        const ShotOrigin first = bench.model.projectMeta().origin(0);
        QCOMPARE(first.box + u'|' + first.file, "192.168.4.1|dir-20240305/a.bb"_s);
        QCOMPARE(first.hash, QCryptographicHash::hash(shot, QCryptographicHash::Sha1));
        const ShotOrigin second = bench.model.projectMeta().origin(1);
        QCOMPARE(second.box + u'|' + second.file, u'|' + other);
    }

    void refusesWhileRecording()
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

    /// A run that the box starts while files are being read comes after their shots.
    void linesWaitMeanwhile()
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

    void nothingElseStartsMeanwhile()
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
            emit bench.view.tabOszi()->deleteMeasurements("1"_s);
            import(bench, names);
        });
        import(bench, names);
        QCOMPARE(turns, 4);
        QCOMPARE(bench.firstSamples(), (QVector<double>{1.0, 2.0, 3.0, 4.0}));
        QVERIFY(bench.prompts->questions.empty() && bench.prompts->fileDialogs.isEmpty());
        QVERIFY(quit.isEmpty());
    }

    void manyFiles()
    {
        Files files;
        const QStringList names = files.writeShots(300);
        Bench bench;
        bench.view.show();
        auto *progress = bench.view.tabBlackBox()->findChild<QLabel *>("labelProgress"_s);
        QStringList shown;
        QObject::connect(&bench.model, &Model::dataChanged, &bench.model, [&] { shown << progress->text(); });
        bool turned = false;
        QTimer::singleShot(0, &bench.view, [&] { turned = shown.size() < names.size(); });
        import(bench, names);
        QVERIFY(turned); // the event loop ran before the import was over
        QCOMPARE(shown.value(3), "3 von 300"_s);
        QVERIFY(progress->text().isEmpty());
        QCOMPARE(bench.shots(), 300);
        QVERIFY(!bench.view.findChild<QProgressBar *>()->isVisible());
    }
};

QTEST_MAIN(TestBlackBox)
#include "tst_blackbox.moc"
