#include "kit/material/qtmaterialtextfield.h"
#include "model/model.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/box/ipaddressdialog.h"
#include "view/box/tabwebconfig.h"
#include "view/project/tabproject.h"
#include "view/terminal/tabdatalogger.h"
#include "view/terminal/tabterminal.h"
#include "view/window/pagetable.h"
#include "view/window/prompts/dialogprompts.h"

#include <QtWidgets>

class TestViewTabs : public QObject
{
    Q_OBJECT

private slots:
    void terminalShowsDirectionAndControlCharacters_data()
    {
        columns<QString, QString>("line", "shown");
        row("line feed", "0;1;2\n", "< 0;1;2");
        row("carriage return", "run=1\r\n", "< run=1");
        row("inside", "a\rb\nc\n", "< a\u240Db\u240Ac");
        row("NUL", QString(QLatin1String("a\0b", 3)), "< a\u2400b");
        row("tabulator", "a\tb", "< a\tb");
        row("empty", "\n", "< ");
    }

    void terminalShowsDirectionAndControlCharacters()
    {
        QFETCH(QString, line);
        TabTerminal tab;
        tab.addReceived(line);
        QTEST(tab.plainText(), "shown");
    }

    void terminalKeepsOrderHoweverManyComeAtOnce_data()
    {
        // Lines that are shown together; many are shown in another way than a few.
        columns<QVector<int>>("batches");
        constexpr int kAll = TabTerminal::kMaximumLines;
        row("few, many, few", QVector<int>{3, kAll / 2, 4});
        row("many into an empty field", QVector<int>{kAll / 2});
        row("many into a full field", QVector<int>{kAll, kAll / 3, 1, kAll / 2, 2});
        row("one short of all", QVector<int>{2, kAll - 1});
        row("all", QVector<int>{2, kAll, 1});
        row("more than all", QVector<int>{2, kAll + 1});
    }

    void terminalKeepsOrderHoweverManyComeAtOnce()
    {
        QFETCH(QVector<int>, batches);
        TabTerminal tab;
        QStringList expected;
        for (int count : batches) {
            for (int i = 0; i < count; ++i) {
                tab.addReceived(QString::number(expected.size()));
                expected << "< %1"_s.arg(expected.size());
            }
            const QStringList newest = expected.mid(std::max(0, expected.size() - TabTerminal::kMaximumLines));
            QCOMPARE(tab.plainText().split(QLatin1Char('\n')), newest);
        }
    }

