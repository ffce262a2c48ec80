#pragma once

#include <QAbstractSocket>
#include <QObject>
#include <QString>
#include <QVector>

#include <memory>

class QTcpSocket;
class ScpTransfer;

/// The program's only channel to the measuring box: sends text commands over TCP and cuts what arrives into lines.
/// Works asynchronously, except that each command waits up to 100 ms for its bytes to be written.
///
/// The signals about the link are emitted from the event loop or from connect() and disconnectFromHost(), never from
/// within the socket, so that a slot may do anything: open a dialog, connect again, even delete the connector. While a
/// slot of messageReceived() runs an event loop, further lines wait; their order never changes.
class MesotraConnector : public QObject
{
    Q_OBJECT

public:
    static constexpr quint16 kDefaultPort = 2222;
    /// How many bytes may arrive without a line feed before the connection is dropped.
    static constexpr qint64 kMaxUnterminated = qint64{1024} * 1024;

    explicit MesotraConnector(quint16 port = kDefaultPort);
    ~MesotraConnector() override;

    /// Drops any earlier connection, with its undelivered lines, and returns at once; connected() or error() follows.
    void connect(const QString &address);
    /// As connect(), to a simulated box on this machine. hostAddress() stays that of the real box.
    void connectToSimulator(quint16 port);
    /// Waits up to 100 ms for pending bytes. Lines that have not been delivered yet are dropped.
    void disconnectFromHost();
    [[nodiscard]] bool isConnected() const { return m_connected; }
    [[nodiscard]] QString hostAddress() const { return m_hostAddress; }
    /// False, and a log line, if there is no link (also while it is being made) or the socket refuses the bytes.
    bool write(const QString &text);

    void calibrate();                ///< "1\n": asks for a single value line
    void startMeasurement();         ///< "run=1\n"
    void stopMeasurement();          ///< "run=0\n"
    void requestDeviceDescription(); ///< "deviceDescription\n"
    void requestSensorDescription(); ///< "sensorDescription\n"
    /// Sends the command for a label such as "100ms", nothing for a label that the box does not know.
    void setClock(const QString &label);
    /// False if not connected; otherwise true, whether or not the bytes arrive.
    bool reboot();
    /// Uploads one local file to the box at hostAddress() with the SCP tool; returns when that is over, with events
    /// processed meanwhile. False if it failed, which scp() has reported to the user.
    [[nodiscard]] bool transferUpdateFile(const QString &fileName);
    /// Moves files from and to the box. Lives as long as the connector.
    [[nodiscard]] ScpTransfer &scp() const { return *m_scp; }
    /// While paused, lines and the end of the link wait in the socket, whose buffer is bounded; then the box itself
    /// has to wait. Nothing is lost and the order never changes.
    void setPaused(bool paused);

signals:
    void connected();
    /// After the last complete line that came over the link.
    void disconnected();
    /// One line with its line feed, 2 to 1023 characters, each byte one character (Latin-1). A longer line arrives as
    /// several messages.
    void messageReceived(const QString &message);
    /// UnknownSocketError if the connector itself dropped the link because no line feed came.
    void error(QAbstractSocket::SocketError socketError);
    /// Text that went out to the box, for the terminal.
    void written(const QString &text);

public slots:
    /// Delivers the complete lines that have arrived, for about 10 ms; the rest follows from the event loop.
    void tcpSocketListener();
    void tcpSocketError(QAbstractSocket::SocketError socketError);
    void onConnected();
    void onDisconnected();

private:
    /// What the socket reported and the connector has not passed on yet.
    struct Pending
    {
        bool connected = false;
        bool disconnected = false;
        QVector<QAbstractSocket::SocketError> errors;
    };

    [[nodiscard]] bool isReady() const;
    void createSocket();
    [[nodiscard]] bool dropForAttempt();
    void sendCommand(const QString &command);
    void waitForWritten();
    void dropLink();
    void schedule();
    void processPending();
    void processEndOfLink();
    void deliverLine();
    void dropEndlessLine();

    std::unique_ptr<ScpTransfer> m_scp;
    QTcpSocket *m_socket = nullptr;
    QString m_hostAddress;
    Pending m_pending;
    quint64 m_link = 0; ///< changes with every connection attempt and every drop
    quint16 m_port;
    bool m_connected = false;
    bool m_scheduled = false;
    bool m_delivering = false;
    bool m_paused = false;
};
