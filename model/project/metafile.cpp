#include "model/project/metafile.h"

#include "model/arrayindex.h"
#include "model/logging.h"
#include "model/shotstore.h"

#include <QFile>
#include <QFileInfo>

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

std::optional<ProjectMeta> readMetaFile(const QString &fileName, const ShotStore &shots)
{
    QFile file(fileName);
    // Reading from a pipe would not return.
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly) || file.size() > kLargestMeta)
        return {};
    try {
        return readProjectMeta(file, shotChecks(shots));
    } catch (const std::bad_alloc &) {
        return {};
    }
}

} // namespace

ShotChecks shotChecks(const ShotStore &shots)
{
    ShotChecks checks(at(shots.shotCount()));
    for (std::size_t shot = 0; shot < checks.size(); ++shot) {
        quint32 hash = 2166136261U;
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            hash = mixedWith(hash, shots.samples(sensor, static_cast<int>(shot)));
        checks[shot] = hash;
    }
    return checks;
}

bool saveMeta(const QString &projectFile, const ProjectMeta &meta, const ShotChecks &checks,
              const ReplaceOptions &options)
{
    const QString fileName = metaFileName(projectFile);
    if (meta.isBlank() && !QFileInfo::exists(fileName))
        return true;
    try {
        const auto write = [&](QIODevice &target) { return writeProjectMeta(target, meta, checks); };
        if (replaceFile(
                fileName, write, [] {}, options))
            return true;
    } catch (const std::bad_alloc &) {
        // told below, like any other failure
    }
    qCDebug(lcModel).noquote().nospace() << "ERROR: could not write file:" << fileName;
    return false;
}

std::optional<ProjectMeta> openMeta(const QString &projectFile, const ShotStore &shots, const char *function)
{
    const QString fileName = metaFileName(projectFile);
    if (!QFileInfo::exists(fileName))
        return {};
    std::optional<ProjectMeta> meta = readMetaFile(fileName, shots);
    if (!meta)
        qCDebug(lcModel).noquote().nospace() << function << " ERROR: could not read file:" << fileName;
    return meta;
}
