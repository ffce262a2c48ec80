#include "controller/recordingend.h"

#include "controller/logging.h"
#include "controller/occupancy.h"
#include "controller/recording/recorder.h"
#include "device/mesotraconnector.h"

#include <QEventLoop>
#include <QTimer>

namespace {

constexpr int kLookInterval = 5; // ms between two looks whether the box has confirmed

} // namespace

RecordingEnd::RecordingEnd(const Desk &desk, MesotraConnector &connector, Recorder &recorder, int wait)
    : m_desk(desk)
    , m_connector(connector)
    , m_recorder(recorder)
    , m_wait(wait)
{}

bool RecordingEnd::isRecording() const
{
    return m_recorder.isRunning();
}

void RecordingEnd::finish()
{
    if (!m_recorder.isRunning() || !m_connector.isConnected())
        return;
    const TaskScope task(m_desk.occupancy, Task::Prompt); // events come in, but the user must not start anything
    m_recorder.requestStop();
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (!m_recorder.isRunning())
            loop.quit();
    });
    look.start(kLookInterval);
    QTimer::singleShot(m_wait, &loop, &QEventLoop::quit);
    loop.exec();
    if (m_recorder.isRunning())
        qCDebug(lcController) << "the box has not confirmed the end of the recording";
}

void RecordingEnd::finishForGood()
{
    finish();
    if (!m_recorder.isRunning())
        return;
    m_recorder.stopped();
    m_recorder.forgetSeries();
}
