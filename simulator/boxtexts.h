#pragma once

#include "simulator/mouldcycle.h"

#include <QByteArray>

/// What the simulated box says, as the bytes that go over the wire: each text is one line (the list: several), line
/// feed included, each line below 1024 bytes.

/// `withProject`: a project description follows in the same line.
[[nodiscard]] QByteArray deviceDescriptionLine(bool withProject);
[[nodiscard]] QByteArray sensorDescriptionLine();
[[nodiscard]] QByteArray listBlock();

/// "counter;v1;…;v5", with three decimals; in thousandths, whole numbers.
[[nodiscard]] QByteArray sampleLine(quint64 counter, const SampleValues &values, bool inThousandths);

/// A line that is no valid message: broken grammar, control characters, bytes that are no text. Never a sample line.
[[nodiscard]] QByteArray garbageLine(quint64 number);
/// A line of 1100 to 3000 bytes without meaning, also when it is cut anywhere.
[[nodiscard]] QByteArray overlongLine(quint64 number);
