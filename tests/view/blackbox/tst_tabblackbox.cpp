#include "kit/small/leftrightstepbox.h"
#include "model/blackbox/blackboxfile.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/blackbox/blackboxdays.h"
#include "view/blackbox/blackboxfiles.h"
#include "view/blackbox/shotpreview.h"
#include "view/blackbox/tabblackbox.h"

#include <QAbstractButton>
#include <QFile>
#include <QTableView>
#include <QTemporaryDir>

namespace {

QString german(const QDate &date)
{
    return date.toString("dd.MM.yyyy"_s);
}

/// The tab, and access to what a user sees of it.
struct Bench
{
    Bench()
    {
        tab.resize(1080, 640);
        tab.show();
    }

    template <typename Widget>
    [[nodiscard]] Widget *find(const char *name) const
    {
        auto *widget = tab.findChild<Widget *>(QLatin1String(name));
        if (!widget)
            qFatal("no %s", name);
        return widget;
    }
    [[nodiscard]] QAbstractButton *button(const char *name) const { return find<QAbstractButton>(name); }
    [[nodiscard]] QAbstractItemModel *table(const char *name) const { return find<QTableView>(name)->model(); }
    void click(const char *name) const { QTest::mouseClick(button(name), Qt::LeftButton); }

    /// The rows of a table: "X name|second|third", with a tick, "o" for a part, or "-".
    [[nodiscard]] QStringList rows(const char *name) const
    {
        QStringList texts;
        const QAbstractItemModel *model = table(name);
        for (int row = 0; row < model->rowCount(); ++row) {
            const int tick = model->index(row, 0).data(Qt::CheckStateRole).toInt();
            QStringList cells;
            for (int column : {0, 1, 2})
                cells << model->index(row, column).data().toString();
            texts << "-oX"_s.mid(tick, 1) + QLatin1Char(' ') + cells.join(QLatin1Char('|'));
        }
        return texts;
    }
    void tick(const char *name, int row, bool on = true) const
    {
        QAbstractItemModel *model = table(name);
        QVERIFY(model->setData(model->index(row, 0), on ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole));
    }
    [[nodiscard]] QString writeFile(const QString &name, const QByteArray &bytes)
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
    }
    /// Files that differ in their sample.
    [[nodiscard]] QStringList writeFiles(const QStringList &names)
    {
        QStringList files;
        for (const QString &name : names)
            files << writeFile(name, "A=[1,2,3,4," + name.toUtf8().toHex() + "]\n");
        return files;
    }

    QTemporaryDir folder;
    TabBlackBox tab;
};

QStringList strings(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *text : texts)
        list << QString::fromUtf8(text);
    return list;
}

const QStringList kThreeDays = strings({"dir-20240304", "dir-20240306", "dir-20240305"});

} // namespace

class TestTabBlackBox : public QObject
{
    Q_OBJECT

private slots:
    void loggedDays_data()
    {
        columns<QStringList, QStringList>("entries", "days");
        row("newest first", kThreeDays, strings({"06.03.2024", "05.03.2024", "04.03.2024"}));
        row("across a year", strings({"dir-20231231", "dir-20240101"}), strings({"01.01.2024", "31.12.2023"}));
        row("twice", strings({"dir-20240305", "dir-20240305"}), strings({"05.03.2024"}));
        row("no such day", strings({"dir-20240230", "dir-20241301", "dir-00000000", "dir-20240229"}),
            strings({"29.02.2024"}));
        row("others",
            strings({"dir-2024030", "dir-202403055", "Dir-20240305", "20240305", "dir_20240305", "dir-2024-3-5", "x.bb",
                     "", "lost+found", "dir-2024030a", "dir- 2024030"}),
            QStringList());
    }

    void loggedDays()
    {
        QFETCH(QStringList, entries);
        QFETCH(QStringList, days);
        QStringList dates;
        for (const QDate &day : ::loggedDays(entries))
            dates << german(day);
        QCOMPARE(dates, days);
        Bench bench;
        bench.tab.setList(entries);
        QCOMPARE(bench.table("tableDays")->rowCount(), days.size());
        bench.click("buttonSelectAll");
        QCOMPARE(bench.tab.selectedDates(), days);
    }

    void selectsDays()
    {
        Bench bench;
        QSignalSpy requested(&bench.tab, &TabBlackBox::listRequested);
        QSignalSpy fetch(&bench.tab, &TabBlackBox::fetchClicked);
        bench.click("buttonList");
        QCOMPARE(requested.count(), 1);
        QVERIFY(!bench.button("buttonFetch")->isEnabled() && !bench.button("buttonSelectAll")->isEnabled());
        bench.tab.setList(kThreeDays);
        QCOMPARE(bench.rows("tableDays"), strings({"- 06.03.2024|–|neu", "- 05.03.2024|–|neu", "- 04.03.2024|–|neu"}));
        QVERIFY(!bench.button("buttonFetch")->isEnabled());
        bench.tick("tableDays", 1);
        QCOMPARE(bench.tab.selectedDates(), strings({"05.03.2024"}));
        bench.click("buttonFetch");
        QCOMPARE(fetch.count(), 1);
        bench.click("buttonSelectNone");
        QVERIFY(bench.tab.selectedDates().isEmpty() && !bench.button("buttonFetch")->isEnabled());
        bench.tab.addFetchedFiles("05.03.2024"_s, {});
        bench.click("buttonSelectNew");
        QCOMPARE(bench.tab.selectedDates(), strings({"06.03.2024", "04.03.2024"}));
    }

