#pragma once

#include "simulator/datalogger.h"
#include "simulator/mouldcycle.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QObject>
#include <QStringList>
#include <QTcpServer>
#include <QTimer>

class QTcpSocket;

/// How the simulated box behaves; by default like a box that works.
struct BoxOptions
{
    quint32 seed = 1;
    double cycleSeconds = 12.0;   ///< length of a mould cycle
    bool repeatCycles = false;    ///< false: a run holds one cycle and then the idle level
    bool describesSensors = true; ///< false: no answer to "sensorDescription", and values in thousandths
    bool sendsProjectDescription = false;
    bool silent = false;    ///< accepts commands and sends nothing
    bool garbage = false;   ///< a meaningless line before every sample line
    bool longLines = false; ///< a line of more than 1023 bytes before every tenth sample line
    qint64 dropAfter = -1;  ///< number of bytes after which a link is dropped; negative: never
    int burst = 0;          ///< sample lines sent at the start of a run as fast as the socket takes them
    int rebootPause = 2000; ///< ms without a listening port after "reboot"
    QString dataFolder;     ///< lists its days and logs every run there; empty: three days that hold nothing
};

/// A measuring box without hardware. Serves one client, the newest: a link that broke without notice must not keep the
/// program out. Commands that it does not understand are logged. A client that does not read is dropped.
class BoxSimulator : public QObject
{
    Q_OBJECT

public:
    explicit BoxSimulator(const BoxOptions &options = {}, QObject *parent = nullptr);
    ~BoxSimulator() override;

    /// Port 0 takes any free port. Returns false and sets errorString() if the port is not available.
    [[nodiscard]] bool listen(const QHostAddress &address = QHostAddress::LocalHost, quint16 port = 0);
    [[nodiscard]] QString errorString() const { return m_server.errorString(); }
    /// The port it listens on, also while it reboots; 0 before listen().
    [[nodiscard]] quint16 port() const { return m_port; }
    [[nodiscard]] QHostAddress address() const { return m_address; }

    [[nodiscard]] bool hasClient() const { return m_client != nullptr; }
    [[nodiscard]] bool isListening() const { return m_server.isListening(); }
    [[nodiscard]] bool isRunning() const { return m_running; }
    [[nodiscard]] int period() const { return m_period; } ///< ms for each sample
    [[nodiscard]] int shot() const { return m_shot; }     ///< number of the current or last run, from 1; 0: none yet
    /// All commands since the start or the last clear, without line feeds; the newest 10,000.
    [[nodiscard]] QStringList receivedCommands() const { return m_commands; }
    void clearReceivedCommands() { m_commands.clear(); }

    [[nodiscard]] const BoxOptions &options() const { return m_options; }
    /// May be called at any time; a run in progress continues with the new behaviour.
    void setOptions(const BoxOptions &options);

    /// Sends any bytes to the client, if there is one, unchanged. They count for BoxOptions::dropAfter.
    /// Returns false if not all of them were sent.
    bool sendRaw(const QByteArray &bytes);
    /// Sends this number of sample lines as fast as the socket takes them, whether a run is in progress or not.
    void burst(int lines);
    /// Closes the link; `hard`: without waiting for bytes that are still to be sent.
    void dropLink(bool hard = false);
    /// What the command "reboot" does.
    void reboot();

signals:
    void commandReceived(const QString &command);
    void clientConnected();
    void clientDisconnected();
    /// A sample line that was handed to the socket, with its line feed.
    void sampleSent(const QByteArray &line);
    void runningChanged(bool running);

private:
    void takeClient();
    void forgetClient();
    void readCommands();
    void handleCommand(const QByteArray &command);
    void handleRequest(const QByteArray &command);
    void startRun();
    void stopRun();
    void setPeriod(const QByteArray &text);
    void answer(const QByteArray &bytes);
    void sendDueSamples();
    void sendBurstSamples();
    void sendNextSample();
    void sendSample(double time);
    void sendDisturbances();
    [[nodiscard]] SampleValues valuesAt(double time) const;
    void restartClock();

    BoxOptions m_options;
    DataLogger m_logger;
    QTcpServer m_server;
    QTcpSocket *m_client = nullptr;
    QHostAddress m_address;
    QByteArray m_received; ///< the beginning of a command
    QStringList m_commands;
    QTimer m_timer;
    QElapsedTimer m_clock; ///< since the run or the current period began
    qint64 m_sentInPeriod = 0;
    qint64 m_bytesSent = 0; ///< over this link
    quint64 m_counter = 0;
    double m_nextTime = 0.0; ///< seconds since the start of the run at which the next sample is taken
    int m_burstLeft = 0;
    int m_period = 100;
    int m_shot = 0;
    quint16 m_port = 0;
    bool m_running = false;
    bool m_sendingBurst = false;
};
