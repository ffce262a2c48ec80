#pragma once

#include <QString>

/// Gives a new file the owner, the group, the mode and the access list of an existing one, as far as the system lets
/// this user do so. If the group cannot be kept, the new group gets no more rights than everybody has. `handle` is an
/// open file; nothing happens on systems other than Linux.
void copyAccess(const QString &from, int handle);

/// Gives a new file the other extended attributes of an existing one, and takes away those that it does not have.
void copyExtendedAttributes(const QString &from, int handle);
