#pragma once

#include "controller/desk.h"
#include "controller/link/boxrestart.h"
#include "controller/link/linkdialogs.h"
#include "controller/link/reconnect.h"

#include <QAbstractSocket>
#include <QObject>
#include <QString>

#include <vector>

class DeferredQuestions;
class DemoBox;
class MesotraConnector;
class Recorder;

/// The link to the box as the user sees it: makes and ends it, knows whether it is wanted and under which address, and
/// reports its errors. What is exchanged over it is the business of others, who follow the signals.
class BoxLink : public QObject
{
    Q_OBJECT

public:
    /// Where to connect to.
    struct Target
    {
        QString address;              ///< connected to first; empty: the user is asked
        std::vector<int> retryDelays; ///< ms before each attempt after a loss; the last one repeats
    };

    /// All references must outlive the link.
    BoxLink(const Desk &desk, MesotraConnector &connector, const DemoBox &demoBox, DeferredQuestions &questions,
            Recorder &recorder, Target target);

    [[nodiscard]] bool isConnected() const;
    /// What "connect" uses: as configured, then the last one typed in this session.
    [[nodiscard]] QString address() const { return m_address; }
    /// True from an attempt to connect until it has failed or the link was given up.
    [[nodiscard]] bool isWanted() const { return m_wanted; }
    /// The attempts after a loss. Others may hold them.
    [[nodiscard]] Reconnect &reconnect() { return m_reconnect; }
    /// False, and a status message, if the text could not be written to the box.
    bool send(const QString &text);
    void showNotConnected();

    // --- Actions of the user ---
    /// Connects, disconnects or gives up the attempt that is under way.
    void toggle();
    /// Leaves the box that may be connected, after a question.
    void connectToAddress(const QString &address);
    /// Gives up an attempt to connect, unless the progress shown is that of a fetch.
    void giveUp();
    void sendTerminalLine(const QString &line);

    // --- For other parts ---
    /// Stops the recording and ends the link.
    void disconnectBox();
    /// Ends the link or the attempt; errors of it are no longer reported.
    void leave();
    /// Ends the link if there is one, otherwise the attempt that may be under way.
    void leaveForAnother();
    /// Takes a simulated box instead of a real one.
    void connectToSimulator(quint16 port);
    /// The box was told to restart: for a while refused connections are no errors.
    void expectRestart() { m_restart.begin(); }

    // --- What the connector reports ---
    void opened();
    void closed();
    void onError(QAbstractSocket::SocketError error);
    /// The first line came that only a box says.
    void noteProven();
    /// The box does not answer. A link that was made again by itself is dropped then: the box is not back.
    void noteMute();
    /// No sign of life comes any more: drops the link, which counts as lost.
    void loseSilent();
    /// Tells the user and offers to connect again, at once or when nothing else is under way.
    void reportError(QAbstractSocket::SocketError error);

signals:
    /// An attempt to connect begins, or a link is there that another part has made.
    void wanted();
    /// The user or an error has ended the link or the attempt. Also if there was neither.
    void left();
    /// The model knows that the box is connected; nothing has been sent to it yet.
    void established();
    /// A link that nobody has given up has ended. Attempts to get it back follow.
    void lost(const QString &address, bool wasRecording);
    /// The link has ended; the model still takes it for connected.
    void closing();
    /// An error of a link that is wanted.
    void failed(QAbstractSocket::SocketError error);
    /// The link to the simulated box broke.
    void demoLost();

private:
    [[nodiscard]] bool isDemo() const;
    [[nodiscard]] bool mayLeaveFor(const QString &address);
    [[nodiscard]] bool confirmLeaving(const QString &address);
    void connectTo(const QString &address, const QString &progressText);
    void connectTo(const QString &address);
    void want();
    void showOpened();
    void retryAfterRestart();
    void retryAfterLoss();
    void offerReconnect(const QString &reason);

    View &m_view;
    Model &m_model;
    Occupancy &m_occupancy;
    MesotraConnector &m_connector;
    const DemoBox &m_demoBox;
    DeferredQuestions &m_questions;
    Recorder &m_recorder;
    LinkDialogs m_dialogs;
    BoxRestart m_restart;
    Reconnect m_reconnect;
    QString m_address;
    QString m_measuredHost; // of the box whose values are shown; empty for a simulated one
    bool m_wanted = false;  // errors of a link that the user gave up are of no interest
};
