#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <memory>

/// A relay between the program and a box that behaves as networks do: it stalls without closing, delays, tears lines
/// apart and breaks links. Serves one link at a time, the newest. Counts the sample lines at both of its ends.
class LinkProxy : public QObject
{
public:
    explicit LinkProxy(quint16 boxPort)
        : m_boxPort(boxPort)
    {
        connect(&m_server, &QTcpServer::newConnection, this, [this] { takeProgram(); });
        accept();
    }

    ~LinkProxy() override
    {
        for (QTcpSocket *socket : {m_program.data(), m_box.data()})
            if (socket)
                socket->disconnect(this); // they go after the members that the slots use
    }
    Q_DISABLE_COPY_MOVE(LinkProxy)

    [[nodiscard]] quint16 port() const { return m_port; }
    [[nodiscard]] bool hasLink() const { return m_program && m_box; }
    /// How many links the program has made.
    [[nodiscard]] int links() const { return m_links; }
    /// Sample lines that came from the box, and those that were handed on to the program in whole.
    [[nodiscard]] qint64 fromBox() const { return m_fromBox.samples; }
    [[nodiscard]] qint64 toProgram() const { return m_toProgram.samples; }

    /// Bytes of a direction stay where they are, and nobody is told. Without arguments all goes on.
    void stall(bool toProgram = false, bool toBox = false)
    {
        m_stalledToProgram = toProgram;
        m_stalledToBox = toBox;
        pumpToProgram();
        pumpToBox();
    }
    /// For everything that comes from the box from now on, in ms.
    void setDelay(int milliseconds) { m_delay = milliseconds; }
    /// What comes from the box is handed on in pieces of so many bytes; 0: as it comes.
    void setPiece(int bytes) { m_piece = bytes; }
    /// Ends the link; soft: after what is on its way to the program.
    void drop(bool hard = false)
    {
        close(m_box, true);
        close(m_program, hard);
    }
    /// Ends the link within the next line from the box.
    void cutNextLine() { m_cut = true; }
    /// Whether connections are taken at all.
    void setListening(bool listening)
    {
        if (!listening)
            m_server.close();
        else if (!m_server.isListening())
            accept();
    }

private:
    /// Counts the sample lines of a stream.
    struct Counter
    {
        void add(const QByteArray &bytes)
        {
            for (const char c : bytes) {
                if (atStart)
                    isSample = (c >= '0' && c <= '9') || c == '-';
                atStart = c == '\n';
                samples += atStart && isSample ? 1 : 0;
            }
        }
        void startLink() { atStart = true; }
        qint64 samples = 0;
        bool atStart = true;
        bool isSample = false;
    };

    void accept()
    {
        (void)m_server.listen(QHostAddress::LocalHost, m_port);
        m_port = m_server.serverPort();
    }
    void takeProgram()
    {
        while (QTcpSocket *program = m_server.nextPendingConnection()) {
            drop(true);
            ++m_links;
            m_fromBox.startLink();
            m_toProgram.startLink();
            m_lastDue = 0;
            m_program = program;
            m_box = new QTcpSocket(this);
            for (QTcpSocket *socket : {m_program.data(), m_box.data()}) {
                socket->setReadBufferSize(4096); // what stalls soon stalls the sender too
                socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
                connect(socket, &QTcpSocket::disconnected, this, [this, socket] { endOf(socket); });
            }
            connect(m_program, &QTcpSocket::readyRead, this, [this] { pumpToBox(); });
            connect(m_box, &QTcpSocket::readyRead, this, [this] { pumpToProgram(); });
            connect(m_box, &QTcpSocket::errorOccurred, this, [this, box = m_box.data()] {
                if (box == m_box && box->state() != QAbstractSocket::ConnectedState)
                    drop(); // there is no box
            });
            connect(m_box, &QTcpSocket::connected, this, [this] { pumpToBox(); });
            m_box->connectToHost(QHostAddress(QHostAddress::LocalHost), m_boxPort);
        }
    }
    void endOf(QTcpSocket *socket)
    {
        if (socket == m_program)
            close(m_box, true); // the program has gone
        else if (socket == m_box && !m_stalledToProgram) {
            pumpToProgram();
            close(m_program, false);
        }
        socket->deleteLater();
    }
    void close(QPointer<QTcpSocket> &member, bool hard)
    {
        const QPointer<QTcpSocket> socket = std::exchange(member, nullptr);
        if (!socket)
            return;
        if (hard)
            socket->abort();
        else
            socket->disconnectFromHost();
        if (socket)
            socket->deleteLater();
    }
    void pumpToBox()
    {
        if (hasLink() && !m_stalledToBox && m_box->state() == QAbstractSocket::ConnectedState)
            m_box->write(m_program->readAll());
    }
    void pumpToProgram()
    {
        if (!hasLink() || m_stalledToProgram)
            return;
        const QByteArray bytes = m_box->readAll();
        m_fromBox.add(bytes);
        if (std::exchange(m_cut, m_cut && bytes.size() < 2)) {
            hand(bytes.left(bytes.lastIndexOf('\n', bytes.size() - 2) + 1 + 3)); // the beginning of the last line
            drop();
            return;
        }
        const int size = m_piece > 0 ? m_piece : std::max(1, bytes.size());
        for (int begin = 0; begin < bytes.size(); begin += size)
            hand(bytes.mid(begin, size));
    }
    void hand(const QByteArray &bytes)
    {
        if (m_delay == 0 && m_piece == 0) {
            write(bytes);
            return;
        }
        // Never before what came before, even if the delay has become shorter.
        const qint64 now = m_clock.elapsed();
        m_lastDue = std::max(m_lastDue, now + m_delay);
        QTimer::singleShot(static_cast<int>(m_lastDue - now), Qt::PreciseTimer, m_program,
                           [this, bytes] { write(bytes); });
    }
    void write(const QByteArray &bytes)
    {
        if (!m_program)
            return;
        m_toProgram.add(bytes);
        m_program->write(bytes);
        m_program->flush();
    }

    QTcpServer m_server;
    QPointer<QTcpSocket> m_program;
    QPointer<QTcpSocket> m_box;
    Counter m_fromBox;
    Counter m_toProgram;
    QElapsedTimer m_clock = [] {
        QElapsedTimer clock;
        clock.start();
        return clock;
    }();
    qint64 m_lastDue = 0;
    quint16 m_boxPort;
    quint16 m_port = 0;
    int m_links = 0;
    int m_delay = 0;
    int m_piece = 0;
    bool m_stalledToProgram = false;
    bool m_stalledToBox = false;
    bool m_cut = false;
};
