#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/window/prompts/comparisontable.h"
#include "view/window/prompts/dialogprompts.h"
#include "view/window/prompts/questions.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

using Ask = std::function<int(Questions &)>;
Q_DECLARE_METATYPE(Ask)

namespace {

constexpr int kPause = 150; // ms

/// What the user does with the box that opens next.
void whenOpen(const std::function<void(QMessageBox &)> &act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        act(*box);
    });
}

Comparison comparison()
{
    Comparison result;
    result.title = "Titel"_s;
    result.text = "Ersetzen?"_s;
    result.currentTitle = "Aktuell"_s;
    result.offeredTitle = "Empfangen"_s;
    result.rows = {{"Projekt"_s, "Deckel"_s, "Deckel\nmit zwei Zeilen"_s}, {"Kunde"_s, "Werk"_s, "Werk"_s}};
    return result;
}

Choice choice()
{
    Choice result;
    result.title = "Titel"_s;
    result.text = "Was?"_s;
    result.answers = QStringList{"Ersetzen"_s, "Behalten"_s};
    result.safest = 1;
    result.isDestructive = true;
    return result;
}

} // namespace

/// The real boxes: what keys and the close button do to them.
class TestPrompts : public QObject
{
    Q_OBJECT

private slots:
    void keys_data()
    {
        // safest: the text of the answer that has the focus; entered: the result of Enter; closed: of Escape
        columns<Ask, QString, int, int>("ask", "safest", "entered", "closed");
        const auto row = [](const char *name, const Ask &ask, const QString &safest, int entered, int closed) {
            ::row(name, ask, safest, entered, closed);
        };
        row(
            "save", [](Questions &q) { return int(q.toSaveOrStay()); }, "Speichern"_s, int(SaveAnswer::Save),
            int(SaveAnswer::Stay));
        row(
            "save and quit", [](Questions &q) { return int(q.toSaveAndQuit()); }, "Speichern"_s, QMessageBox::Save,
            QMessageBox::Cancel);
        row(
            "quit", [](Questions &q) { return int(q.toQuit()); }, "OK"_s, 1, 0);
        row(
            "clear", [](Questions &q) { return int(q.toClearData("3"_s)); }, "Abbrechen"_s, 0, 0);
        row(
            "yes or no", [](Questions &q) { return int(q.yesNo("T"_s, "?"_s)); }, "Nein"_s, 0, 0);
        row(
            "destructive", [](Questions &q) { return int(q.yesNoDestructive("T"_s, "?"_s)); }, "Nein"_s, 0, 0);
        row(
            "comparison", [](Questions &q) { return int(q.compare(comparison())); }, "Nein"_s, 0, 0);
        row(
            "own answers", [](Questions &q) { return q.choose(choice()); }, "Behalten"_s, 1, Choice::kClosed);
    }

    void keys()
    {
        QFETCH(Ask, ask);
        QFETCH(QString, safest);
        QWidget window;
        Questions questions(std::make_unique<DialogPrompts>(&window, kPause));
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
            whenOpen([&](QMessageBox &box) {
                auto *focused = qobject_cast<QPushButton *>(box.focusWidget());
                QVERIFY(focused && focused->isDefault());
                QCOMPARE(focused->text(), safest);
                QTest::keyClick(focused, key);
            });
            QTEST(ask(questions), "entered");
        }
        whenOpen([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); });
        QTEST(ask(questions), "closed");
        whenOpen([](QMessageBox &box) { box.close(); });
        QTEST(ask(questions), "closed");
    }

    void saveQuestionKeepsItsTextAndAnswers()
    {
        QWidget window;
        Questions questions(std::make_unique<DialogPrompts>(&window, kPause));
        whenOpen([](QMessageBox &box) {
            QCOMPARE(box.text(), "Projekt speichern?"_s);
            QVERIFY(box.informativeText().contains("Escape"_s));
            QCOMPARE(box.buttons().size(), 2);
            box.button(QMessageBox::Discard)->click();
        });
        QCOMPARE(int(questions.toSaveOrStay()), int(SaveAnswer::Discard));
    }

    void comparisonMarksWhatDiffers()
    {
        const ComparisonTable table(comparison());
        QCOMPARE(table.rowCount(), 2);
        QVERIFY(!table.item(0, ComparisonTable::Mark)->text().isEmpty());
        QVERIFY(table.item(0, ComparisonTable::Offered)->font().bold());
        QCOMPARE(table.item(0, ComparisonTable::Offered)->text(), "Deckel mit zwei Zeilen"_s);
        QVERIFY(table.item(1, ComparisonTable::Mark)->text().isEmpty());
        QVERIFY(!table.item(1, ComparisonTable::Current)->font().bold());
    }

    /// Typing that was meant for a field must not answer what came up meanwhile.
    void uninvitedBoxIgnoresKeysAtFirst()
    {
        QWidget window;
        Questions questions(std::make_unique<DialogPrompts>(&window, kPause));
        const UninvitedQuestions uninvited(questions);
        bool stillOpen = false;
        whenOpen([&](QMessageBox &box) {
            QPushButton *yes = nullptr;
            for (QAbstractButton *button : box.buttons())
                yes = box.standardButton(button) == QMessageBox::Yes ? qobject_cast<QPushButton *>(button) : yes;
            yes->setFocus();
            for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape})
                QTest::keyClick(yes, key);
            QTest::qWait(kPause / 2);
            QTest::keyClick(yes, Qt::Key_Return);
            QTest::qWait(kPause * 3 / 4); // the pause counts from the last key
            QTest::keyClick(yes, Qt::Key_Return);
            stillOpen = box.isVisible();
            QTest::qWait(kPause + 50);
            QTest::keyClick(yes, Qt::Key_Return);
        });
        QVERIFY(questions.compare(comparison()));
        QVERIFY(stillOpen);
    }

    void invitedBoxTakesKeysAtOnce()
    {
        QWidget window;
        Questions questions(std::make_unique<DialogPrompts>(&window, 60000));
        {
            const UninvitedQuestions uninvited(questions);
        }
        whenOpen([](QMessageBox &box) { QTest::keyClick(box.defaultButton(), Qt::Key_Return); });
        QVERIFY(!questions.yesNo("T"_s, "?"_s));
    }
};

QTEST_MAIN(TestPrompts)
#include "tst_prompts.moc"
