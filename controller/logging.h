#pragma once

#include <QLoggingCategory>

/// Everything that the controller writes to the debug output; "ventaro.controller".
Q_DECLARE_LOGGING_CATEGORY(lcController)
