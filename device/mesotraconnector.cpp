#include "device/mesotraconnector.h"

#include "device/logging.h"
#include "device/protocol/samplingperiod.h"
#include "device/scptransfer.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QPointer>
#include <QSignalBlocker>
#include <QTcpSocket>

#include <array>
#include <utility>

namespace {

constexpr int kWriteTimeout = 100;                           // ms
constexpr qint64 kDeliverySlice = 10;                        // ms
constexpr int kLineBufferSize = 1024;                        // bytes, with the terminating zero
constexpr qint64 kReadBufferSize = qint64{64} * 1024 * 1024; // half an hour of samples while a slot shows a dialog

} // namespace

MesotraConnector::MesotraConnector(quint16 port)
    : m_scp(std::make_unique<ScpTransfer>())
    , m_port(port)
{
    createSocket();
}

MesotraConnector::~MesotraConnector()
{
    QObject::disconnect(m_socket, nullptr, this, nullptr);
}

void MesotraConnector::createSocket()
{
    m_socket = new QTcpSocket(this);
    m_socket->setReadBufferSize(kReadBufferSize);
    QObject::connect(m_socket, &QTcpSocket::readyRead, this, &MesotraConnector::schedule);
    QObject::connect(m_socket, &QTcpSocket::errorOccurred, this, [this](QAbstractSocket::SocketError socketError) {
        m_pending.errors.append(socketError);
        schedule();
    });
    QObject::connect(m_socket, &QTcpSocket::connected, this, [this] {
        m_pending.connected = true;
        schedule();
    });
    QObject::connect(m_socket, &QTcpSocket::disconnected, this, [this] {
        m_pending.disconnected = true;
        schedule();
    });
}

void MesotraConnector::connect(const QString &address)
{
    qCDebug(lcDevice) << Q_FUNC_INFO;
    if (!dropForAttempt())
        return;
    m_hostAddress = address;
    m_socket->connectToHost(address, m_port, QIODevice::ReadWrite, QAbstractSocket::AnyIPProtocol);
}

void MesotraConnector::connectToSimulator(quint16 port)
{
    qCDebug(lcDevice) << Q_FUNC_INFO << port;
    if (dropForAttempt())
        m_socket->connectToHost(QHostAddress(QHostAddress::LocalHost), port);
}

/// Drops the link there is. False if a slot of disconnected() has deleted the connector or started another attempt.
bool MesotraConnector::dropForAttempt()
{
    const QPointer<MesotraConnector> self(this);
    const quint64 link = m_link + 1;
    dropLink();
    return self && m_link == link;
}

void MesotraConnector::disconnectFromHost()
{
    qCDebug(lcDevice) << Q_FUNC_INFO;
    if (!m_socket->isOpen())
        return;
    waitForWritten();
    dropLink();
}

/// Ends whatever the socket is doing. Afterwards nothing of the old link is reported except its end.
void MesotraConnector::dropLink()
{
    ++m_link;
    m_pending = {};
    const bool lookingUp = m_socket->state() == QAbstractSocket::HostLookupState;
    {
        const QSignalBlocker blocker(m_socket);
        m_socket->disconnectFromHost();
        m_socket->close();
        m_socket->abort();
    }
    if (lookingUp) {
        // The answer to an aborted look-up may be on its way already and would be taken for that of the next one.
        delete m_socket;
        createSocket();
    }
    if (m_connected)
        onDisconnected();
}

/// A socket that is still connecting is open too, but would keep the bytes and send them whenever the link comes up.
bool MesotraConnector::isReady() const
{
    return m_socket->isOpen() && m_socket->state() == QAbstractSocket::ConnectedState;
}

bool MesotraConnector::write(const QString &text)
{
    if (isReady() && m_socket->write(text.toLocal8Bit()) != -1) {
        emit written(text);
        return true;
    }
    qCDebug(lcDevice).noquote() << QStringLiteral("ERROR in tcpSocket.write() !!! s=") + text;
    return false;
}

/// Waiting on a socket that is still connecting would end the attempt.
void MesotraConnector::waitForWritten()
{
    if (isReady() && m_socket->bytesToWrite() > 0)
        m_socket->waitForBytesWritten(kWriteTimeout);
}

void MesotraConnector::sendCommand(const QString &command)
{
    const QPointer<MesotraConnector> self(this);
    (void)write(command); // a failure is in the log; the end of the link is reported by its own signals
    if (self)
        waitForWritten();
}

void MesotraConnector::calibrate()
{
    qCDebug(lcDevice) << Q_FUNC_INFO;
    sendCommand(QStringLiteral("1\n"));
}

void MesotraConnector::startMeasurement()
{
    qCDebug(lcDevice) << Q_FUNC_INFO;
    sendCommand(QStringLiteral("run=1\n"));
}

void MesotraConnector::stopMeasurement()
{
    qCDebug(lcDevice) << Q_FUNC_INFO;
    sendCommand(QStringLiteral("run=0\n"));
}

