#pragma once

#include <QString>

#include <optional>

/// What kind of line the box has sent, and the lines that need no more than one number or name. Like its neighbours
/// sampleline.h and descriptions.h this is pure: text in, value out. Lines are what MesotraConnector delivers: every
/// byte is one character and the line feed is still at the end. Nothing here trusts the text.

enum class MessageKind {
    Sample,            ///< begins with a decimal digit or "-"
    RunStarted,        ///< "run=1…"
    RunStopped,        ///< "run=0…"
    ClockEcho,         ///< "t=…"
    DeviceDescription, ///< "<deviceDescription…"
    SensorDescription, ///< "<sensorDescription…"
    ListBegin,         ///< "list {…"
    ListEnd,           ///< "} list…"
    Other
};

/// What a line is, by its first characters, case-sensitively; an empty one is Other.
[[nodiscard]] MessageKind classify(const QString &message);

/// The number behind the first "t=", in milliseconds; any int, so the caller checks the range. Nothing if it is no int.
[[nodiscard]] std::optional<int> parseClockEcho(const QString &message);

/// True for the entries "." and "..", with or without white space around them.
[[nodiscard]] bool isDirectoryItself(const QString &message);
