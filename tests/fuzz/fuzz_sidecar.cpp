#include "model/project/projectmeta.h"
#include "tests/fuzz/fuzz.h"

#include <QBuffer>

namespace {

std::optional<ProjectMeta> read(QByteArray text, const ShotChecks &checks)
{
    QBuffer file(&text);
    file.open(QIODevice::ReadOnly);
    return readProjectMeta(file, checks);
}

} // namespace

// The file beside the project: what was read is written so that it is read alike.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const ShotChecks checks{0, 1, 2, 4000000000U};
    const auto meta = read(bytes(data, size), checks);
    if (!meta)
        return 0;
    for (const QString &label : meta->labels)
        REQUIRE(label.size() <= ProjectMeta::kLongestLabel);
    QByteArray text;
    QBuffer file(&text);
    file.open(QIODevice::WriteOnly);
    REQUIRE(writeProjectMeta(file, *meta, checks));
    const auto again = read(text, checks);
    REQUIRE(again && again->sensors == meta->sensors);
    for (int shot = 0; shot < static_cast<int>(checks.size()); ++shot) {
        REQUIRE(again->label(shot) == meta->label(shot));
        REQUIRE(again->timestamp(shot) == meta->timestamp(shot));
    }
    return 0;
}
