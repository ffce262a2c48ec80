#include "controller/logger/boxfolders.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString kDay = "dir-20240305"_s;
const QString kBox = "192.168.4.1"_s;

/// Folders, and fetches that bring one file each.
struct Rig
{
    void arrive(const QString &name) const { writeFile(folders.placeOfFetch(kDay) + u'/' + name, name.toUtf8()); }
    [[nodiscard]] bool fetch(const QString &box, const QString &name) const
    {
        folders.beginFetch(box, kDay);
        arrive(name);
        return folders.endFetch(box, kDay);
    }
    /// Below the folder: "box/day/file", sorted.
    [[nodiscard]] QStringList files() const
    {
        QStringList names;
        const QDir base = folders.temporaryDirectory();
        QDirIterator entry(base.path(), QDir::Files, QDirIterator::Subdirectories);
        while (entry.hasNext())
            names << base.relativeFilePath(entry.next());
        names.sort();
        return names;
    }

    QTemporaryDir temporary;
    BoxFolders folders{temporary.filePath("tmp-blackbox-dir"_s)};
};

} // namespace

class TestBoxFolders : public QObject
{
    Q_OBJECT

private slots:
    void boxesAreKeptApart()
    {
        const Rig rig;
        QVERIFY(rig.folders.prepare());
        QVERIFY(rig.fetch(kBox, "a.bb"_s));
        QVERIFY(rig.fetch("192.168.4.2"_s, "b.bb"_s));
        QVERIFY(rig.fetch(kBox, "c.bb"_s));
        QCOMPARE(rig.files(), (QStringList{"box-192.168.4.1/dir-20240305/a.bb"_s, "box-192.168.4.1/dir-20240305/c.bb"_s,
                                           "box-192.168.4.2/dir-20240305/b.bb"_s}));
        QCOMPARE(rig.folders.boxOf(rig.folders.placeOf(kBox, kDay) + "/a.bb"_s), kBox);
        QCOMPARE(rig.folders.boxOf(rig.folders.temporaryDirectory().filePath("local.bb"_s)), QString());
        QCOMPARE(rig.folders.boxOf("/somewhere/box-1/dir-20240305/a.bb"_s), QString());
    }

    void whatIsThereNeedNotBeFetched()
    {
        const Rig rig;
        QVERIFY(rig.fetch(kBox, "a.bb"_s));
        rig.folders.beginFetch(kBox, kDay);
        QCOMPARE(rig.files(), QStringList("dir-20240305/a.bb"_s)); // where the tool looks
        QVERIFY(rig.folders.endFetch(kBox, kDay));
        QCOMPARE(rig.files(), QStringList("box-192.168.4.1/dir-20240305/a.bb"_s));
    }

    /// The program ended during a fetch: nobody knows from which box.
    void unfinishedFetchIsOfNoBox()
    {
        const Rig rig;
        for (const char *name : {"a.bb", "b.bb"}) {
            rig.folders.beginFetch(kBox, kDay);
            rig.arrive(QLatin1String(name));
        }
        QVERIFY(rig.fetch("192.168.4.2"_s, "c.bb"_s));
        QCOMPARE(rig.files(), (QStringList{"aside-dir-20240305-1/a.bb"_s, "aside-dir-20240305-2/b.bb"_s,
                                           "box-192.168.4.2/dir-20240305/c.bb"_s}));
    }

    void otherBoxAtTheSameAddress()
    {
        const Rig rig;
        QVERIFY(rig.fetch(kBox, "a.bb"_s));
        rig.folders.beginFetch(kBox, kDay);
        rig.folders.putAside(kBox);
        rig.folders.putFetchAside(kDay);
        rig.arrive("b.bb"_s);
        QVERIFY(rig.folders.endFetch(kBox, kDay));
        QVERIFY(rig.files().contains("box-192.168.4.1/dir-20240305/b.bb"_s));
        QCOMPARE(rig.files().filter("a.bb"_s), QStringList("aside-dir-20240305-1/a.bb"_s));
    }

    void namesStayInTheFolder_data()
    {
        columns<QString, QString>("box", "folder");
        row("host name", "Box-7.Halle", "box-box-7.halle");
        row("way out", "../../etc", "box-.._.._etc");
        row("other script", "Büchse", "box-b_chse");
        row("nothing", "", "box-");
    }

    void namesStayInTheFolder()
    {
        QFETCH(QString, box);
        QFETCH(QString, folder);
        const Rig rig;
        QCOMPARE(rig.folders.placeOf(box, kDay), rig.folders.temporaryDirectory().filePath(folder + u'/' + kDay));
    }
};

QTEST_GUILESS_MAIN(TestBoxFolders)
#include "tst_boxfolders.moc"
