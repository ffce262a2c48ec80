#include "simulator/boxsimulator.h"

#include "simulator/boxtexts.h"
#include "simulator/logging.h"

#include <QTcpSocket>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int kMaxCommand = 4096; // bytes without a line feed
constexpr int kMaxCommandsKept = 10000;
constexpr qint64 kMaxUnsent = qint64{8} * 1024 * 1024; // bytes; a client that leaves more unread is dropped
constexpr qint64 kBurstWindow = qint64(256) * 1024;    // bytes of a burst that are handed to the socket at once
constexpr int kFarewell = 5000;                        // ms for the remaining bytes of a link that was closed
constexpr int kReadBuffer = 64 * 1024;                 // bytes
constexpr int kLongestTick = 10;                       // ms between looks at the clock
constexpr int kLongLineEvery = 10;                     // sample lines

} // namespace

BoxSimulator::BoxSimulator(const BoxOptions &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
{
    m_logger.setFolder(options.dataFolder);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_server, &QTcpServer::newConnection, this, &BoxSimulator::takeClient);
    connect(&m_timer, &QTimer::timeout, this, &BoxSimulator::sendDueSamples);
}

BoxSimulator::~BoxSimulator()
{
    if (m_client)
        m_client->disconnect(this); // the server deletes it after the timer that its slots use
}

bool BoxSimulator::listen(const QHostAddress &address, quint16 port)
{
    if (!m_server.listen(address, port))
        return false;
    m_address = address;
    m_port = m_server.serverPort();
    qCInfo(lcSimulator).noquote().nospace() << "listening on " << address.toString() << ":" << m_port;
    return true;
}

void BoxSimulator::setOptions(const BoxOptions &options)
{
    m_options = options;
    m_logger.setFolder(options.dataFolder);
}

void BoxSimulator::takeClient()
{
    while (QTcpSocket *client = m_server.nextPendingConnection()) {
        dropLink(true);
        m_client = client;
        m_client->setReadBufferSize(kReadBuffer); // or a client that floods the box would fill the memory
        m_client->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        m_received.clear();
        m_bytesSent = 0;
        connect(client, &QTcpSocket::readyRead, this, &BoxSimulator::readCommands);
        connect(client, &QTcpSocket::bytesWritten, this, &BoxSimulator::sendBurstSamples);
        connect(client, &QTcpSocket::disconnected, this, &BoxSimulator::forgetClient);
        qCInfo(lcSimulator).noquote() << "client" << client->peerAddress().toString();
        emit clientConnected();
    }
}

void BoxSimulator::forgetClient()
{
    if (!m_client)
        return;
    // First, as stopRun() answers and would write to a link that is closed.
    QTcpSocket *client = std::exchange(m_client, nullptr);
    client->disconnect(this);
    connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
    if (client->state() == QAbstractSocket::UnconnectedState)
        client->deleteLater();
    m_burstLeft = 0;
    if (m_running)
        stopRun();
    qCInfo(lcSimulator) << "client gone";
    emit clientDisconnected();
}

void BoxSimulator::dropLink(bool hard)
{
    if (!m_client)
        return;
    QTcpSocket *client = m_client;
    forgetClient();
    if (hard) {
        client->abort();
        return;
    }
    client->disconnectFromHost(); // still sends what was written; a client that never reads would keep it open
    QTimer::singleShot(kFarewell, client, [client] { client->abort(); });
}

void BoxSimulator::reboot()
{
    qCInfo(lcSimulator) << "rebooting";
    m_server.close();
    dropLink(true);
    QTimer::singleShot(m_options.rebootPause, this, [this] {
        if (!m_server.isListening() && !listen(m_address, m_port))
            qCWarning(lcSimulator).noquote() << "cannot listen again:" << m_server.errorString();
    });
}

void BoxSimulator::readCommands()
{
    const QTcpSocket *client = m_client;
    m_received += m_client->readAll();
    for (int end = m_received.indexOf('\n'); end >= 0; end = m_received.indexOf('\n')) {
        const QByteArray command = m_received.left(end).trimmed();
        m_received.remove(0, end + 1);
        if (!command.isEmpty())
            handleCommand(command.left(kMaxCommand));
        if (m_client != client)
            return; // the command or a slot closed the link
    }
    if (m_received.size() > kMaxCommand) {
        qCWarning(lcSimulator) << "no line feed within" << m_received.size() << "bytes: ignored";
        m_received.clear();
    }
}

void BoxSimulator::handleCommand(const QByteArray &command)
{
    const QString text = QString::fromLatin1(command);
    qCDebug(lcSimulator) << "received" << text;
    m_commands.append(text);
    if (m_commands.size() > kMaxCommandsKept)
        m_commands.removeFirst();
    emit commandReceived(text);
    if (m_client)
        handleRequest(command);
}

void BoxSimulator::handleRequest(const QByteArray &command)
{
    if (command == "run=1")
        startRun();
    else if (command == "run=0")
        stopRun();
    else if (command == "1")
        sendSample(m_nextTime);
    else if (command.startsWith("t="))
        setPeriod(command.mid(2));
    else if (command == "deviceDescription")
        answer(deviceDescriptionLine(m_options.sendsProjectDescription));
    else if (command == "sensorDescription" && m_options.describesSensors)
        answer(sensorDescriptionLine());
    else if (command == "list")
        answer(m_logger.isActive() ? m_logger.listBlock() : listBlock());
    else if (command == "reboot")
        reboot();
    else
        qCInfo(lcSimulator) << "no answer to" << QString::fromLatin1(command);
}

