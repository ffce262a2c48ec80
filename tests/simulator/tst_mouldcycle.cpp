#include "device/protocol/descriptions.h"
#include "simulator/boxtexts.h"
#include "simulator/mouldcycle.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <algorithm>
#include <cmath>

namespace {

enum Signal { Cavity, Injection, Melt, Mould, Position };

constexpr double kStep = 0.001; // seconds

double valueAt(const MouldCycle &cycle, int signal, double time, int shot = 1)
{
    return cycle.idealValuesAt(shot, time).at(static_cast<size_t>(signal));
}

double timeOfPeak(const MouldCycle &cycle, int signal)
{
    double best = 0.0;
    for (double t = 0.0; t < cycle.seconds(); t += kStep) {
        if (valueAt(cycle, signal, t) > valueAt(cycle, signal, best))
            best = t;
    }
    return best;
}

} // namespace

class TestMouldCycle : public QObject
{
    Q_OBJECT

private slots:
    void hasItsPhasesInOrder_data()
    {
        columns<double, double>("seconds", "length");
        row("usual", 12.0, 12.0);
        row("short", 0.1, 0.1);
        row("zero", 0.0, 1.0);
        row("no number", std::nan(""), 1.0);
    }

    void hasItsPhasesInOrder()
    {
        QFETCH(double, seconds);
        for (int shot = 0; shot < 50; ++shot) {
            const PhaseEnds ends = MouldCycle(7, seconds).phaseEnds(shot);
            QVERIFY(0.0 < ends.closing && ends.closing < ends.injection && ends.injection < ends.holding);
            QVERIFY(ends.holding < ends.cooling && ends.cooling < ends.opening);
            QTEST(ends.opening, "length");
        }
    }

    void isShapedLikeAMouldCycle()
    {
        const MouldCycle cycle(1, 12.0);
        const PhaseEnds ends = cycle.phaseEnds(1);
        QVERIFY(std::abs(timeOfPeak(cycle, Cavity) - ends.injection) < 0.01);
        QVERIFY(std::abs(timeOfPeak(cycle, Injection) - ends.injection) < 0.01);
        const double plateau = valueAt(cycle, Cavity, (ends.injection + ends.holding) / 2.0);
        QVERIFY(plateau > 0.5 * valueAt(cycle, Cavity, ends.injection)
                && plateau < 0.9 * valueAt(cycle, Cavity, ends.injection));
        QVERIFY(valueAt(cycle, Cavity, ends.closing) < 1.0); // nothing is injected into an open mould
        QVERIFY(valueAt(cycle, Cavity, ends.cooling) < 1.0); // nor is it opened under pressure
        QVERIFY(valueAt(cycle, Position, 0.0) > 300.0);
        QVERIFY(valueAt(cycle, Position, ends.holding) < 0.1);
        QVERIFY(valueAt(cycle, Position, ends.opening) > 300.0);
        QVERIFY(timeOfPeak(cycle, Melt) < timeOfPeak(cycle, Mould));
        for (double t = ends.holding; t + 0.1 < ends.cooling; t += 0.1) {
            QVERIFY(valueAt(cycle, Cavity, t + 0.1) < valueAt(cycle, Cavity, t));
            QVERIFY(valueAt(cycle, Melt, t + 0.1) < valueAt(cycle, Melt, t));
        }
    }

    void staysWithinTheSensorsLimits()
    {
        const auto &sensors = simulatedSensors();
        for (int shot = 0; shot < 100; ++shot) {
            const MouldCycle cycle(static_cast<quint32>(shot * 31), 12.0);
            for (double t = -1.0; t < 30.0; t += 0.05) {
                const SampleValues values = cycle.valuesAt(shot, t);
                for (size_t i = 0; i < values.size(); ++i)
                    QVERIFY(values.at(i) >= sensors.at(i).minimum && values.at(i) <= sensors.at(i).maximum);
            }
        }
    }

    void describesItselfInTheGrammar()
    {
        for (const QByteArray &line : {deviceDescriptionLine(true), sensorDescriptionLine()}) {
            QVERIFY(line.size() <= 1023);
            QCOMPARE(line.indexOf('\n'), line.size() - 1);
        }
        const DeviceDescription device = parseDeviceDescription(QString::fromLatin1(deviceDescriptionLine(true)));
        QCOMPARE(device.numGroups, 1);
        QCOMPARE(device.groups.first().channels.size(), kNumSensors);
        QVERIFY(!parseProjectDescription(QString::fromLatin1(deviceDescriptionLine(false))));
        const auto project = parseProjectDescription(QString::fromLatin1(deviceDescriptionLine(true)));
        QVERIFY(project);
        SensorDescription description;
        applySensorDescription(parseSensorDescription(QString::fromLatin1(sensorDescriptionLine())), description);
        QCOMPARE(description.sensorGroup(0).sensorName(Injection), "Einspritzdruck"_s);
        QCOMPARE(description.sensorGroup(0).sensorMaximum(Position), 350.0);
    }
};

QTEST_APPLESS_MAIN(TestMouldCycle)
#include "tst_mouldcycle.moc"