    void fetchedFiles()
    {
        Bench bench;
        QSignalSpy import(&bench.tab, &TabBlackBox::importClicked);
        bench.tab.setList(kThreeDays);
        QVERIFY(!bench.button("buttonImport")->isEnabled());
        const QStringList newer = bench.writeFiles(strings({"b.bb", "a.bb"}));
        const QStringList older = bench.writeFiles(strings({"z.bb"}));
        bench.tab.addFetchedFiles("06.03.2024"_s, loggerFiles(newer));
        bench.tab.addFetchedFiles("03.03.2024"_s, loggerFiles(older)); // the list did not have it
        bench.tab.addFetchedFiles("31.02.2024"_s, loggerFiles(older));
        bench.tab.addFetchedFiles("05.03.2024"_s, {});
        QCOMPARE(bench.rows("tableDays"), strings({"X 06.03.2024|2|geladen", "- 05.03.2024|0|geladen",
                                                   "- 04.03.2024|–|neu", "X 03.03.2024|1|geladen"}));
        QCOMPARE(bench.table("tableFiles")->rowCount(), 0); // the files of the day that was fetched last
        auto *step = bench.find<LeftRightStepBox>("stepBoxFile");
        QVERIFY(step->isEmpty());
        bench.find<QTableView>("tableDays")->selectRow(0);
        QCOMPARE(bench.rows("tableFiles"), strings({"X a.bb|21 bytes|geladen", "X b.bb|21 bytes|geladen"}));
        step->stepBy(1);
        QCOMPARE(bench.find<QTableView>("tableFiles")->currentIndex().row(), 1);
        bench.find<QTableView>("tableFiles")->selectRow(0);
        QCOMPARE(step->text(), "1 / 2"_s);
        bench.click("buttonImport");
        QCOMPARE(import.count(), 1);
        QCOMPARE(import.first().first().toStringList(), (QStringList{older.at(0), newer.at(1), newer.at(0)}));
    }

    void ticksGoTogether()
    {
        Bench bench;
        bench.tab.addFetchedFiles("06.03.2024"_s, loggerFiles(bench.writeFiles(strings({"a.bb", "b.bb"}))));
        const auto day = [&] { return bench.rows("tableDays").at(0).left(1); };
        bench.tick("tableFiles", 0, false);
        QCOMPARE(day(), "o"_s);
        bench.tick("tableFiles", 1, false);
        QCOMPARE(day(), "-"_s);
        QVERIFY(bench.tab.selectedDates().isEmpty());
        bench.tick("tableFiles", 1);
        QCOMPARE(bench.tab.selectedDates(), strings({"06.03.2024"}));
        QCOMPARE(bench.tab.selectedFiles().size(), 1);
        bench.tick("tableDays", 0);
        QCOMPARE(bench.tab.selectedFiles().size(), 2);
        bench.tick("tableDays", 0, false);
        QVERIFY(bench.tab.selectedFiles().isEmpty());
    }

    void newListKeepsWhatIsHere()
    {
        Bench bench;
        bench.tab.setList(kThreeDays);
        bench.tab.addFetchedFiles("05.03.2024"_s, loggerFiles(bench.writeFiles(strings({"a.bb"}))));
        bench.tick("tableDays", 0);
        bench.tab.setList(strings({"dir-20240307", "dir-20240306"}));
        QCOMPARE(bench.rows("tableDays"),
                 strings({"- 07.03.2024|–|neu", "X 06.03.2024|–|neu", "X 05.03.2024|1|geladen"}));
        QCOMPARE(bench.rows("tableFiles").size(), 1); // still those of the chosen day
        bench.tab.setList({});
        QCOMPARE(bench.rows("tableDays"), strings({"X 05.03.2024|1|geladen"}));
    }

    void localFiles()
    {
        Bench bench;
        QSignalSpy folder(&bench.tab, &TabBlackBox::openLocalFolderClicked);
        bench.click("buttonOpenFolder");
        QCOMPARE(folder.count(), 1);
        bench.tab.setList(kThreeDays);
        const QStringList files = bench.writeFiles(strings({"a.bb", "b.bb", "c.bb"}));
        bench.tab.addLocalFiles(loggerFiles(files.mid(0, 2)));
        bench.tab.addLocalFiles(loggerFiles(files.mid(1, 2)));
        QCOMPARE(bench.rows("tableDays").first(), "X Lokale Dateien|3|geladen"_s);
        QCOMPARE(bench.rows("tableFiles").size(), 3);
        QCOMPARE(bench.tab.selectedFiles(), files);
        QVERIFY(bench.tab.selectedDates().isEmpty()); // there is nothing to fetch
    }

