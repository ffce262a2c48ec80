#include "controller/link/samplingperiod.h"

#include "controller/logging.h"
#include "controller/occupancy.h"
#include "controller/recording/projectedits.h"
#include "controller/recording/recorder.h"
#include "device/mesotraconnector.h"
#include "device/protocol/messages.h"
#include "device/protocol/samplingperiod.h"
#include "model/edit/editscope.h"
#include "model/model.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/window/prompts/questions.h"
#include "view/window/view.h"

#include <utility>

namespace {

constexpr int kFirstPeriod = 100; // of every connection, in ms

} // namespace

SamplingPeriod::SamplingPeriod(const Desk &desk, MesotraConnector &connector, ProjectEdits &edits,
                               const Recorder &recorder)
    : m_desk(desk)
    , m_connector(connector)
    , m_edits(edits)
    , m_recorder(recorder)
{
    m_desk.view.tabOszi()->setSamplingPeriods(samplingPeriodLabels());
}

void SamplingPeriod::setBoxPeriod(int milliseconds)
{
    m_boxPeriod = milliseconds;
    emit boxPeriodChanged(milliseconds);
}

void SamplingPeriod::begin()
{
    m_ownPeriod = m_desk.model.numChannels(0) > 0 ? m_desk.model.clock() : kFirstPeriod;
    m_isFirstReplaced = false;
    m_isRepeated = false;
    m_connector.setClock(samplingPeriodLabel(kFirstPeriod));
    setBoxPeriod(kFirstPeriod);
    if (m_desk.model.clock() != kFirstPeriod && m_ownPeriod == kFirstPeriod)
        m_edits.markModified();
    m_desk.model.setClock(kFirstPeriod);
}

void SamplingPeriod::restore()
{
    if (m_ownPeriod == kFirstPeriod)
        return;
    m_isFirstReplaced = true; // or its echo would change the time axis of what was recorded
    m_desk.model.setClock(m_ownPeriod);
    if (!samplingPeriodLabel(m_ownPeriod).isEmpty())
        m_desk.view.showStatus(tr("Die Box misst jetzt wie das Projekt mit %1 ms je Wert.").arg(m_ownPeriod));
    matchProject();
}

void SamplingPeriod::repeat()
{
    m_isRepeated = true;
    const QString label = samplingPeriodLabel(m_boxPeriod);
    if (label.isEmpty())
        (void)m_connector.write(QStringLiteral("t=%1\n").arg(m_boxPeriod)); // the silence goes on if it fails
    else
        m_connector.setClock(label);
}

void SamplingPeriod::choose(const QString &label)
{
    qCDebug(lcController) << Q_FUNC_INFO << label;
    if (m_desk.occupancy.refuseWhileOccupied() || label == samplingPeriodLabel(m_desk.model.clock()))
        return;
    if (m_recorder.isRunning()) {
        m_desk.view.showStatus(tr("Die Abtastrate lässt sich nicht ändern, solange eine Aufzeichnung läuft."));
        return;
    }
    // A project has one period for all its measurements: the time axis of the existing ones would change too.
    const QString question = tr("Die vorhandenen Messungen erhalten die Zeitachse der neuen Abtastrate. Fortfahren?");
    if (m_desk.model.numChannels(0) > 0 && !m_desk.occupancy.ask([&] {
            return m_desk.view.questions().yesNoDestructive(tr("Abtastrate ändern"), question);
        }))
        return;
    m_isFirstReplaced = false;
    m_isRepeated = false;
    m_connector.setClock(label); // project and plots follow with the echo
}

void SamplingPeriod::takeEcho(const QString &message)
{
    const std::optional<int> clock = parseClockEcho(message);
    if (!clock || *clock < 1 || *clock > Model::kMaxClock) {
        qCDebug(lcController) << "ERROR";
        return;
    }
    if (std::exchange(m_isFirstReplaced, false) && *clock == kFirstPeriod)
        return;
    // The project may have a period that the box cannot have; its shots keep it.
    if (std::exchange(m_isRepeated, false) && *clock == m_boxPeriod)
        return;
    m_desk.model.blockSignals(false);
    if (*clock != m_desk.model.clock())
        m_edits.markModified();
    setBoxPeriod(*clock);
    // Only with measurements there is something that another time axis could spoil.
    const EditScope edit(m_desk.model.numChannels(0) > 0 ? &m_desk.model : nullptr,
                         [] { return tr("Änderung der Abtastrate"); });
    m_desk.model.setClock(*clock);
    m_desk.view.tabOszi()->setClock(*clock, *clock * 100);
}

void SamplingPeriod::matchProject()
{
    const int clock = m_desk.model.clock();
    if (!m_connector.isConnected() || clock == m_boxPeriod)
        return;
    const QString label = samplingPeriodLabel(clock);
    if (label.isEmpty())
        m_desk.view.showStatus(tr("Achtung: Das Projekt ist mit %1 ms je Wert aufgezeichnet, die Box misst mit %2 ms.")
                                   .arg(clock)
                                   .arg(m_boxPeriod));
    else
        setBoxPeriod(clock); // the next project may come in before the echo
    m_connector.setClock(label);
}
