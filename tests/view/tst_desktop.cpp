#include "app/startup.h"
#include "model/model.h"
#include "tests/support/scriptedprompts.h"
#include "view/view.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

/// The window as a part of the desktop: what is dropped on it, its keys, what it says to assistive tools.
class TestDesktop : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { prepareApplication(*qApp); }
    void init() { QSettings(QStringLiteral("Tarnwald"), QStringLiteral("Ventaro")).clear(); }
    void takesOneProjectFile_data();
    void takesOneProjectFile();
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

QTEST_MAIN(TestDesktop)
#include "tst_desktop.moc"
