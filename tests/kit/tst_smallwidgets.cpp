#include "kit/clickablelabel.h"
#include "kit/coloredbutton.h"
#include "kit/leftrightstepbox.h"
#include "kit/paintaid.h"
#include "kit/qtmaterialstyle.h"
#include "kit/qtmaterialtheme.h"
#include "kit/shadowframe.h"

#include <QAccessible>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

class TestSmallWidgets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void buttonIsReadable_data();
    void buttonIsReadable();
    void stepBoxTakesKeys_data();
    void stepBoxTakesKeys();
    void stepBoxFollowsItsRange();
    void stepBoxRepeatsWhileHeld();
    void labelIsClicked_data();
    void labelIsClicked();
    void screenReaderUsesThem();
    void cardKeepsItsShadow_data();
    void cardKeepsItsShadow();
};

void TestSmallWidgets::initTestCase()
{
    auto theme = std::make_unique<QtMaterialTheme>();
    for (const QString &key : QtMaterialTheme::keys())
        theme->setColor(key, Qt::darkBlue);
    theme->setColor(QStringLiteral("canvas"), Qt::white);
    QtMaterialStyle::instance().setTheme(std::move(theme));
}

void TestSmallWidgets::buttonIsReadable_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("dark red") << QColor(Qt::darkRed);
    QTest::newRow("dark orange") << QColor(QStringLiteral("darkorange"));
    QTest::newRow("dark cyan") << QColor(Qt::darkCyan);
    QTest::newRow("white") << QColor(Qt::white);
    QTest::newRow("black") << QColor(Qt::black);
    QTest::newRow("half transparent") << QColor(0, 0, 0, 60);
}

// Checked and unchecked differ at a glance, whatever the colour, and text stands apart from its ground.
void TestSmallWidgets::buttonIsReadable()
{
    QFETCH(QColor, color);
    ColoredButton button;
    button.setColor(color);
    button.resize(100, 40);
    const QColor ground = button.grab().toImage().pixelColor(50, 20);
    QCOMPARE(ground, paintaid::flattened(color, Qt::white));
    QVERIFY(paintaid::contrast(ground, paintaid::readableOn(ground)) >= 4.5);
    button.setCheckable(true);
    const QImage unchecked = button.grab().toImage();
    button.setChecked(true);
    const QImage checked = button.grab().toImage();
    QVERIFY(checked != unchecked);
    QVERIFY(paintaid::contrast(unchecked.pixelColor(50, 1), Qt::white) >= 2.9); // the outline, on a white page
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("invalid colour")));
    button.setColor(QColor());
    QCOMPARE(button.color(), color);
}

void TestSmallWidgets::stepBoxTakesKeys_data()
{
    QTest::addColumn<QVector<int>>("keys");
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("changes");
    QTest::newRow("right") << QVector<int>{Qt::Key_Right, Qt::Key_Right} << false << 52 << 2;
    QTest::newRow("right, mirrored") << QVector<int>{Qt::Key_Right} << true << 49 << 1;
    QTest::newRow("page down") << QVector<int>{Qt::Key_PageDown} << false << 40 << 1;
    QTest::newRow("end and on") << QVector<int>{Qt::Key_End, Qt::Key_Right, Qt::Key_PageUp} << false << 345 << 1;
    QTest::newRow("typed") << QVector<int>{Qt::Key_1, Qt::Key_2, Qt::Key_Return} << false << 12 << 1;
    QTest::newRow("typed, too much") << QVector<int>(11, Qt::Key_9) + QVector<int>{Qt::Key_Enter} << false << 345 << 1;
    QTest::newRow("typed, then dropped") << QVector<int>{Qt::Key_7, Qt::Key_Escape} << false << 50 << 0;
    QTest::newRow("typed, then stepped") << QVector<int>{Qt::Key_7, Qt::Key_Up} << false << 8 << 2;
    QTest::newRow("no sign, no letters") << QVector<int>{Qt::Key_Minus, Qt::Key_A} << false << 50 << 0;
    QTest::newRow("emptied") << QVector<int>{Qt::Key_F2, Qt::Key_Backspace, Qt::Key_Return} << false << 50 << 0;
}

void TestSmallWidgets::stepBoxTakesKeys()
{
    QFETCH(QVector<int>, keys);
    QFETCH(bool, mirrored);
    LeftRightStepBox box;
    box.setRange(1, 345);
    box.setValue(50);
    box.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    box.show();
    box.activateWindow();
    box.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    const QSignalSpy changed(&box, &LeftRightStepBox::valueChanged);
    for (const int key : keys)
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key));
    QVERIFY(!box.isEditing() && box.hasFocus());
    QTEST(box.value(), "value");
    QTEST(changed.count(), "changes");
}

void TestSmallWidgets::stepBoxFollowsItsRange()
{
    LeftRightStepBox box;
    box.setTotalShown(true);
    const QSignalSpy changed(&box, &LeftRightStepBox::valueChanged);
    box.setRange(1, 0);
    QVERIFY(box.isEmpty());
    QCOMPARE(box.text(), QStringLiteral("–"));
    box.stepBy(1);
    QCOMPARE(box.value(), 1);
    box.setRange(1, 20);
    box.setValue(15);
    box.setRange(1, 12);
    QCOMPARE(box.text(), QStringLiteral("12 / 12"));
    box.setRange(-2147483647 - 1, 2147483647); // no step may wrap around
    box.stepBy(2147483647);
    box.stepBy(2147483647);
    QCOMPARE(box.value(), 2147483647);
    QCOMPARE(changed.count(), 4); // 1, 15, 12 and the end
}

