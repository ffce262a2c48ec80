#include "app/startup.h"
#include "app/stylesheets.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>

namespace {

using MakeWidget = std::function<QWidget *(QWidget *)>;

template <typename Widget>
MakeWidget make()
{
    return [](QWidget *parent) { return new Widget(parent); };
}

} // namespace

class TestStyleSheets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { prepareApplication(*qApp); }

    void everyRuleParses()
    {
        QWidget window;
        for (const MakeWidget &create :
             {make<QToolBar>(), make<QMenu>(), make<QTabWidget>(), make<QDoubleSpinBox>(), make<QSpinBox>(),
              make<QPushButton>(), make<QToolButton>(), make<QRadioButton>(), make<QTableWidget>(), make<QTextEdit>()})
            create(&window);
        const LogCapture log;
        window.setStyleSheet(theme::styleApplication);
        window.show();
        (void)window.grab(); // properties are looked at when they are painted
        QCOMPARE(log.all().join(u'\n'), QString());
    }

    void spinBoxShowsItsArrows()
    {
        QWidget window;
        QSpinBox box(&window);
        box.setRange(0, 10);
        box.setValue(5);
        box.resize(160, 40);
        const QImage image = box.grab().toImage();
        const auto darkest = [&image](const QRect &area) {
            int value = 255;
            for (int y = area.top(); y <= area.bottom(); ++y) {
                for (int x = area.left(); x <= area.right(); ++x)
                    value = qMin(value, qGray(image.pixel(x, y)));
            }
            return value;
        };
        QVERIFY(darkest({6, 10, 20, 20}) < 0x80);   // down, at the left
        QVERIFY(darkest({134, 10, 20, 20}) < 0x80); // up, at the right
    }

    void messageBoxShowsItsWholeText()
    {
        QMessageBox box(QMessageBox::Question, theme::applicationName, "Vor dem Beenden Ventaro Projekt speichern?"_s,
                        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
        box.show();
        QCOMPARE(box.grab().toImage().pixelColor(5, 5), QColor(0x23, 0x72, 0xa4));
        const QList<QWidget *> parts = box.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget *part : parts) { // a wide icon would push the text out of the box
            QVERIFY2(box.rect().contains(part->geometry()), qPrintable(part->objectName()));
        }
        const auto *text = box.findChild<QLabel *>("qt_msgbox_label"_s);
        QVERIFY(text && text->width() >= 600 && text->height() >= 200);
    }

    void tabShowsItsWholeTitle()
    {
        QTabBar tabs;
        tabs.addTab("Web Configuration"_s);
        QFont font = tabs.font();
        font.setBold(true);
        font.setPixelSize(24);
        QVERIFY(tabs.tabRect(0).width() > QFontMetrics(font).horizontalAdvance(tabs.tabText(0)));
    }
};

QTEST_MAIN(TestStyleSheets)

#include "tst_stylesheets.moc"
