#pragma once

#include "tests/fuzz/fuzz.h"

#include <QByteArray>
#include <QString>

/// What the drivers share that read and write files through a model. They come with an initialisation of their own, as
/// a model has pictures.
namespace modelfiles {

/// The path of a file, in memory where the system offers that: files are forced to the disk, which would be most of
/// the work.
[[nodiscard]] QString path(const char *name);
[[nodiscard]] QByteArray content(const QString &path);
void write(const QString &path, const QByteArray &text);

} // namespace modelfiles
