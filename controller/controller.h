#pragma once

#include <QAbstractSocket>
#include <QObject>
#include <QString>

#include <memory>

class MesotraConnector;
class Model;
class View;

/// What the controller takes from outside, so that a test need not wait or use the real port.
struct ControllerOptions
{
    QString deviceAddress;
    quint16 port = 2222;
    int deviceDescriptionTimeout = 500; ///< ms
    int sensorDescriptionTimeout = 700; ///< ms
};

/// Joins the user's actions, the device link and the data. Created last, deleted first.
class Controller : public QObject
{
    Q_OBJECT

public:
    Controller(Model *model, View *view, const ControllerOptions &options = {});
    ~Controller() override;

    [[nodiscard]] bool isRecordingRunning() const;
    [[nodiscard]] MesotraConnector *connector() const;

public slots:
    void onNewProject();
    void onOpenProject();
    void onSaveProject();
    void onSaveProjectAs();
    void onImportBlackBox();
    void onFirmwareUpdate();
    void onActionConnect();
    void onActionCalibration();
    void onActionStartStopRecording();
    void onActionQuit();
    void onTabProject_projectDataChanged();
    void onTabProject_clearDataClicked();
    void onTabProject_onPhaseEditChanged(int phase, const QString &name);
    void onTabOszi_deleteMeasurements(const QString &range);
    void onTabOszi_markerChangedAbsolute(int index, int pos_ms);
    void onTabOszi_markerChangedRelative(int index, int pos_ms);
    void onTabOszi_checkBoxMarkerAbsClicked(bool absolute);
    void onTabBlackBox_listClicked();
    void onMessageReceived(const QString &message);
    void handleValueMessage(const QString &message);
    void handleDeviceDescription(const QString &message);
    void handleSensorDescription(const QString &message);
    void onConnected();
    void onDisconnected();
    void connectionError(QAbstractSocket::SocketError error);
    void onTimerWaitForDeviceDescription_timeout();
    void onTimerWaitForSensorDescription_timeout();

private:
    struct Private;
    std::unique_ptr<Private> d;
};
