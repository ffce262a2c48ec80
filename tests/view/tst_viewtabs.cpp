#include "model/model.h"
#include "view/dialogprompts.h"
#include "view/ipaddressdialog.h"
#include "view/tabdatalogger.h"
#include "view/tabproject.h"
#include "view/tabterminal.h"
#include "view/tabwebconfig.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

class TestViewTabs : public QObject
{
    Q_OBJECT

private slots:
    void terminalShowsDirectionAndControlCharacters_data();
    void terminalShowsDirectionAndControlCharacters();
    void terminalShowsAndClears();
    void terminalKeepsOrderHoweverManyComeAtOnce_data();
    void terminalKeepsOrderHoweverManyComeAtOnce();
    void terminalSendsAndRemembers();
    void loggerIsBounded();
    void projectKeepsWhatItCannotShow();
    void projectUpdatesSilently();
    void boxPage_data();
    void boxPage();
    void escapeAnswers_data();
    void escapeAnswers();
    void addressDialogAcceptsValidOnly();
};

void TestViewTabs::terminalShowsDirectionAndControlCharacters_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("shown");
    QTest::newRow("line feed") << QStringLiteral("0;1;2\n") << QStringLiteral("< 0;1;2");
    QTest::newRow("carriage return") << QStringLiteral("run=1\r\n") << QStringLiteral("< run=1");
    QTest::newRow("inside") << QStringLiteral("a\rb\nc\n") << QStringLiteral("< a\u240Db\u240Ac");
    QTest::newRow("NUL") << QString(QLatin1String("a\0b", 3)) << QStringLiteral("< a\u2400b");
    QTest::newRow("tabulator") << QStringLiteral("a\tb") << QStringLiteral("< a\tb");
    QTest::newRow("empty") << QStringLiteral("\n") << QStringLiteral("< ");
}

void TestViewTabs::terminalShowsDirectionAndControlCharacters()
{
    QFETCH(QString, line);
    TabTerminal tab;
    tab.addReceived(line);
    QTEST(tab.plainText(), "shown");
}

void TestViewTabs::terminalShowsAndClears()
{
    TabTerminal tab;
    tab.show();
    tab.addSent(QStringLiteral("run=0"));
    const auto *edit = tab.findChild<QPlainTextEdit *>(QStringLiteral("editTerminal"));
    QTRY_VERIFY(edit->toPlainText().endsWith(QStringLiteral("> run=0")));
    tab.addSent(QStringLiteral("verworfen"));
    QTest::mouseClick(tab.findChild<QPushButton *>(QStringLiteral("buttonClearTerminal")), Qt::LeftButton);
    QCOMPARE(tab.plainText(), QString());
}

void TestViewTabs::terminalKeepsOrderHoweverManyComeAtOnce_data()
{
    // Lines that are shown together; many are shown in another way than a few.
    QTest::addColumn<QVector<int>>("batches");
    constexpr int kAll = TabTerminal::kMaximumLines;
    QTest::newRow("few, many, few") << QVector<int>{3, kAll / 2, 4};
    QTest::newRow("many into an empty field") << QVector<int>{kAll / 2};
    QTest::newRow("many into a full field") << QVector<int>{kAll, kAll / 3, 1, kAll / 2, 2};
    QTest::newRow("one short of all") << QVector<int>{2, kAll - 1};
    QTest::newRow("all") << QVector<int>{2, kAll, 1};
    QTest::newRow("more than all") << QVector<int>{2, kAll + 1};
}

void TestViewTabs::terminalKeepsOrderHoweverManyComeAtOnce()
{
    QFETCH(QVector<int>, batches);
    TabTerminal tab;
    QStringList expected;
    for (int count : batches) {
        for (int i = 0; i < count; ++i) {
            tab.addReceived(QString::number(expected.size()));
            expected << QStringLiteral("< %1").arg(expected.size());
        }
        const QStringList newest = expected.mid(std::max(0, expected.size() - TabTerminal::kMaximumLines));
        QCOMPARE(tab.plainText().split(QLatin1Char('\n')), newest);
    }
}

void TestViewTabs::terminalSendsAndRemembers()
{
    TabTerminal tab;
    QSignalSpy spy(&tab, &TabTerminal::sendRequested);
    auto *input = tab.findChild<QLineEdit *>(QStringLiteral("lineEditTerminal"));
    auto *send = tab.findChild<QPushButton *>(QStringLiteral("buttonSend"));
    QCOMPARE(send->text(), QStringLiteral("Send"));
    send->click();
    QCOMPARE(spy.count(), 0); // an empty line is none
    QTest::keyClicks(input, QStringLiteral("t=100"));
    send->click();
    QTest::keyClicks(input, QStringLiteral("run=1"));
    QTest::keyClick(input, Qt::Key_Return);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("t=100"));
    QCOMPARE(spy.at(1).at(0).toString(), QStringLiteral("run=1"));
    QTest::keyClicks(input, QStringLiteral("halb"));
    QTest::keyClick(input, Qt::Key_Up);
    QTest::keyClick(input, Qt::Key_Up);
    QCOMPARE(input->text(), QStringLiteral("t=100"));
    QTest::keyClick(input, Qt::Key_Down);
    QTest::keyClick(input, Qt::Key_Down);
    QCOMPARE(input->text(), QStringLiteral("halb"));
}

void TestViewTabs::loggerIsBounded()
{
    TabDataLogger tab;
    tab.findChild<QAbstractButton *>(QStringLiteral("loggerCheckBoxA3"))->setChecked(true);
    for (int i = 0; i < TabDataLogger::kMaximumLines + 3; ++i)
        tab.addSample(i, {1, 2, 3, 4, 5});
    const QString text = tab.plainText();
    QCOMPARE(text.count(QLatin1Char('\n')) + 1, TabDataLogger::kMaximumLines);
    QVERIFY(text.startsWith(QLocale().toString(3.0, 'f', 3) + QLatin1Char('\t')));
}

