#pragma once

#include "model/blackbox/blackboximport.h"
#include "model/devicedescription.h"
#include "model/edit/modeledits.h"
#include "model/indexcheck.h"
#include "model/journal/journalinfo.h"
#include "model/modelchanges.h"
#include "model/modelfiles.h"
#include "model/project/filework.h"
#include "model/project/project.h"

#include <QColor>
#include <QObject>
#include <QPixmap>
#include <QSet>
#include <QStringList>

#include <cstdint>
#include <memory>

/// The single owner of everything that a project holds. Lives on the GUI thread. Nothing throws; an index outside
/// its range is logged and the call does nothing.
///
/// Sample ownership: a SampleList stays at its address until its measurement is removed. A removed measurement is
/// kept alive until discardRemoved(), so that plots can still be drawn until they have been re-pointed. The model
/// calls discardRemoved() itself after every dataChanged() that it could deliver (not while its signals are
/// blocked); so every receiver that keeps pointers must drop or re-point them synchronously in its slot whenever
/// structureRevision() differs from what it saw last. Whoever removes with blocked signals re-points directly and
/// then calls discardRemoved().
class Model : public QObject
{
    Q_OBJECT

public:
    static constexpr int kNumMarkers = kNumVerticalMarkers;
    static constexpr int kNumPhases = kNumCyclePhases;
    static constexpr int kNumImages = kNumProjectImages;

    /// Called from the long loops of open(), save(), saveCsv() and addBlackBoxFile(), about every 20 ms, with the
    /// progress in percent.
    using Yield = FileWork::Yield;

    /// Opens the project file unless the name is empty.
    explicit Model(const QString &fileToOpen, QObject *parent = nullptr);
    ~Model() override;

    // --- Measurements: five channels, each an ordered list of measurements -------------------------------------
    [[nodiscard]] int numChannels(int sensor) const
    {
        return hasSensor(sensor, Q_FUNC_INFO) ? m_project.shots.count(sensor) : 0;
    }
    /// nullptr if an index is out of range (not logged).
    [[nodiscard]] const SampleList *measurement(int sensor, int measurement) const
    {
        return m_project.shots.samples(sensor, measurement);
    }
    /// A number that no other measurement of this model has or had; 0 if an index is out of range (not logged). While
    /// it is the same, samples have been appended to the measurement but none changed.
    [[nodiscard]] quint64 measurementId(int sensor, int measurement) const
    {
        return m_project.shots.id(sensor, measurement);
    }
    /// The measurement that has this id; -1 if there is none.
    [[nodiscard]] int indexOfMeasurement(int sensor, quint64 id) const { return m_project.shots.indexOf(sensor, id); }
    /// Appends one empty measurement to one sensor; returns its index, -1 for a bad sensor. Emits nothing.
    int appendMeasurement(int sensor) { return hasSensor(sensor, Q_FUNC_INFO) ? m_project.shots.append(sensor) : -1; }
    /// Appends one sample; a number that is not finite counts as 0. False for indices out of range. Emits nothing.
    bool appendSample(int sensor, int measurement, double value)
    {
        return m_project.shots.appendSample(sensor, measurement, value);
    }
    /// Removes one measurement from all five channels; false if no channel has it. Emits nothing.
    [[nodiscard]] bool deleteChannel(int measurement);
    /// As often as `count` says, which is much faster where many are to go; returns how many were removed.
    [[nodiscard]] int deleteChannels(int first, int count)
    {
        return m_work.refuses(Q_FUNC_INFO) || !hasShot(first, Q_FUNC_INFO) ? 0 : m_project.removeShots(first, count);
    }
    /// Frees the samples of removed measurements: call once no plot points at them any more.
    void discardRemoved() { m_project.shots.discardRemoved(); }
    /// Changes whenever a measurement is added or removed (not when a sample is appended).
    [[nodiscard]] quint64 structureRevision() const { return m_project.shots.structureRevision(); }
    /// Last sample of the newest measurement; 0.0 if there is none.
    [[nodiscard]] double latestValue(int group, int sensor) const;
    [[nodiscard]] double minimumValue(int sensor, int measurement) const
    {
        return hasMeasurement(sensor, measurement, Q_FUNC_INFO) ? m_project.shots.minimum(sensor, measurement) : 0.0;
    }
    [[nodiscard]] double maximumValue(int sensor, int measurement) const
    {
        return hasMeasurement(sensor, measurement, Q_FUNC_INFO) ? m_project.shots.maximum(sensor, measurement) : 0.0;
    }
    /// Refused while the model is busy, like clear() and deleteChannel().
    void clearData();

