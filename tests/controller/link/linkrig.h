#pragma once

#include "simulator/boxsimulator.h"
#include "tests/controller/bench.h"
#include "tests/support/linkproxy.h"
#include "tests/support/literals.h"

#include <QLabel>
#include <QPushButton>

/// Times that keep tests short. With a period of 5 ms none of them is raised by it.
inline LinkTimes shortTimes()
{
    LinkTimes times;
    times.tick = 10;
    times.staleAfter = 200;
    times.resendAfter = 400;
    times.lostAfter = 900;
    times.answerWait = 250;
    times.retryDelays = {50, 100, 150};
    times.probeTime = 200;
    times.probeShown = 600;
    return times;
}

inline ControllerOptions linkOptions(quint16 port, const LinkTimes &times, const QString &scpTool = {},
                                     const QString &folder = {})
{
    ControllerOptions options;
    options.scpToolFile = scpTool;
    options.temporaryDirectory = folder;
    options.deviceAddress = "127.0.0.1"_s;
    options.port = port;
    options.deviceDescriptionTimeout = 100;
    options.sensorDescriptionTimeout = 150;
    options.linkTimes = times;
    return options;
}

/// A simulated box, a network in between, and the program.
struct LinkRig
{
    explicit LinkRig(const LinkTimes &times = shortTimes(), const QString &scpTool = {}, const QString &folder = {})
        : isListening(box.listen())
        , proxy(box.port())
        , bench(linkOptions(proxy.port(), times, scpTool, folder))
    {
        QObject::connect(&box, &BoxSimulator::sampleSent, &box, [this] { ++sent; });
    }

    [[nodiscard]] bool connectWithPeriod(int period)
    {
        emit bench.view.connectDisconnect();
        if (!QTest::qWaitFor([this] { return bench.model.isConnected() && !bench.model.hardwareVersion().isEmpty(); }))
            return false;
        emit bench.view.terminalSend("t=%1"_s.arg(period));
        return QTest::qWaitFor([&] { return bench.model.clock() == period; });
    }
    [[nodiscard]] bool record(int samples)
    {
        emit bench.view.startStopRecording();
        return QTest::qWaitFor([&] { return stored() >= samples; });
    }
    /// Samples of the newest shot.
    [[nodiscard]] int newest() const { return bench.samples(0, bench.shots() - 1).size(); }
    /// Samples of all shots.
    [[nodiscard]] qint64 stored() const
    {
        qint64 count = 0;
        for (int shot = 0; shot < bench.shots(); ++shot)
            count += bench.model.measurement(0, shot)->size();
        return count;
    }
    [[nodiscard]] QString head() const { return bench.view.findChild<QLabel *>("labelState"_s)->text(); }
    [[nodiscard]] QString detail() const { return bench.view.findChild<QLabel *>("labelStateDetail"_s)->text(); }
    [[nodiscard]] QWidget *line() const { return bench.view.findChild<QWidget *>("stateLine"_s); }
    [[nodiscard]] QPushButton *button(const char *name) const
    {
        return bench.view.findChild<QPushButton *>(QLatin1String(name));
    }

    BoxSimulator box;
    bool isListening;
    LinkProxy proxy;
    Bench bench;
    qint64 sent = 0; ///< sample lines that the box has handed to its socket
};
