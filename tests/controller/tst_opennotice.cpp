#include "bench.h"
#include "model/blackbox/blackboxfile.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tests/support/shots.h"
#include "view/blackbox/tabblackbox.h"
#include "view/project/tabproject.h"
#include "view/sensors/tabsensors.h"

#include <QAction>
#include <QBuffer>
#include <QLabel>
#include <QStatusBar>
#include <QTemporaryDir>

namespace {

QByteArray pngOf(QSize size, QImage::Format format)
{
    QImage image(size, format);
    image.fill(Qt::gray);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG", 80);
    return buffer.data();
}

QByteArray member(const char *key, const QByteArray &png)
{
    return '"' + QByteArray(key) + "\":\"" + png.toBase64() + '"';
}

void trigger(const Bench &bench, const char *action)
{
    bench.view.findChild<QAction *>(QLatin1String(action))->trigger();
}

} // namespace

class TestOpenNotice : public QObject
{
    Q_OBJECT

private slots:
    void notices_data()
    {
        columns<QByteArray, QStringList, bool>("text", "said", "isWarning");
        row("project", R"({"clock":20})"_ba, QStringList(), false);
        row("newer", R"({"fileVersion":"9","clock":20})"_ba,
            QStringList{"neueren Version"_s, "(Dateiversion 9)"_s, "Dateiversion 7"_s, "anderen Namen"_s}, true);
        row("unknown keys", R"({"clock":20,"b":1,"a":1,"c":1,"<b>d</b>":1,"e":1,"f":1,"g":1})"_ba,
            QStringList{"erhalten bleiben"_s, "\"<b>d</b>\", \"a\", \"b\", \"c\", \"e\" und 2 weitere"_s}, false);
        row("lost", R"({"clock":"20"})"_ba, QStringList{"verloren gehen: \"clock\""_s, "anderen Namen"_s}, true);
        row("no project", R"({"name":"x"})"_ba, QStringList{"sieht nicht wie ein Projekt aus"_s, "\"name\""_s}, true);
        row("pictures", R"({"projectImage":"AAAA","projectImage4":7})"_ba,
            QStringList{"Nicht lesbar: Bild 1, Bild 5."_s}, true);
    }

