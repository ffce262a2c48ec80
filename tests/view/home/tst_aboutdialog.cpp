#include "model/model.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/home/aboutdialog.h"
#include "view/home/aboutinfo.h"

#include <QClipboard>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

Q_DECLARE_METATYPE(JournalInfo)

class TestAboutDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); } // as the language switch does

    void versionsOfTheBox_data()
    {
        columns<QString, bool, QString>("hardware", "connected", "text");
        row("never connected", "", false, "Hardware der Box: nicht verbunden\nFirmware der Box: nicht verbunden\n");
        row("not described", "", true, "Hardware der Box: unbekannt\nFirmware der Box: unbekannt\n");
        row("connected", "2.1", true, "Hardware der Box: 2.1\nFirmware der Box: 8.0.3\n");
        row("known", "2.1", false, "Hardware der Box: 2.1 (zuletzt bekannt, nicht verbunden)\n");
    }

    void versionsOfTheBox()
    {
        QFETCH(QString, hardware);
        QFETCH(bool, connected);
        QFETCH(QString, text);
        Model model{QString()};
        AboutDialog dialog(&model);
        dialog.show();
        if (!hardware.isEmpty())
            model.setDeviceDescription({hardware, "8.0.3"_s, 0, {}});
        model.setConnected(connected);
        auto *copy = dialog.findChild<QPushButton *>("buttonCopyVersions"_s);
        copy->click();
        QCOMPARE(copy->text(), "Kopiert"_s);
        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY2(copied.contains(text) && copied.startsWith("Programm: Ventaro 8.0\n"_s), qPrintable(copied));
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
    }

    void stateOfTheJournal_data()
    {
        columns<JournalInfo, QString>("info", "text");
        row("none", JournalInfo{}, "Sicherung: wird nicht geführt\n");
        row("nothing to keep", JournalInfo{"/data"_s, {}, -1, -1},
            "Sicherung: /data; leer, da nichts ungespeichert ist\n");
        row("in use", JournalInfo{"/data"_s, "/proc/version"_s, 3, 25},
            "Sicherung: /proc/version; 0 Bytes; Schreiben auf den Datenträger: zuletzt 3 ms, höchstens 25 ms\n");
    }

    void stateOfTheJournal()
    {
        QFETCH(JournalInfo, info);
        QFETCH(QString, text);
        Model model{QString()};
        model.setJournalInfo(info);
        const QString shown = aboutText(aboutFacts(model));
        QVERIFY2(shown.endsWith(text), qPrintable(shown));
    }

    void everyLicenceCanBeRead()
    {
        const Model model{QString()};
        const AboutDialog dialog(&model);
        auto *list = dialog.findChild<QListWidget *>("listLicences"_s);
        QSet<QString> texts;
        for (int i = 0; i < list->count(); ++i) {
            list->setCurrentRow(i);
            texts.insert(dialog.findChild<QPlainTextEdit *>("editLicence"_s)->toPlainText());
        }
        QCOMPARE(texts.size(), list->count());
        QVERIFY(!texts.contains(QString()));
    }
};

QTEST_MAIN(TestAboutDialog)
#include "tst_aboutdialog.moc"
