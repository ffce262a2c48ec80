#include "controller/link/continuation.h"

#include "controller/recording/recorder.h"
#include "model/model.h"

#include <utility>

Continuation::Continuation(Model &model, Recorder &recorder)
    : m_model(model)
    , m_recorder(recorder)
{}

void Continuation::noteLoss(const QString &address, bool wasRecording)
{
    m_isWanted = m_isWanted || wasRecording; // the link may be lost again before the box has started
    m_address = address;
}

void Continuation::noteEstablished(const QString &address)
{
    m_isAsked = false;
    if (address != m_address)
        forget();
}

void Continuation::noteScaleKnown()
{
    // A description that is late comes in addition to the end of the wait for it.
    if (m_isWanted && !m_recorder.isRunning() && !std::exchange(m_isAsked, true))
        m_recorder.requestStart();
}

void Continuation::forget()
{
    if (std::exchange(m_isWanted, false) && m_isAsked)
        m_recorder.requestStop(); // the box has been asked to start, but has not said that it has
}

void Continuation::noteStarted()
{
    const int shot = m_recorder.seriesIndex(0);
    if (!std::exchange(m_isWanted, false) || shot < 0)
        return;
    m_model.setShotLabel(shot, tr("Fortsetzung nach Verbindungsabbruch"));
}
