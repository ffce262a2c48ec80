#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcPlots)

/// Writes that a call was ignored because of its index.
void logIndexError(int index);
