#include "model/model.h"

#include "model/arrayindex.h"
#include "model/logging.h"
#include "model/modeleditor.h"

#include <cmath>

namespace {

double finiteOrZero(double value)
{
    return std::isfinite(value) ? value : 0.0;
}

} // namespace

class Model::Editor final : public ModelEditor<Model>
{
public:
    using ModelEditor::ModelEditor;
};

Model::Model(const QString &fileToOpen, QObject *parent)
    : QObject(parent)
    , m_editor(std::make_unique<Editor>(*this))
    , m_files(*m_editor, m_project, m_changes, m_work)
    , m_import(*m_editor, m_project, m_changes, m_work)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " fileToOpen=" << fileToOpen;
    // The parts announce without regard to blocked signals: a model whose signals are blocked stops them here.
    connect(&m_changes, &ModelChanges::appStateChanged, this, &Model::appStateChanged);
    connect(&m_changes, &ModelChanges::projectChanged, this, &Model::projectChanged);
    connect(&m_changes, &ModelChanges::dataChanged, this, &Model::dataChanged);
    connect(&m_changes, &ModelChanges::viewDataChanged, this, &Model::viewDataChanged);
    connect(&m_changes, &ModelChanges::fileStateChanged, this, &Model::fileStateChanged);
    clear();
    if (!fileToOpen.isEmpty() && !open(fileToOpen))
        qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " could not open " << fileToOpen;
}

Model::~Model() = default;

// --- Measurements ----------------------------------------------------------------------------------------------

bool Model::deleteChannel(int measurement)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " measurement=" << measurement;
    return !m_work.refuses(Q_FUNC_INFO) && hasShot(measurement, Q_FUNC_INFO)
           && m_project.removeShots(measurement, 1) > 0;
}

void Model::clearData()
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    if (m_work.refuses(Q_FUNC_INFO))
        return;
    m_project.clearShots();
    m_changes.data(Q_FUNC_INFO);
}

void Model::endRecording()
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    m_project.shots.squeezeNewest();
}

double Model::latestValue(int group, int sensor) const
{
    if (group != 0)
        qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " ERROR: group out of range! (" << group << ")";
    else if (sensor < 0 || sensor >= kNumSensors)
        qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " ERROR: sensor out of range! (" << sensor << ")";
    return group == 0 ? m_project.shots.latest(sensor) : 0.0;
}

void Model::setTimestamp(int measurement, const QDateTime &timestamp)
{
    qCDebug(lcModel) << Q_FUNC_INFO << measurement << timestamp;
    if (hasShot(measurement, Q_FUNC_INFO))
        m_project.meta.setTimestamp(measurement, timestamp);
    m_changes.countOne();
}

void Model::setSamplingPeriod(int measurement, int milliseconds)
{
    qCDebug(lcModel) << Q_FUNC_INFO << measurement << milliseconds;
    if (hasShot(measurement, Q_FUNC_INFO))
        m_project.meta.setPeriod(measurement, qBound(0, milliseconds, kMaxClock));
    m_changes.countOne();
}

void Model::setShotLabel(int measurement, const QString &label)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " measurement=" << measurement << " label=" << label;
    if (!hasShot(measurement, Q_FUNC_INFO))
        return;
    m_project.setLabel(measurement, label);
    m_changes.project(Q_FUNC_INFO);
}

void Model::setProjectMeta(const ProjectMeta &meta)
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    m_project.meta = meta;
    m_project.meta.keepShots(m_project.shots.shotCount());
    m_changes.project(Q_FUNC_INFO);
}

// --- Display settings that belong to the project ---------------------------------------------------------------

void Model::setOffset(int sensor, double offset)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " sensor=" << sensor << " offset=" << offset;
    const bool isSet = setAt(m_project.settings.offsets, sensor, finiteOrZero(offset), Q_FUNC_INFO);
    m_changes.projectIf(isSet, Q_FUNC_INFO);
}

