#pragma once

#include <QByteArray>
#include <QStringList>

/// The hashes that this build was configured with (VENTARO_LICENSED_MACHINES); empty: any machine.
[[nodiscard]] QStringList licensedMachines();

/// SHA-256 of a machine's id as 64 lower-case hexadecimal digits.
[[nodiscard]] QString machineHash(const QByteArray &machineId);

/// True if the list is empty or holds the hash of the id; upper case and blanks around an entry do not matter. A
/// machine without an id (empty) is on no list.
[[nodiscard]] bool isMachineLicensed(const QByteArray &machineId, const QStringList &licensedHashes);