    void notices()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, said);
        QFETCH(bool, isWarning);
        writeFile(path("notice.vnt"), text);
        Bench bench;
        emit bench.view.openProjectFile(path("notice.vnt"));
        QCOMPARE(bench.model.currentFile(), path("notice.vnt"));
        QCOMPARE(bench.prompts->messages.size(), std::size_t(said.isEmpty() ? 0 : 1));
        QCOMPARE(bench.prompts->warnings.size(), std::size_t(isWarning ? 1 : 0));
        for (const QString &words : said)
            QVERIFY2(bench.prompts->messages[0].text.contains(words), qPrintable(bench.prompts->messages[0].text));
        QVERIFY(!bench.model.isProjectModified());
    }

    void projectOfTheCommandLine()
    {
        writeFile(path("start.vnt"), R"({"fileVersion":"8","clock":20})");
        Model model(path("start.vnt"));
        ScriptedPrompts *prompts = nullptr;
        View view(&model, scripted(prompts));
        const Controller controller(&model, &view, {});
        QVERIFY(prompts->messages.empty()); // there is no window yet
        QTRY_COMPARE(prompts->messages.size(), std::size_t(1));
    }

    void aFileThatIsNoProjectIsNotReplaced()
    {
        const QByteArray text = R"({"name":"somebody else","version":"1"})";
        writeFile(path("package.json"), text);
        Bench bench;
        emit bench.view.openProjectFile(path("package.json"));
        emit bench.view.saveProject(); // cancelled
        QCOMPARE(bench.prompts->fileDialogs.size(), 1);
        bench.prompts->saveNames = {path("mine.vnt")};
        emit bench.view.saveProject();
        QCOMPARE(contentOf(path("package.json")), text);
        QCOMPARE(bench.model.currentFile(), path("mine.vnt"));
        emit bench.view.saveProject(); // that one is a project now
        QCOMPARE(bench.prompts->fileDialogs.size(), 2);
    }

    void fileBesideTheProject_data()
    {
        columns<QByteArray, QString, QString>("meta", "status", "message");
        row("missing", QByteArray(), "Ohne die Datei \"meta.vnt.meta\" fehlen", "");
        row("damaged", "{"_ba, "", "\"meta.vnt.meta\" neben dem Projekt ist besch\u00e4digt");
        row("newer", R"({"metaVersion":2})"_ba, "", "als \"meta.vnt.meta.bad\" aufgehoben");
    }

    void fileBesideTheProject()
    {
        QFETCH(QByteArray, meta);
        QFETCH(QString, status);
        QFETCH(QString, message);
        writeFile(path("meta.vnt"), R"({"sensor 1":[[1]]})");
        QFile::remove(path("meta.vnt.meta"));
        if (!meta.isEmpty())
            writeFile(path("meta.vnt.meta"), meta);
        Bench bench;
        emit bench.view.openProjectFile(path("meta.vnt"));
        QCOMPARE(bench.prompts->warnings.size(), std::size_t(message.isEmpty() ? 0 : 1));
        QVERIFY(message.isEmpty() || bench.prompts->warnings[0].text.contains(message));
        QVERIFY(status.isEmpty() || bench.view.statusBar()->currentMessage().startsWith(status));
        emit bench.view.saveProject();
        QVERIFY(meta.isEmpty() || contentOf(path("meta.vnt.meta.bad")) == meta);
        QFile::remove(path("meta.vnt.meta.bad"));
    }

    void tilesSayWhatTheyHold_data()
    {
        columns<QByteArray, QString, bool>("picture", "said", "canBeSaved");
        row("undecodable", "abc"_ba, "kann nicht gelesen werden", false);
        row("too large", pngOf({9000, 8000}, QImage::Format_Grayscale8), "9000 \u00d7 8000", true);
        row("reduced", pngOf({9000, 8000}, QImage::Format_RGB32), "verkleinert gezeigt", true);
    }

    /// They can be replaced after a question, saved as they are in the file, and deleted.
    void tilesSayWhatTheyHold()
    {
        QFETCH(QByteArray, picture);
        QFETCH(QString, said);
        QFETCH(bool, canBeSaved);
        writeFile(path("tile.vnt"), "{" + member("projectImage1", picture) + "}");
        Bench bench;
        emit bench.view.openProjectFile(path("tile.vnt"));
        const auto *label = bench.view.findChild<QLabel *>("imageLabel2"_s);
        QVERIFY2(label->accessibleDescription().contains(said), qPrintable(label->accessibleDescription()));
        bench.prompts->saveNames = {path("out.png")};
        emit bench.view.tabProject()->imageSaveClicked(1);
        QCOMPARE(contentOf(path("out.png")) == picture, canBeSaved);
        QFile::remove(path("out.png"));
        bench.prompts->answers = {QMessageBox::No, QMessageBox::Yes, QMessageBox::Yes};
        const QImage other(5, 5, QImage::Format_RGB32);
        emit bench.view.tabProject()->imageGiven(1, other);
        QVERIFY(bench.model.image(1).width() != 5);
        emit bench.view.tabProject()->imageGiven(1, other);
        QCOMPARE(bench.model.image(1).width(), 5);
        trigger(bench, "actionUndo");
        QVERIFY(label->accessibleDescription().contains(said));
        emit bench.view.tabProject()->imageDeleteClicked(1);
        QVERIFY(bench.model.images().state(1) == PictureState::None);
    }

    void picturesShareOneBudget()
    {
        const QByteArray large = pngOf({7900, 7900}, QImage::Format_Mono); // 62.4 million pixels
        writeFile(path("large.vnt"), "{" + member("projectImage", large) + "}");
        Bench bench;
        emit bench.view.openProjectFile(path("large.vnt"));
        QCOMPARE(bench.model.image(0).width(), 7900);
        const QImage photo(1600, 1600, QImage::Format_RGB32);
        emit bench.view.tabProject()->imageGiven(1, photo);
        QVERIFY(bench.model.image(1).isNull() && !bench.model.isProjectModified());
        QVERIFY(bench.prompts->warnings.back().text.contains("64 Millionen Bildpunkte"_s));
        bench.prompts->answers = {QMessageBox::Yes};
        emit bench.view.tabProject()->imageGiven(0, photo);
        emit bench.view.tabProject()->imageGiven(1, photo);
        QCOMPARE(bench.model.image(1).width(), 1600);
    }

    void unitsAndPeriodsOfARecording()
    {
        Bench bench;
        bench.model.setClock(40);
        bench.recordShots(1);
        bench.model.setClock(250);
        bench.recordShots(1);
        QCOMPARE(bench.model.samplingPeriod(0), 40);
        QCOMPARE(bench.model.samplingPeriod(1), 250);
        emit bench.view.tabSensors()->sensorUnitEdited(3, "bar"_s);
        const auto unit = [&bench] { return bench.model.sensorDescription().sensorGroup(0).sensorUnit(3); };
        QCOMPARE(unit(), "bar"_s);
        trigger(bench, "actionUndo");
        QCOMPARE(unit(), QString());
        trigger(bench, "actionRedo");
        QVERIFY(bench.model.deleteChannel(0) && bench.model.save(path("units.vnt")));
        emit bench.view.openProjectFile(path("units.vnt"));
        QCOMPARE(unit(), "bar"_s);
        QCOMPARE(bench.model.samplingPeriod(0), 250);
    }

    void importsAreKnownAfterReopening()
    {
        writeFile(path("day.bb"), "A=[1,2,3,4,5]\n");
        Bench bench;
        emit bench.view.tabBlackBox()->importClicked({path("day.bb")});
        QVERIFY(bench.model.save(path("imported.vnt")));
        bench.model.clear();
        emit bench.view.openProjectFile(path("imported.vnt"));
        bench.prompts->answers = {QMessageBox::No};
        emit bench.view.tabBlackBox()->importClicked({path("day.bb")});
        QCOMPARE(bench.prompts->questions.size(), std::size_t(1));
        QCOMPARE(bench.shots(), 1);
    }

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

QTEST_MAIN(TestOpenNotice)
#include "tst_opennotice.moc"
