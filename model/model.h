#pragma once

#include "model/blackbox/blackboxfile.h"
#include "model/devicedescription.h"
#include "model/project/projectimage.h"
#include "model/project/projectmeta.h"
#include "model/projectdata.h"
#include "model/samplelist.h"
#include "model/sensordescription.h"
#include "model/verticalmarkers.h"

#include <QColor>
#include <QObject>
#include <QPixmap>
#include <QSet>
#include <QStringList>
#include <QVariantMap>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QFile;
struct ProjectDocument;

/// The single owner of everything that a project holds. Lives on the GUI thread. Nothing throws; an index outside
/// its range is logged and the call does nothing.
///
/// Sample ownership: a SampleList stays at its address until its measurement is removed. A removed measurement is
/// kept alive until discardRemoved(), so that plots can still be drawn until they have been re-pointed. The model
/// calls discardRemoved() itself behind every dataChanged() that it could deliver (not while its signals are
/// blocked); so every receiver that keeps pointers must drop or re-point them synchronously in its slot whenever
/// structureRevision() differs from what it saw last. Whoever removes with blocked signals re-points directly and
/// then calls discardRemoved().
class Model : public QObject
{
    Q_OBJECT

public:
    static constexpr int kNumMarkers = kNumVerticalMarkers;
    static constexpr int kNumPhases = kNumCyclePhases;
    static constexpr int kNumImages = 5;

    /// Called from the long loops of open(), save(), saveCsv() and addBlackBoxFile(), about every 20 ms, with the
    /// progress in percent.
    using Yield = std::function<void(int percent)>;

    /// Opens the project file unless the name is empty.
    explicit Model(const QString &fileToOpen, QObject *parent = nullptr);
    ~Model() override;

    // --- Measurements: five channels, each an ordered list of measurements -------------------------------------
    [[nodiscard]] int numChannels(int sensor) const;
    /// nullptr if an index is out of range (not logged).
    [[nodiscard]] const SampleList *measurement(int sensor, int measurement) const;
    /// A number that no other measurement of this model has or had; 0 if an index is out of range (not logged). While
    /// it is the same, samples have been appended to the measurement but none changed.
    [[nodiscard]] quint64 measurementId(int sensor, int measurement) const;
    /// Appends one empty measurement to one sensor; returns its index, -1 for a bad sensor. Emits nothing.
    int appendMeasurement(int sensor);
    /// Appends one sample; a number that is not finite counts as 0. False for indices out of range. Emits nothing.
    bool appendSample(int sensor, int measurement, double value);
    /// Removes one measurement from all five channels; false if no channel has it. Emits nothing.
    [[nodiscard]] bool deleteChannel(int measurement);
    /// Frees the samples of removed measurements: call once no plot points at them any more.
    void discardRemoved();
    /// Changes whenever a measurement is added or removed (not when a sample is appended).
    [[nodiscard]] quint64 structureRevision() const { return m_structureRevision; }
    /// Last sample of the newest measurement; 0.0 if there is none.
    [[nodiscard]] double latestValue(int group, int sensor) const;
    [[nodiscard]] double minimumValue(int sensor, int measurement) const;
    [[nodiscard]] double maximumValue(int sensor, int measurement) const;
    /// Refused while the model is busy, like clear() and deleteChannel().
    void clearData();

    /// Kept beside the project file, like the labels. A null date-time for a measurement without one.
    [[nodiscard]] QDateTime timestamp(int measurement) const;
    void setTimestamp(int measurement, const QDateTime &timestamp);
    /// What the user calls a measurement; empty for one without a label.
    [[nodiscard]] QString shotLabel(int measurement) const;
    /// Cuts the label after ProjectMeta::kLongestLabel characters; emits projectChanged().
    void setShotLabel(int measurement, const QString &label);

    /// Settings of the evaluation, labels and time stamps; written beside the project file with every save().
    [[nodiscard]] const ProjectMeta &projectMeta() const { return m_meta; }
    void setProjectMeta(const ProjectMeta &meta); ///< emits projectChanged()

