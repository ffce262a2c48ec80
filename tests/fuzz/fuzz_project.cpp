#include "model/model.h"
#include "model/project/projectkeys.h"
#include "tests/fuzz/modelfiles.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace {

bool isKnown(const QString &key)
{
    using namespace projectkeys;
    static const char *const names[] = {kClock,         kComment,        kCorrections,   kFileVersion, kHardwareVersion,
                                        kMarkers,       kMesotraType,    kClosingForce,  kPressure,    kPressTime,
                                        kPhases,        kCustomer,       kInjectionTime, kDate,        kName,
                                        kNumber,        kUser,           kViewData,      kReserved,    kSensorMaximum,
                                        kSensorMinimum, kFirmwareVersion};
    if (std::any_of(std::begin(names), std::end(names),
                    [&key](const char *name) { return key == QLatin1String(name); }))
        return true;
    for (int i = 0; i < kNumSensors; ++i) {
        if (key == samples(i) || key == sensorName(i) || key == image(i))
            return true;
    }
    return false;
}

bool contains(const UnknownMembers &members, const QString &name)
{
    return std::any_of(members.begin(), members.end(),
                       [&name](const UnknownMember &member) { return member.name == name; });
}

// Those that are too large to be kept are told.
void checkUnknown(const QByteArray &text, const Model &model)
{
    // The parser that this compares with reads what is no plain ASCII differently.
    const bool isPlain = std::all_of(text.begin(), text.end(), [](char c) { return c > 0 && c != '\\'; });
    if (!isPlain || model.openLosses().lost.count > 0)
        return;
    const QJsonObject object = QJsonDocument::fromJson(text).object();
    for (auto member = object.begin(); member != object.end(); ++member)
        REQUIRE(isKnown(member.key()) || contains(model.project().settings.unknown, member.key()));
}

} // namespace

// A project file. One that opens is saved, and what was saved opens as the same project, with all that the program does
// not know.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace modelfiles;
    const QByteArray text = bytes(data, size);
    write(path("read.vnt"), text);
    Model model{QString()};
    model.setYield([](int) {});
    if (!model.open(path("read.vnt"))) {
        REQUIRE(model.currentFile().isEmpty() && model.numChannels(0) == 0);
        return 0;
    }
    REQUIRE(!model.isProjectModified());
    checkUnknown(text, model);
    REQUIRE(model.save(path("first.vnt")));
    Model again{path("first.vnt")};
    again.setYield([](int) {});
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        REQUIRE(again.numChannels(sensor) == model.numChannels(sensor));
    REQUIRE(again.project().settings.unknown == model.project().settings.unknown);
    REQUIRE(again.project().settings.unknownInView == model.project().settings.unknownInView);
    REQUIRE(again.save(path("second.vnt")));
    REQUIRE(content(path("first.vnt")) == content(path("second.vnt")));
    return 0;
}
