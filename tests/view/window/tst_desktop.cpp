#include "app/startup.h"
#include "model/model.h"
#include "tests/support/rows.h"
#include "tests/support/scriptedprompts.h"
#include "tests/support/shots.h"
#include "view/window/view.h"
#include "view/window/windowplacement.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QShortcut>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

namespace {

struct Key
{
    QKeySequence sequence;
    QString meaning;
};

/// What works wherever the focus is.
QVector<Key> windowKeys(const View &view)
{
    QVector<Key> keys;
    for (const auto *action : view.findChildren<QAction *>()) {
        const bool isForAll = action->shortcutContext() != Qt::WidgetShortcut;
        for (const QKeySequence &key : isForAll ? action->shortcuts() : QList<QKeySequence>())
            keys.append({key, action->objectName()});
    }
    for (const auto *shortcut : view.findChildren<QShortcut *>()) {
        if (shortcut->parent() == &view)
            keys.append({shortcut->key(), QStringLiteral("shortcut")});
    }
    return keys;
}

/// The underlined letters of a page.
QVector<Key> pageKeys(const QWidget &page)
{
    QVector<Key> keys;
    for (const auto *button : page.findChildren<QAbstractButton *>()) {
        if (button->isVisible() && !button->shortcut().isEmpty())
            keys.append({button->shortcut(), button->text()});
    }
    for (const auto *label : page.findChildren<QLabel *>()) {
        const QKeySequence key = QKeySequence::mnemonic(label->text());
        if (label->isVisible() && label->buddy() && !key.isEmpty())
            keys.append({key, label->text()});
    }
    return keys;
}

/// Two shots, a described box and a link to it.
void record(Model &model)
{
    SensorDescription description;
    description.setNumSensorGroups(1);
    description.modifiableSensorGroup(0)->setNumSensors(kNumSensors);
    model.setSensorDescription(description);
    for (int shot = 0; shot < 2; ++shot)
        addShot(model, {1.0, 5.0, 3.0});
    model.setConnected(true);
    model.emitAppStateChanged();
    model.emitProjectChanged();
    model.emitDataChanged();
}

QString nameOf(QWidget *widget)
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
    return accessible ? accessible->text(QAccessible::Name) : QString();
}

/// Painted by this program, without widgets in it that speak for themselves.
bool isPicture(const QWidget *widget)
{
    const bool isOwn = *widget->metaObject()->className() != 'Q';
    return isOwn && !qobject_cast<const QLabel *>(widget) && widget->findChildren<QWidget *>().isEmpty();
}

/// What a screen reader, or a pointer resting on a picture, cannot tell; empty if nothing is wrong.
QString complaint(QWidget *widget)
{
    const auto *button = qobject_cast<QAbstractButton *>(widget);
    if (button && button->text().isEmpty() && button->toolTip().isEmpty())
        return QStringLiteral("a picture on a button without a tool tip");
    const bool isInsideAnother =
        qobject_cast<QAbstractSpinBox *>(widget->parentWidget()) || qobject_cast<QComboBox *>(widget->parentWidget());
    const bool isReached = widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy() && !isInsideAnother;
    if ((button || isReached || isPicture(widget)) && nameOf(widget).isEmpty())
        return QStringLiteral("no accessible name");
    return {};
}

} // namespace

/// The window as a part of the desktop: what is dropped on it, its keys, what it says to assistive tools.
class TestDesktop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { prepareApplication(*qApp); }
    void init() { QSettings(QStringLiteral("Tarnwald"), QStringLiteral("Ventaro")).clear(); }
    void takesOneProjectFile_data();
    void takesOneProjectFile();
    void everyKeyHasOneMeaning_data();
    void everyKeyHasOneMeaning();
    void digitsSelectTabs();
    void firstPagesScrollDownOnly_data();
    void firstPagesScrollDownOnly();
    void windowIsPutOnScreens_data();
    void windowIsPutOnScreens();
    void maximisedWindowKeepsItsPlace();
    void everythingHasANameForScreenReaders_data();
    void everythingHasANameForScreenReaders();
};

