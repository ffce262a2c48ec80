#include "kit/qtmaterialflatbutton.h"
#include "kit/qtmaterialinteractionstatemachine.h"
#include "kit/qtmaterialoverlaywidget.h"
#include "kit/qtmaterialraisedbutton.h"
#include "kit/qtmaterialripple.h"
#include "kit/qtmaterialstyle.h"
#include "kit/qtmaterialtheme.h"
#include "kit/qtmaterialtoggle.h"

#include <QAccessible>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QtTest>

namespace {

using State = QtMaterialInteractionStateMachine::State;

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
    auto button = std::make_unique<Button>(QStringLiteral("&Start"));
    button->setCheckable(true);
    return button;
}

bool isAnimating(const QAbstractButton &button)
{
    return button.property("animating").toBool();
}

using Factory = std::unique_ptr<QAbstractButton> (*)();

void addButtonRows()
{
    QTest::addColumn<Factory>("factory");
    QTest::newRow("flat") << Factory(make<QtMaterialFlatButton>);
    QTest::newRow("raised") << Factory(make<QtMaterialRaisedButton>);
    QTest::newRow("toggle") << Factory(make<QtMaterialToggle>);
}

} // namespace

Q_DECLARE_METATYPE(Factory)
Q_DECLARE_METATYPE(State)

class TestQtMaterialButtons : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void stateFollowsEvents_data();
    void stateFollowsEvents();
    void worksLikeAnyButton_data() { addButtonRows(); }
    void worksLikeAnyButton();
    void hidingEndsAnimations_data() { addButtonRows(); }
    void hidingEndsAnimations();
    void stillStyleHasNoAnimations_data() { addButtonRows(); }
    void stillStyleHasNoAnimations();
    void sheetGivesTheFontButNotALowHeight_data() { addButtonRows(); }
    void sheetGivesTheFontButNotALowHeight();
    void clickMayDeleteTheButton_data() { addButtonRows(); }
    void clickMayDeleteTheButton();
    void draggingTheThumb_data();
    void draggingTheThumb();
    void overlayFollowsItsParent();
    void rippleStaysInsideAndEnds();
};

void TestQtMaterialButtons::initTestCase()
{
    auto theme = std::make_unique<QtMaterialTheme>();
    for (const QString &key : QtMaterialTheme::keys())
        theme->setColor(key, Qt::darkBlue);
    theme->setColor(QStringLiteral("canvas"), Qt::white);
    QtMaterialStyle::instance().setTheme(std::move(theme));
}

void TestQtMaterialButtons::cleanup()
{
    qApp->setStyleSheet(QString());
    QApplication::setStyle(QStringLiteral("Fusion"));
}

void TestQtMaterialButtons::stateFollowsEvents_data()
{
    QTest::addColumn<QVector<int>>("events"); // negative: ~(the reason why the focus comes)
    QTest::addColumn<State>("state");
    QTest::addColumn<bool>("focusShown");
    const int tab = ~int(Qt::TabFocusReason);
    const int window = ~int(Qt::ActiveWindowFocusReason);
    QTest::newRow("nothing") << QVector<int>{} << State::Resting << false;
    QTest::newRow("hover beats focus") << QVector<int>{tab, QEvent::Enter} << State::Hovered << true;
    QTest::newRow("left") << QVector<int>{QEvent::Enter, QEvent::Leave} << State::Resting << false;
    QTest::newRow("tab") << QVector<int>{tab} << State::Focused << true;
    QTest::newRow("first window") << QVector<int>{window} << State::Focused << true;
    QTest::newRow("lost") << QVector<int>{tab, QEvent::FocusOut} << State::Resting << false;
    QTest::newRow("click") << QVector<int>{QEvent::MouseButtonPress, tab, ~int(Qt::MouseFocusReason)} << State::Resting
                           << false;
    QTest::newRow("key after click") << QVector<int>{tab, QEvent::MouseButtonPress, QEvent::KeyPress} << State::Focused
                                     << true;
    QTest::newRow("click, other window, back")
        << QVector<int>{tab, QEvent::MouseButtonPress, QEvent::FocusOut, window} << State::Resting << false;
    QTest::newRow("hidden") << QVector<int>{QEvent::Enter, QEvent::Hide} << State::Resting << false;
}

void TestQtMaterialButtons::stateFollowsEvents()
{
    QFETCH(QVector<int>, events);
    QFETCH(State, state);
    QFETCH(bool, focusShown);
    QtMaterialInteractionStateMachine machine;
    for (const int type : events) {
        if (type >= 0 && type != QEvent::FocusOut)
            QVERIFY(machine.apply(QEvent(static_cast<QEvent::Type>(type)), true));
        else if (type == QEvent::FocusOut)
            QVERIFY(machine.apply(QFocusEvent(QEvent::FocusOut), true));
        else
            QVERIFY(machine.apply(QFocusEvent(QEvent::FocusIn, static_cast<Qt::FocusReason>(~type)), true));
    }
    QCOMPARE(machine.state(), state);
    QCOMPARE(machine.isFocusShown(), focusShown);
    machine.setPressed(true);
    QCOMPARE(machine.state(), State::Pressed);
    machine.apply(QEvent(QEvent::EnabledChange), false);
    QCOMPARE(machine.state(), State::Disabled);
    machine.apply(QEvent(QEvent::EnabledChange), true);
    QVERIFY(machine.state() != State::Pressed);
}

