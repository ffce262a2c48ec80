#include "app/loghandler.h"

#include <QTemporaryDir>
#include <QtTest>

class TestLogHandler : public QObject
{
    Q_OBJECT

private slots:
    void line_data();
    void line();
    void appendsToWhatIsThere();
    void unwritableFileIsIgnored();

private:
    static void log(QtMsgType type, const QString &text) { textLogHandler(type, {}, text); }
    static QByteArray logged();
};

QByteArray TestLogHandler::logged()
{
    QFile file(QStringLiteral("debug.txt"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void TestLogHandler::line_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("line");
    const QString text = QStringLiteral("tab open");
    QTest::newRow("debug") << int(QtDebugMsg) << text << QByteArray("Debug: tab open\n");
    QTest::newRow("fatal, without an abort") << int(QtFatalMsg) << text << QByteArray("Fatal: tab open\n");
    QTest::newRow("unknown type") << 77 << text << QByteArray("\n");
    QTest::newRow("percent") << int(QtDebugMsg) << QStringLiteral("%1 %2") << QByteArray("Debug: %1 %2\n");
    QTest::newRow("umlaut") << int(QtDebugMsg) << QStringLiteral("Kühlzeit") << QByteArray("Debug: Kühlzeit\n");
}

void TestLogHandler::line()
{
    QFETCH(int, type);
    QFETCH(QString, text);
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    log(static_cast<QtMsgType>(type), text);
    QTEST(logged(), "line");
}

void TestLogHandler::appendsToWhatIsThere()
{
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    QFile file(QStringLiteral("debug.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("yesterday\n");
    file.close();

    const QtMessageHandler before = qInstallMessageHandler(textLogHandler);
    qDebug("first");
    qWarning("second");
    qInstallMessageHandler(before);
    QCOMPARE(logged(), QByteArray("yesterday\nDebug: first\nWarning: second\n"));
}

void TestLogHandler::unwritableFileIsIgnored()
{
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    QVERIFY(QDir().mkdir(QStringLiteral("debug.txt"))); // a folder of that name cannot be opened, not even by root
    const QtMessageHandler before = qInstallMessageHandler(textLogHandler);
    qWarning("lost");
    qInstallMessageHandler(before);
    QVERIFY(QFileInfo(QStringLiteral("debug.txt")).isDir());
}

QTEST_APPLESS_MAIN(TestLogHandler)

#include "tst_loghandler.moc"
