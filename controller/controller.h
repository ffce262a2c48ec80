#pragma once

#include "controller/controlleroptions.h"

#include <QAbstractSocket>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class MesotraConnector;
class Model;
class QDir;
class View;
struct ControllerParts;

/// Joins the user's actions, the device link and the data. Created last, deleted first; the model and the view must
/// outlive it. Each slot writes its signature to the log and leaves the rest to one of its parts.
///
/// One question at a time: a question or error that the box causes waits until no other dialog is up and no file is
/// being read or written. While such a question is up, or a file is being read or written, the lines of the box wait
/// in order in the socket and are handled afterwards. Dialogs that the user opens do not hold up the samples. What
/// the user asks for while a dialog is up or a file is being read or written is refused with a status message.
class Controller : public QObject
{
    Q_OBJECT

public:
    Controller(Model *model, View *view, const ControllerOptions &options = {});
    ~Controller() override;

    /// True from the box's echo of the start to its echo of the stop, or to the end of the link.
    [[nodiscard]] bool isRecordingRunning() const;
    /// The measurement of a sensor position (0 to 4) that receives the samples; -1 for none.
    [[nodiscard]] int seriesIndex(int position) const;
    /// True while sample values are taken as thousandths because the box did not describe its sensors.
    [[nodiscard]] bool areValuesInThousandths() const;
    /// Owned by the controller.
    [[nodiscard]] MesotraConnector *connector() const;
    /// Of the simulator while the demonstration runs, else 0.
    [[nodiscard]] qint64 demoProcessId() const;
    /// Copies the "*.bb" files of a folder into another one, over those of the same name unless these are copies from
    /// another folder that contain something else. The copies, absolute, in the order of the originals' names; what
    /// could not be copied is in the log only.
    QStringList copyLocalDirToTmpDir(const QString &localDirectory, const QDir &temporaryDirectory);

public slots:
    // --- Actions of the window ---
    void onNewProject();
    void onOpenProject();
    void onSaveProject();
    void onSaveProjectAs();
    /// The window switches to the tab itself; this requests the list if the box can send it.
    void onImportBlackBox();
    void onFirmwareUpdate();
    void onActionConnect();
    void onActionCalibration();
    void onActionStartStopRecording();
    void onActionQuit();
    /// The system wants the program to end: ends the recording, protects what is not saved, and quits without a
    /// question.
    void leaveAtOnce();

    // --- Tabs ---
    void onTabProject_projectDataChanged();
    void onTabProject_clearDataClicked();
    void onTabProject_onPhaseEditChanged(int phase, const QString &name);
    void onTabOszi_deleteMeasurements(const QString &range);
    void onTabOszi_markerChangedAbsolute(int index, int pos_ms);
    void onTabOszi_markerChangedRelative(int index, int pos_ms);
    void onTabOszi_checkBoxMarkerAbsClicked(bool absolute);
    void onTabBlackBox_listClicked();
    void onTabBlackBox_importClicked(const QStringList &files);
    void onTabBlackBox_fetchBlackBoxDataClicked();
    void onTabBlackBox_openLocalFolderClicked();

    // --- The link and its messages ---
    void onMessageReceived(const QString &message);
    void handleValueMessage(const QString &message);
    void handleDeviceDescription(const QString &message);
    void handleSensorDescription(const QString &message);
    void onConnected();
    void onDisconnected();
    void connectionError(QAbstractSocket::SocketError error);
    /// Only logged: what a box does not say about itself stays empty.
    void onTimerWaitForDeviceDescription_timeout();
    void onTimerWaitForSensorDescription_timeout();

private:
    void connectActions(const View &view);
    void connectTabs(const View &view);
    void connectDevice();
    void handleMessages();

    std::unique_ptr<ControllerParts> d;
};