void MesotraConnector::requestDeviceDescription()
{
    qCDebug(lcDevice) << Q_FUNC_INFO;
    sendCommand(QStringLiteral("deviceDescription\n"));
}

void MesotraConnector::requestSensorDescription()
{
    qCDebug(lcDevice) << Q_FUNC_INFO;
    sendCommand(QStringLiteral("sensorDescription\n"));
}

void MesotraConnector::setClock(const QString &label)
{
    if (!isReady())
        return;
    qCDebug(lcDevice) << Q_FUNC_INFO << label;
    const QString command = samplingPeriodCommand(label);
    if (!command.isEmpty())
        sendCommand(command);
}

bool MesotraConnector::reboot()
{
    if (!m_connected) {
        qCDebug(lcDevice) << Q_FUNC_INFO << "ERROR: Not connected!!!";
        return false;
    }
    (void)write(QStringLiteral("reboot\n")); // the box goes away without an answer either way
    qCDebug(lcDevice) << Q_FUNC_INFO << "TODO: check result!";
    return true;
}

bool MesotraConnector::transferUpdateFile(const QString &fileName)
{
    qCDebug(lcDevice) << Q_FUNC_INFO << fileName;
    return m_scp->upload(m_hostAddress, fileName) == ScpOutcome::Done;
}

void MesotraConnector::setPaused(bool paused)
{
    m_paused = paused;
    if (!paused)
        schedule();
}

void MesotraConnector::schedule()
{
    if (std::exchange(m_scheduled, true))
        return;
    // Never from within the socket, which a slot could delete by dropping the link.
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_scheduled = false;
            processPending();
        },
        Qt::QueuedConnection);
}

/// Passes on what the socket reported, in the order in which it happened on the wire.
void MesotraConnector::processPending()
{
    if (m_paused)
        return; // the end of the pause schedules another call
    if (m_delivering)
        return; // inside the event loop of a slot; the outer call continues when that slot returns
    const QPointer<MesotraConnector> self(this);
    const quint64 link = m_link;
    if (std::exchange(m_pending.connected, false))
        onConnected();
    if (self && m_link == link)
        tcpSocketListener();
    if (self && m_link == link && !m_delivering && !m_paused && !m_socket->canReadLine())
        processEndOfLink();
}

/// The end first, then its cause: a slot of error() may ask the user, who should see the real state meanwhile.
void MesotraConnector::processEndOfLink()
{
    const QPointer<MesotraConnector> self(this);
    const quint64 link = m_link;
    const QVector<QAbstractSocket::SocketError> errors = std::exchange(m_pending.errors, {});
    if (std::exchange(m_pending.disconnected, false)) {
        m_socket->close();
        onDisconnected();
    }
    for (QAbstractSocket::SocketError socketError : errors) {
        if (!self || m_link != link)
            return; // a slot has dropped that link
        tcpSocketError(socketError);
    }
}

void MesotraConnector::tcpSocketListener()
{
    if (m_delivering || m_paused)
        return;
    const QPointer<MesotraConnector> self(this);
    const quint64 link = m_link;
    QElapsedTimer slice;
    slice.start();
    m_delivering = true;
    while (m_link == link && !m_paused && m_socket->canReadLine() && slice.elapsed() < kDeliverySlice) {
        deliverLine();
        if (!self)
            return;
    }
    m_delivering = false;
    if (m_paused)
        return;
    if (m_socket->canReadLine() || m_pending.connected || m_pending.disconnected || !m_pending.errors.isEmpty())
        schedule();
    else if (m_socket->bytesAvailable() >= kMaxUnterminated)
        dropEndlessLine();
}

void MesotraConnector::deliverLine()
{
    std::array<char, kLineBufferSize> buffer; // not initialised: the read fills it
    const qint64 lineLength = m_socket->readLine(buffer.data(), kLineBufferSize);
    if (lineLength < 0)
        qCDebug(lcDevice) << "lineLength<0 !";
    if (lineLength <= 1)
        return; // a lone line feed
    const QString message = QString::fromLatin1(buffer.data(), static_cast<int>(lineLength));
    qCDebug(lcDevice) << message;
    emit messageReceived(message);
}

void MesotraConnector::dropEndlessLine()
{
    qCDebug(lcDevice) << "no line feed within" << m_socket->bytesAvailable() << "bytes: dropping the connection";
    const QPointer<MesotraConnector> self(this);
    const quint64 link = m_link + 1;
    dropLink();
    if (self && m_link == link)
        tcpSocketError(QAbstractSocket::UnknownSocketError);
}

void MesotraConnector::tcpSocketError(QAbstractSocket::SocketError socketError)
{
    qCDebug(lcDevice) << Q_FUNC_INFO << socketError;
    emit error(socketError);
}

void MesotraConnector::onConnected()
{
    qCDebug(lcDevice) << Q_FUNC_INFO;
    m_connected = true;
    emit connected();
}

void MesotraConnector::onDisconnected()
{
    qCDebug(lcDevice) << Q_FUNC_INFO;
    m_connected = false;
    emit disconnected();
}
