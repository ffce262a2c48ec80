#include "model/indexcheck.h"
#include "model/model.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <new>

namespace {

// FNV-1a over the bytes of a number.
quint32 mixedWith(quint32 hash, quint64 number)
{
    for (int byte = 0; byte < 8; ++byte, number >>= 8)
        hash = (hash ^ static_cast<quint32>(number & 0xFF)) * 16777619U;
    return hash;
}

quint32 mixedWith(quint32 hash, double number)
{
    quint64 bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return mixedWith(hash, bits);
}

// Count, first and last sample: enough to tell shots apart, without reading them all.
quint32 mixedWith(quint32 hash, const SampleList *samples)
{
    const int count = samples ? samples->size() : 0;
    hash = mixedWith(hash, static_cast<quint64>(count));
    return count == 0 ? hash : mixedWith(mixedWith(hash, samples->constFirst()), samples->constLast());
}

std::optional<ProjectMeta> readMetaFile(const QString &fileName, const ShotChecks &checks)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kLargestMeta)
        return {};
    try {
        return readProjectMeta(file, checks);
    } catch (const std::bad_alloc &) {
        return {};
    }
}

} // namespace

QDateTime Model::timestamp(int measurement) const
{
    if (!isIndex(measurement, at(measurementCount()), Q_FUNC_INFO))
        return {};
    return at(measurement) < m_meta.timestamps.size() ? m_meta.timestamps[at(measurement)] : QDateTime();
}

void Model::setTimestamp(int measurement, const QDateTime &timestamp)
{
    qCDebug(lcModel) << Q_FUNC_INFO << measurement << timestamp;
    if (!isIndex(measurement, at(measurementCount()), Q_FUNC_INFO))
        return;
    if (at(measurement) >= m_meta.timestamps.size())
        m_meta.timestamps.resize(at(measurement) + 1);
    m_meta.timestamps[at(measurement)] = timestamp;
}

QString Model::shotLabel(int measurement) const
{
    if (!isIndex(measurement, at(measurementCount()), Q_FUNC_INFO))
        return {};
    return at(measurement) < m_meta.labels.size() ? m_meta.labels[at(measurement)] : QString();
}

void Model::setShotLabel(int measurement, const QString &label)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " measurement=" << measurement << " label=" << label;
    if (!isIndex(measurement, at(measurementCount()), Q_FUNC_INFO))
        return;
    if (at(measurement) >= m_meta.labels.size())
        m_meta.labels.resize(at(measurement) + 1);
    m_meta.labels[at(measurement)] = label.left(ProjectMeta::kLongestLabel);
    announceProjectChanged(Q_FUNC_INFO);
}

void Model::setProjectMeta(const ProjectMeta &meta)
{
    qCDebug(lcModel) << Q_FUNC_INFO;
    m_meta = meta;
    const std::size_t count = at(measurementCount());
    m_meta.labels.resize(std::min(count, meta.labels.size()));
    m_meta.timestamps.resize(std::min(count, meta.timestamps.size()));
    announceProjectChanged(Q_FUNC_INFO);
}

ShotChecks Model::shotChecks() const
{
    ShotChecks checks(at(measurementCount()));
    for (std::size_t shot = 0; shot < checks.size(); ++shot) {
        quint32 hash = 2166136261U;
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            hash = mixedWith(hash, measurement(sensor, static_cast<int>(shot)));
        checks[shot] = hash;
    }
    return checks;
}

// A project opens whatever is wrong with the file beside it.
void Model::openMeta(const QString &projectFile)
{
    const QString fileName = metaFileName(projectFile);
    if (!QFileInfo::exists(fileName))
        return;
    std::optional<ProjectMeta> meta;
    if (QFileInfo(fileName).isFile()) // reading from a pipe would not return
        meta = readMetaFile(fileName, shotChecks());
    if (meta)
        m_meta = *meta;
    else
        qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " ERROR: could not read file:" << fileName;
}
