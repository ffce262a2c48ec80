#include "app/loghandler.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QTemporaryDir>
#include <QtTest>

class TestLogHandler : public QObject
{
    Q_OBJECT

private slots:
    void line_data()
    {
        columns<int, QString, QByteArray>("type", "text", "line");
        const QString text = "tab open"_s;
        row("debug", int(QtDebugMsg), text, "Debug: tab open\n"_ba);
        row("fatal, without an abort", int(QtFatalMsg), text, "Fatal: tab open\n"_ba);
        row("unknown type", 77, text, "\n"_ba);
        row("percent", int(QtDebugMsg), "%1 %2", "Debug: %1 %2\n"_ba);
        row("umlaut", int(QtDebugMsg), "Kühlzeit", "Debug: Kühlzeit\n"_ba);
    }

    void line()
    {
        QFETCH(int, type);
        QFETCH(QString, text);
        const QTemporaryDir folder;
        QDir::setCurrent(folder.path());
        log(static_cast<QtMsgType>(type), text);
        QTEST(logged(), "line");
    }

    void appendsToWhatIsThere()
    {
        const QTemporaryDir folder;
        QDir::setCurrent(folder.path());
        QFile file("debug.txt"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("yesterday\n");
        file.close();

        const QtMessageHandler before = qInstallMessageHandler(textLogHandler);
        qDebug("first");
        qWarning("second");
        qInstallMessageHandler(before);
        QCOMPARE(logged(), "yesterday\nDebug: first\nWarning: second\n"_ba);
    }

    void unwritableFileIsIgnored()
    {
        const QTemporaryDir folder;
        QDir::setCurrent(folder.path());
        QVERIFY(QDir().mkdir("debug.txt"_s)); // a folder of that name cannot be opened, not even by root
        const QtMessageHandler before = qInstallMessageHandler(textLogHandler);
        qWarning("lost");
        qInstallMessageHandler(before);
        QVERIFY(QFileInfo("debug.txt"_s).isDir());
    }

private:
    static void log(QtMsgType type, const QString &text) { textLogHandler(type, {}, text); }
    static QByteArray logged();
};

QByteArray TestLogHandler::logged()
{
    QFile file("debug.txt"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file"_ba;
}

QTEST_APPLESS_MAIN(TestLogHandler)

#include "tst_loghandler.moc"
