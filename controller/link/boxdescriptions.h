#pragma once

#include "device/protocol/descriptions.h"
#include "model/devicedescription.h"
#include "model/sensordescription.h"

#include <QObject>
#include <QTimer>

#include <optional>

class MesotraConnector;
class Model;
class ProjectEdits;
class Recorder;
class View;

/// Asks the box for the descriptions of itself and of its sensors, waits for both, and puts them into the model; keeps
/// them for the next project, since a box describes itself only once per connection.
class BoxDescriptions : public QObject
{
    Q_OBJECT

public:
    /// How long to wait for each description, in ms.
    struct Timeouts
    {
        int device;
        int sensors;
    };

    /// All references must outlive the descriptions.
    BoxDescriptions(View &view, Model &model, MesotraConnector &connector, ProjectEdits &edits, Recorder &recorder,
                    Timeouts timeouts);

    /// Forgets those of the former box and asks for new ones.
    void request();
    void stopWaiting();
    void takeDevice(const QString &message);
    void takeSensors(const QString &message);
    /// Puts both into the model, which has been cleared, while a box is connected.
    void describeAgain();

signals:
    void deviceWaitOver();
    void sensorWaitOver();
    /// The sensors have been described, or will not be: the scale of the values is known.
    void scaleKnown();
    /// The description of the device contained one of a project.
    void projectReceived(const ReceivedProject &project);

private:
    View &m_view;
    Model &m_model;
    MesotraConnector &m_connector;
    ProjectEdits &m_edits;
    Recorder &m_recorder;
    QTimer m_deviceTimer;
    QTimer m_sensorTimer;
    std::optional<DeviceDescription> m_device;
    std::optional<SensorDescription> m_sensors;
};