    /// Kept beside the project file, like the labels. A null date-time for a measurement without one.
    [[nodiscard]] QDateTime timestamp(int measurement) const
    {
        return hasShot(measurement, Q_FUNC_INFO) ? m_project.meta.timestamp(measurement) : QDateTime();
    }
    void setTimestamp(int measurement, const QDateTime &timestamp);
    /// Milliseconds per sample when the measurement began; 0 if unknown, as for those of logger files. Kept beside the
    /// project file, too.
    [[nodiscard]] int samplingPeriod(int measurement) const
    {
        return hasShot(measurement, Q_FUNC_INFO) ? m_project.meta.period(measurement) : 0;
    }
    void setSamplingPeriod(int measurement, int milliseconds); ///< emits nothing
    /// What the user calls a measurement; empty for one without a label.
    [[nodiscard]] QString shotLabel(int measurement) const
    {
        return hasShot(measurement, Q_FUNC_INFO) ? m_project.meta.label(measurement) : QString();
    }
    /// Cuts the label after ProjectMeta::kLongestLabel characters; emits projectChanged().
    void setShotLabel(int measurement, const QString &label);

    /// Settings of the evaluation, labels and time stamps; written beside the project file with every save().
    [[nodiscard]] const ProjectMeta &projectMeta() const { return m_project.meta; }
    void setProjectMeta(const ProjectMeta &meta); ///< emits projectChanged()

    // --- Display settings that belong to the project -----------------------------------------------------------
    [[nodiscard]] double offset(int sensor) const { return valueAt(m_project.settings.offsets, sensor, Q_FUNC_INFO); }
    void setOffset(int sensor, double offset);
    void resetOffsets();
    [[nodiscard]] QColor color(int sensor) const { return valueAt(m_project.colors, sensor, Q_FUNC_INFO); }
    void setColor(uint8_t sensor, const QColor &color);
    [[nodiscard]] QString phaseName(int phase) const;
    void setPhaseName(int phase, const QString &name);
    /// After a change of the program's language: a name that is still the default one follows; emits projectChanged()
    /// if one did. The project does not count as modified.
    void retranslatePhaseNames();
    /// Sample index of a marker; -1 for a bad index. The four are in non-decreasing order.
    [[nodiscard]] int verticalMarker(int index) const
    {
        return valueAt(m_project.settings.markers, index, Q_FUNC_INFO, -1);
    }
    /// A marker that passes its neighbours takes them along; see withMarkerAt() and withMarkerDistance().
    void setVerticalMarkerAbsolute(int index, int pos);
    void setVerticalMarkerRelative(int index, int pos);
    [[nodiscard]] bool markersAbsolute() const { return m_project.settings.markersAbsolute; }
    void setMarkersAbsolute(bool absolute); ///< emits projectChanged()
    [[nodiscard]] double osziMinimum(int sensor) const
    {
        return valueAt(m_project.settings.osziMinimum, sensor, Q_FUNC_INFO);
    }
    [[nodiscard]] double osziMaximum(int sensor) const
    {
        return valueAt(m_project.settings.osziMaximum, sensor, Q_FUNC_INFO);
    }
    /// Part of the saved view; no change signal.
    void setOsziMinimum(int sensor, double value);
    void setOsziMaximum(int sensor, double value);

