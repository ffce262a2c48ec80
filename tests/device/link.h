#pragma once

#include "device/mesotraconnector.h"
#include "tests/support/literals.h"

#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <functional>
#include <memory>

// A connector, a server that it is connected to, and what the connector reported.
class Link
{
public:
    Link()
        : connector(std::make_unique<MesotraConnector>(listen(server)))
    {
        QObject::connect(connector.get(), &MesotraConnector::messageReceived, &context,
                         [this](const QString &message) { record(message); });
        QObject::connect(connector.get(), &MesotraConnector::connected, &context, [this] { record("[up]"_s); });
        QObject::connect(connector.get(), &MesotraConnector::disconnected, &context, [this] { record("[down]"_s); });
        QObject::connect(connector.get(), &MesotraConnector::error, &context,
                         [this](QAbstractSocket::SocketError e) { record("[error %1]"_s.arg(e)); });
    }
    ~Link() { connector.reset(); }
    Q_DISABLE_COPY(Link)

    static QString loopback() { return "127.0.0.1"_s; }
    [[nodiscard]] bool open()
    {
        connector->connect(loopback());
        return QTest::qWaitFor([this] { return takePeer() && connector->isConnected(); });
    }
    void send(const QByteArray &bytes)
    {
        peer->write(bytes);
        peer->flush();
    }
    [[nodiscard]] bool waitFor(const QString &last)
    {
        return QTest::qWaitFor([this, &last] { return !events.isEmpty() && events.last() == last; }, 20000);
    }
    [[nodiscard]] QByteArray receivedBytes(int count)
    {
        (void)QTest::qWaitFor([this, count] { return peer->bytesAvailable() >= count; });
        return peer->readAll();
    }
    static quint16 listen(QTcpServer &server)
    {
        server.listen(QHostAddress::LocalHost);
        return server.serverPort();
    }

    QTcpServer server;
    std::unique_ptr<MesotraConnector> connector;
    QTcpSocket *peer = nullptr;
    QStringList events;
    std::function<void(const QString &)> reaction;

private:
    bool takePeer()
    {
        while (server.hasPendingConnections())
            peer = server.nextPendingConnection();
        return peer != nullptr;
    }
    void record(const QString &event)
    {
        events.append(event);
        const auto current = reaction; // a copy: a reaction may replace itself
        if (current)
            current(event);
    }

    QObject context;
};
