#include "tests/fuzz/modelfiles.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QTemporaryDir>

namespace {

QString folder()
{
    const QString memory = QStringLiteral("/dev/shm");
    return QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
}

} // namespace

QString modelfiles::path(const char *name)
{
    static const QTemporaryDir files(folder() + QStringLiteral("/ventaro-fuzz"));
    return files.filePath(QLatin1String(name));
}

QByteArray modelfiles::content(const QString &path)
{
    QFile file(path);
    REQUIRE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void modelfiles::write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    REQUIRE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1; // the application must not read the fuzzer's arguments
    (void)argc;
    static const QGuiApplication application(count, *argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    return 0;
}
