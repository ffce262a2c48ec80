#pragma once

#include <QString>
#include <QStringList>

/// The sampling periods that the box offers, shortest first, as labels such as "100ms".
[[nodiscard]] QStringList samplingPeriodLabels();

/// The label of a period in milliseconds; empty for a period that the box does not offer.
[[nodiscard]] QString samplingPeriodLabel(int milliseconds);

/// The command for a label, such as "t=100\n"; empty for any other text. The case matters.
[[nodiscard]] QString samplingPeriodCommand(const QString &label);
