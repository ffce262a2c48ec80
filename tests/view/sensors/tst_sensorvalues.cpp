#include "tests/support/rows.h"
#include "view/sensors/sensorvalues.h"

#include <QTest>

namespace {

constexpr int kPeriod = 100; // ms

std::array<double, kNumSensors> allOf(double value)
{
    std::array<double, kNumSensors> values{};
    values.fill(value);
    return values;
}

SensorValues::PerChannel recordedAs(const std::optional<double> &value)
{
    SensorValues::PerChannel values;
    values.fill(value);
    return values;
}

/// A sensor with the offset 1 and the limits 0 and 10.
SensorInfo sensorOf(int channel)
{
    SensorInfo sensor;
    sensor.channel = channel;
    sensor.limits = sensorLimits(0.0, 10.0);
    sensor.offset = 1.0;
    return sensor;
}

using Action = std::function<void(SensorValues &values, qint64 &time)>;

Action live(double value)
{
    return [value](SensorValues &values, qint64 &) { values.addSample(allOf(value), kPeriod); };
}

} // namespace

Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(SensorStatus)

class TestSensorValues : public QObject
{
    Q_OBJECT

private slots:
    void readingOfASensor_data()
    {
        columns<Action, int, SensorStatus, double, double>("action", "channel", "status", "value", "readOut");
        row("nothing yet", Action([](SensorValues &, qint64 &) {}), 0, SensorStatus::NoValue, 0.0, 0.0);
        row("recorded", Action([](SensorValues &values, qint64 &) { (void)values.setRecorded(recordedAs(4.0)); }), 0,
            SensorStatus::Stale, 5.0, 5.0);
        row("live", live(4.0), 4, SensorStatus::Inside, 5.0, 5.0);
        row("above by the offset alone", live(9.5), 0, SensorStatus::Above, 10.5, 10.5);
        row("below", live(-1.5), 0, SensorStatus::Below, -0.5, -0.5);
        row("the box sends nothing for it", live(4.0), -1, SensorStatus::NoValue, 0.0, 0.0);
        row("live hides recorded", Action([](SensorValues &values, qint64 &) {
                values.addSample(allOf(4.0), kPeriod);
                (void)values.setRecorded(recordedAs(7.0));
            }),
            0, SensorStatus::Inside, 5.0, 5.0);
        row("recorded again", Action([](SensorValues &values, qint64 &) {
                (void)values.setRecorded(recordedAs(7.0));
                values.addSample(allOf(4.0), kPeriod);
                values.forgetLive();
            }),
            0, SensorStatus::Stale, 8.0, 8.0);
        row("digits are slower", Action([](SensorValues &values, qint64 &) {
                values.addSample(allOf(4.0), kPeriod);
                values.updateReadOut();
                values.addSample(allOf(6.0), kPeriod);
            }),
            0, SensorStatus::Inside, 7.0, 5.0);
        const auto outlived = [](SensorValues &values, qint64 &time) {
            values.addSample(allOf(4.0), kPeriod);
            time += LiveValues::kShortestFreshness + 1;
        };
        row("too old", Action(outlived), 0, SensorStatus::Stale, 5.0, 5.0);
        const auto lost = [](SensorValues &values, qint64 &) {
            values.addSample(allOf(99.0), kPeriod);
            values.expire();
        };
        row("link lost", Action(lost), 0, SensorStatus::Stale, 100.0, 100.0);
    }

    void readingOfASensor()
    {
        QFETCH(Action, action);
        QFETCH(int, channel);
        qint64 time = 0;
        SensorValues values;
        values.setTimeSource([&time] { return time; });
        action(values, time);
        const SensorReading reading = values.reading(sensorOf(channel));
        QTEST(reading.status, "status");
        QTEST(reading.value, "value");
        QTEST(reading.readOut, "readOut");
    }

    void heldRange()
    {
        SensorValues values;
        (void)values.setRecorded(recordedAs(50.0)); // which nothing holds
        QVERIFY(!values.reading(sensorOf(0)).held);
        for (const double value : {3.0, -2.0, 8.0})
            values.addSample(allOf(value), kPeriod);
        values.resetHeld(1);
        QCOMPARE(values.reading(sensorOf(0)).held.value_or(HeldRange()), (HeldRange{-1.0, 9.0}));
        QVERIFY(!values.reading(sensorOf(1)).held);
        values.resetAllHeld();
        QVERIFY(!values.reading(sensorOf(0)).held);
    }

    void onlyOtherRecordedValuesAreNews()
    {
        SensorValues values;
        QVERIFY(!values.setRecorded(recordedAs(std::nullopt)));
        QVERIFY(!values.isAny());
        QVERIFY(values.setRecorded(recordedAs(1.0)));
        QVERIFY(!values.setRecorded(recordedAs(1.0)));
        QVERIFY(values.isAny() && !values.isLive());
    }
};

QTEST_APPLESS_MAIN(TestSensorValues)
#include "tst_sensorvalues.moc"
