#include "kit/qtmaterialstyle.h"
#include "kit/qtmaterialtextfield.h"
#include "kit/qtmaterialtheme.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QtTest>

namespace {

using Machine = QtMaterialTextFieldStateMachine;

QImage picture(QtMaterialTextField &field)
{
    return field.grab().toImage();
}

} // namespace

Q_DECLARE_METATYPE(Machine::State)

class TestQtMaterialTextField : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void stateOfTheField_data();
    void stateOfTheField();
    void labelRisesAndRests();
    void placeholderWaitsForTheLabel();
    void errorIsToldToScreenReaders();
    void ownDescriptionStays();
    void crossEmptiesTheField_data();
    void crossEmptiesTheField();
    void roomFollowsFontAndTexts();
    void themeBeatsTheApplicationSheet();
};

void TestQtMaterialTextField::initTestCase()
{
    auto theme = std::make_unique<QtMaterialTheme>();
    for (const QString &key : QtMaterialTheme::keys())
        theme->setColor(key, Qt::darkBlue);
    theme->setColor(QStringLiteral("text"), Qt::magenta);
    QtMaterialStyle::instance().setTheme(std::move(theme));
}

void TestQtMaterialTextField::stateOfTheField_data()
{
    QTest::addColumn<QString>("inputs"); // e: enabled, f: focused, t: text, l: label, w: wrong
    QTest::addColumn<Machine::State>("state");
    QTest::addColumn<bool>("floating");
    QTest::addColumn<bool>("placeholder");
    const auto row = [](const char *inputs, Machine::State state, bool floating, bool placeholder) {
        QTest::newRow(inputs) << QString::fromLatin1(inputs) << state << floating << placeholder;
    };
    row("el", Machine::State::Resting, false, false);
    row("e", Machine::State::Resting, false, true);
    row("elf", Machine::State::Focused, true, true);
    row("elft", Machine::State::Focused, true, false);
    row("elt", Machine::State::Resting, true, false);
    row("elftw", Machine::State::Wrong, true, false);
    row("lfw", Machine::State::Disabled, false, false);
    row("ltw", Machine::State::Disabled, true, false);
}

void TestQtMaterialTextField::stateOfTheField()
{
    QFETCH(QString, inputs);
    QFETCH(bool, floating);
    QFETCH(bool, placeholder);
    const auto has = [&inputs](char letter) { return inputs.contains(QLatin1Char(letter)); };
    Machine machine;
    machine.setEnabled(has('e'));
    machine.setFocused(has('f'));
    machine.setFilled(has('t'));
    machine.setLabelled(has('l'));
    machine.setWrong(has('w'));
    QTEST(machine.state(), "state");
    QCOMPARE(machine.isLabelFloating(), floating);
    QCOMPARE(machine.isPlaceholderShown(), placeholder);
}

void TestQtMaterialTextField::labelRisesAndRests()
{
    QtMaterialTextField field(QStringLiteral("Name"));
    field.setFocusPolicy(Qt::NoFocus); // else the window that comes up gives it the focus
    field.setText(QStringLiteral("x"));
    QVERIFY(!field.isAnimating()); // not shown yet
    field.show();
    field.clear();
    QVERIFY(field.isAnimating());
    QTRY_VERIFY(!field.isAnimating());
    field.setText(QStringLiteral("x"));
    QVERIFY(field.isAnimating());
    field.hide();
    QVERIFY(!field.isAnimating());
}

void TestQtMaterialTextField::placeholderWaitsForTheLabel()
{
    QtMaterialTextField field(QStringLiteral("Name"));
    const QImage bare = picture(field);
    field.setPlaceholderText(QStringLiteral("MMMM"));
    QVERIFY(picture(field) == bare);
    field.setLabel(QString());
    const QImage withPlaceholder = picture(field);
    field.setPlaceholderText(QString());
    QVERIFY(picture(field) != withPlaceholder);
}