    // --- Description of project and device ---------------------------------------------------------------------
    [[nodiscard]] const ProjectData &projectData() const { return m_project.settings.data; }
    void setProjectData(const ProjectData &data);
    [[nodiscard]] QString comment() const { return m_project.settings.comment; }
    void setComment(const QString &comment);
    /// Null also for a picture that the project has but that is not shown; images() tells.
    [[nodiscard]] QPixmap image(int index) const
    {
        return isIndex(index, kNumImages, Q_FUNC_INFO) ? m_project.images.shown(index) : QPixmap();
    }
    [[nodiscard]] const ImageStore &images() const { return m_project.images; }
    /// A null image also removes a picture that is not shown.
    void setImage(int index, const QPixmap &image);
    [[nodiscard]] const SensorDescription &sensorDescription() const { return m_project.settings.sensors; }
    void setSensorDescription(const SensorDescription &description); ///< emits nothing
    [[nodiscard]] const DeviceDescription &deviceDescription() const { return m_deviceDescription; }
    void setDeviceDescription(const DeviceDescription &description); ///< emits nothing; takes over both versions
    void setSensorName(int sensor, const QString &name);
    /// Kept beside the project file; cut after SensorGroup::kLongestUnit characters.
    void setSensorUnit(int sensor, const QString &unit);
    void setSensorMinimum(int group, int sensor, double minimum);
    void setSensorMaximum(int group, int sensor, double maximum);
    [[nodiscard]] QString hardwareVersion() const { return m_project.settings.hardwareVersion; }
    [[nodiscard]] QString firmwareVersion() const { return m_project.settings.firmwareVersion; }
    [[nodiscard]] int mesotraType() const { return m_project.settings.mesotraType; }
    /// Sampling interval in milliseconds, 1 to kMaxClock.
    [[nodiscard]] int clock() const { return m_project.settings.clock; }
    void setClock(int milliseconds); ///< takes the nearest value in range
    static constexpr int kMaxClock = ProjectSettings::kMaxClock;

    /// The logger files that were imported since the project was opened, absolute; not changed by deletions. Nothing
    /// uses the list yet.
    [[nodiscard]] QStringList fileList() const { return m_import.files().files(); }
    void setFileList(const QStringList &files);
    /// The fingerprints of all files that were imported, which tell them from later files of the same name. Kept beside
    /// the project file.
    [[nodiscard]] QSet<QByteArray> importedFiles() const { return m_project.meta.importedFiles; }

    // --- State -------------------------------------------------------------------------------------------------
    [[nodiscard]] bool isConnected() const { return m_connected; }
    void setConnected(bool connected); ///< emits nothing
    [[nodiscard]] bool isProjectModified() const { return m_files.isModified(); }
    void setProjectModifiedFlag(bool modified);
    /// Edits that can be undone: see EditScope.
    [[nodiscard]] ModelEdits &edits() { return m_edits; }
    [[nodiscard]] QString currentFile() const { return m_files.currentFile(); }
    void setCurrentFile(const QString &absolutePath);
    /// True while open(), save(), saveCsv() or addBlackBoxFile() runs: no second one, no deletion and no quit may start
    /// then.
    [[nodiscard]] bool isBusy() const { return m_work.isBusy(); }
    /// Ends a recording on the side of the data: gives back the memory that the newest measurements have not used.
    void endRecording();
    void clear();

