#pragma once

#include "controller/controller.h"
#include "controller/recordingseries.h"
#include "device/mesotraconnector.h"
#include "device/protocol/messages.h"
#include "model/devicedescription.h"
#include "model/sensordescription.h"

#include <QElapsedTimer>
#include <QHash>
#include <QPointer>
#include <QProgressBar>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <functional>
#include <optional>
#include <vector>

/// Counts a dialog as open for its lifetime.
class PromptScope
{
public:
    explicit PromptScope(int &openPrompts)
        : m_openPrompts(openPrompts)
    {
        ++m_openPrompts;
    }
    ~PromptScope() { --m_openPrompts; }
    Q_DISABLE_COPY_MOVE(PromptScope)

private:
    int &m_openPrompts;
};

struct Controller::Private
{
    Private(Model *m, View *v, const ControllerOptions &o)
        : model(m)
        , view(v)
        , connector(o.port)
        , demo(o.demoProgram, o.demoStartTimeout)
        , address(o.deviceAddress)
        , temporaryDirectory(o.temporaryDirectory)
        , restartWait(o.restartWait)
    {}

    Model *model;
    View *view;
    MesotraConnector connector;
    DemoBox demo;    ///< while it is active, the link is or will be to the simulated box
    QString address; ///< what "connect" uses: as configured, then the last one typed in this session

    /// Stands in the status bar; the view must not delete it, but may be gone first.
    QPointer<QProgressBar> progressBar;
    QTimer progressTimer;

    // --- Link ---
    QTimer deviceDescriptionTimer;
    QTimer sensorDescriptionTimer;
    QTimer listTimer;
    std::optional<QAbstractSocket::SocketError> deferredError;
    QString deferredWarning;
    std::optional<DeviceDescription> deviceDescription; ///< as the connected box gave it, like the next
    std::optional<SensorDescription> sensorDescription;
    QString measuredHost;    ///< of the box whose values are shown; empty for a simulated one
    int boxClock = 0;        ///< ms, the sampling period that the box was last asked for or has reported
    bool linkWanted = false; ///< errors of a link that the user gave up are of no interest

    // --- Transfers and restart of the box ---
    QString temporaryDirectory;
    QHash<QString, QString> copiedFrom; ///< the local file of which a file in the temporary directory is a copy
    QElapsedTimer sinceRestart;         ///< since the box was told to restart; invalid: not waited for
    QTimer reconnectTimer;
    int restartWait; ///< ms
    bool fetching = false;
    bool fetchCancelled = false;

    // --- Lines of the box ---
    std::deque<QString> heldLines;
    QTimer resumeTimer;
    int holds = 0; ///< > 0: lines wait
    bool dispatching = false;
    bool valuesInThousandths = false;
    bool listActive = false;
    QStringList listBlock;
    QElapsedTimer sinceLastSample;

    // --- Questions ---
    int openPrompts = 0;
    QTimer deferredTimer;
    std::optional<ReceivedProject> receivedProject; ///< the newest that the user has not been asked about

    // --- Recording ---
    bool recordingRunning = false;
    bool calibrating = false;
    RecordingSeries series;
    std::optional<SampleLine> unstoredAnswer; ///< came while calibrating and found no measurement to land in

    /// Runs a dialog of the view; counted as open until it has its answer.
    template <typename Dialog>
    auto prompt(Dialog dialog)
    {
        const PromptScope scope(openPrompts);
        return dialog();
    }

    // --- Files ---
    int importDone = 0;
    int importTotal = 0;                          ///< logger files that are being imported; 0: none
    bool fileSaved = false;                       ///< how the last save ended
    std::vector<std::function<void()>> heldEdits; ///< made by the user while a file was being written
};

/// Keeps the lines of the box waiting for its lifetime. Bytes stay in the socket, whose buffer is bounded, so that
/// hours of an unanswered question cost no more than the samples themselves would.
class LineHold
{
public:
    LineHold(int &holds, MesotraConnector &connector, QTimer &resumeTimer)
        : m_holds(holds)
        , m_resumeTimer(resumeTimer)
    {
        ++m_holds;
        connector.setPaused(true);
    }
    ~LineHold()
    {
        if (--m_holds == 0)
            m_resumeTimer.start(0);
    }
    Q_DISABLE_COPY_MOVE(LineHold)

private:
    int &m_holds;
    QTimer &m_resumeTimer;
};
