#include "app/startup.h"
#include "app/stylesheets.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>

namespace {

QStringList *collected = nullptr;

void collect(QtMsgType, const QMessageLogContext &, const QString &text)
{
    collected->append(text);
}

/// Messages written while it lives.
class Messages
{
public:
    Messages()
    {
        collected = &m_texts;
        m_before = qInstallMessageHandler(collect);
    }
    ~Messages() { qInstallMessageHandler(m_before); }
    Q_DISABLE_COPY(Messages)
    [[nodiscard]] QStringList texts() const { return m_texts; }

private:
    QStringList m_texts;
    QtMessageHandler m_before;
};

using MakeWidget = std::function<QWidget *(QWidget *)>;

template <typename Widget>
MakeWidget make()
{
    return [](QWidget *parent) { return new Widget(parent); };
}

MakeWidget checkable(bool checked, bool enabled, QAbstractButton *(*create)(QWidget *))
{
    return [=](QWidget *parent) {
        QAbstractButton *button = create(parent);
        button->setCheckable(true);
        button->setChecked(checked);
        button->setEnabled(enabled);
        return button;
    };
}

template <typename Button>
QAbstractButton *button(QWidget *parent)
{
    return new Button(parent);
}

} // namespace

Q_DECLARE_METATYPE(MakeWidget)

class TestStyleSheets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { prepareApplication(*qApp); }
    void everySheetParses_data();
    void everySheetParses();
    void sheetsAreInOrder();
    void background_data();
    void background();
    void smallestSize_data();
    void smallestSize();
    void spinBoxShowsItsArrows();
    void messageBoxShowsItsWholeText();
    void tabShowsItsWholeTitle();
};

void TestStyleSheets::everySheetParses_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::newRow("main") << theme::styleMain;
    QTest::newRow("tool bar") << theme::styleToolBar;
    QTest::newRow("menu") << theme::styleMenu;
    QTest::newRow("tab widget") << theme::styleTabWidget;
    QTest::newRow("double spin box") << theme::styleDoubleSpinBox;
    QTest::newRow("spin box") << theme::styleSpinBox;
    QTest::newRow("push button") << theme::stylePushButton;
    QTest::newRow("coloured button") << theme::styleColoredButton;
    QTest::newRow("tool button") << theme::styleToolButton;
    QTest::newRow("radio button") << theme::styleRadioButton;
    QTest::newRow("application") << theme::styleApplication;
}

void TestStyleSheets::everySheetParses()
{
    QFETCH(QString, sheet);
    QWidget window;
    for (const MakeWidget &create :
         {make<QToolBar>(), make<QMenu>(), make<QTabWidget>(), make<QDoubleSpinBox>(), make<QSpinBox>(),
          make<QPushButton>(), make<QToolButton>(), make<QRadioButton>(), make<QTableWidget>(), make<QTextEdit>()})
        create(&window);
    const Messages messages;
    window.setStyleSheet(sheet);
    window.show();
    (void)window.grab(); // properties are looked at when they are painted
    QCOMPARE(messages.texts().join(u'\n'), QString());
}

void TestStyleSheets::sheetsAreInOrder()
{
    int end = 0;
    for (const QString &part : {theme::styleMain, theme::styleToolBar, theme::styleMenu, theme::styleTabWidget,
                                theme::styleDoubleSpinBox, theme::styleSpinBox, theme::stylePushButton,
                                theme::styleColoredButton, theme::styleToolButton, theme::styleRadioButton}) {
        QCOMPARE(theme::styleApplication.mid(end, part.size()), part);
        end += part.size();
    }
    QCOMPARE(theme::styleApplication.size(), end);
}

void TestStyleSheets::background_data()
{
    QTest::addColumn<MakeWidget>("create");
    QTest::addColumn<QColor>("color");
    const QColor primary(0x23, 0x72, 0xa4);
    const QColor medium(0xaa, 0xaa, 0xaa);
    auto *const push = &button<QPushButton>;
    auto *const radio = &button<QRadioButton>;
    auto *const tool = &button<QToolButton>;
    QTest::newRow("push button") << checkable(false, true, push) << primary;
    QTest::newRow("push button, checked") << checkable(true, true, push) << primary;
    QTest::newRow("push button, disabled") << checkable(false, false, push) << QColor(0x80, 0x80, 0x80);
    QTest::newRow("radio button") << checkable(false, true, radio) << medium;
    QTest::newRow("radio button, checked") << checkable(true, true, radio) << primary;
    QTest::newRow("tool button") << checkable(false, true, tool) << QColor(0x55, 0x55, 0x55);
    QTest::newRow("check box") << checkable(false, true, &button<QCheckBox>) << QColor(Qt::white);
    QTest::newRow("tool bar") << make<QToolBar>() << QColor(0x55, 0x55, 0x55);
}

void TestStyleSheets::background()
{
    QFETCH(MakeWidget, create);
    QWidget window;
    QWidget *widget = create(&window);
    widget->resize(160, 60);
    const QImage image = widget->grab().toImage();
    QTEST(image.pixelColor(150, 50), "color");
}

void TestStyleSheets::smallestSize_data()
{
    QTest::addColumn<MakeWidget>("create");
    QTest::addColumn<QSize>("size");
    QTest::newRow("double spin box") << make<QDoubleSpinBox>() << QSize(80, 30);
    QTest::newRow("spin box") << make<QSpinBox>() << QSize(85, 30);
    QTest::newRow("push button") << make<QPushButton>() << QSize(50, 40);
    QTest::newRow("tool button") << make<QToolButton>() << QSize(60, 30);
    QTest::newRow("radio button") << make<QRadioButton>() << QSize(50, 40);
    QTest::newRow("line edit") << make<QLineEdit>() << QSize(0, 30);
    QTest::newRow("label") << make<QLabel>() << QSize(0, 30);
}

void TestStyleSheets::smallestSize()
{
    QFETCH(MakeWidget, create);
    QFETCH(QSize, size);
    QWidget window;
    const QSize smallest = create(&window)->minimumSizeHint();
    QVERIFY2(smallest.width() >= size.width() && smallest.height() >= size.height(),
             qPrintable(QStringLiteral("%1 x %2").arg(smallest.width()).arg(smallest.height())));
}

void TestStyleSheets::spinBoxShowsItsArrows()
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

void TestStyleSheets::messageBoxShowsItsWholeText()
{
    QMessageBox box(QMessageBox::Question, theme::applicationName,
                    QStringLiteral("Vor dem Beenden Ventaro Projekt speichern?"),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    box.show();
    QCOMPARE(box.grab().toImage().pixelColor(5, 5), QColor(0x23, 0x72, 0xa4));
    const QList<QWidget *> parts = box.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *part : parts) { // a wide icon would push the text out of the box
        QVERIFY2(box.rect().contains(part->geometry()), qPrintable(part->objectName()));
    }
    const auto *text = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    QVERIFY(text && text->width() >= 600 && text->height() >= 200);
}

void TestStyleSheets::tabShowsItsWholeTitle()
{
    QTabBar tabs;
    tabs.addTab(QStringLiteral("Web Configuration"));
    QFont font = tabs.font();
    font.setBold(true);
    font.setPixelSize(24);
    QVERIFY(tabs.tabRect(0).width() > QFontMetrics(font).horizontalAdvance(tabs.tabText(0)));
}

QTEST_MAIN(TestStyleSheets)

#include "tst_stylesheets.moc"
