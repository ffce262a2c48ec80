#pragma once

#include <QString>

struct LinkStatus;

/// What the state line says and offers.
struct StateText
{
    enum class Mood { Neutral, Good, Recording, Warning, Alarm };

    QString head;   ///< the state in a few words
    QString detail; ///< may be cut off
    Mood mood = Mood::Neutral;
    bool canStop = false;        ///< the attempts to get the link back can be ended
    bool canAcknowledge = false; ///< the loss of a link stays until the user has seen it
};

/// In the language in use.
[[nodiscard]] StateText stateText(const LinkStatus &status);