void TestQtMaterialTextField::errorIsToldToScreenReaders()
{
    QtMaterialTextField field(QStringLiteral("Adresse"));
    field.setHelperText(QStringLiteral("vier Zahlen"));
    const QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(&field);
    QCOMPARE(reader->role(), QAccessible::EditableText);
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("Adresse"));
    field.setErrorText(QStringLiteral("zu kurz"));
    QCOMPARE(reader->text(QAccessible::Description), QStringLiteral("zu kurz"));
    field.setErrorText(QString());
    QCOMPARE(reader->text(QAccessible::Description), QStringLiteral("vier Zahlen"));
}

void TestQtMaterialTextField::ownDescriptionStays()
{
    QtMaterialTextField field(QStringLiteral("Adresse"));
    field.setAccessibleName(QStringLiteral("Adresse der Messbox"));
    field.setAccessibleDescription(QStringLiteral("eigene"));
    field.setLabel(QStringLiteral("IP"));
    field.setErrorText(QStringLiteral("zu kurz"));
    QCOMPARE(field.accessibleName(), QStringLiteral("Adresse der Messbox"));
    QCOMPARE(field.accessibleDescription(), QStringLiteral("eigene"));
}

void TestQtMaterialTextField::crossEmptiesTheField_data()
{
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("rightToLeft");
    QTest::addColumn<bool>("cleared");
    QTest::newRow("usual") << false << true << false << true;
    QTest::newRow("RTL") << false << true << true << true;
    QTest::newRow("read only") << true << true << false << false;
    QTest::newRow("disabled") << false << false << false << false;
}

void TestQtMaterialTextField::crossEmptiesTheField()
{
    QFETCH(bool, readOnly);
    QFETCH(bool, enabled);
    QFETCH(bool, rightToLeft);
    QFETCH(bool, cleared);
    QtMaterialTextField field(QStringLiteral("Name"));
    field.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    field.setClearable(true);
    QVERIFY(field.clearRect().isEmpty()); // nothing to clear
    field.setText(QStringLiteral("Text"));
    field.setReadOnly(readOnly);
    field.setEnabled(enabled);
    field.resize(200, field.sizeHint().height());
    field.show();
    const QSignalSpy edited(&field, &QLineEdit::textEdited);
    QTest::mouseClick(&field, Qt::LeftButton, {}, QPoint(rightToLeft ? 12 : 188, field.height() / 2));
    QCOMPARE(field.text().isEmpty(), cleared);
    QCOMPARE(edited.count(), cleared ? 1 : 0);
    field.undo();
    QCOMPARE(field.text(), QStringLiteral("Text"));
}

void TestQtMaterialTextField::roomFollowsFontAndTexts()
{
    QtMaterialTextField field;
    QVERIFY(field.sizeHint().height() >= 40);
    const int bare = field.sizeHint().height();
    field.setErrorText(QStringLiteral("falsch"));
    QVERIFY(field.sizeHint().height() > bare + 8);
    field.setErrorText(QString());
    QCOMPARE(field.minimumHeight(), bare); // gives back what it took
    QFont large = field.font();
    large.setPixelSize(60);
    field.setFont(large);
    QVERIFY(field.minimumHeight() > 60);
}

void TestQtMaterialTextField::themeBeatsTheApplicationSheet()
{
    qApp->setStyleSheet(QStringLiteral("QLineEdit{color:black;background:white;min-height:3px;}"));
    QtMaterialTextField field;
    field.setText(QStringLiteral("MMMMMM"));
    field.setFont(QFont(field.font().family(), 30));
    const QImage image = picture(field);
    bool themed = false;
    for (int x = 0; x < image.width(); ++x)
        themed = themed || image.pixelColor(x, image.height() / 2) == QColor(Qt::magenta);
    QVERIFY(themed);
    QVERIFY(field.minimumHeight() >= 40);
}

QTEST_MAIN(TestQtMaterialTextField)

#include "tst_qtmaterialtextfield.moc"