void TestDesktop::takesOneProjectFile_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("actions");
    QTest::addColumn<bool>("taken");
    const int any = int(Qt::CopyAction | Qt::MoveAction);
    QTest::newRow("project") << QStringList{QStringLiteral("ä b.vnt")} << any << true;
    QTest::newRow("capitals") << QStringList{QStringLiteral("A.VNT")} << any << true;
    QTest::newRow("two projects") << QStringList{QStringLiteral("ä b.vnt"), QStringLiteral("A.VNT")} << any << false;
    QTest::newRow("its companion") << QStringList{QStringLiteral("ä b.vnt.meta")} << any << false;
    QTest::newRow("folder") << QStringList{QStringLiteral("folder.vnt")} << any << false;
    QTest::newRow("not there") << QStringList{QStringLiteral("none.vnt")} << any << false;
    QTest::newRow("moved") << QStringList{QStringLiteral("ä b.vnt")} << int(Qt::MoveAction) << false;
}

void TestDesktop::takesOneProjectFile()
{
    QFETCH(QStringList, names);
    QFETCH(int, actions);
    QFETCH(bool, taken);
    const QTemporaryDir folder;
    QDir(folder.path()).mkdir(QStringLiteral("folder.vnt"));
    for (const auto &name : {"ä b.vnt", "A.VNT", "ä b.vnt.meta"})
        QVERIFY(QFile(folder.filePath(QString::fromUtf8(name))).open(QIODevice::WriteOnly));
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &name : names)
        urls << QUrl::fromLocalFile(folder.filePath(name));
    data.setUrls(urls);

    Model model{QString()};
    View view(&model, std::make_unique<ScriptedPrompts>());
    view.show();
    const QSignalSpy spy(&view, &View::openProjectFile);
    // A field would take the file's address as a text.
    auto *field = view.findChild<QLineEdit *>(QStringLiteral("lineEditTerminal"));
    for (QWidget *target : {static_cast<QWidget *>(&view), static_cast<QWidget *>(field)}) {
        QDragEnterEvent enter(QPoint(5, 5), Qt::DropActions(actions), &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore(); // as the system delivers it
        QApplication::sendEvent(target, &enter);
        if (target == &view || taken)
            QCOMPARE(enter.isAccepted(), taken);
        if (!taken)
            continue;
        QCOMPARE(enter.dropAction(), Qt::CopyAction);
        QDropEvent drop(QPoint(5, 5), Qt::DropActions(actions), &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &drop);
    }
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), taken ? 2 : 0);
    QVERIFY(field->text().isEmpty());
    if (taken)
        QCOMPARE(spy.last().first().toString(), folder.filePath(names.first()));
}

void TestDesktop::everyKeyHasOneMeaning_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("German") << QStringLiteral("actionLanguageGerman");
    QTest::newRow("English") << QStringLiteral("actionLanguageEnglish");
}

void TestDesktop::everyKeyHasOneMeaning()
{
    QFETCH(QString, language);
    Model model{QString()};
    View view(&model, std::make_unique<ScriptedPrompts>());
    view.findChild<QAction *>(language)->trigger();
    view.resize(1280, 800);
    view.show();
    QCoreApplication::processEvents(); // the change of language is on its way
    for (int tab = 0; tab < view.tabs()->count(); ++tab) {
        view.tabs()->setCurrentIndex(tab);
        const QVector<Key> keys = windowKeys(view) + pageKeys(*view.tabs()->currentWidget());
        QVERIFY(keys.size() >= 24);
        QHash<QString, QString> meanings;
        for (const Key &key : keys) {
            const QString text = key.sequence.toString();
            QVERIFY2(text != QStringLiteral("Ctrl+P"), "there is nothing to print");
            QVERIFY2(!meanings.contains(text),
                     qPrintable(QStringLiteral("%1: %2 and %3").arg(text, meanings.value(text), key.meaning)));
            meanings.insert(text, key.meaning);
        }
    }
}

void TestDesktop::digitsSelectTabs()
{
    Model model{QString()};
    View view(&model, std::make_unique<ScriptedPrompts>());
    view.show();
    QApplication::setActiveWindow(&view);
    for (int tab = view.tabs()->count() - 1; tab >= 0; --tab) {
        QTest::keyClick(&view, Qt::Key(Qt::Key_1 + tab), Qt::ControlModifier);
        QCOMPARE(view.tabs()->currentIndex(), tab);
    }
    view.setTabEnabled(4, false);
    QTest::keyClick(&view, Qt::Key_5, Qt::ControlModifier);
    QCOMPARE(view.tabs()->currentIndex(), 0);
}

void TestDesktop::firstPagesScrollDownOnly_data()
{
    everyKeyHasOneMeaning_data();
}