void TestSmallWidgets::stepBoxRepeatsWhileHeld()
{
    LeftRightStepBox box;
    box.setRange(0, 3);
    box.resize(box.sizeHint());
    box.show();
    const QPoint next(box.width() - 10, box.height() / 2);
    QTest::mousePress(&box, Qt::RightButton, {}, next);
    QCOMPARE(box.value(), 0);
    QTest::mousePress(&box, Qt::LeftButton, {}, next);
    QCOMPARE(box.value(), 1);
    QTRY_COMPARE(box.value(), 3);
    QTest::mouseRelease(&box, Qt::LeftButton, {}, next);
    QTest::mousePress(&box, Qt::LeftButton, {}, QPoint(10, box.height() / 2));
    box.setEnabled(false); // while held
    QTest::qWait(600);
    QCOMPARE(box.value(), 2);
}

void TestSmallWidgets::labelIsClicked_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QPoint>("pressed");
    QTest::addColumn<QPoint>("released");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("clicks");
    const QPoint inside(5, 5);
    const QPoint outside(5, 500);
    QTest::newRow("inside") << int(Qt::LeftButton) << inside << inside << true << 1;
    QTest::newRow("drawn away") << int(Qt::LeftButton) << inside << outside << true << 0;
    QTest::newRow("drawn in") << int(Qt::LeftButton) << outside << inside << true << 0;
    QTest::newRow("right button") << int(Qt::RightButton) << inside << inside << true << 0;
    QTest::newRow("disabled") << int(Qt::LeftButton) << inside << inside << false << 0;
}

void TestSmallWidgets::labelIsClicked()
{
    QFETCH(int, button);
    QFETCH(QPoint, pressed);
    QFETCH(QPoint, released);
    QFETCH(bool, enabled);
    QWidget window;
    window.resize(200, 600);
    ClickableLabel label(QStringLiteral("Bild"), &window);
    label.resize(100, 30);
    label.setEnabled(enabled);
    window.show();
    const QSignalSpy clicked(&label, &ClickableLabel::clicked);
    if (label.rect().contains(pressed)) // a press elsewhere never reaches the label
        QTest::mousePress(&label, static_cast<Qt::MouseButton>(button), {}, pressed);
    QTest::mouseRelease(&label, static_cast<Qt::MouseButton>(button), {}, released);
    QTEST(clicked.count(), "clicks");
    QTest::keyClick(&label, Qt::Key_Space);
    QTest::keyClick(&label, Qt::Key_Enter);
    QTest::keyClick(&label, Qt::Key_A);
    QFETCH(int, clicks);
    QCOMPARE(clicked.count(), clicks + (enabled ? 2 : 0));
}

void TestSmallWidgets::screenReaderUsesThem()
{
    ClickableLabel label(QStringLiteral("<b>Bild</b> 1"));
    const QSignalSpy clicked(&label, &ClickableLabel::clicked);
    QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(&label);
    QCOMPARE(reader->role(), QAccessible::Button);
    QCOMPARE(reader->text(QAccessible::Name), QStringLiteral("Bild 1"));
    reader->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 1);

    LeftRightStepBox box;
    box.setRange(1, 20);
    reader = QAccessible::queryAccessibleInterface(&box);
    QCOMPARE(reader->role(), QAccessible::SpinBox);
    reader->valueInterface()->setCurrentValue(99);
    QCOMPARE(reader->text(QAccessible::Value), QStringLiteral("20"));
}

void TestSmallWidgets::cardKeepsItsShadow_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("usual") << QSize(300, 200);
    QTest::newRow("smaller than two corners") << QSize(40, 30);
    QTest::newRow("no room for a card") << QSize(10, 10);
}

// Nothing is cut off: at the widget's edge the shadow is gone, and the card reaches from margin to margin.
void TestSmallWidgets::cardKeepsItsShadow()
{
    QFETCH(QSize, size);
    ShadowFrame frame;
    frame.setElevation(ShadowFrame::Elevation::High);
    frame.resize(size);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    frame.render(&image, {}, {}, QWidget::DrawChildren);
    for (int x = 0; x < size.width(); ++x)
        QVERIFY(image.pixelColor(x, 0).alpha() <= 2 && image.pixelColor(x, size.height() - 1).alpha() <= 2);
    if (frame.cardRect().isEmpty())
        return;
    const QPoint middle = frame.cardRect().center();
    QCOMPARE(image.pixelColor(middle), QColor(Qt::white));
    QCOMPARE(image.pixelColor(frame.cardRect().left(), middle.y()), QColor(Qt::white));
    QVERIFY(image.pixelColor(middle.x(), frame.cardRect().bottom() + 2).alpha() > 20);
}

QTEST_MAIN(TestSmallWidgets)
#include "tst_smallwidgets.moc"
