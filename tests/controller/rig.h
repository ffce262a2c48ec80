#pragma once

#include "bench.h"

#include "device/mesotraconnector.h"
#include "simulator/boxsimulator.h"
#include "tests/support/literals.h"

/// Short waits, and the port of a box on this machine.
inline ControllerOptions optionsFor(quint16 port, const QString &demoProgram = {})
{
    ControllerOptions options;
    options.deviceAddress = "127.0.0.1"_s;
    options.port = port;
    options.demoProgram = demoProgram;
    options.deviceDescriptionTimeout = 100;
    options.sensorDescriptionTimeout = 150;
    return options;
}

/// A simulated box and the program, on a real link.
struct Rig
{
    explicit Rig(const BoxOptions &options = {}, const QString &demoProgram = {})
        : box(options)
        , isListening(box.listen())
        , bench(optionsFor(box.port(), demoProgram))
    {
        QObject::connect(&box, &BoxSimulator::sampleSent, &box, [this](const QByteArray &line) { sent.append(line); });
    }

    [[nodiscard]] bool connectToBox()
    {
        emit bench.view.connectDisconnect();
        return QTest::qWaitFor([this] { return bench.model.isConnected() && !isWaitingForDescriptions(); });
    }

    /// Connects and chooses a period that keeps tests short.
    [[nodiscard]] bool connectQuickly()
    {
        if (!connectToBox())
            return false;
        emit bench.view.terminalSend("t=5"_s);
        return QTest::qWaitFor([this] { return bench.model.clock() == 5; });
    }

    /// True once the box has described its sensors or the wait for that is over.
    [[nodiscard]] bool isWaitingForDescriptions() const
    {
        return bench.model.sensorDescription().sensorGroup(0).sensorName(0).isEmpty()
               && !bench.controller.areValuesInThousandths();
    }

    [[nodiscard]] bool start()
    {
        sent.clear();
        emit bench.view.startStopRecording();
        return QTest::qWaitFor([this] { return bench.controller.isRecordingRunning(); });
    }

    /// Waits for this number of samples, stops, and waits until the last one has arrived.
    [[nodiscard]] bool stopAfter(int samples)
    {
        const bool enough = QTest::qWaitFor([&] { return sent.size() >= samples; });
        emit bench.view.startStopRecording();
        return enough && QTest::qWaitFor([this] { return !bench.controller.isRecordingRunning() && allArrived(); });
    }

    [[nodiscard]] bool recordShot(int samples) { return start() && stopAfter(samples); }

    /// True if the newest shot holds every sample that the box sent since the start, bit for bit, and no other.
    [[nodiscard]] bool allArrived(double divisor = 1.0) const
    {
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            if (bench.samples(sensor, bench.shots() - 1) != sentValues(sensor, divisor))
                return false;
        return true;
    }

    [[nodiscard]] QVector<double> sentValues(int sensor, double divisor = 1.0) const
    {
        QVector<double> values;
        for (const QByteArray &line : sent)
            values.append(line.trimmed().split(';').value(sensor + 1).toDouble() / divisor);
        return values;
    }

    BoxSimulator box;
    bool isListening;
    QList<QByteArray> sent;
    Bench bench;
};
