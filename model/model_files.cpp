#include "model/indexcheck.h"
#include "model/model.h"
#include "model/project/atomicfile.h"
#include "model/project/csvexport.h"
#include "model/project/pacer.h"
#include "model/project/projectfile.h"
#include "model/project/projectimage.h"

#include <QFileInfo>
#include <QScopedValueRollback>

#include <new>

namespace {

bool saveMeta(const QString &projectFile, const ProjectMeta &meta, const ShotChecks &checks)
{
    const QString fileName = metaFileName(projectFile);
    if (meta.isBlank() && !QFileInfo::exists(fileName))
        return true;
    try {
        if (replaceFile(fileName, [&](QIODevice &target) { return writeProjectMeta(target, meta, checks); }))
            return true;
    } catch (const std::bad_alloc &) {
    }
    qCDebug(lcModel).noquote().nospace() << "ERROR: could not write file:" << fileName;
    return false;
}

} // namespace

// Small values are copied, samples are not: what arrives while they are written belongs to the next file.
ProjectDocument Model::toDocument() const
{
    ProjectDocument document;
    document.data = m_projectData;
    document.clock = m_clock;
    document.comment = m_comment;
    document.mesotraType = m_mesotraType;
    document.hardwareVersion = m_hardwareVersion;
    document.softwareVersion = m_firmwareVersion;
    document.markersAbsolute = m_markersAbsolute;
    document.osziMinimum = m_osziMinimum;
    document.osziMaximum = m_osziMaximum;
    document.markers = m_markers;
    document.phases = m_phaseNames;
    document.corrections = m_offsets;
    describeSensors(document);
    for (std::size_t sensor = 0; sensor < m_channels.size(); ++sensor) {
        for (const auto &measurement : m_channels[sensor])
            document.samples[sensor].push_back({measurement.get(), measurement->size()});
    }
    return document;
}

void Model::describeSensors(ProjectDocument &document) const
{
    if (m_sensorDescription.numSensorGroups() == 0)
        return;
    const SensorGroup &group = m_sensorDescription.sensorGroup(0);
    for (int sensor = 0; sensor < qMin(kNumSensors, group.numSensors()); ++sensor) {
        document.sensorNames[at(sensor)] = group.sensorName(sensor);
        document.sensorMinimum[at(sensor)] = group.sensorMinimum(sensor);
        document.sensorMaximum[at(sensor)] = group.sensorMaximum(sensor);
    }
}

bool Model::save(const QString &fileName)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " filename=" << fileName;
    if (refusesWhileBusy(Q_FUNC_INFO))
        return false;
    const quint64 changesBefore = m_changes;
    const ProjectMeta meta = m_meta;
    const ShotChecks checks = shotChecks();
    if (!writeFile(fileName, true))
        return false;
    m_metaSaved = saveMeta(fileName, meta, checks);
    const bool isUpToDate = m_changes == changesBefore;
    setCurrentFile(QFileInfo(fileName).absoluteFilePath());
    announceProjectChanged(Q_FUNC_INFO);
    setProjectModifiedFlag(!isUpToDate);
    return true;
}

bool Model::saveCsv(const QString &fileName)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " filename=" << fileName;
    return !refusesWhileBusy(Q_FUNC_INFO) && writeFile(fileName, false);
}

bool Model::writeFile(const QString &fileName, bool asProject)
{
    const QScopedValueRollback<bool> busy(m_busy, true);
    try {
        ProjectDocument document = toDocument();
        const QString projectFile = QFileInfo(m_currentFile).fileName();
        const std::array<QPixmap, kNumImages> images = m_images;
        Pacer pacer(m_yield, document.sampleCount());
        const auto write = [&](QIODevice &target) {
            if (!asProject)
                return writeCsv(target, projectFile, document, pacer);
            for (std::size_t image = 0; image < images.size(); ++image) {
                document.images[image] = m_encodedImages[image].png(images[image]);
                pacer.moveTo(0);
            }
            return writeProject(target, document, pacer);
        };
        return replaceFile(fileName, write, [&pacer] { pacer.look(); });
    } catch (const std::bad_alloc &) {
        qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " ERROR: out of memory!";
        return false;
    }
}
