#pragma once

#include "device/demobox.h"
#include "device/scpprocess.h"

#include <QAbstractSocket>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class MesotraConnector;
class Model;
class QColor;
class QDir;
class QImage;
class QPixmap;
class View;
class SensorDescription;
struct ReceivedProject;
struct ScpMessage;

/// What the controller takes from outside, so that a test need not wait or use the real port.
struct ControllerOptions
{
    QString deviceAddress; ///< connected to first; empty: the user is asked
    quint16 port = 2222;
    int deviceDescriptionTimeout = 500; ///< ms
    int sensorDescriptionTimeout = 700; ///< ms
    QString scpToolFile;                ///< empty: "winscp/winscp.com" beside the program
    ScpTimeouts scpTimeouts;
    QString temporaryDirectory = QStringLiteral("tmp-blackbox-dir"); ///< for what is fetched; created when missing
    QString demoProgram;                                             ///< empty: the simulator beside the program
    int demoStartTimeout = DemoBox::kStartTimeout;                   ///< ms
    int restartWait = 3000; ///< ms; how long the firmware dialog waits for a connection
};

/// Joins the user's actions, the device link and the data. Created last, deleted first; the model and the view must
/// outlive it.
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
    /// another folder that hold something else. The copies, absolute, in the order of the originals' names; what could
    /// not be copied is in the log only.
    QStringList copyLocalDirToTmpDir(const QString &localDirectory, const QDir &temporaryDirectory);

public slots:
    void onNewProject();
    void onOpenProject();
    /// The file was named without a dialog; unsaved changes are asked about all the same.
    void onOpenProjectFile(const QString &fileName);
    void onSaveProject();
    void onSaveProjectAs();
    void onImportBlackBox();
    void onFirmwareUpdate();
    void onActionConnect();
    /// Leaves the box there may be, after a question.
    void onConnectToAddress(const QString &address);
    void onActionDemo();
    void onDemoListening(quint16 port);
    void onDemoFailed(DemoBox::End end);
    void onActionCalibration();
    void onActionStartStopRecording();
    void onActionQuit();
    void onActionAbout();
    void onTabProject_projectDataChanged();
    void onTabProject_clearDataClicked();
    void onTabProject_onPhaseEditChanged(int phase, const QString &name);
    void onTabProject_commentChanged();
    void onTabProject_imageButtonClicked(int image);
    void onTabProject_imageDeleteClicked(int image);
    void onTabProject_imageSaveClicked(int image);
    void onTabProject_imageFilesGiven(int image, const QStringList &files);
    void onTabProject_imageGiven(int image, const QImage &picture);
    void onTabOszi_deleteMeasurements(const QString &range);
    void onTabOszi_markerChangedAbsolute(int index, int pos_ms);
    void onTabOszi_markerChangedRelative(int index, int pos_ms);
    void onTabOszi_checkBoxMarkerAbsClicked(bool absolute);
    void onTabOszi_offsetEdited(int position, double offset);
    void onTabOszi_rangeEdited();
    void onTabOszi_samplingPeriodChosen(const QString &label);
    void onTabSensors_nameEdited(int sensor, const QString &name);
    void onTabSensors_colorEdited(int sensor, const QColor &color);
    void onTabSensors_limitsEdited(int group, int sensor, double minimum, double maximum);
    void onTabBlackBox_listClicked();
    void onTabBlackBox_importClicked(const QStringList &files);
    void onTabBlackBox_fetchBlackBoxDataClicked();
    void onTabBlackBox_openLocalFolderClicked();
    void onTerminalSend(const QString &line);
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
    void connectUserActions();
    void connectTabs();
    void connectDevice();
    void connectDemo();
    void showFileProgress(int percent);
    void hideProgressWhenIdle();
    [[nodiscard]] bool isOccupied() const;
    [[nodiscard]] bool refuseWhileOccupied();
    [[nodiscard]] bool refuseWhileConnecting();

    void connectTransfers(const ControllerOptions &options);
    void showTransferMessage(const ScpMessage &message);
    [[nodiscard]] std::optional<QDir> temporaryDirectory();
    [[nodiscard]] QStringList fetchDates(const QStringList &dates, const QDir &target);
    void offerFetched(const QStringList &dates, const QDir &target);
    [[nodiscard]] bool cancelFetch();
    [[nodiscard]] bool isBoxRestarting() const;
    [[nodiscard]] bool waitForRestart(QAbstractSocket::SocketError error);
    void reconnectAfterRestart();

    void dispatch(const QString &message);
    void handleClockEcho(const QString &message);
    void showNewSensorLimits(const SensorDescription &before, const SensorDescription &now);
    void handleListLine(const QString &message);
    void finishList();
    [[nodiscard]] bool areLinesHeld() const;
    void resumeLines();
    void dispatchHeldLine();
    void askAboutReceivedProject();
    void applyReceivedProject(const ReceivedProject &received);
    void handleDeferred();

    [[nodiscard]] bool refuseImportWhileRecording();
    [[nodiscard]] QStringList withoutUnwantedRepeats(const QStringList &files);
    void importFiles(const QStringList &files);
    void finishImport(const SensorDescription &before);

    void startRecording();
    void stopRecording();
    void beginMeasurement();
    void markModified();
    void calibrateFromLatestValues();
    [[nodiscard]] bool deleteRange(const QString &range);
    [[nodiscard]] int deleteMeasurements(qint64 first, qint64 count);
    void finishDeletion(bool complete, const QString &range);
    void setMarker(int index, int pos_ms, bool absolute);

    void connectTo(const QString &address, const QString &progressText);
    void cancelConnecting();
    void leaveDevice();
    void disconnectBox();
    void stopDemo();
    void showDemoState();
    [[nodiscard]] bool mayStartDemo();
    [[nodiscard]] bool refuseInDemo();
    [[nodiscard]] bool mayLeaveForAddress(const QString &address);
    void showDeferredWarning();
    void matchBoxToProject();
    void describeBoxAgain();
    void reportConnectionError(QAbstractSocket::SocketError error);
    void offerReconnect();

    [[nodiscard]] bool saveUnsavedChanges();
    [[nodiscard]] bool saveTo(const QString &fileName);
    [[nodiscard]] bool confirmQuit();
    /// Opens the file after the question about unsaved changes.
    void replaceProject(const QString &fileName);
    void openFile(const QString &fileName);
    void showDeviceState();
    [[nodiscard]] QString askProjectFileToSave();
    [[nodiscard]] QString askPictureFileToSave();
    void applyEdit(const std::function<void()> &edit);
    [[nodiscard]] bool mayReplaceImage(int image);
    [[nodiscard]] bool takeImageFile(int image, const QString &file);
    void setImage(int image, const QPixmap &picture);

    struct Private;
    std::unique_ptr<Private> d;
};
