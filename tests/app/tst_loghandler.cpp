#include "app/loghandler.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QTemporaryDir>

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
        writeFile("debug.txt"_s, "yesterday\n");
        const QtMessageHandler before = qInstallMessageHandler(textLogHandler);
        qDebug("first");
        qWarning("second");
        qInstallMessageHandler(before);
        QCOMPARE(logged(), "yesterday\nDebug: first\nWarning: second\n"_ba);
    }

private:
    static void log(QtMsgType type, const QString &text) { textLogHandler(type, {}, text); }
    static QByteArray logged() { return contentOf("debug.txt"_s); }
};

QTEST_APPLESS_MAIN(TestLogHandler)

#include "tst_loghandler.moc"
