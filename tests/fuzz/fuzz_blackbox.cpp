#include "model/blackbox/blackboxfile.h"
#include "tests/fuzz/fuzz.h"

#include <QBuffer>

#include <cmath>

// A logger file of the box.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QByteArray content = bytes(data, size);
    QBuffer file(&content);
    file.open(QIODevice::ReadOnly);
    const BlackBoxDocument document = readBlackBox(file, SensorDescription(), [](qint64) {});
    for (const SampleList &samples : document.samples) {
        REQUIRE(samples.size() == document.sampleCount());
        for (const double sample : samples)
            REQUIRE(std::isfinite(sample));
    }
    REQUIRE(document.sensors.numSensorGroups() <= SensorDescription::kMaxGroups);
    return 0;
}