    // --- Display settings that belong to the project -----------------------------------------------------------
    [[nodiscard]] double offset(int sensor) const;
    void setOffset(int sensor, double offset);
    void resetOffsets();
    [[nodiscard]] QColor color(int sensor) const;
    void setColor(uint8_t sensor, const QColor &color);
    [[nodiscard]] QString phaseName(int phase) const;
    void setPhaseName(int phase, const QString &name);
    /// After a change of the program's language: a name that is still the default one follows; emits projectChanged()
    /// if one did. The project does not count as modified.
    void retranslatePhaseNames();
    /// Sample index of a marker; -1 for a bad index. The four are in non-decreasing order.
    [[nodiscard]] int verticalMarker(int index) const;
    /// A marker that passes its neighbours takes them along; see withMarkerAt() and withMarkerDistance().
    void setVerticalMarkerAbsolute(int index, int pos);
    void setVerticalMarkerRelative(int index, int pos);
    [[nodiscard]] bool markersAbsolute() const { return m_markersAbsolute; }
    void setMarkersAbsolute(bool absolute); ///< emits projectChanged()
    [[nodiscard]] double osziMinimum(int sensor) const;
    [[nodiscard]] double osziMaximum(int sensor) const;
    /// Part of the saved view; no change signal.
    void setOsziMinimum(int sensor, double value);
    void setOsziMaximum(int sensor, double value);

    // --- Description of project and device ---------------------------------------------------------------------
    [[nodiscard]] const ProjectData &projectData() const { return m_projectData; }
    void setProjectData(const ProjectData &data);
    [[nodiscard]] QString comment() const { return m_comment; }
    void setComment(const QString &comment);
    [[nodiscard]] QPixmap image(int index) const;
    void setImage(int index, const QPixmap &image);
    [[nodiscard]] const SensorDescription &sensorDescription() const { return m_sensorDescription; }
    void setSensorDescription(const SensorDescription &description); ///< emits nothing
    [[nodiscard]] const DeviceDescription &deviceDescription() const { return m_deviceDescription; }
    void setDeviceDescription(const DeviceDescription &description); ///< emits nothing; takes over both versions
    void setSensorName(int sensor, const QString &name);
    void setSensorMinimum(int group, int sensor, double minimum);
    void setSensorMaximum(int group, int sensor, double maximum);
    [[nodiscard]] QString hardwareVersion() const { return m_hardwareVersion; }
    [[nodiscard]] QString firmwareVersion() const { return m_firmwareVersion; }
    [[nodiscard]] int mesotraType() const { return m_mesotraType; }
    /// Sampling interval in milliseconds, 1 to kMaxClock.
    [[nodiscard]] int clock() const { return m_clock; }
    void setClock(int milliseconds); ///< takes the nearest value in range
    static constexpr int kMaxClock = 3600000;

    /// The logger files that were imported, absolute; neither part of the project file, nor changed by deletions.
    [[nodiscard]] QStringList fileList() const { return m_fileList; }
    void setFileList(const QStringList &files);
    /// The fingerprints of the files on the list, which tell them from others that came to the same place later.
    [[nodiscard]] QSet<QByteArray> importedFiles() const { return m_importedFiles; }

    // --- State -------------------------------------------------------------------------------------------------
    [[nodiscard]] bool isConnected() const { return m_connected; }
    void setConnected(bool connected); ///< emits nothing
    [[nodiscard]] bool isProjectModified() const { return m_projectModified; }
    void setProjectModifiedFlag(bool modified);
    [[nodiscard]] QString currentFile() const { return m_currentFile; }
    void setCurrentFile(const QString &absolutePath);
    /// True while open(), save(), saveCsv() or addBlackBoxFile() runs: no second one, no deletion and no quit may start
    /// then.
    [[nodiscard]] bool isBusy() const { return m_busy; }
    /// Ends a recording on the side of the data: gives back the memory that the newest measurements have not used.
    void endRecording();
    void clear();

