#include "linkrig.h"

#include "tests/support/literals.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QRandomGenerator>
#include <QTextStream>

// Records over a network that stalls, delays, tears lines apart and breaks links at random, and compares what the box
// sent with what the program stored. Ends with 1 if a line was lost that came over a link that lived.

namespace {

constexpr int kPeriod = 5; // ms

struct Disturbances
{
    int stalls = 0;
    int longStalls = 0; // long enough for the program to give the link up
    int delays = 0;
    int pieces = 0;
    int drops = 0;
    int cuts = 0;
};

/// Disturbs at random; each disturbance is over before the next one begins.
class Disturber
{
public:
    Disturber(LinkRig &rig, const LinkTimes &times, quint32 seed)
        : m_rig(rig)
        , m_times(times)
        , m_random(seed)
    {
        m_timer.setSingleShot(true);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { next(); });
        m_timer.start(pause());
    }
    void stop()
    {
        m_timer.stop();
        calm();
    }
    [[nodiscard]] const Disturbances &done() const { return m_done; }

private:
    void calm()
    {
        m_rig.proxy.stall();
        m_rig.proxy.setDelay(0);
        m_rig.proxy.setPiece(0);
        m_isCalm = true;
    }
    int pause() { return m_times.staleAfter / 4 + m_random.bounded(2 * m_times.staleAfter); }
    void next()
    {
        if (!m_isCalm) {
            calm();
            m_timer.start(pause());
            return;
        }
        m_isCalm = false;
        m_timer.start(begin(m_random.bounded(20)));
    }
    /// Returns how long it lasts, in ms.
    int begin(int kind)
    {
        LinkProxy &proxy = m_rig.proxy;
        if (kind < 7) {
            ++m_done.stalls;
            proxy.stall(true, m_random.bounded(2) == 0);
            return m_times.lostAfter / 100 + m_random.bounded(m_times.lostAfter / 2);
        }
        if (kind < 8) {
            ++m_done.longStalls;
            proxy.stall(true, true);
            return m_times.lostAfter * 5 / 4;
        }
        if (kind < 12) {
            ++m_done.delays;
            proxy.setDelay(1 + m_random.bounded(m_times.answerWait / 3));
            return m_times.staleAfter;
        }
        if (kind < 15) {
            ++m_done.pieces;
            proxy.setPiece(1 + m_random.bounded(40));
            return m_times.staleAfter;
        }
        if (kind < 18) {
            ++m_done.drops;
            proxy.drop();
        } else {
            ++m_done.cuts;
            proxy.cutNextLine();
        }
        return m_times.staleAfter;
    }

    LinkRig &m_rig;
    LinkTimes m_times;
    QRandomGenerator m_random;
    QTimer m_timer;
    Disturbances m_done;
    bool m_isCalm = true;
};

void print(const LinkRig &rig, const Disturbances &done, int seconds)
{
    const int shots = rig.bench.shots();
    int flagged = 0;
    int continued = 0;
    for (int shot = 0; shot < shots; ++shot) {
        flagged += rig.bench.model.projectMeta().missing(shot) > 0 ? 1 : 0;
        continued += rig.bench.model.shotLabel(shot).isEmpty() ? 0 : 1;
    }
    QTextStream out(stdout);
    out << "ran " << seconds << " s at " << kPeriod << " ms: " << done.stalls << " stalls, " << done.longStalls
        << " that ended the link, " << done.delays << " delays, " << done.pieces << " times in pieces, " << done.drops
        << " drops, " << done.cuts << " cuts within a line; " << rig.proxy.links() << " links\n"
        << "the box sent " << rig.sent << " lines, " << rig.proxy.fromBox() << " came to the network, "
        << rig.proxy.toProgram() << " were handed to the program, " << rig.stored() << " are stored\n"
        << shots << " shots, " << continued << " of them marked as continued, " << flagged
        << " with missing values; period " << rig.bench.model.clock() << " ms\n"
        << rig.bench.prompts->messages.size() << " messages, " << rig.bench.prompts->addressDialogs << " dialogs, "
        << rig.bench.prompts->withdrawn << " of both taken back\n";
}

bool isRight(const LinkRig &rig)
{
    const int shots = rig.bench.shots();
    bool isRight = rig.stored() == rig.proxy.toProgram() && rig.stored() > 0 && rig.bench.model.clock() == kPeriod;
    for (int shot = 0; shot < shots; ++shot)
        isRight = isRight && rig.bench.model.projectMeta().missing(shot) == 0
                  && rig.bench.model.shotLabel(shot).isEmpty() == (shot == 0);
    return isRight;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{"seconds"_s, "How long."_s, "number"_s, "15"_s},
                       {"seed"_s, "Of the disturbances."_s, "number"_s, "1"_s},
                       {"real"_s, "With the times of the program instead of short ones."_s}});
    parser.process(application);
    const int seconds = parser.value("seconds"_s).toInt();
    const LinkTimes times = parser.isSet("real"_s) ? LinkTimes() : shortTimes();

    LinkRig rig(times);
    ScriptedPrompts *prompts = rig.bench.prompts;
    prompts->whileOpen = [prompts, before = 0]() mutable {
        before = prompts->withdrawn;
        (void)QTest::qWaitFor([&] { return prompts->withdrawn > before; }, 60000);
    };
    BoxOptions options;
    options.repeatCycles = true;
    rig.box.setOptions(options);
    if (!rig.connectWithPeriod(kPeriod) || !rig.record(10))
        return 2;
    Disturber disturber(rig, times, parser.value("seed"_s).toUInt());
    QTest::qWait(seconds * 1000);
    disturber.stop();
    // The last loss may still be on its way to a new link.
    const bool isBack = QTest::qWaitFor([&] { return rig.bench.controller.isRecordingRunning(); }, 30000);
    QTest::qWait(2 * times.staleAfter);
    emit rig.bench.view.startStopRecording();
    const bool isEnded = QTest::qWaitFor([&] { return !rig.bench.controller.isRecordingRunning(); }, 5000);
    print(rig, disturber.done(), seconds);
    return isBack && isEnded && isRight(rig) ? 0 : 1;
}
