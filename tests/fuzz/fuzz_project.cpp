#include "model/model.h"
#include "tests/fuzz/fuzz.h"

#include <QFile>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QTemporaryDir>

namespace {

/// In memory where the system offers that: files are forced to the disk, which would be most of the work.
QString memoryFolder()
{
    const QString memory = QStringLiteral("/dev/shm");
    return QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
}

QString file(const char *name)
{
    static const QTemporaryDir folder(memoryFolder() + QStringLiteral("/ventaro-fuzz"));
    return folder.filePath(QLatin1String(name));
}

QByteArray content(const QString &name)
{
    QFile opened(name);
    REQUIRE(opened.open(QIODevice::ReadOnly));
    return opened.readAll();
}

void write(const QString &name, const QByteArray &text)
{
    QFile opened(name);
    REQUIRE(opened.open(QIODevice::WriteOnly) && opened.write(text) == text.size());
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1; // the application must not read the fuzzer's arguments
    (void)argc;
    static const QGuiApplication application(count, *argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    return 0;
}

// A project file. One that opens is saved, and what was saved opens as the same project.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    write(file("read.vnt"), bytes(data, size));
    Model model{QString()};
    model.setYield([](int) {});
    if (!model.open(file("read.vnt"))) {
        REQUIRE(model.currentFile().isEmpty() && model.numChannels(0) == 0);
        return 0;
    }
    REQUIRE(!model.isProjectModified());
    REQUIRE(model.save(file("first.vnt")));
    Model again{file("first.vnt")};
    again.setYield([](int) {});
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        REQUIRE(again.numChannels(sensor) == model.numChannels(sensor));
    REQUIRE(again.save(file("second.vnt")));
    REQUIRE(content(file("first.vnt")) == content(file("second.vnt")));
    return 0;
}