void TestViewTabs::projectKeepsWhatItCannotShow()
{
    Model model{QString()};
    ProjectData data;
    data.name = QStringLiteral("zwei\nZeilen");
    data.closingForce = -7;
    data.injectionTime = 1.23456789;
    data.pressTime = 1e7;
    data.pressure = 2000000;
    model.setProjectData(data);
    model.setComment(QStringLiteral("geschütztes\u00A0Leerzeichen"));
    TabProject tab;
    tab.setModel(&model);
    QCOMPARE(tab.projectData(), data);
    QCOMPARE(tab.comment(), model.comment());
    tab.findChild<QSpinBox *>(QStringLiteral("spinBoxPressure"))->setValue(900);
    data.pressure = 900; // and nothing else
    QCOMPARE(tab.projectData(), data);
    tab.findChild<QDoubleSpinBox *>(QStringLiteral("spinBoxInjectionTime"))->setValue(2.5);
    data.injectionTime = 2.5;
    QCOMPARE(tab.projectData(), data);
}

void TestViewTabs::projectUpdatesSilently()
{
    Model model{QString()};
    TabProject tab;
    tab.setModel(&model);
    QSignalSpy dataSpy(&tab, &TabProject::projectDataChanged);
    QSignalSpy commentSpy(&tab, &TabProject::commentChanged);
    QSignalSpy phaseSpy(&tab, &TabProject::phaseEditChanged);
    ProjectData data;
    data.name = QStringLiteral("n");
    data.pressure = 5;
    data.injectionTime = 0.5;
    model.setProjectData(data);
    model.setComment(QStringLiteral("k"));
    model.setPhaseName(2, QStringLiteral("Phase"));
    tab.updateFromModel();
    QCOMPARE(dataSpy.count() + commentSpy.count() + phaseSpy.count(), 0);
    QCOMPARE(tab.findChild<QLineEdit *>(QStringLiteral("lineEditPhase3"))->text(), QStringLiteral("Phase"));
    tab.findChild<QSpinBox *>(QStringLiteral("spinBoxClosePower"))->setValue(3);
    tab.findChild<QPlainTextEdit *>(QStringLiteral("textEditComment"))->appendPlainText(QStringLiteral("neu"));
    QCOMPARE(dataSpy.count(), 1);
    QCOMPARE(commentSpy.count(), 1);
    QCOMPARE(tab.comment(), QStringLiteral("k\nneu"));
}

void TestViewTabs::boxPage_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("url"); // empty: none
    QTest::newRow("IPv4") << QStringLiteral(" 192.168.4.1 ") << QStringLiteral("http://192.168.4.1");
    QTest::newRow("name") << QStringLiteral("mesotra.local") << QStringLiteral("http://mesotra.local");
    QTest::newRow("empty") << QStringLiteral("  ") << QString();
    QTest::newRow("with a path") << QStringLiteral("a/../../etc") << QString();
    QTest::newRow("with a user") << QStringLiteral("a@b") << QString();
}

void TestViewTabs::boxPage()
{
    QFETCH(QString, address);
    QFETCH(QString, url);
    QCOMPARE(boxPageUrl(address).toString(), url);
    TabWebConfig tab;
    tab.setAddress(address);
    QCOMPARE(tab.findChild<QPushButton *>(QStringLiteral("buttonOpenWebPage"))->isEnabled(), !url.isEmpty());
}

void TestViewTabs::escapeAnswers_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("answer");
    QTest::newRow("cancel") << int(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel)
                            << int(QMessageBox::Cancel);
    QTest::newRow("no") << int(QMessageBox::Yes | QMessageBox::No) << int(QMessageBox::No);
    QTest::newRow("nothing is thrown away") << int(QMessageBox::Save | QMessageBox::Discard) << int(QMessageBox::Save);
    QTest::newRow("the last") << int(QMessageBox::Ok | QMessageBox::Discard) << int(QMessageBox::Ok);
    QTest::newRow("the only one") << int(QMessageBox::Ok) << int(QMessageBox::Ok);
}

void TestViewTabs::escapeAnswers()
{
    QFETCH(int, buttons);
    QFETCH(int, answer);
    QCOMPARE(int(escapeAnswer(QMessageBox::StandardButtons(buttons))), answer);
    QMessageBox box;
    fillMessageBox(box, QString(), QString(), QMessageBox::StandardButtons(buttons));
    box.show();
    QTest::keyClick(&box, Qt::Key_Escape);
    QCOMPARE(int(box.standardButton(box.clickedButton())), answer);
}

void TestViewTabs::addressDialogAcceptsValidOnly()
{
    IPAddressDialog dialog(QStringLiteral("alt"),
                           [](const QString &text) { return text == QLatin1String("10.0.0.2"); });
    auto *edit = dialog.findChild<QLineEdit *>(QStringLiteral("lineEditAddress"));
    auto *ok = dialog.findChild<QPushButton *>(QStringLiteral("buttonOK"));
    const auto *hint = dialog.findChild<QLabel *>(QStringLiteral("labelAddressHint"));
    QVERIFY(!ok->isEnabled());
    QVERIFY(!hint->text().isEmpty());
    dialog.show();
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    edit->setText(QStringLiteral(" 10.0.0.2 "));
    QVERIFY(ok->isEnabled());
    QVERIFY(hint->text().isEmpty());
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.address(), QStringLiteral("10.0.0.2"));
}

QTEST_MAIN(TestViewTabs)
#include "tst_viewtabs.moc"