void Model::resetOffsets()
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    m_edits.begin([] { return tr("Zurücksetzen der Offsets"); }, {});
    m_project.settings.offsets.fill(0.0);
    m_edits.end();
    m_changes.project(Q_FUNC_INFO);
}

void Model::setColor(uint8_t sensor, const QColor &color)
{
    qCDebug(lcModel) << Q_FUNC_INFO << sensor << color;
    m_changes.projectIf(setAt(m_project.colors, sensor, color, Q_FUNC_INFO), Q_FUNC_INFO);
}

QString Model::phaseName(int phase) const
{
    if (phase >= 0 && phase < kNumPhases)
        return m_project.settings.phaseNames[at(phase)];
    qCDebug(lcModel) << Q_FUNC_INFO << "ERROR: index>=size !";
    return {};
}

void Model::setPhaseName(int phase, const QString &name)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " phase=" << phase << " name=" << name;
    m_changes.projectIf(setAt(m_project.settings.phaseNames, phase, name, Q_FUNC_INFO), Q_FUNC_INFO);
}

PhaseNames Model::usualPhaseNames()
{
    return {tr("WZ schließen"), tr("Einspritzzeit"), tr("Nachdruckzeit"), tr("Kühlzeit"), tr("WZ öffnen")};
}

void Model::retranslatePhaseNames()
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    m_changes.projectIf(m_project.retranslatePhaseNames(usualPhaseNames()), Q_FUNC_INFO);
}

void Model::setVerticalMarkerAbsolute(int index, int pos)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " index=" << index << " pos=" << pos;
    VerticalMarkers &markers = m_project.settings.markers;
    markers = withMarkerAt(markers, index, pos);
    m_changes.projectIf(isIndex(index, markers.size(), Q_FUNC_INFO), Q_FUNC_INFO);
}

void Model::setVerticalMarkerRelative(int index, int pos)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " index=" << index << " pos=" << pos;
    VerticalMarkers &markers = m_project.settings.markers;
    markers = withMarkerDistance(markers, index, pos);
    m_changes.projectIf(isIndex(index, markers.size(), Q_FUNC_INFO), Q_FUNC_INFO);
}

void Model::setMarkersAbsolute(bool absolute)
{
    qCDebug(lcModel) << Q_FUNC_INFO << absolute;
    m_project.settings.markersAbsolute = absolute;
    m_changes.project(Q_FUNC_INFO);
}

void Model::setOsziMinimum(int sensor, double value)
{
    setAt(m_project.settings.osziMinimum, sensor, finiteOrZero(value), Q_FUNC_INFO);
}

void Model::setOsziMaximum(int sensor, double value)
{
    setAt(m_project.settings.osziMaximum, sensor, finiteOrZero(value), Q_FUNC_INFO);
}

// --- Description of project and device -------------------------------------------------------------------------

void Model::setProjectData(const ProjectData &data)
{
    qCDebug(lcModel) << Q_FUNC_INFO << data;
    m_project.settings.data = data;
    m_changes.project(Q_FUNC_INFO);
}

void Model::setComment(const QString &comment)
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    m_project.settings.comment = comment;
    m_changes.project(Q_FUNC_INFO);
}

void Model::setImage(int index, const QPixmap &image)
{
    qCDebug(lcModel) << Q_FUNC_INFO << index << image.size();
    m_changes.projectIf(setAt(m_project.images.pixmaps(), index, image, Q_FUNC_INFO), Q_FUNC_INFO);
}

void Model::setSensorDescription(const SensorDescription &description)
{
    qCDebug(lcModel) << Q_FUNC_INFO << description.numSensorGroups();
    m_project.settings.sensors = description;
    m_changes.countOne(); // no signal, but a file being written is out of date
}

