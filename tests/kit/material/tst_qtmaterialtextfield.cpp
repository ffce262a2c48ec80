#include "kit/material/qtmaterialtextfield.h"
#include "tests/support/kittheme.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QtTest>

using State = QtMaterialTextFieldStateMachine::State;

Q_DECLARE_METATYPE(State)

class TestQtMaterialTextField : public QObject
{
    Q_OBJECT

private slots:
    void init() { useKitTheme(Qt::darkBlue, {{"text"_s, Qt::magenta}}); }
    void cleanup() { qApp->setStyleSheet(QString()); }

    void stateOfTheField_data()
    {
        columns<QString, State, bool, bool>("inputs", "state", "floating", "placeholder");
        row("empty", "enabled labelled"_s, State::Resting, false, false);
        row("without label", "enabled"_s, State::Resting, false, true);
        row("in use", "enabled labelled focused"_s, State::Focused, true, true);
        row("filled", "enabled labelled filled"_s, State::Resting, true, false);
        row("wrong", "enabled labelled filled focused wrong"_s, State::Wrong, true, false);
        row("disabled", "labelled focused wrong"_s, State::Disabled, false, false);
    }

    void stateOfTheField()
    {
        QFETCH(QString, inputs);
        QtMaterialTextFieldStateMachine machine;
        machine.setEnabled(inputs.contains("enabled"_s));
        machine.setFocused(inputs.contains("focused"_s));
        machine.setFilled(inputs.contains("filled"_s));
        machine.setLabelled(inputs.contains("labelled"_s));
        machine.setWrong(inputs.contains("wrong"_s));
        QTEST(machine.state(), "state");
        QTEST(machine.isLabelFloating(), "floating");
        QTEST(machine.isPlaceholderShown(), "placeholder");
    }

    void labelMovesOnlyInSight()
    {
        QtMaterialTextField field("Name"_s);
        field.setFocusPolicy(Qt::NoFocus); // otherwise the window gives it the focus when it is shown
        field.setText("x"_s);
        QVERIFY(!field.isAnimating()); // not shown yet
        field.show();
        field.clear();
        QVERIFY(field.isAnimating());
        QTRY_VERIFY(!field.isAnimating());
        field.setText("x"_s);
        QVERIFY(field.isAnimating());
        field.hide();
        QVERIFY(!field.isAnimating());
    }

    void placeholderWaitsForTheLabel()
    {
        QtMaterialTextField field("Name"_s);
        const QImage bare = field.grab().toImage();
        field.setPlaceholderText("MMMM"_s);
        QVERIFY(field.grab().toImage() == bare);
        field.setLabel(QString());
        const QImage withPlaceholder = field.grab().toImage();
        field.setPlaceholderText(QString());
        QVERIFY(field.grab().toImage() != withPlaceholder);
    }

    void screenReadersHearOfErrors()
    {
        QtMaterialTextField field("Adresse"_s);
        field.setHelperText("vier Zahlen"_s);
        const QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(&field);
        QCOMPARE(reader->text(QAccessible::Name), "Adresse"_s);
        field.setErrorText("zu kurz"_s);
        QCOMPARE(reader->text(QAccessible::Description), "zu kurz"_s);
        field.setErrorText(QString());
        QCOMPARE(reader->text(QAccessible::Description), "vier Zahlen"_s);

        field.setAccessibleName("Adresse der Messbox"_s); // a name set by the program is kept
        field.setAccessibleDescription("eigene"_s);
        field.setLabel("IP"_s);
        field.setErrorText("zu kurz"_s);
        QCOMPARE(field.accessibleName(), "Adresse der Messbox"_s);
        QCOMPARE(field.accessibleDescription(), "eigene"_s);
    }

    void crossEmptiesTheField_data()
    {
        columns<bool, bool, bool, bool>("readOnly", "enabled", "rightToLeft", "cleared");
        row("usual", false, true, false, true);
        row("RTL", false, true, true, true);
        row("read only", true, true, false, false);
        row("disabled", false, false, false, false);
    }

    void crossEmptiesTheField()
    {
        QFETCH(bool, readOnly);
        QFETCH(bool, enabled);
        QFETCH(bool, rightToLeft);
        QFETCH(bool, cleared);
        QtMaterialTextField field("Name"_s);
        field.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        field.setClearable(true);
        QVERIFY(field.clearRect().isEmpty()); // nothing to clear
        field.setText("Text"_s);
        field.setReadOnly(readOnly);
        field.setEnabled(enabled);
        field.resize(200, field.sizeHint().height());
        const QSignalSpy edited(&field, &QLineEdit::textEdited);
        QTest::mouseClick(&field, Qt::LeftButton, {}, QPoint(rightToLeft ? 12 : 188, field.height() / 2));
        QCOMPARE(field.text().isEmpty(), cleared);
        QCOMPARE(edited.count(), cleared ? 1 : 0);
        field.undo();
        QCOMPARE(field.text(), "Text"_s);
    }

    void roomFollowsFontAndTexts()
    {
        QtMaterialTextField field;
        const int bare = field.minimumHeight();
        QVERIFY(bare >= 40);
        field.setErrorText("falsch"_s);
        QVERIFY(field.sizeHint().height() > bare + 8);
        field.setErrorText(QString());
        QCOMPARE(field.minimumHeight(), bare); // releases the height that it reserved
        qApp->setStyleSheet("QWidget{font-size:60px;} QLineEdit{min-height:3px;}"_s);
        field.ensurePolished();
        QVERIFY(field.minimumHeight() > 60);
    }

    void themeBeatsTheApplicationSheet()
    {
        qApp->setStyleSheet("QLineEdit{color:black; background:white; font-size:30px;}"_s);
        QtMaterialTextField field;
        field.setText("MMMMMM"_s);
        for (const QColor color : {Qt::magenta, Qt::red}) {
            useKitTheme(Qt::darkBlue, {{"text"_s, color}});
            const QImage image = field.grab().toImage();
            bool themed = false;
            for (int x = 0; x < image.width(); ++x)
                themed = themed || image.pixelColor(x, image.height() / 2) == color;
            QVERIFY(themed);
        }
    }
};

QTEST_MAIN(TestQtMaterialTextField)

#include "tst_qtmaterialtextfield.moc"
