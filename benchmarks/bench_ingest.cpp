// Sample lines a second from a socket to the screen: connector, controller and model with the whole window shown and
// a thousand shots stored.

#include "app/startup.h"
#include "controller/controller.h"
#include "device/mesotraconnector.h"
#include "model/model.h"
#include "view/sidetabs.h"
#include "view/taboszilloscope.h"
#include "view/view.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QSemaphore>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>

#include <atomic>
#include <thread>

namespace {

constexpr int kShots = 1000;
constexpr int kSamplesPerShot = 600;
constexpr int kLinesPerRun = 100000;

/// Sends sample lines on demand as fast as the socket takes them, from a thread of its own.
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
    void sendRun() { m_demand.release(); }

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
        QByteArray lines;
        for (int i = 0; i < kLinesPerRun; ++i) {
            const QByteArray value = QByteArray::number(20.0 + (i % 977) * 0.125, 'f', 3);
            lines += QByteArray::number(i) + ';' + value + ';' + value + ";37.250;41.125;-3.875\n";
            if (lines.size() > 60000 || i + 1 == kLinesPerRun) {
                socket.write(lines);
                while (socket.bytesToWrite() > 0 && !m_stop)
                    socket.waitForBytesWritten(100);
                lines.clear();
            }
        }
    }

    QSemaphore m_listening;
    QSemaphore m_demand;
    std::atomic<bool> m_stop{false};
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

void ingest(benchmark::State &state)
{
    QLoggingCategory::setFilterRules(state.range(0) ? QStringLiteral("ventaro.*.debug=true")
                                                    : QStringLiteral("ventaro.*.debug=false"));
    LineSource source;
    Model model{QString()};
    fill(model);
    View view(&model);
    ControllerOptions options;
    options.deviceAddress = QStringLiteral("127.0.0.1");
    options.port = source.port();
    Controller controller(&model, &view, options);
    view.resize(1280, 800);
    view.tabs()->setCurrentWidget(view.tabOszi());
    view.show();
    controller.onActionConnect();
    runEventsUntil([&] { return controller.isRecordingRunning(); });

    int expected = 0;
    qint64 longestTurn = 0; // ms
    for (auto _ : state) {
        expected += kLinesPerRun;
        source.sendRun();
        QElapsedTimer turn;
        runEventsUntil([&] {
            if (turn.isValid())
                longestTurn = std::max(longestTurn, turn.elapsed());
            turn.start();
            return samplesOfNewestShot(model) >= expected;
        });
    }
    if (samplesOfNewestShot(model) != expected)
        state.SkipWithError("samples were lost");
    state.SetItemsProcessed(state.iterations() * kLinesPerRun);
    state.counters["longest_turn_ms"] = static_cast<double>(longestTurn);
}

BENCHMARK(ingest)->ArgName("logging")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(5)->UseRealTime();

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
