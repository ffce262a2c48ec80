#include "model/model.h"

#include "model/logging.h"

#include <QCoreApplication>
#include <QDebug>

#include <utility>

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
    setCurrentFile(QString());
    setFileList({});
    setModified(false);
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
    setModified(modified);
}

void Model::setModified(bool modified)
{
    if (std::exchange(m_projectModified, modified) != modified)
        emit fileStateChanged();
}

void Model::setCurrentFile(const QString &absolutePath)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " file=" << absolutePath;
    if (std::exchange(m_currentFile, absolutePath) != absolutePath)
        emit fileStateChanged();
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

// Receivers may open scopes of their own, so what is pending is taken first.
void Model::endChanges()
{
    if (--m_pending.scopes > 0)
        return;
    const PendingChanges pending = std::exchange(m_pending, {});
    blockSignals(false); // open from here on, whatever they were before
    if (pending.appState)
        emitAppStateChanged();
    if (pending.project)
        emitProjectChanged();
    if (pending.data)
        emitDataChanged();
}

void Model::emitAppStateChanged()
{
    qCDebug(lcModel) << Q_FUNC_INFO << "emit appStateChanged()";
    if (m_pending.scopes > 0)
        m_pending.appState = true;
    else
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
    if (m_pending.scopes > 0)
        m_pending.project = true;
    else
        emit projectChanged();
}

void Model::announceDataChanged(const char *function)
{
    qCDebug(lcModel) << function << "emit dataChanged()";
    if (m_pending.scopes > 0) {
        m_pending.data = true;
        return;
    }
    emit dataChanged();
    if (!signalsBlocked())
        discardRemoved(); // every receiver has let go of them by now
}