void TestQtMaterialButtons::worksLikeAnyButton()
{
    QFETCH(Factory, factory);
    const auto button = factory();
    button->show();
    QVERIFY(QTest::qWaitForWindowExposed(button.get()));
    const QSignalSpy clicked(button.get(), &QAbstractButton::clicked);
    QTest::keyClick(button.get(), Qt::Key_Space);
    QVERIFY(button->isChecked());
    QTest::mouseClick(button.get(), Qt::LeftButton);
    QVERIFY(!button->isChecked());
    QTest::keyClick(button.get(), Qt::Key_S, Qt::AltModifier);
    QTRY_COMPARE(clicked.count(), 3);
    QVERIFY(isAnimating(*button));
    QTRY_VERIFY(!isAnimating(*button)); // ends by itself

    const QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(button.get());
    QCOMPARE(reader->role(), QAccessible::CheckBox);
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("Start"));
    QCOMPARE(bool(reader->state().checked), button->isChecked());

    button->setEnabled(false);
    QTest::mouseClick(button.get(), Qt::LeftButton);
    QTest::keyClick(button.get(), Qt::Key_Space);
    QCOMPARE(clicked.count(), 3);
}

void TestQtMaterialButtons::hidingEndsAnimations()
{
    QFETCH(Factory, factory);
    const auto button = factory();
    QTest::mouseClick(button.get(), Qt::LeftButton);
    QVERIFY(!isAnimating(*button)); // not shown yet
    button->show();
    QTest::mousePress(button.get(), Qt::LeftButton);
    QVERIFY(isAnimating(*button));
    button->hide();
    QVERIFY(!isAnimating(*button));
    button->setChecked(true);
    QVERIFY(!isAnimating(*button));
    const auto *toggle = qobject_cast<const QtMaterialToggle *>(button.get());
    QVERIFY(toggle == nullptr || toggle->thumbPosition() == 1.0);
}

void TestQtMaterialButtons::stillStyleHasNoAnimations()
{
    QFETCH(Factory, factory);
    QApplication::setStyle(new StillStyle);
    const auto button = factory();
    button->show();
    QTest::mousePress(button.get(), Qt::LeftButton);
    QVERIFY(!isAnimating(*button));
    QTest::mouseRelease(button.get(), Qt::LeftButton);
    QVERIFY(!isAnimating(*button) && button->isChecked());
}

void TestQtMaterialButtons::sheetGivesTheFontButNotALowHeight()
{
    QFETCH(Factory, factory);
    const auto button = factory();
    button->ensurePolished();
    const QSize plain = button->sizeHint();
    qApp->setStyleSheet(QStringLiteral("QWidget{font-size:60px;} QPushButton, QCheckBox{min-height:8px;}"));
    button->ensurePolished();
    QVERIFY(button->sizeHint().width() > 2 * plain.width());
    QVERIFY(button->sizeHint().height() > 60);
    QVERIFY(button->minimumHeight() >= 40);
}

void TestQtMaterialButtons::clickMayDeleteTheButton()
{
    QFETCH(Factory, factory);
    for (const bool byMouse : {true, false}) {
        const QPointer<QAbstractButton> victim(factory().release());
        victim->show();
        connect(victim, &QAbstractButton::clicked, this, [&victim] { delete victim; });
        if (byMouse)
            QTest::mouseClick(victim, Qt::LeftButton);
        else
            QTest::keyClick(victim, Qt::Key_Space);
        QVERIFY(victim.isNull());
    }
}

void TestQtMaterialButtons::draggingTheThumb_data()
{
    QTest::addColumn<bool>("fromOn");
    QTest::addColumn<bool>("rightToLeft");
    QTest::addColumn<QVector<int>>("way"); // pixels from where it was pressed
    QTest::addColumn<bool>("on");
    QTest::newRow("a slip is a click") << false << false << QVector<int>{2, 3} << true;
    QTest::newRow("far right") << false << false << QVector<int>{15, 300} << true;
    QTest::newRow("far left while off") << false << false << QVector<int>{-15, -300} << false;
    QTest::newRow("there and back") << false << false << QVector<int>{40, 1} << false;
    QTest::newRow("left while on") << true << false << QVector<int>{-40} << false;
    QTest::newRow("RTL left") << false << true << QVector<int>{-40} << true;
    QTest::newRow("RTL right") << false << true << QVector<int>{40} << false;
}

void TestQtMaterialButtons::draggingTheThumb()
{
    QFETCH(bool, fromOn);
    QFETCH(bool, rightToLeft);
    QFETCH(QVector<int>, way);
    QFETCH(bool, on);
    QtMaterialToggle toggle;
    toggle.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    toggle.setChecked(fromOn);
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

void TestQtMaterialButtons::overlayFollowsItsParent()
{
    QWidget first;
    QWidget second;
    first.resize(300, 200);
    second.resize(70, 60);
    first.show();
    auto *overlay = new QtMaterialOverlayWidget(&first);
    QCOMPARE(overlay->geometry(), first.rect());
    first.resize(320, 100);
    QCOMPARE(overlay->geometry(), first.rect());
    first.scroll(5, 5); // moves the children
    QCOMPARE(overlay->geometry(), first.rect());
    overlay->setParent(&second);
    QCOMPARE(overlay->geometry(), second.rect());
    first.resize(10, 10);
    QCOMPARE(overlay->geometry(), second.rect());
}

void TestQtMaterialButtons::rippleStaysInsideAndEnds()
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
    QCOMPARE(ripple->waveCount(), int(QtMaterialRipple::kMostWaves));
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

QTEST_MAIN(TestQtMaterialButtons)

#include "tst_qtmaterialbuttons.moc"
