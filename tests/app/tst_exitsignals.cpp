#include "app/session.h"
#include "app/startup.h"
#include "model/journal/journalreader.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "view/window/view.h"

#include <QApplication>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>

#include <csignal>

namespace {

/// A session that connects to a box on a port and keeps its journal in a folder; says when its window is there.
int runChild(QApplication &application, quint16 port, const QString &folder, bool withQuestion)
{
    prepareApplication(application);
    SessionOptions options;
    options.splashTime = std::chrono::milliseconds(0);
    options.controller.deviceAddress = "127.0.0.1"_s;
    options.controller.port = port;
    options.controller.journal.folder = folder;
    options.controller.journal.handOver = 60000; // only the end itself writes
    options.connectAtOnce = true;
    if (withQuestion) {
        QTimer::singleShot(600, [] {
            for (QWidget *widget : QApplication::topLevelWidgets()) {
                if (auto *view = qobject_cast<View *>(widget))
                    (void)view->askYesNo("Titel"_s, "Frage?"_s);
            }
        });
    }
    return runSession(application, options);
}

std::optional<JournalContents> journalIn(const QString &folder)
{
    const QDir journals(folder);
    QFile file(journals.filePath(journals.entryList({"*.journal"_s}, QDir::Files).value(0)));
    return file.open(QIODevice::ReadOnly) ? readJournal(file) : std::nullopt;
}

} // namespace

class TestExitSignals : public QObject
{
    Q_OBJECT

private slots:
    void theRecordingIsStoppedAndKept_data()
    {
        columns<int, bool>("number", "withQuestion");
        row("SIGTERM", SIGTERM, false);
        row("SIGINT", SIGINT, false);
        row("SIGHUP", SIGHUP, false);
        row("SIGTERM while a question is open", SIGTERM, true);
    }

    void theRecordingIsStoppedAndKept()
    {
        QFETCH(int, number);
        QFETCH(bool, withQuestion);
        QTcpServer box;
        QVERIFY(box.listen(QHostAddress::LocalHost));
        const QTemporaryDir folder;
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(QCoreApplication::applicationFilePath(),
                      {"--child"_s, QString::number(box.serverPort()), folder.path(), QString::number(withQuestion)});
        QVERIFY(box.waitForNewConnection(20000));
        QTcpSocket *link = box.nextPendingConnection();
        QByteArray received;
        connect(link, &QTcpSocket::readyRead, link, [&] { received += link->readAll(); });
        QTRY_VERIFY(received.contains("sensorDescription"));
        link->write("run=1\n0;1;2;3;4;5\n0;6;7;8;9;10\n");
        QTest::qWait(1000);
        QVERIFY(QDir(folder.path()).isEmpty());

        ::kill(pid_t(program.processId()), number);
        QVERIFY(QTest::qWaitFor([&program] { return program.state() == QProcess::NotRunning; }, 10000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
        QTRY_VERIFY(received.endsWith("run=0\n"));
        const std::optional<JournalContents> kept = journalIn(folder.path());
        QVERIFY(kept);
        QCOMPARE(kept->shotCount(), 1);
        QCOMPARE(kept->sampleCount(), qint64(10));
        QVERIFY(QDir(folder.path()).entryList({"*.lock"_s}).isEmpty());
    }
};

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == "--child"_s)
        return runChild(application, quint16(arguments.value(2).toUInt()), arguments.value(3),
                        arguments.value(4) == "1"_s);
    TestExitSignals test;
    return QTest::qExec(&test, arguments);
}

#include "tst_exitsignals.moc"