    void terminalSendsAndRemembers()
    {
        TabTerminal tab;
        QSignalSpy spy(&tab, &TabTerminal::sendRequested);
        auto *input = tab.findChild<QLineEdit *>("lineEditTerminal"_s);
        auto *send = tab.findChild<QPushButton *>("buttonSend"_s);
        QCOMPARE(send->text(), "Send"_s);
        send->click();
        QCOMPARE(spy.count(), 0); // an empty line is none
        QTest::keyClicks(input, "t=100"_s);
        send->click();
        QTest::keyClicks(input, "run=1"_s);
        QTest::keyClick(input, Qt::Key_Return);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(0).at(0).toString(), "t=100"_s);
        QCOMPARE(spy.at(1).at(0).toString(), "run=1"_s);
        QTest::keyClicks(input, "halb"_s);
        QTest::keyClick(input, Qt::Key_Up);
        QTest::keyClick(input, Qt::Key_Up);
        QCOMPARE(input->text(), "t=100"_s);
        QTest::keyClick(input, Qt::Key_Down);
        QTest::keyClick(input, Qt::Key_Down);
        QCOMPARE(input->text(), "halb"_s);
    }

    void loggerIsBounded()
    {
        TabDataLogger tab;
        tab.findChild<QAbstractButton *>("loggerCheckBoxA3"_s)->setChecked(true);
        for (int i = 0; i < TabDataLogger::kMaximumLines + 3; ++i)
            tab.addSample(i, {1, 2, 3, 4, 5});
        const QString text = tab.plainText();
        QCOMPARE(text.count(QLatin1Char('\n')) + 1, TabDataLogger::kMaximumLines);
        QVERIFY(text.startsWith(QLocale().toString(3.0, 'f', 3) + QLatin1Char('\t')));
    }

    void projectKeepsWhatItCannotShow()
    {
        Model model{QString()};
        ProjectData data;
        data.name = "zwei\nZeilen"_s;
        data.closingForce = -7;
        data.injectionTime = 1.23456789;
        data.pressTime = 1e7;
        data.pressure = 2000000;
        model.setProjectData(data);
        model.setComment("geschütztes\u00A0Leerzeichen"_s);
        TabProject tab;
        tab.setModel(&model);
        QCOMPARE(tab.projectData(), data);
        QCOMPARE(tab.comment(), model.comment());
        tab.findChild<QSpinBox *>("spinBoxPressure"_s)->setValue(900);
        data.pressure = 900; // and nothing else
        QCOMPARE(tab.projectData(), data);
        tab.findChild<QDoubleSpinBox *>("spinBoxInjectionTime"_s)->setValue(2.5);
        data.injectionTime = 2.5;
        QCOMPARE(tab.projectData(), data);
    }

    void projectUpdatesSilently()
    {
        Model model{QString()};
        TabProject tab;
        tab.setModel(&model);
        QSignalSpy dataSpy(&tab, &TabProject::projectDataChanged);
        QSignalSpy commentSpy(&tab, &TabProject::commentChanged);
        QSignalSpy phaseSpy(&tab, &TabProject::phaseEditChanged);
        ProjectData data;
        data.name = "n"_s;
        data.pressure = 5;
        data.injectionTime = 0.5;
        model.setProjectData(data);
        model.setComment("k"_s);
        model.setPhaseName(2, "Phase"_s);
        tab.updateFromModel();
        QCOMPARE(dataSpy.count() + commentSpy.count() + phaseSpy.count(), 0);
        QCOMPARE(tab.findChild<QLineEdit *>("lineEditPhase3"_s)->text(), "Phase"_s);
        tab.findChild<QSpinBox *>("spinBoxClosePower"_s)->setValue(3);
        tab.findChild<QPlainTextEdit *>("textEditComment"_s)->appendPlainText("neu"_s);
        QCOMPARE(dataSpy.count(), 1);
        QCOMPARE(commentSpy.count(), 1);
        QCOMPARE(tab.comment(), "k\nneu"_s);
    }

    void boxPage_data()
    {
        // url: empty: none
        columns<QString, QString>("address", "url");
        row("IPv4", " 192.168.4.1 ", "http://192.168.4.1");
        row("name", "mesotra.local", "http://mesotra.local");
        row("empty", "  ", QString());
        row("with a path", "a/../../etc", QString());
        row("with a user", "a@b", QString());
    }

    void boxPage()
    {
        QFETCH(QString, address);
        QFETCH(QString, url);
        QCOMPARE(boxPageUrl(address).toString(), url);
        TabWebConfig tab;
        tab.setAddress(address);
        QCOMPARE(tab.findChild<QPushButton *>("buttonOpenWebPage"_s)->isEnabled(), !url.isEmpty());
    }

    void pageKeys_data()
    {
        columns<int, QString>("page", "key");
        row("first", 0, "Ctrl+1");
        row("ninth", 8, "Ctrl+9");
        row("tenth", 9, QString()); // no digit is left
    }

    void pageKeys()
    {
        QFETCH(int, page);
        QTEST(PageTable::keyOf(page).toString(), "key");
    }

    void addressDialogAcceptsValidOnly()
    {
        IPAddressDialog dialog("alt"_s, [](const QString &text) { return text == "10.0.0.2"_s; });
        auto *edit = dialog.findChild<QtMaterialTextField *>("lineEditAddress"_s);
        auto *ok = dialog.findChild<QPushButton *>("buttonOK"_s);
        QVERIFY(!ok->isEnabled());
        QVERIFY(!edit->errorText().isEmpty());
        dialog.show();
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY(dialog.isVisible());
        edit->setText(" 10.0.0.2 "_s);
        QVERIFY(ok->isEnabled());
        QVERIFY(edit->errorText().isEmpty());
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(dialog.address(), "10.0.0.2"_s);
    }
};

QTEST_MAIN(TestViewTabs)
#include "tst_viewtabs.moc"
