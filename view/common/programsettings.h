#pragma once

#include "app/theme.h"

#include <QSettings>

/// The settings that the program keeps between two runs.
[[nodiscard]] inline QSettings programSettings()
{
    return QSettings(theme::organisationName, theme::applicationName);
}
