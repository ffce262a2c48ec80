#include "device/protocol/hostaddress.h"
#include "device/protocol/messages.h"
#include "device/protocol/sampleline.h"
#include "device/protocol/scpcommand.h"
#include "tests/fuzz/fuzz.h"

#include <cmath>

// Single lines of the box, and texts that a user or the box names.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = line(data, size);
    const MessageKind kind = classify(text);
    if (const auto clock = parseClockEcho(text))
        REQUIRE(kind != MessageKind::ClockEcho || text.startsWith(QLatin1String("t=")));
    for (const double divisor : {1.0, 1000.0}) {
        const auto sample = parseSampleLine(text, divisor);
        REQUIRE(!sample || sample->numFields >= 3);
        for (const double value : sample.value_or(SampleLine()).values)
            REQUIRE(std::isfinite(value));
    }
    if (isDirectoryItself(text))
        REQUIRE(!isBlackBoxDirectory(text));
    // What gets into a command is one word.
    if (const auto directory = blackBoxDirectory(text))
        REQUIRE(isBlackBoxDirectory(*directory));
    for (const QChar character : text) {
        if (character.isSpace() || character == QLatin1Char('"') || character < QLatin1Char(' '))
            REQUIRE(!isValidHostAddress(text));
    }
    if (const auto source = scpSource(text)) {
        for (const QChar character : source->name)
            REQUIRE(character != QLatin1Char(' ') && character != QLatin1Char('"') && character >= QLatin1Char(' '));
    }
    return 0;
}
