#include "kit/material/qtmaterialflatbutton.h"
#include "kit/material/qtmaterialinteractionstatemachine.h"
#include "kit/material/qtmaterialoverlaywidget.h"
#include "kit/material/qtmaterialraisedbutton.h"
#include "kit/material/qtmaterialripple.h"
#include "kit/material/qtmaterialtoggle.h"
#include "tests/support/kittheme.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QAccessible>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QtTest>

using State = QtMaterialInteractionStateMachine::State;
using Factory = std::unique_ptr<QAbstractButton> (*)();
using Numbers = QVector<int>;

Q_DECLARE_METATYPE(State)
Q_DECLARE_METATYPE(Factory)

namespace {

class StillStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        return hint == SH_Widget_Animate ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

template <class Button>
std::unique_ptr<QAbstractButton> make()
{
    auto button = std::make_unique<Button>("&Start"_s);
    button->setCheckable(true);
    return button;
}

void buttonRows()
{
    columns<Factory>("factory");
    row("flat", Factory(make<QtMaterialFlatButton>));
    row("raised", Factory(make<QtMaterialRaisedButton>));
    row("toggle", Factory(make<QtMaterialToggle>));
}

bool isAnimating(const QAbstractButton &button)
{
    return button.property("animating").toBool();
}

} // namespace

