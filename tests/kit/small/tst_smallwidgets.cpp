#include "kit/material/qtmaterialpaint.h"
#include "kit/material/qtmaterialstyle.h"
#include "kit/material/qtmaterialtheme.h"
#include "kit/small/clickablelabel.h"
#include "kit/small/colorcontrast.h"
#include "kit/small/coloredbutton.h"
#include "kit/small/leftrightstepbox.h"
#include "kit/small/shadowframe.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QAccessible>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

class TestSmallWidgets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        auto theme = std::make_unique<QtMaterialTheme>();
        for (const QString &key : QtMaterialTheme::keys())
            theme->setColor(key, Qt::darkBlue);
        theme->setColor("canvas"_s, Qt::white);
        QtMaterialStyle::instance().setTheme(std::move(theme));
    }

    void buttonIsReadable_data()
    {
        columns<QColor>("color");
        row("dark red", QColor(Qt::darkRed));
        row("dark orange", QColor("darkorange"_s));
        row("dark cyan", QColor(Qt::darkCyan));
        row("white", QColor(Qt::white));
        row("black", QColor(Qt::black));
        row("half transparent", QColor(0, 0, 0, 60));
    }

    // Checked and unchecked buttons look different in every colour, and the text has enough contrast.
    void buttonIsReadable()
    {
        QFETCH(QColor, color);
        ColoredButton button;
        button.setColor(color);
        button.resize(100, 40);
        const QColor ground = button.grab().toImage().pixelColor(50, 20);
        QCOMPARE(ground, QtMaterialPaint::blended(color, Qt::white));
        QVERIFY(colorcontrast::contrast(ground, colorcontrast::readableOn(ground)) >= 4.5);
        button.setCheckable(true);
        const QImage unchecked = button.grab().toImage();
        button.setChecked(true);
        const QImage checked = button.grab().toImage();
        QVERIFY(checked != unchecked);
        QVERIFY(colorcontrast::contrast(unchecked.pixelColor(50, 1), Qt::white) >= 2.9); // the outline, on a white page
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("invalid colour"_s));
        button.setColor(QColor());
        QCOMPARE(button.color(), color);
    }

    void stepBoxTakesKeys_data()
    {
        columns<QVector<int>, bool, int, int>("keys", "mirrored", "value", "changes");
        row("right", QVector<int>{Qt::Key_Right, Qt::Key_Right}, false, 52, 2);
        row("right, mirrored", QVector<int>{Qt::Key_Right}, true, 49, 1);
        row("page down", QVector<int>{Qt::Key_PageDown}, false, 40, 1);
        row("end and on", QVector<int>{Qt::Key_End, Qt::Key_Right, Qt::Key_PageUp}, false, 345, 1);
        row("typed", QVector<int>{Qt::Key_1, Qt::Key_2, Qt::Key_Return}, false, 12, 1);
        row("typed, too much", QVector<int>(11, Qt::Key_9) + QVector<int>{Qt::Key_Enter}, false, 345, 1);
        row("typed, then dropped", QVector<int>{Qt::Key_7, Qt::Key_Escape}, false, 50, 0);
        row("typed, then stepped", QVector<int>{Qt::Key_7, Qt::Key_Up}, false, 8, 2);
        row("no sign, no letters", QVector<int>{Qt::Key_Minus, Qt::Key_A}, false, 50, 0);
        row("emptied", QVector<int>{Qt::Key_F2, Qt::Key_Backspace, Qt::Key_Return}, false, 50, 0);
    }

    void stepBoxTakesKeys()
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

    void stepBoxFollowsItsRange()
    {
        LeftRightStepBox box;
        box.setTotalShown(true);
        const QSignalSpy changed(&box, &LeftRightStepBox::valueChanged);
        box.setRange(1, 0);
        QVERIFY(box.isEmpty());
        QCOMPARE(box.text(), "–"_s);
        box.stepBy(1);
        QCOMPARE(box.value(), 1);
        box.setRange(1, 20);
        box.setValue(15);
        box.setRange(1, 12);
        QCOMPARE(box.text(), "12 / 12"_s);
        box.setRange(-2147483647 - 1, 2147483647); // no step may wrap around
        box.stepBy(2147483647);
        box.stepBy(2147483647);
        QCOMPARE(box.value(), 2147483647);
        QCOMPARE(changed.count(), 4); // 1, 15, 12 and the end
    }

    void stepBoxRepeatsWhileHeld()
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

    void labelIsClicked_data()
    {
        columns<int, QPoint, QPoint, bool, int>("button", "pressed", "released", "enabled", "clicks");
        const QPoint inside(5, 5);
        const QPoint outside(5, 500);
        row("inside", int(Qt::LeftButton), inside, inside, true, 1);
        row("drawn away", int(Qt::LeftButton), inside, outside, true, 0);
        row("drawn in", int(Qt::LeftButton), outside, inside, true, 0);
        row("right button", int(Qt::RightButton), inside, inside, true, 0);
        row("disabled", int(Qt::LeftButton), inside, inside, false, 0);
    }

    void labelIsClicked()
    {
        QFETCH(int, button);
        QFETCH(QPoint, pressed);
        QFETCH(QPoint, released);
        QFETCH(bool, enabled);
        QWidget window;
        window.resize(200, 600);
        ClickableLabel label("Bild"_s, &window);
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

    void screenReaderUsesThem()
    {
        ClickableLabel label("<b>Bild</b> 1"_s);
        const QSignalSpy clicked(&label, &ClickableLabel::clicked);
        QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(&label);
        QCOMPARE(reader->role(), QAccessible::Button);
        QCOMPARE(reader->text(QAccessible::Name), "Bild 1"_s);
        reader->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.count(), 1);

        LeftRightStepBox box;
        box.setRange(1, 20);
        reader = QAccessible::queryAccessibleInterface(&box);
        QCOMPARE(reader->role(), QAccessible::SpinBox);
        reader->valueInterface()->setCurrentValue(99);
        QCOMPARE(reader->text(QAccessible::Value), "20"_s);
    }

    void cardKeepsItsShadow_data()
    {
        columns<QSize>("size");
        row("usual", QSize(300, 200));
        row("smaller than two corners", QSize(40, 30));
        row("no room for a card", QSize(10, 10));
    }

    // Nothing is cut off: at the widget's edge the shadow is gone, and the card reaches from margin to margin.
    void cardKeepsItsShadow()
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
};

QTEST_MAIN(TestSmallWidgets)
#include "tst_smallwidgets.moc"
