#include "model/indexcheck.h"
#include "model/model.h"
#include "model/project/pacer.h"

#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <new>

bool Model::addBlackBoxFile(const QString &fileName)
{
    qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " file=" << fileName;
    if (refusesWhileBusy(Q_FUNC_INFO))
        return false;
    m_blackBoxLosses = {};
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly)) {
        qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " ERROR: could not open file:" << fileName;
        return false;
    }
    std::optional<BlackBoxDocument> document = readBlackBoxFile(file);
    if (!document)
        return false;
    apply(*document);
    const QString absolutePath = QFileInfo(fileName).absoluteFilePath();
    if (!m_fileList.contains(absolutePath))
        m_fileList.append(absolutePath);
    rememberImported(absolutePath);
    announceProjectChanged(Q_FUNC_INFO);
    announceDataChanged(Q_FUNC_INFO);
    return true;
}

/// Nothing if the file could not be read to its end: half a shot would pass for a whole one.
std::optional<BlackBoxDocument> Model::readBlackBoxFile(QFile &file)
{
    const QScopedValueRollback<bool> busy(m_busy, true);
    try {
        Pacer pacer(m_yield, file.size());
        qint64 done = 0;
        BlackBoxDocument document = readBlackBox(file, m_sensorDescription, [&](qint64 bytes) {
            pacer.advance(bytes - done);
            done = bytes;
        });
        if (file.error() == QFileDevice::NoError)
            return document;
        qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " ERROR: could not read file:" << file.fileName();
    } catch (const std::bad_alloc &) {
        qCDebug(lcModel).noquote().nospace() << Q_FUNC_INFO << " ERROR: out of memory!";
    }
    return {};
}

void Model::apply(BlackBoxDocument &document)
{
    m_blackBoxLosses = document.losses;
    setSensorDescription(document.sensors);
    if (!document.hasMeasurement())
        return;
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const int index = appendMeasurement(sensor);
        m_channels[at(sensor)][at(index)]->swap(document.samples[at(sensor)]);
    }
    if (!document.timestamp)
        return;
    setTimestamp(static_cast<int>(m_channels[0].size()) - 1, *document.timestamp);
    announceProjectChanged(Q_FUNC_INFO);
}
