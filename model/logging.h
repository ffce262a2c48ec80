#pragma once

#include <QLoggingCategory>

/// Debug output of this folder: "ventaro.model".
Q_DECLARE_LOGGING_CATEGORY(lcModel)
