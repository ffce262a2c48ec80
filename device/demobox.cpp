#include "device/demobox.h"

#include "device/logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <utility>

namespace {

constexpr int kEndPatience = 100;  // ms for the simulator to notice that its input is closed
constexpr int kReapTimeout = 3000; // ms; a killed process ends at once
constexpr int kLongestLine = 4096; // bytes
const QByteArray kListening = QByteArrayLiteral("listening on 127.0.0.1:");

QString simulatorBesideProgram()
{
#ifdef Q_OS_WIN
    const QString name = QStringLiteral("ventaro-box-simulator.exe");
#else
    const QString name = QStringLiteral("ventaro-box-simulator");
#endif
    return QDir(QCoreApplication::applicationDirPath()).filePath(name);
}

/// 0 for a line that names no port.
quint16 listeningPort(const QByteArray &line)
{
    return line.startsWith(kListening) ? line.mid(kListening.size()).trimmed().toUShort() : quint16{0};
}

void endProcess(QProcess &process)
{
    process.closeWriteChannel();
    if (process.waitForFinished(kEndPatience))
        return;
    process.kill();
    (void)process.waitForFinished(kReapTimeout); // a killed process cannot resist
}

} // namespace

DemoBox::DemoBox(const QString &program, int startTimeout)
    : m_program(program.isEmpty() ? simulatorBesideProgram() : program)
{
    m_startTimer.setSingleShot(true);
    m_startTimer.setInterval(startTimeout);
    QObject::connect(&m_startTimer, &QTimer::timeout, this, [this] { fail(End::NotListening); });
}

DemoBox::~DemoBox()
{
    stop();
}

bool DemoBox::isAvailable() const
{
    const QFileInfo file(m_program);
    return file.isFile() && file.isExecutable();
}

void DemoBox::start()
{
    qCDebug(lcDevice) << Q_FUNC_INFO << m_program;
    if (std::exchange(m_active, true))
        return;
    m_process = new QProcess(this);
    m_process->setStandardErrorFile(QProcess::nullDevice()); // several lines per sample that nobody reads
    QObject::connect(m_process, &QProcess::readyReadStandardOutput, this, &DemoBox::readOutput);
    QObject::connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        fail(error == QProcess::FailedToStart ? End::NotStarted : End::Ended);
    });
    QObject::connect(m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
                     [this] { fail(End::Ended); });
    m_startTimer.start();
    m_process->start(m_program, {QStringLiteral("--address"), QStringLiteral("127.0.0.1"), QStringLiteral("--port"),
                                 QStringLiteral("0"), QStringLiteral("--until-input-closes")});
}

void DemoBox::stop()
{
    if (!std::exchange(m_active, false))
        return;
    qCDebug(lcDevice) << Q_FUNC_INFO;
    m_startTimer.stop();
    m_listening = false;
    m_output.clear();
    m_process->disconnect(this); // its end is no failure
    endProcess(*m_process);
    std::exchange(m_process, nullptr)->deleteLater(); // a signal of it may be on the way here
}

void DemoBox::readOutput()
{
    m_output += m_process->readAllStandardOutput();
    int end = -1;
    while (m_active && !m_listening && (end = m_output.indexOf('\n')) >= 0) {
        const quint16 port = listeningPort(m_output.left(end));
        m_output.remove(0, end + 1);
        if (port == 0)
            continue;
        m_listening = true;
        m_startTimer.stop();
        emit listening(port);
    }
    // A program that is not the simulator may write without end.
    if (m_listening || m_output.size() > kLongestLine)
        m_output.clear();
}

void DemoBox::fail(End end)
{
    qCDebug(lcDevice) << "demonstration ended:" << end << (m_process ? m_process->errorString() : QString());
    stop();
    emit failed(end);
}