// A second start begins a new shot, as the program begins one with every echo.
void BoxSimulator::startRun()
{
    ++m_shot;
    m_running = true;
    m_nextTime = 0.0;
    m_burstLeft = m_options.burst;
    m_logger.begin(QDateTime::currentDateTime(), m_period);
    emit runningChanged(true);
    answer("run=1\n");
    if (!m_running)
        return; // the link was dropped after these bytes
    restartClock();
    m_timer.start(std::min(m_period, kLongestTick));
    sendDueSamples();
}

void BoxSimulator::stopRun()
{
    const bool wasRunning = std::exchange(m_running, false);
    m_burstLeft = 0;
    m_timer.stop();
    m_logger.end();
    answer("run=0\n");
    if (wasRunning)
        emit runningChanged(false);
}

void BoxSimulator::setPeriod(const QByteArray &text)
{
    bool ok = false;
    const int period = text.toInt(&ok);
    if (!ok || period < 1 || period > 1000) {
        qCInfo(lcSimulator) << "no such period:" << QString::fromLatin1(text);
        return;
    }
    m_period = period;
    answer("t=" + QByteArray::number(period) + '\n');
    if (m_running) {
        restartClock();
        m_timer.start(std::min(m_period, kLongestTick));
    }
}

// All samples of a period are timed by one clock, so that a late timer delays one sample but does not shift the others.
void BoxSimulator::restartClock()
{
    m_clock.start();
    m_sentInPeriod = 0;
}

void BoxSimulator::sendDueSamples()
{
    sendBurstSamples();
    if (m_burstLeft > 0)
        return;
    const qint64 due = m_clock.elapsed() / m_period + 1; // the first sample is due at once
    while (m_running && m_sentInPeriod < due) {
        ++m_sentInPeriod;
        sendNextSample();
    }
}

void BoxSimulator::burst(int lines)
{
    m_burstLeft += std::max(0, lines);
    sendBurstSamples();
}

void BoxSimulator::sendBurstSamples()
{
    if (m_options.silent)
        m_burstLeft = 0;
    if (m_burstLeft <= 0 || m_sendingBurst)
        return;
    m_sendingBurst = true; // write() may emit bytesWritten() at once, which would send more
    while (m_client && m_burstLeft > 0 && m_client->bytesToWrite() < kBurstWindow) {
        --m_burstLeft;
        sendNextSample();
    }
    m_sendingBurst = false;
    if (m_burstLeft == 0)
        restartClock();
}

void BoxSimulator::sendNextSample()
{
    const double time = m_nextTime;
    m_nextTime += m_period / 1000.0;
    if (m_running && m_logger.isActive())
        m_logger.add(valuesAt(time));
    sendSample(time);
}

void BoxSimulator::sendSample(double time)
{
    if (!m_client || m_options.silent)
        return;
    sendDisturbances();
    const QByteArray line = sampleLine(m_counter, valuesAt(time), !m_options.describesSensors);
    ++m_counter;
    if (sendRaw(line))
        emit sampleSent(line);
}

// In a long run every cycle counts as one shot. Without a run the mould is open and cold.
SampleValues BoxSimulator::valuesAt(double time) const
{
    const double length = m_options.cycleSeconds;
    // Without a run long after the end of a cycle; the counter changes the time a little, and so the noise.
    if (!m_running)
        return MouldCycle(m_options.seed, length)
            .valuesAt(m_shot, 5.0 * length + static_cast<double>(m_counter) / 1000.0);
    if (!m_options.repeatCycles)
        return MouldCycle(m_options.seed, length).valuesAt(m_shot, time);
    // Another seed for each cycle, as all of them have the same shot number.
    const double cycles = std::floor(time / length);
    return MouldCycle(m_options.seed + static_cast<quint32>(cycles), length).valuesAt(m_shot, time - cycles * length);
}

void BoxSimulator::sendDisturbances()
{
    if (m_options.garbage)
        sendRaw(garbageLine(m_counter));
    if (m_options.longLines && m_counter % kLongLineEvery == 0)
        sendRaw(overlongLine(m_counter));
}

void BoxSimulator::answer(const QByteArray &bytes)
{
    if (!m_options.silent)
        sendRaw(bytes);
}

bool BoxSimulator::sendRaw(const QByteArray &bytes)
{
    if (!m_client)
        return false;
    if (m_client->bytesToWrite() > kMaxUnsent) {
        qCWarning(lcSimulator) << "the client does not read: dropped";
        dropLink(true);
        return false;
    }
    // A link that breaks does so anywhere in a line: the limit counts bytes, not lines.
    const bool limited = m_options.dropAfter >= 0;
    const qint64 allowed = limited ? std::max<qint64>(0, m_options.dropAfter - m_bytesSent) : bytes.size();
    const QByteArray part = bytes.left(static_cast<int>(std::min<qint64>(allowed, bytes.size())));
    m_client->write(part);
    m_bytesSent += part.size();
    if (limited && m_bytesSent >= m_options.dropAfter) {
        qCInfo(lcSimulator) << "dropping the link after" << m_bytesSent << "bytes";
        dropLink();
    }
    return part.size() == bytes.size();
}