void Model::setDeviceDescription(const DeviceDescription &description)
{
    qCDebug(lcModel) << Q_FUNC_INFO << description.hardwareVersion << description.firmwareVersion;
    m_deviceDescription = description;
    // The project file keeps the versions of the box that it was recorded with.
    m_project.settings.hardwareVersion = description.hardwareVersion;
    m_project.settings.firmwareVersion = description.firmwareVersion;
    m_changes.countOne();
}

void Model::setSensorName(int sensor, const QString &name)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " sensor=" << sensor << " name=" << name;
    SensorGroup *group = m_project.groupWith(0, sensor, Q_FUNC_INFO);
    if (group)
        group->setSensorName(sensor, name);
    m_changes.projectIf(group, Q_FUNC_INFO);
}

void Model::setSensorUnit(int sensor, const QString &unit)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " sensor=" << sensor << " unit=" << unit;
    SensorGroup *group = m_project.groupWith(0, sensor, Q_FUNC_INFO);
    if (group)
        group->setSensorUnit(sensor, unit.left(SensorGroup::kLongestUnit));
    m_changes.projectIf(group, Q_FUNC_INFO);
}

void Model::setSensorMinimum(int group, int sensor, double minimum)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " val=" << minimum;
    SensorGroup *sensors = m_project.groupWith(group, sensor, Q_FUNC_INFO);
    if (sensors)
        sensors->setSensorMinimum(sensor, finiteOrZero(minimum));
    m_changes.projectIf(sensors, Q_FUNC_INFO);
}

void Model::setSensorMaximum(int group, int sensor, double maximum)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " val=" << maximum;
    SensorGroup *sensors = m_project.groupWith(group, sensor, Q_FUNC_INFO);
    if (sensors)
        sensors->setSensorMaximum(sensor, finiteOrZero(maximum));
    m_changes.projectIf(sensors, Q_FUNC_INFO);
}

void Model::setClock(int milliseconds)
{
    qCDebug(lcModel) << Q_FUNC_INFO << milliseconds;
    m_project.settings.clock = qBound(1, milliseconds, kMaxClock);
    m_changes.project(Q_FUNC_INFO);
}

void Model::setFileList(const QStringList &files)
{
    qCDebug(lcModel) << Q_FUNC_INFO << files;
    m_import.setFiles(files);
}

// --- State -----------------------------------------------------------------------------------------------------

void Model::setConnected(bool connected)
{
    qCDebug(lcModel) << Q_FUNC_INFO << connected;
    m_connected = connected;
}

void Model::setProjectModifiedFlag(bool modified)
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    if (modified) {
        qCDebug(lcModel) << "***** MODEL CHANGED TRUE ***";
        m_changes.countOne();
    }
    m_files.setModified(modified);
}

void Model::setCurrentFile(const QString &absolutePath)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " file=" << absolutePath;
    m_files.setCurrentFile(absolutePath);
}

void Model::clear()
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    if (m_work.refuses(Q_FUNC_INFO))
        return;
    m_project.clearDescription();
    setCurrentFile(QString());
    setFileList({});
    m_files.setModified(false);
    m_files.noteSaved({});
    resetOffsets();
    m_project.resetPhaseNames(usualPhaseNames());
    m_project.clearSensors(Q_FUNC_INFO);
    m_project.clearImages(Q_FUNC_INFO);
    clearData();
    m_changes.project(Q_FUNC_INFO);
    m_edits.forgetProject();
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " END";
}

// --- Files -----------------------------------------------------------------------------------------------------

bool Model::open(const QString &fileName)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " filename=" << fileName;
    return m_files.open(fileName, Q_FUNC_INFO);
}

bool Model::save(const QString &fileName)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " filename=" << fileName;
    return m_files.save(fileName, Q_FUNC_INFO);
}

bool Model::saveCsv(const QString &fileName)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " filename=" << fileName;
    return m_files.saveCsv(fileName, Q_FUNC_INFO);
}

bool Model::addBlackBoxFile(const QString &fileName)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " file=" << fileName;
    return m_import.add(fileName, Q_FUNC_INFO);
}
