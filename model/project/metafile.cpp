#include "model/project/metafile.h"

#include "model/arrayindex.h"
#include "model/logging.h"
#include "model/shotstore.h"

#include <QFile>
#include <QFileInfo>

#include <cstring>
#include <new>
#include <utility>

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

/// False for what is no regular file, too: reading from a pipe would not return.
bool openRegular(QFile &file)
{
    return QFileInfo(file.fileName()).isFile() && file.open(QIODevice::ReadOnly) && file.size() <= kLargestMeta;
}

std::optional<ProjectMeta> readMetaFile(const QString &fileName, const ShotChecks &checks)
{
    QFile file(fileName);
    if (!openRegular(file))
        return {};
    try {
        return readProjectMeta(file, checks);
    } catch (const std::bad_alloc &) {
        return {};
    }
}

bool isNewer(const QString &fileName)
{
    QFile file(fileName);
    return openRegular(file) && isNewerProjectMeta(file);
}

/// What somebody may still need is not replaced, whenever it came there.
bool keepUnreadableFile(const QString &fileName)
{
    // What is no file cannot be replaced anyway, which is noticed later.
    if (!QFileInfo(fileName).isFile() || readMetaFile(fileName, {}))
        return true;
    const QString name = badMetaName(fileName);
    qCDebug(lcModel).noquote().nospace() << "keeping " << fileName << " as " << name;
    return !name.isEmpty() && QFile::rename(fileName, name);
}

/// The file that was beside a project whose previous version has been opened; empty if this is none.
QString keptMetaName(const QString &projectFile)
{
    const QString end = backupName(QString());
    return projectFile.endsWith(end) ? backupName(metaFileName(projectFile.chopped(end.size()))) : QString();
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

FileFault saveMeta(const QString &projectFile, const ProjectMeta &meta, const ShotChecks &checks,
                   const ReplaceOptions &options)
{
    FileFault fault;
    fault.path = metaFileName(projectFile);
    try {
        if (!keepUnreadableFile(fault.path)) {
            fault.kind = FileFault::Kind::NoPermission; // mostly; the folder lets no file get another name
        } else if (!meta.isBlank() || QFileInfo::exists(fault.path)) {
            const auto write = [&](QIODevice &target) { return writeProjectMeta(target, meta, checks); };
            fault = replaceFile(
                        fault.path, write, [] {}, options)
                        .fault;
        }
    } catch (const std::bad_alloc &) {
        fault.kind = FileFault::Kind::OutOfMemory;
    }
    if (fault)
        qCDebug(lcModel).noquote().nospace() << "ERROR: could not write file:" << metaFileName(projectFile);
    return fault;
}

QString badMetaName(const QString &metaFile)
{
    constexpr int kMost = 1000;
    const QString first = metaFile + QLatin1String(".bad");
    QString name = first;
    for (int number = 2; QFileInfo::exists(name) || QFileInfo(name).isSymLink(); ++number) {
        if (number > kMost)
            return {};
        name = first + QString::number(number);
    }
    return name;
}

MetaReading openMeta(const QString &projectFile, const ShotStore &shots, const char *function)
{
    MetaReading reading;
    reading.fileName = metaFileName(projectFile);
    const QString besideLink = projectFile + QLatin1String(".meta"); // where earlier versions wrote it
    const QString ofBackup = keptMetaName(projectFile);
    if (!QFileInfo::exists(reading.fileName) && QFileInfo::exists(besideLink))
        reading.fileName = besideLink;
    else if (!QFileInfo::exists(reading.fileName) && !ofBackup.isEmpty() && QFileInfo::exists(ofBackup))
        reading.fileName = ofBackup;
    if (!QFileInfo::exists(reading.fileName))
        return reading;
    std::optional<ProjectMeta> meta = readMetaFile(reading.fileName, shotChecks(shots));
    if (meta) {
        reading.meta = *std::move(meta);
        reading.state = MetaState::Read;
        return reading;
    }
    qCDebug(lcModel).noquote().nospace() << function << " ERROR: could not read file:" << reading.fileName;
    reading.state = isNewer(reading.fileName) ? MetaState::Newer : MetaState::Damaged;
    return reading;
}
