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
    m_connector.setClock(samplingPeriodLabel(kFirstPeriod));
    setBoxPeriod(kFirstPeriod);
    if (m_desk.model.clock() != kFirstPeriod)
        m_edits.markModified();
    m_desk.model.setClock(kFirstPeriod);
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
    m_connector.setClock(label); // project and plots follow with the echo
}

void SamplingPeriod::takeEcho(const QString &message)
{
    const std::optional<int> clock = parseClockEcho(message);
    if (!clock || *clock < 1 || *clock > Model::kMaxClock) {
        qCDebug(lcController) << "ERROR";
        return;
    }
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
