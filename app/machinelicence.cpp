#include "app/machinelicence.h"

#include <QCryptographicHash>

#include <algorithm>

QStringList licensedMachines()
{
    return QString::fromLatin1(VENTARO_LICENSED_MACHINES).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

QString machineHash(const QByteArray &machineId)
{
    return QString::fromLatin1(QCryptographicHash::hash(machineId, QCryptographicHash::Sha256).toHex());
}

bool isMachineLicensed(const QByteArray &machineId, const QStringList &licensedHashes)
{
    // A build without a list is not tied to a computer.
    if (licensedHashes.isEmpty())
        return true;
    if (machineId.isEmpty())
        return false;
    const QString hash = machineHash(machineId);
    return std::any_of(licensedHashes.cbegin(), licensedHashes.cend(), [&hash](const QString &licensed) {
        return licensed.trimmed().compare(hash, Qt::CaseInsensitive) == 0;
    });
}
