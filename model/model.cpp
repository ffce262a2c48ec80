#include "model/model.h"

#include "model/logging.h"

#include <QCoreApplication>
#include <QDebug>

namespace {

// What a fresh plot shows as well.
constexpr double kDefaultOsziMinimum = 0.0;
constexpr double kDefaultOsziMaximum = 255.0;

} // namespace

Model::Model(const QString &fileToOpen, QObject *parent)
    : QObject(parent)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " fileToOpen=" << fileToOpen;
    setYield({});
    m_osziMinimum.fill(kDefaultOsziMinimum);
    m_osziMaximum.fill(kDefaultOsziMaximum);
    clear();
    if (!fileToOpen.isEmpty() && !open(fileToOpen))
        qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " could not open " << fileToOpen;
}

Model::~Model() = default;

void Model::clear()
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    if (refusesWhileBusy(Q_FUNC_INFO))
        return;
    m_projectData = ProjectData();
    m_hardwareVersion.clear();
    m_firmwareVersion = QStringLiteral("8.0");
    m_comment.clear();
    m_currentFile.clear();
    setFileList({});
    m_projectModified = false;
    m_clock = 100;
    m_meta = ProjectMeta();
    resetColors();
    resetOffsets();
    resetPhaseNames();
    resetSensorDescription();
    clearImages();
    clearData();
    announceProjectChanged(Q_FUNC_INFO);
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " END";
}

void Model::resetColors()
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        m_colors[static_cast<std::size_t>(sensor)] = defaultSensorColor(sensor);
}

void Model::resetPhaseNames()
{
    m_defaultPhaseNames = {tr("WZ schließen"), tr("Einspritzzeit"), tr("Nachdruckzeit"), tr("Kühlzeit"),
                           tr("WZ öffnen")};
    m_phaseNames = m_defaultPhaseNames;
}

void Model::resetSensorDescription()
{
    m_sensorDescription = SensorDescription();
    m_sensorDescription.setNumSensorGroups(1);
    SensorGroup *group = m_sensorDescription.modifiableSensorGroup(0);
    group->setNumSensors(kNumSensors);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        group->setSensorName(sensor, QString());
        qCDebug(lcModel).noquote().nospace()
            << Q_FUNC_INFO << " min=" << group->sensorMinimum(sensor) << " max=" << group->sensorMaximum(sensor);
    }
}

void Model::clearImages()
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " clearing images";
    m_images.fill(QPixmap());
}

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
        ++m_changes;
    }
    m_projectModified = modified;
}

void Model::setCurrentFile(const QString &absolutePath)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " file=" << absolutePath;
    m_currentFile = absolutePath;
}

bool Model::refusesWhileBusy(const char *function) const
{
    if (m_busy)
        qCDebug(lcModel).noquote().nospace() << function << " ERROR: refused while a file is read or written!";
    return m_busy;
}

void Model::setYield(const Yield &yield)
{
    if (yield)
        m_yield = yield;
    else
        m_yield = [](int) { QCoreApplication::processEvents(); };
}

void Model::emitAppStateChanged()
{
    qCDebug(lcModel) << Q_FUNC_INFO << "emit appStateChanged()";
    emit appStateChanged();
}

void Model::emitProjectChanged()
{
    announceProjectChanged(Q_FUNC_INFO);
}

void Model::emitDataChanged()
{
    announceDataChanged(Q_FUNC_INFO);
}

void Model::announceProjectChanged(const char *function)
{
    qCDebug(lcModel) << function << "emit projectChanged()";
    ++m_changes;
    emit projectChanged();
}

void Model::announceDataChanged(const char *function)
{
    qCDebug(lcModel) << function << "emit dataChanged()";
    emit dataChanged();
    if (!signalsBlocked())
        discardRemoved(); // every receiver has let go of them by now
}
