#include "model/model.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/home/aboutdialog.h"

#include <QClipboard>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

class TestAboutDialog : public QObject
{
    Q_OBJECT

private slots:
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
