#include "controller/link/boxdescriptions.h"

#include "controller/logging.h"
#include "controller/recording/projectedits.h"
#include "controller/recording/recorder.h"
#include "controller/sensornews.h"
#include "device/mesotraconnector.h"
#include "model/edit/editscope.h"
#include "model/model.h"
#include "view/window/view.h"

BoxDescriptions::BoxDescriptions(View &view, Model &model, MesotraConnector &connector, ProjectEdits &edits,
                                 Recorder &recorder, Timeouts timeouts)
    : m_view(view)
    , m_model(model)
    , m_connector(connector)
    , m_edits(edits)
    , m_recorder(recorder)
{
    m_deviceTimer.setSingleShot(true);
    m_deviceTimer.setInterval(timeouts.device);
    m_sensorTimer.setSingleShot(true);
    m_sensorTimer.setInterval(timeouts.sensors);
    connect(&m_deviceTimer, &QTimer::timeout, this, &BoxDescriptions::deviceWaitOver);
    connect(&m_sensorTimer, &QTimer::timeout, this, &BoxDescriptions::sensorWaitOver);
}

void BoxDescriptions::request()
{
    m_device.reset();
    m_sensors.reset();
    qCDebug(lcController) << "starting DeviceDescription timer";
    m_deviceTimer.start();
    m_connector.requestDeviceDescription();
    qCDebug(lcController) << "starting SensorDescription timer";
    m_sensorTimer.start();
    m_connector.requestSensorDescription();
}

void BoxDescriptions::stopWaiting()
{
    m_deviceTimer.stop();
    m_sensorTimer.stop();
}

void BoxDescriptions::takeDevice(const QString &message)
{
    m_deviceTimer.stop();
    m_device = parseDeviceDescription(message);
    m_model.setDeviceDescription(*m_device);
    m_model.emitProjectChanged(); // a description of the sensors need not follow
    const std::optional<ReceivedProject> received = parseProjectDescription(message);
    if (!received)
        return;
    qCDebug(lcController) << "Received projectData:" << received->data;
    emit projectReceived(*received);
}

void BoxDescriptions::takeSensors(const QString &message)
{
    m_sensorTimer.stop();
    m_recorder.setValuesInThousandths(false);
    const SensorDescription before = m_model.sensorDescription();
    SensorDescription description = before; // the box does not describe colours
    applySensorDescription(parseSensorDescription(message), description);
    m_model.blockSignals(false);
    // What the first box says about unknown sensors replaces nothing that anybody could want back.
    const EditScope edit(isAnySensorNamed(before) ? &m_model : nullptr,
                         [] { return tr("Übernahme der Sensorbeschreibung"); });
    // A project without a file or any edit contains nothing to lose: connecting alone must not lead to questions.
    if (!m_model.currentFile().isEmpty() && !isSavedAlike(before, description))
        m_edits.markModified();
    m_model.setSensorDescription(description);
    m_sensors = description;
    qCDebug(lcController) << "emit Model::projectChanged()";
    m_model.emitProjectChanged();
    showNewLimits(before, description, *m_view.tabOszi());
    if (isAnySensorNamed(before) && !isSavedAlike(before, description))
        m_view.showStatus(tr("Namen und Grenzen der Sensoren kommen jetzt von der Box."));
}

void BoxDescriptions::describeAgain()
{
    if (!m_model.isConnected())
        return; // descriptions of the previous box would be wrong for the next one
    if (m_device)
        m_model.setDeviceDescription(*m_device);
    if (m_sensors)
        m_model.setSensorDescription(*m_sensors);
    m_model.emitProjectChanged();
}