    // --- Files -------------------------------------------------------------------------------------------------
    /// Reads a file completely, for the open() that follows, so that nobody is asked about a file that cannot be
    /// opened. False if it cannot.
    [[nodiscard]] bool readAhead(const QString &fileName) { return m_files.readAhead(fileName, Q_FUNC_INFO); }
    void forgetReadAhead() { m_files.forgetReadAhead(); }
    [[nodiscard]] bool open(const QString &fileName);
    /// What is not understood of the project that was opened.
    [[nodiscard]] const OpenLosses &openLosses() const { return m_files.openLosses(); }
    [[nodiscard]] bool save(const QString &fileName);
    /// False if the last save() wrote the project, but not the file beside it; it stays modified then.
    [[nodiscard]] bool isProjectMetaSaved() const { return !m_files.metaFault(); }
    /// Why; none if it wrote both.
    [[nodiscard]] const FileFault &projectMetaFault() const { return m_files.metaFault(); }
    [[nodiscard]] bool saveCsv(const QString &fileName);
    /// Why the last open(), save() or saveCsv() failed; none if it did not.
    [[nodiscard]] const FileFault &lastFileFault() const { return m_files.lastFault(); }
    /// False if the last save() should have kept the old file as a backup, but could not.
    [[nodiscard]] bool isOldFileKept() const { return m_files.isOldFileKept(); }
    /// Whether the current file still is what was opened or saved last; asked before it is replaced.
    [[nodiscard]] DiskCopy::State fileOnDisk() { return m_files.fileOnDisk(Q_FUNC_INFO); }
    void setSaveOptions(const SaveOptions &options) { m_files.setSaveOptions(options); }
    [[nodiscard]] const SaveOptions &saveOptions() const { return m_files.saveOptions(); }
    /// Appends what a logger file of the box recorded as one measurement, unless the file holds none, and takes over
    /// what it says about the sensors. Puts the file on the fileList(). False if it is no regular file or cannot be
    /// read.
    [[nodiscard]] bool addBlackBoxFile(const QString &fileName);
    /// What the last addBlackBoxFile() could not take over.
    [[nodiscard]] BlackBoxLosses blackBoxLosses() const { return m_import.losses(); }
    /// Replaces the project by that of a journal, which counts as modified then, and says what is missing; nothing,
    /// with the model as it was, if that is not possible. The contents are used up.
    [[nodiscard]] std::optional<RecoveryLosses> restore(JournalContents &contents)
    {
        return m_files.restore(contents, Q_FUNC_INFO);
    }
    /// For what writes the journal: all of the project, a number that grows with every change but appended samples, and
    /// what the file holds.
    [[nodiscard]] const Project &project() const { return m_project; }
    [[nodiscard]] quint64 changeCount() const { return m_changes.count(); }
    [[nodiscard]] const ModelFiles &files() const { return m_files; }
    /// Where the journal of this program is; shown to the user.
    [[nodiscard]] const JournalInfo &journalInfo() const { return m_journalInfo; }
    void setJournalInfo(const JournalInfo &info) { m_journalInfo = info; }
    /// Replaces QCoreApplication::processEvents() as what the long loops call.
    void setYield(const Yield &yield) { m_work.setYield(yield); }

    // --- Emission with its log line, for the controller --------------------------------------------------------
    void emitAppStateChanged() { m_changes.appState(Q_FUNC_INFO); }
    void emitProjectChanged() { m_changes.project(Q_FUNC_INFO); }
    /// Cheap enough for every sample line: receivers coalesce their work to once per turn of the event loop.
    void emitDataChanged() { m_changes.data(Q_FUNC_INFO); }

signals:
    void appStateChanged();
    void projectChanged();
    void dataChanged();
    void viewDataChanged();
    /// The name of the project's file or its modified mark has changed. Arrives even if the signals are blocked.
    void fileStateChanged();

private:
    friend class ChangeScope;
    class Editor;

    [[nodiscard]] static bool hasSensor(int sensor, const char *function)
    {
        return isIndex(sensor, kNumSensors, function);
    }
    [[nodiscard]] bool hasShot(int measurement, const char *function) const
    {
        return isIndex(measurement, static_cast<std::size_t>(m_project.shots.shotCount()), function);
    }
    [[nodiscard]] bool hasMeasurement(int sensor, int measurement, const char *function) const
    {
        return hasSensor(sensor, function)
               && isIndex(measurement, static_cast<std::size_t>(m_project.shots.count(sensor)), function);
    }
    [[nodiscard]] static PhaseNames usualPhaseNames();

    Project m_project;
    DeviceDescription m_deviceDescription;
    bool m_connected = false;
    FileWork m_work;
    ModelChanges m_changes{*this, m_project.shots};
    std::unique_ptr<Editor> m_editor;
    ModelFiles m_files;
    BlackBoxImport m_import;
    JournalInfo m_journalInfo;
    ModelEdits m_edits{m_project, m_import.files(), m_changes};
};
