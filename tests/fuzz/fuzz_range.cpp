#include "tests/fuzz/fuzz.h"
#include "view/common/measurementrange.h"

#include <algorithm>

// Ranges of shots as typed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(bytes(data, size));
    const QVector<RangePart> parts = parseMeasurementRange(text);
    for (const RangePart &part : parts)
        REQUIRE(part.numbers.size() == part.pieces.size());
    constexpr int kCount = 1000;
    const QVector<int> shown = shownMeasurements(text, kCount);
    REQUIRE(std::is_sorted(shown.begin(), shown.end()));
    REQUIRE(std::adjacent_find(shown.begin(), shown.end()) == shown.end());
    REQUIRE(shown.isEmpty() || (shown.constFirst() >= 0 && shown.constLast() < kCount));
    return 0;
}
