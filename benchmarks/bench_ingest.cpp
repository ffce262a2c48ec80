// Sample lines per second from a socket to the screen: connector, controller and model with the whole window shown and
// a thousand shots stored.

#include "app/startup.h"
#include "controller/controller.h"
#include "device/mesotraconnector.h"
#include "model/model.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/window/sidetabs.h"
#include "view/window/view.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QSemaphore>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>

namespace {

constexpr int kShots = 1000;
constexpr int kSamplesPerShot = 600;
constexpr int kLinesPerRun = 100000;
constexpr int kLiveLines = 3000; // one per millisecond

/// Sends sample lines on demand from a separate thread: as fast as the socket takes them, or one per millisecond.
class LineSource
{
public:
    LineSource()
        : m_thread([this] { run(); })
    {
        m_listening.acquire();
    }
    ~LineSource()
    {
        m_stop = true;
        m_demand.release();
        m_thread.join();
    }
    Q_DISABLE_COPY_MOVE(LineSource)

    [[nodiscard]] quint16 port() const { return m_port; }
    void sendRun(int lines, bool live)
    {
        m_lines = lines;
        m_live = live;
        m_demand.release();
    }

private:
    void run()
    {
        QTcpServer server;
        server.listen(QHostAddress::LocalHost);
        m_port = server.serverPort();
        m_listening.release();
        if (!server.waitForNewConnection(10000))
            return;
        QTcpSocket *socket = server.nextPendingConnection();
        socket->write("run=1\n");
        socket->flush();
        for (m_demand.acquire(); !m_stop; m_demand.acquire())
            send(*socket);
    }

    void send(QTcpSocket &socket)
    {
        QElapsedTimer timer;
        timer.start();
        QByteArray lines;
        for (int i = 0; i < m_lines && !m_stop; ++i) {
            const QByteArray value = QByteArray::number(20.0 + (i % 977) * 0.125, 'f', 3);
            lines += QByteArray::number(i) + ';' + value + ';' + value + ";37.250;41.125;-3.875\n";
            if (m_live || lines.size() > 60000 || i + 1 == m_lines)
                flush(socket, lines);
            while (m_live && timer.elapsed() < i)
                std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
    }

    void flush(QTcpSocket &socket, QByteArray &lines)
    {
        socket.write(lines);
        while (socket.bytesToWrite() > 0 && !m_stop)
            socket.waitForBytesWritten(100);
        lines.clear();
    }

    QSemaphore m_listening;
    QSemaphore m_demand;
    std::atomic<bool> m_stop{false};
    int m_lines = 0;
    bool m_live = false;
    quint16 m_port = 0;
    std::thread m_thread; // last: it uses the others
};

void fill(Model &model)
{
    for (int shot = 0; shot < kShots; ++shot) {
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            const int measurement = model.appendMeasurement(sensor);
            for (int sample = 0; sample < kSamplesPerShot; ++sample)
                model.appendSample(sensor, measurement, 50.0 + (sample * 7 + shot) % 90);
        }
    }
}

template <typename Condition>
void runEventsUntil(Condition condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < 30000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

int samplesOfNewestShot(const Model &model)
{
    const SampleList *samples = model.measurement(4, model.numChannels(4) - 1);
    return samples ? samples->size() : 0;
}

/// The program connected to a source of lines, its window on the oscilloscope tab, a recording running.
struct Program
{
    Program()
        : view(&model)
        , controller(&model, &view, optionsFor(source.port()))
    {
        fill(model);
        view.resize(1280, 800);
        view.tabs()->setCurrentWidget(view.tabOszi());
        view.show();
        controller.onActionConnect();
        runEventsUntil([this] { return controller.isRecordingRunning(); });
        runEventsUntil([timer = startedTimer()] { return timer.elapsed() > 500; }); // the first paint of all shots
    }

    static QElapsedTimer startedTimer()
    {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }

    static ControllerOptions optionsFor(quint16 port)
    {
        ControllerOptions options;
        options.deviceAddress = QStringLiteral("127.0.0.1");
        options.port = port;
        return options;
    }

    /// Runs events until the lines are in the model; returns the longest time between two turns of the loop, in ms.
    double take(int lines, bool live)
    {
        const int expected = samplesOfNewestShot(model) + lines;
        qint64 longest = 0; // ns
        QElapsedTimer turn;
        source.sendRun(lines, live);
        runEventsUntil([&] {
            longest = turn.isValid() ? std::max(longest, turn.nsecsElapsed()) : 0;
            turn.start();
            return samplesOfNewestShot(model) >= expected;
        });
        complete = complete && samplesOfNewestShot(model) == expected;
        return static_cast<double>(longest) / 1e6;
    }

    LineSource source;
    Model model{QString()};
    View view;
    Controller controller;
    bool complete = true;
};

void measure(benchmark::State &state, int lines, bool live)
{
    QLoggingCategory::setFilterRules(state.range(0) ? QStringLiteral("ventaro.*.debug=true")
                                                    : QStringLiteral("ventaro.*.debug=false"));
    Program program;
    double longest = 0.0;
    for (auto _ : state)
        longest = std::max(longest, program.take(lines, live));
    if (!program.complete)
        state.SkipWithError("samples were lost");
    state.SetItemsProcessed(state.iterations() * lines);
    state.counters["longest_turn_ms"] = longest;
}

void burst(benchmark::State &state)
{
    measure(state, kLinesPerRun, false);
}

void live(benchmark::State &state)
{
    measure(state, kLiveLines, true);
}

BENCHMARK(burst)->ArgName("logging")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(5)->UseRealTime();
BENCHMARK(live)->ArgName("logging")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {}); // logging goes nowhere
    QApplication application(argc, argv);
    prepareApplication(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
