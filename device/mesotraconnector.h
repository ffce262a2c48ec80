#pragma once

#include <QAbstractSocket>
#include <QObject>
#include <QString>

class QTcpSocket;

/// The program's only channel to the measuring box: sends text commands over TCP and cuts what arrives into lines.
/// Works asynchronously but for the wait of up to 100 ms for the bytes of each command to be written.
class MesotraConnector : public QObject
{
    Q_OBJECT

public:
    static constexpr quint16 kDefaultPort = 2222;

    explicit MesotraConnector(quint16 port = kDefaultPort);
    ~MesotraConnector() override;

    void connect(const QString &address);
    void disconnectFromHost();
    [[nodiscard]] bool isConnected() const { return m_connected; }
    [[nodiscard]] QString hostAddress() const { return m_hostAddress; }
    /// False (and a log line) if the socket is not open or refuses the bytes.
    bool write(const QString &text);

    void calibrate();                ///< "1\n": asks for a single value line
    void startMeasurement();         ///< "run=1\n"
    void stopMeasurement();          ///< "run=0\n"
    void requestDeviceDescription(); ///< "deviceDescription\n"
    void requestSensorDescription(); ///< "sensorDescription\n"
    /// Label such as "100ms"; a label that the box does not know sends nothing.
    void setClock(const QString &label);
    /// False if not connected; otherwise true, whatever became of the bytes.
    bool reboot();

signals:
    void connected();
    void disconnected();
    /// One line with its line feed, every byte one character (Latin-1), 2 to 1023 characters.
    void messageReceived(const QString &message);
    void error(QAbstractSocket::SocketError socketError);
    /// Text that went out to the box, for the terminal.
    void written(const QString &text);

public slots:
    void tcpSocketListener();
    void tcpSocketError(QAbstractSocket::SocketError socketError);
    void onConnected();
    void onDisconnected();

private:
    void sendCommand(const QString &command);

    QTcpSocket *m_socket = nullptr;
    QString m_hostAddress;
    quint16 m_port;
    bool m_connected = false;
};
