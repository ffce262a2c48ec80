#include "model/sensordescription.h"
#include "model/verticalmarkers.h"
#include "tests/support/literals.h"
#include "tests/support/logcapture.h"
#include "tests/support/rows.h"

#include <limits>

Q_DECLARE_METATYPE(VerticalMarkers)

namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

SensorGroup groupOf(int sensors)
{
    SensorGroup group;
    group.setNumSensors(sensors);
    return group;
}

} // namespace

class TestTypes : public QObject
{
    Q_OBJECT

private slots:
    void checksSensorIndices()
    {
        const LogCapture log;
        SensorGroup group = groupOf(5);
        for (int i : {5, -1}) {
            QCOMPARE(group.sensorName(i) + group.sensorType(i) + group.sensorUnit(i), QString());
            QCOMPARE(group.sensorValue(i) + group.sensorMinimum(i) + group.sensorMaximum(i), 0.0);
            QVERIFY(!group.sensorColor(i).isValid());
            group.setSensorName(i, {});
            group.setSensorType(i, {});
            group.setSensorUnit(i, {});
            group.setSensorValue(i, 1);
            group.setSensorMinimum(i, 1);
            group.setSensorMaximum(i, 1);
            group.SetSensorColor(i, {});
        }
        QCOMPARE(log.count("ERROR: index >= numSens !!"_s), 28);
        QCOMPARE(groupOf(kMost).numSensors(), SensorGroup::kMaxSensors);
    }

    void checksGroupIndices()
    {
        const LogCapture log;
        SensorDescription description;
        QCOMPARE(description.sensorGroup(0).numSensors(), 0);
        QVERIFY(!description.modifiableSensorGroup(-1));
        description.setSensorMinimum(0, 0, 1.0);
        description.setSensorMaximum(0, 0, 1.0);
        QCOMPARE(log.count("ERROR: i>=numGroups"_s), 4);

        description.setNumSensorGroups(2);
        description.modifiableSensorGroup(1)->setNumSensors(3);
        description.setSensorMinimum(1, 2, -4.5);
        description.setSensorMaximum(1, 2, 4.5);
        QCOMPARE(description.sensorGroup(1).sensorMinimum(2), -4.5);
        QCOMPARE(description.sensorGroup(1).sensorMaximum(2), 4.5);
        description.setNumSensorGroups(kLeast);
        QCOMPARE(description.numSensorGroups(), 0);
    }

    void movesMarkers_data()
    {
        columns<bool, int, int, VerticalMarkers>("absolute", "index", "pos", "expected");
        row("to, raises all behind", true, 1, 500, VerticalMarkers{100, 500, 500, 500});
        row("to, stops at the first that does not lie below", true, 0, 250, VerticalMarkers{250, 250, 300, 400});
        row("to, between its neighbours", true, 2, 250, VerticalMarkers{100, 200, 250, 400});
        row("to, below those before", true, 2, 50, VerticalMarkers{50, 50, 50, 400});
        row("to, negative", true, 0, -7, VerticalMarkers{0, 200, 300, 400});
        row("to, largest", true, 3, kMost, VerticalMarkers{100, 200, 300, kMost});
        row("to, bad index", true, 4, 1, VerticalMarkers{100, 200, 300, 400});
        row("to, negative index", true, -1, 1, VerticalMarkers{100, 200, 300, 400});
        row("by, keeps the distances behind", false, 2, 50, VerticalMarkers{100, 200, 250, 350});
        row("by, first moves all", false, 0, 150, VerticalMarkers{150, 250, 350, 450});
        row("by, last alone", false, 3, 0, VerticalMarkers{100, 200, 300, 300});
        row("by, negative distance", false, 1, -10, VerticalMarkers{100, 100, 200, 300});
        row("by, negative first", false, 0, kLeast, VerticalMarkers{0, 100, 200, 300});
        row("by, largest", false, 1, kMost, VerticalMarkers{100, kMost, kMost, kMost});
        row("by, bad index", false, 4, 1, VerticalMarkers{100, 200, 300, 400});
    }

    void movesMarkers()
    {
        QFETCH(bool, absolute);
        QFETCH(int, index);
        QFETCH(int, pos);
        QFETCH(VerticalMarkers, expected);
        const VerticalMarkers start{100, 200, 300, 400};
        QVERIFY((absolute ? withMarkerAt(start, index, pos) : withMarkerDistance(start, index, pos)) == expected);
    }
};

QTEST_GUILESS_MAIN(TestTypes)
#include "tst_types.moc"
