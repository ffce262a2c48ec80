#pragma once

#include "model/samplelist.h"
#include "model/sensordescription.h"

#include <QDateTime>

#include <array>
#include <functional>
#include <limits>
#include <optional>

class QIODevice;

/// What could not be taken over from a logger file.
struct BlackBoxLosses
{
    int skippedLines = 0; ///< broken, overlong, or for a sensor that does not exist
    int badValues = 0;    ///< no finite number; taken as 0
};

/// What a logger file of the box holds: one shot, and a description of the sensors.
struct BlackBoxDocument
{
    SensorDescription sensors; ///< what was known before, changed by what the file says
    std::array<SampleList, kNumSensors> samples;
    std::optional<QDateTime> timestamp; ///< of the last time line; invalid if that was unreadable
    BlackBoxLosses losses;

    [[nodiscard]] int sampleCount() const { return samples[0].size(); }
    /// False for a file without a time and without a sample: there was no shot.
    [[nodiscard]] bool hasMeasurement() const { return timestamp || sampleCount() > 0; }
};

/// Reads a logger file to its end, whatever it holds: what makes no sense is skipped and counted. Lines may be as long
/// as they like without costing memory. `progress` is called with the bytes read, often. No more than `maxBytes` are
/// looked at. Throws std::bad_alloc if the samples do not fit into memory.
[[nodiscard]] BlackBoxDocument readBlackBox(QIODevice &source, const SensorDescription &known,
                                            const std::function<void(qint64 bytes)> &progress,
                                            qint64 maxBytes = std::numeric_limits<qint64>::max());

/// Equal for copies of a logger file, different for any two that differ in a byte. Empty if it is no regular file or
/// unreadable. `progress` is called with the number of bytes read since its last call, often.
[[nodiscard]] QByteArray blackBoxFingerprint(const QString &fileName,
                                             const std::function<void(qint64 bytes)> &progress = {});
