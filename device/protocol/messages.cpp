#include "device/protocol/messages.h"

#include <array>
#include <utility>

namespace {

// No prefix begins with another one, so that their order does not matter.
const std::array<std::pair<QLatin1String, MessageKind>, 7> kPrefixes{{
    {QLatin1String("run=1"), MessageKind::RunStarted},
    {QLatin1String("run=0"), MessageKind::RunStopped},
    {QLatin1String("t="), MessageKind::ClockEcho},
    {QLatin1String("<deviceDescription"), MessageKind::DeviceDescription},
    {QLatin1String("<sensorDescription"), MessageKind::SensorDescription},
    {QLatin1String("list {"), MessageKind::ListBegin},
    {QLatin1String("} list"), MessageKind::ListEnd},
}};

} // namespace

MessageKind classify(const QString &message)
{
    if (message.isEmpty())
        return MessageKind::Other;
    if (message.front().isDigit() || message.front() == QLatin1Char('-'))
        return MessageKind::Sample;
    for (const auto &[prefix, kind] : kPrefixes) {
        if (message.startsWith(prefix))
            return kind;
    }
    return MessageKind::Other;
}

std::optional<int> parseClockEcho(const QString &message)
{
    const QLatin1String marker("t=");
    const int start = message.indexOf(marker);
    if (start < 0)
        return std::nullopt;
    bool ok = false;
    const int period = message.midRef(start + marker.size()).toInt(&ok, 10);
    return ok ? std::optional<int>(period) : std::nullopt;
}

bool isDirectoryItself(const QString &message)
{
    const QString entry = message.trimmed();
    return entry == QLatin1String(".") || entry == QLatin1String("..");
}