    // --- Files -------------------------------------------------------------------------------------------------
    [[nodiscard]] bool open(const QString &fileName);
    [[nodiscard]] bool save(const QString &fileName);
    /// False if the last save() wrote the project, but not the file beside it.
    [[nodiscard]] bool isProjectMetaSaved() const { return m_metaSaved; }
    [[nodiscard]] bool saveCsv(const QString &fileName);
    /// Appends what a logger file of the box recorded as one measurement, unless the file tells of none, and takes over
    /// what it says about the sensors. Goes on the fileList(). False if it is no regular file or cannot be read.
    [[nodiscard]] bool addBlackBoxFile(const QString &fileName);
    /// What the last addBlackBoxFile() could not take over.
    [[nodiscard]] BlackBoxLosses blackBoxLosses() const { return m_blackBoxLosses; }
    /// Replaces QCoreApplication::processEvents() as what the long loops call.
    void setYield(const Yield &yield);

    // --- Emission with its log line, for the controller --------------------------------------------------------
    void emitAppStateChanged();
    void emitProjectChanged();
    /// Cheap enough for every sample line: receivers coalesce their work to once per turn of the event loop.
    void emitDataChanged();

signals:
    void appStateChanged();
    void projectChanged();
    void dataChanged();
    void viewDataChanged();
    /// The name of the project's file or its modified mark has changed.
    void fileStateChanged();

private:
    using Channel = std::vector<std::unique_ptr<SampleList>>;

    friend class ChangeScope;
    struct PendingChanges
    {
        int scopes = 0; // open ones
        bool appState = false;
        bool project = false;
        bool data = false;
    };
    void endChanges();
    void setModified(bool modified);

    // The log lines of these name the caller.
    void announceProjectChanged(const char *function);
    void announceDataChanged(const char *function);
    void announceOpened(const char *function);
    [[nodiscard]] bool refusesWhileBusy(const char *function) const;
    [[nodiscard]] bool hasMeasurement(int sensor, int measurement, const char *function) const;
    [[nodiscard]] int measurementCount() const;

    void resetColors();
    void resetPhaseNames();
    void resetSensorDescription();
    void clearImages();

    struct OpenedProject;
    [[nodiscard]] ProjectDocument toDocument() const;
    void describeSensors(ProjectDocument &document) const;
    [[nodiscard]] bool writeFile(const QString &fileName, bool asProject);
    [[nodiscard]] std::optional<OpenedProject> readFile(QFile &file);
    void apply(OpenedProject &project, const QString &absolutePath);
    [[nodiscard]] std::optional<BlackBoxDocument> readBlackBoxFile(QFile &file);
    void apply(BlackBoxDocument &document);
    void rememberImported(const QString &file);
    void applyDescription(const QVariantMap &fields);
    void applyChannel(int sensor, std::optional<Channel> &channel);
    void applyLabels(const QVariantMap &fields);
    void applySensors(const QVariantMap &fields);
    void applyViewData(const QVariantMap &fields);
    void useDistanceSensors();
    [[nodiscard]] ShotChecks shotChecks() const;
    void openMeta(const QString &projectFile);

    std::array<Channel, kNumSensors> m_channels;
    std::array<std::vector<quint64>, kNumSensors> m_ids; // one a measurement
    quint64 m_lastId = 0;
    Channel m_removed;
    ProjectMeta m_meta;
    quint64 m_structureRevision = 0;
    quint64 m_changes = 0; // counts what makes a project file that is being written out of date
    std::array<double, kNumSensors> m_offsets{};
    std::array<QColor, kNumSensors> m_colors;
    VerticalMarkers m_markers{};
    std::array<QString, kNumPhases> m_phaseNames;
    std::array<QString, kNumPhases> m_defaultPhaseNames; // in the language in use
    std::array<QPixmap, kNumImages> m_images;
    std::array<EncodedImage, kNumImages> m_encodedImages;
    SensorDescription m_sensorDescription;
    DeviceDescription m_deviceDescription;
    ProjectData m_projectData;
    QString m_comment;
    QString m_hardwareVersion;
    QString m_firmwareVersion;
    QString m_currentFile;
    QStringList m_fileList;
    QSet<QByteArray> m_importedFiles;
    BlackBoxLosses m_blackBoxLosses;
    std::array<double, kNumSensors> m_osziMinimum{};
    std::array<double, kNumSensors> m_osziMaximum{};
    int m_mesotraType = 0;
    int m_clock = 100;
    bool m_markersAbsolute = false;
    bool m_projectModified = false;
    bool m_connected = false;
    bool m_busy = false;
    bool m_metaSaved = true;
    Yield m_yield;
    PendingChanges m_pending;
};
