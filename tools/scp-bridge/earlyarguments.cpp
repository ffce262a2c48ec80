#include "tools/scp-bridge/earlyarguments.h"

#include <cstddef>

namespace {

// Static, as this is filled before anything could make it.
constexpr std::size_t kRoom = std::size_t{128} * 1024; // the system takes no longer argument
constexpr int kMostArguments = 64;
char takenText[kRoom];
std::size_t takenSizes[kMostArguments];
int takenCount = 0;

#if defined(__clang__) || defined(__GNUC__)
#define VENTARO_UNINSTRUMENTED __attribute__((no_sanitize("address", "undefined")))
#else
#define VENTARO_UNINSTRUMENTED
#endif

/// Arguments that do not fit are wiped all the same; the command is then not understood.
VENTARO_UNINSTRUMENTED void takeArguments(int count, char **values, char ** /*environment*/)
{
    std::size_t used = 0;
    for (int i = 1; i < count; ++i) {
        const std::size_t begin = used;
        for (char *c = values[i]; *c != '\0'; *c++ = '*') {
            if (used < kRoom)
                takenText[used++] = *c;
        }
        if (takenCount < kMostArguments)
            takenSizes[takenCount++] = used - begin;
    }
}

} // namespace

#ifdef __linux__
// Runs before the libraries of the program are set up.
__attribute__((section(".preinit_array"), used)) static void (*const takeFirst)(int, char **, char **) = takeArguments;
#endif

QStringList earlyArguments(int count, char **values)
{
    if (takenCount == 0)
        takeArguments(count, values, nullptr);
    QStringList arguments;
    std::size_t begin = 0;
    for (int i = 0; i < takenCount; ++i) {
        arguments.append(QString::fromLatin1(takenText + begin, static_cast<int>(takenSizes[i])));
        begin += takenSizes[i];
    }
    for (char &c : takenText)
        c = '\0';
    return arguments;
}
