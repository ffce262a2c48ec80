#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

/// A link to a server on this machine that takes its time: every byte arrives later, in both directions.
class DelayedLink : public QObject
{
public:
    /// `roundTrip` in ms.
    DelayedLink(int port, int roundTrip)
        : m_port(port)
        , m_there(roundTrip / 2)
        , m_back(roundTrip - m_there)
    {
        connect(&m_server, &QTcpServer::newConnection, this, [this] { accept(); });
    }
    [[nodiscard]] bool listen() { return m_server.listen(QHostAddress::LocalHost); }
    [[nodiscard]] int port() const { return m_server.serverPort(); }

private:
    void accept()
    {
        QTcpSocket *near = m_server.nextPendingConnection();
        auto *far = new QTcpSocket(near);
        far->connectToHost(QHostAddress(QHostAddress::LocalHost), static_cast<quint16>(m_port));
        for (QTcpSocket *socket : {near, far})
            socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        carry(near, far, m_there);
        carry(far, near, m_back);
        connect(near, &QTcpSocket::disconnected, near, &QObject::deleteLater);
        connect(far, &QTcpSocket::disconnected, near, &QTcpSocket::disconnectFromHost);
    }

    void carry(QTcpSocket *from, QTcpSocket *to, int delay)
    {
        connect(from, &QTcpSocket::readyRead, to, [from, to, delay] {
            const QByteArray bytes = from->readAll();
            QTimer::singleShot(delay, Qt::PreciseTimer, to, [to, bytes] { to->write(bytes); });
        });
    }

    QTcpServer m_server;
    int m_port;
    int m_there; ///< ms
    int m_back;
};
