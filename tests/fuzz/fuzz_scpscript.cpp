#include "tests/fuzz/fuzz.h"
#include "tools/scp-bridge/script.h"

// The argument text of the SCP tool: whatever it says, no more than one transfer comes of it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto commands = scriptCommands(line(data, size).split(QLatin1Char('\x1f')));
    if (!commands)
        return 0;
    const TransferScript script = parseScript(*commands);
    if (!script.error.isEmpty())
        return 0;
    const QString batch = sftpBatch(script);
    REQUIRE(batch.count(QLatin1Char('\n')) == 1 && batch.endsWith(QLatin1Char('\n')));
    REQUIRE(batch.startsWith(QLatin1String("put ")));
    REQUIRE(!script.host.startsWith(QLatin1Char('-')) && !script.user.startsWith(QLatin1Char('-')));
    const QStringList arguments = sftpArguments(script, 22, QStringLiteral("/known"));
    REQUIRE(!arguments.isEmpty());
    return 0;
}