void TestDesktop::firstPagesScrollDownOnly()
{
    QFETCH(QString, language);
    Model model{QString()};
    ScriptedPrompts *prompts = nullptr;
    View view(&model, scripted(prompts));
    view.findChild<QAction *>(language)->trigger();
    view.show();
    for (int tab = 0; tab < 2; ++tab) {
        view.tabs()->setCurrentIndex(tab);
        const auto *bar = view.tabs()->currentWidget()->findChild<QScrollArea *>()->horizontalScrollBar();
        for (int width = 400; width < 1300; width += 20) { // from the window without settings on
            view.resize(width, 400);
            QCoreApplication::processEvents();
            QVERIFY2(bar->maximum() == 0, qPrintable(QStringLiteral("tab %1, width %2").arg(tab).arg(width)));
        }
    }
}

void TestDesktop::windowIsPutOnScreens_data()
{
    columns<QRect, QRect>("stored", "placed");
    // On a screen of 1920x1040 and, to its left, one of 1280x800.
    row("as it was", QRect(60, 50, 700, 500), QRect(60, 50, 700, 500));
    row("across both", QRect(-300, 10, 700, 500), QRect(-300, 10, 700, 500));
    row("out at the right", QRect(1800, 900, 700, 500), QRect(1220, 510, 700, 500));
    row("title bar above", QRect(100, -40, 700, 500), QRect(100, 0, 700, 500));
    row("out at the left screen's bottom", QRect(-1200, 500, 700, 500), QRect(-1200, 270, 700, 500));
    row("monitor taken away", QRect(2500, 100, 700, 500), QRect(200, 200, 700, 500));
    row("too large", QRect(0, 0, 3840, 2160), QRect(0, 0, 1920, 1010));
    row("nonsense", QRect(std::numeric_limits<int>::max() - 5, 7, 1, 0), QRect(200, 200, 400, 400));
}

void TestDesktop::windowIsPutOnScreens()
{
    QFETCH(QRect, stored);
    const WindowPlacement placed =
        placedOnScreens({stored.topLeft(), stored.size()}, {QRect(0, 0, 1920, 1040), QRect(-1280, 0, 1280, 800)});
    QTEST(QRect(placed.position, placed.size), "placed");
}

void TestDesktop::maximisedWindowKeepsItsPlace()
{
    Model model{QString()};
    const auto begin = [&model] { return std::make_unique<View>(&model, std::make_unique<ScriptedPrompts>()); };
    auto view = begin();
    view->show();
    view->setGeometry(70, 60, 500, 450);
    const QPoint place = view->pos();
    view->showMaximized();
    QTRY_VERIFY(view->width() > 500);
    for (int session = 0; session < 3; ++session) {
        view->writeSettings();
        view = begin();
        view->show();
        QTRY_VERIFY(view->isMaximized() && view->width() > 500);
    }
    view->showNormal();
    QTRY_COMPARE(view->size(), QSize(500, 450));
    view->writeSettings();
    view = begin();
    QVERIFY(!view->isMaximized());
    QCOMPARE(view->pos(), place);
}

void TestDesktop::everythingHasANameForScreenReaders_data()
{
    columns<int, int>("tab", "page"); // of the evaluation
    for (int tab = 0; tab < 9; ++tab)
        row(qPrintable(QString::number(tab)), tab, 0);
    for (int page = 1; page < 4; ++page)
        row(qPrintable(QStringLiteral("evaluation %1").arg(page)), 4, page);
}

void TestDesktop::everythingHasANameForScreenReaders()
{
    QFETCH(int, tab);
    QFETCH(int, page);
    Model model{QString()};
    View view(&model, std::make_unique<ScriptedPrompts>());
    record(model);
    view.resize(1280, 800);
    view.show();
    view.tabs()->setCurrentIndex(tab);
    if (auto *button =
            view.tabs()->currentWidget()->findChild<QAbstractButton *>(QStringLiteral("pageButton%1").arg(page)))
        button->click();
    QTest::qWait(60); // the pages follow the model a little later
    QStringList complaints;
    for (auto *widget : view.findChildren<QWidget *>()) {
        const QString text = widget->isVisible() ? complaint(widget) : QString();
        if (!text.isEmpty())
            complaints << QStringLiteral("%1 \"%2\" in %3: %4")
                              .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(),
                                   QLatin1String(widget->parentWidget()->metaObject()->className()), text);
    }
    QVERIFY2(complaints.isEmpty(), qPrintable(complaints.join(QLatin1Char('\n'))));
}

QTEST_MAIN(TestDesktop)
#include "tst_desktop.moc"
