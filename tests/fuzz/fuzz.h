#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// What the drivers share. Each driver feeds one reader of the program with bytes that anybody could have written, and
/// checks what must hold whatever they are; the sanitizers find the rest.

/// Ends the driver, and so reports the input, if something does not hold.
#define REQUIRE(condition)                                                                                             \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #condition);                        \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)

[[nodiscard]] inline QByteArray bytes(const std::uint8_t *data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size));
}

/// As lines arrive from the box: every byte is one character.
[[nodiscard]] inline QString line(const std::uint8_t *data, std::size_t size)
{
    return QString::fromLatin1(reinterpret_cast<const char *>(data), static_cast<int>(size));
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
/// Before the first input.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