    /// The next box has days of its own.
    void leavingABox()
    {
        Bench bench;
        bench.tab.setList(kThreeDays);
        bench.tab.addFetchedFiles("05.03.2024"_s, loggerFiles(bench.writeFiles(strings({"a.bb"}))));
        bench.tab.addLocalFiles(loggerFiles(bench.writeFiles(strings({"b.bb"}))));
        bench.tab.addFetchedFiles("05.03.2024"_s, loggerFiles(bench.writeFiles(strings({"a.bb"})))); // is shown
        bench.tab.forgetBox();
        QCOMPARE(bench.rows("tableDays"), strings({"X Lokale Dateien|1|geladen"}));
        QCOMPARE(bench.rows("tableFiles"), QStringList());
        QVERIFY(bench.tab.list().isEmpty() && bench.tab.selectedDates().isEmpty());
        QVERIFY(!bench.button("buttonFetch")->isEnabled());
        QCOMPARE(bench.tab.selectedFiles().size(), 1);
    }

    void partOfADay()
    {
        Bench bench;
        bench.tab.setList(kThreeDays);
        const QStringList files = bench.writeFiles(strings({"a.bb"}));
        bench.tab.addFetchedFiles("05.03.2024"_s, loggerFiles(files), false);
        QVERIFY(bench.rows("tableDays").at(1).endsWith("|1|teilweise"_s));
        bench.click("buttonSelectNone");
        bench.click("buttonSelectNew");
        QVERIFY(bench.tab.selectedDates().contains("05.03.2024"_s));
        bench.tab.addFetchedFiles("05.03.2024"_s, loggerFiles(files));
        QVERIFY(bench.rows("tableDays").at(1).endsWith("|1|geladen"_s));
    }

    void importedFiles()
    {
        Bench bench;
        const QStringList files = bench.writeFiles(strings({"a.bb", "b.bb"}));
        bench.tab.addFetchedFiles("05.03.2024"_s, loggerFiles(files));
        const QByteArray first = blackBoxFingerprint(files.at(0));
        const QByteArray second = blackBoxFingerprint(files.at(1));
        QVERIFY(first != second);
        bench.tab.setImportedFiles({first});
        QCOMPARE(bench.rows("tableFiles"), strings({"- a.bb|21 bytes|importiert", "X b.bb|21 bytes|geladen"}));
        QCOMPARE(bench.rows("tableDays"), strings({"X 05.03.2024|2|geladen"}));
        bench.tab.setImportedFiles({first, second});
        QCOMPARE(bench.rows("tableDays"), strings({"- 05.03.2024|2|importiert"}));
        bench.tab.addFetchedFiles("05.03.2024"_s, loggerFiles(files)); // once more
        QVERIFY(bench.tab.selectedFiles().isEmpty());
        bench.tick("tableDays", 0); // the user ticks it again
        QCOMPARE(bench.tab.selectedFiles(), files);
        bench.tab.setImportedFiles({}); // a new project
        QCOMPARE(bench.rows("tableDays"), strings({"X 05.03.2024|2|geladen"}));
    }

    void preview_data()
    {
        columns<QByteArray, QString>("bytes", "caption");
        const QByteArray line = "A=[1,2,3,4,5]\n";
        row("shot", QByteArray("T=20240305-091407\n" + line + "A=[2,2,2,2,2]\nB\n"),
            "05.03.2024 09:14:07 · 2 Werte je Sensor · 1 Zeile unlesbar");
        row("one sample", line, "1 Wert je Sensor");
        row("header", "[sensors]\ngroup0/name=G\n"_ba, "0 Werte je Sensor");
        row("extremes", "A=[-1.7e308,0,0,0,0]\nA=[1.7e308,0,0,0,0]\n"_ba, "2 Werte je Sensor");
        row("long", line.repeated(1000000), "die ersten 149.797 Werte je Sensor");
    }

    void preview()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, caption);
        QLocale::setDefault(QLocale(QLocale::German));
        Bench bench;
        auto *preview = bench.find<ShotPreview>("shotPreview");
        const QImage empty = preview->grab().toImage();
        bench.tab.addLocalFiles(loggerFiles({bench.writeFile("a.bb"_s, bytes)}));
        QCOMPARE(preview->caption(), caption);
        QVERIFY(preview->grab().toImage() != empty);
        preview->setFile(bench.folder.path());
        QCOMPARE(preview->caption(), "Die Datei kann nicht gelesen werden."_s);
        preview->setFile({});
        QCOMPARE(preview->caption(), QString());
        QVERIFY(preview->grab().toImage() == empty);
    }
};

QTEST_MAIN(TestTabBlackBox)
#include "tst_tabblackbox.moc"
