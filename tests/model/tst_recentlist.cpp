#include "model/networkpath.h"
#include "model/recentlist.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QVariant>
#include <QtTest>

class TestRecentList : public QObject
{
    Q_OBJECT

private slots:
    void newestIsInFront_data()
    {
        columns<QString, QString, QString>("list", "entry", "result");
        row("first", "", "a", "a");
        row("another", "b a", "c", "c b a");
        row("again", "c b a", "a", "a c b");
        row("full", "e d c b a", "f", "f e d c b");
        row("nothing", "b a", "", "b a");
    }

    void newestIsInFront()
    {
        QFETCH(QString, list);
        QFETCH(QString, entry);
        QFETCH(QString, result);
        QCOMPARE(recentlist::withFront(list.split(u' ', Qt::SkipEmptyParts), entry).join(u' '), result);
    }

    void settingsMayHoldAnything_data()
    {
        columns<QVariant, QString>("stored", "result");
        row("nothing", QVariant(), "");
        row("a list", QVariant(QStringList{"a"_s, "b"_s}), "a b");
        row("one text", QVariant("a"_s), "a");
        row("a number", QVariant(17), "");
        row("other types", QVariant(QVariantList{"a"_s, QVariantMap(), 3.5, "b"_s}), "a b");
        row("repetitions and blanks", QVariant(QStringList{"a"_s, QString(), "a"_s, "b"_s}), "a b");
        row("far too many", QVariant(QString("abcdefgh"_s).repeated(1000).split(QString())), "a b c d e");
    }

    void settingsMayHoldAnything()
    {
        QFETCH(QVariant, stored);
        QFETCH(QString, result);
        const auto isLetter = [](const QString &text) { return text.size() == 1 && text.at(0).isLetter(); };
        QCOMPARE(recentlist::fromSettings(stored, isLetter).join(u' '), result);
    }

    void networkDrives_data()
    {
        columns<QString, bool>("path", "network");
        row("on the disk", "/home/user/a.vnt", false);
        row("on a share", "/mnt/halle 3/a.vnt", true);
        row("the share itself", "/mnt/halle 3", true);
        row("beside a share", "/mnt/halle 33/a.vnt", false);
        row("a disk below a share", "/mnt/halle 3/stick/a.vnt", false);
        row("mounted over", "/media/twice/a.vnt", true);
    }

    void networkDrives()
    {
        QFETCH(QString, path);
        QFETCH(bool, network);
        const QByteArray mounts("rootfs / ext4 rw 0 0\n//nas/h3 /mnt/halle\\0403 cifs rw 0 0\n"
                                "/dev/sdb1 /mnt/halle\\0403/stick vfat rw 0 0\nbroken\n\\777 \\9 \\ \n"
                                "/dev/sdc1 /media/twice ext4 rw 0 0\nnas:/x /media/twice nfs4 rw 0 0\n");
        QCOMPARE(isOnNetwork(path, mounts), network);
    }
};

QTEST_APPLESS_MAIN(TestRecentList)
#include "tst_recentlist.moc"