class TestQtMaterialButtons : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useKitTheme(Qt::darkBlue, {{"canvas"_s, Qt::white}}); }

    void cleanup()
    {
        qApp->setStyleSheet(QString());
        QApplication::setStyle("Fusion"_s);
    }

    void stateFollowsEvents_data()
    {
        columns<Numbers, State, bool>("events", "state", "focusShown"); // negative: ~(why the focus comes)
        const int tab = ~int(Qt::TabFocusReason);
        const int window = ~int(Qt::ActiveWindowFocusReason);
        const int press = QEvent::MouseButtonPress;
        row("hover beats focus", Numbers{tab, QEvent::Enter}, State::Hovered, true);
        row("left", Numbers{QEvent::Enter, QEvent::Leave}, State::Resting, false);
        row("first window", Numbers{window}, State::Focused, true);
        row("lost", Numbers{tab, QEvent::FocusOut}, State::Resting, false);
        row("click", Numbers{press, ~int(Qt::MouseFocusReason)}, State::Resting, false);
        row("key after click", Numbers{tab, press, QEvent::KeyPress}, State::Focused, true);
        row("click, other window, back", Numbers{tab, press, QEvent::FocusOut, window}, State::Resting, false);
        row("hidden", Numbers{QEvent::Enter, QEvent::Hide}, State::Resting, false);
    }

    void stateFollowsEvents()
    {
        QFETCH(Numbers, events);
        QtMaterialInteractionStateMachine machine;
        for (const int type : events) {
            const bool focus = type < 0;
            const auto reason = static_cast<Qt::FocusReason>(focus ? ~type : 0);
            QVERIFY(focus ? machine.apply(QFocusEvent(QEvent::FocusIn, reason), true)
                          : machine.apply(QEvent(static_cast<QEvent::Type>(type)), true));
        }
        QTEST(machine.state(), "state");
        QTEST(machine.isFocusShown(), "focusShown");
        machine.setPressed(true);
        QCOMPARE(machine.state(), State::Pressed);
        machine.apply(QEvent(QEvent::EnabledChange), false);
        QCOMPARE(machine.state(), State::Disabled);
        machine.apply(QEvent(QEvent::EnabledChange), true);
        QVERIFY(machine.state() != State::Pressed);
    }

    void worksLikeAnyButton_data() { buttonRows(); }

    void worksLikeAnyButton()
    {
        QFETCH(Factory, factory);
        const auto button = factory();
        button->show();
        QVERIFY(QTest::qWaitForWindowExposed(button.get()));
        const QSignalSpy clicked(button.get(), &QAbstractButton::clicked);
        QTest::keyClick(button.get(), Qt::Key_Space);
        QVERIFY(button->isChecked());
        QTest::mouseClick(button.get(), Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(!button->isChecked());
        QTest::keyClick(button.get(), Qt::Key_S, Qt::AltModifier);
        QTRY_COMPARE(clicked.count(), 3);
        QTest::keyClick(button.get(), Qt::Key_Return);
        QVERIFY(!button->isChecked());
        QVERIFY(isAnimating(*button));
        QTRY_VERIFY(!isAnimating(*button)); // ends by itself

        const QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(button.get());
        QCOMPARE(reader->role(), QAccessible::CheckBox);
        QCOMPARE(reader->text(QAccessible::Name), "Start"_s);
        button->setEnabled(false);
        QTest::mouseClick(button.get(), Qt::LeftButton, {}, QPoint(20, 20));
        QTest::keyClick(button.get(), Qt::Key_Space);
        QTest::keyClick(button.get(), Qt::Key_Enter);
        QCOMPARE(clicked.count(), 4);
    }

    void animatesOnlyInSight_data() { buttonRows(); }

    void animatesOnlyInSight()
    {
        QFETCH(Factory, factory);
        const auto button = factory();
        QTest::mouseClick(button.get(), Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(!isAnimating(*button)); // not shown yet
        button->show();
        QTest::mousePress(button.get(), Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(isAnimating(*button));
        button->hide();
        QVERIFY(!isAnimating(*button));
        button->setChecked(true);
        QVERIFY(!isAnimating(*button));
        const auto *toggle = qobject_cast<const QtMaterialToggle *>(button.get());
        QVERIFY(toggle == nullptr || toggle->thumbPosition() == 1.0);
    }

    void stillStyleHasNoAnimations_data() { buttonRows(); }

    void stillStyleHasNoAnimations()
    {
        QFETCH(Factory, factory);
        QApplication::setStyle(new StillStyle);
        const auto button = factory();
        button->show();
        QTest::mousePress(button.get(), Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(!isAnimating(*button));
        QTest::mouseRelease(button.get(), Qt::LeftButton, {}, QPoint(20, 20));
        QVERIFY(!isAnimating(*button) && button->isChecked());
    }

    void sheetGivesTheFontButNotALowHeight_data() { buttonRows(); }

    void sheetGivesTheFontButNotALowHeight()
    {
        QFETCH(Factory, factory);
        const auto button = factory();
        const QSize plain = button->sizeHint();
        qApp->setStyleSheet("QWidget{font-size:60px;} QPushButton, QCheckBox{min-height:8px;}"_s);
        button->ensurePolished();
        QVERIFY(button->sizeHint().width() > 2 * plain.width());
        QVERIFY(button->sizeHint().height() > 60);
        QVERIFY(button->minimumHeight() >= 40);
    }

    void clickMayDeleteTheButton_data() { buttonRows(); }

    void clickMayDeleteTheButton()
    {
        QFETCH(Factory, factory);
        for (const bool byMouse : {true, false}) {
            const QPointer<QAbstractButton> victim(factory().release());
            victim->show();
            connect(victim, &QAbstractButton::clicked, this, [&victim] { delete victim; });
            if (byMouse)
                QTest::mouseClick(victim, Qt::LeftButton, {}, QPoint(20, 20));
            else
                QTest::keyClick(victim, Qt::Key_Space);
            QVERIFY(victim.isNull());
        }
    }

    void draggingTheThumb_data()
    {
        columns<bool, bool, Numbers, bool>("fromOn", "rightToLeft", "way", "on"); // pixels from the press
        row("a slip is a click", false, false, Numbers{2, 3}, true);
        row("far right", false, false, Numbers{15, 300}, true);
        row("far left while off", false, false, Numbers{-15, -300}, false);
        row("there and back", false, false, Numbers{40, 1}, false);
        row("left while on", true, false, Numbers{-40}, false);
        row("RTL left", false, true, Numbers{-40}, true);
        row("RTL right", false, true, Numbers{40}, false);
    }

    void draggingTheThumb()
    {
        QFETCH(bool, fromOn);
        QFETCH(bool, rightToLeft);
        QFETCH(Numbers, way);
        QFETCH(bool, on);
        QtMaterialToggle toggle;
        toggle.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        toggle.setChecked(fromOn);
        toggle.resize(toggle.sizeHint());
        toggle.show();
        const QSignalSpy clicked(&toggle, &QtMaterialToggle::clicked);
        const QPoint middle = toggle.rect().center();
        QTest::mousePress(&toggle, Qt::LeftButton, {}, middle);
        for (const int x : way) {
            QMouseEvent move(QEvent::MouseMove, middle + QPoint(x, 0), Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(&toggle, &move);
        }
        QTest::mouseRelease(&toggle, Qt::LeftButton, {}, middle + QPoint(way.last(), 0));
        QCOMPARE(toggle.isChecked(), on);
        QCOMPARE(clicked.count(), on == fromOn ? 0 : 1);
        QTRY_COMPARE(toggle.thumbPosition(), on ? 1.0 : 0.0);
    }

    void overlayFollowsItsParent()
    {
        QWidget first;
        QWidget second;
        first.show();
        auto *overlay = new QtMaterialOverlayWidget(&first);
        first.resize(320, 100);
        QCOMPARE(overlay->geometry(), first.rect());
        first.scroll(5, 5); // moves the children
        QCOMPARE(overlay->geometry(), first.rect());
        overlay->setParent(&second);
        first.resize(10, 10);
        QCOMPARE(overlay->geometry(), second.rect());
    }

    void rippleStaysInsideAndEnds()
    {
        QWidget page;
        page.resize(100, 60);
        auto *ripple = new QtMaterialRipple(&page);
        ripple->setSurface(QMargins(10, 10, 10, 10), 20.0);
        ripple->setColor(Qt::red);
        ripple->press(QPointF(50, 30));
        QCOMPARE(ripple->waveCount(), 0); // out of sight
        page.show();
        for (int i = 0; i < 3 * QtMaterialRipple::kMostWaves; ++i)
            ripple->press(QPointF(50, 30));
        QTRY_VERIFY(!ripple->isAnimating()); // held: nothing moves, nothing is lost
        QCOMPARE(ripple->waveCount(), int(QtMaterialRipple::kMostWaves));
        const QImage image = page.grab().toImage();
        QCOMPARE(image.pixelColor(50, 30), QColor(Qt::red));
        for (const QPoint outside : {QPoint(5, 30), QPoint(12, 12), QPoint(87, 47)})
            QVERIFY(image.pixelColor(outside) != QColor(Qt::red));
        ripple->release();
        QTRY_VERIFY(ripple->isHidden());
        QVERIFY(ripple->waveCount() == 0 && !ripple->isAnimating());
    }
};

QTEST_MAIN(TestQtMaterialButtons)

#include "tst_qtmaterialbuttons.moc"
