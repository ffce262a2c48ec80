#include "controller/link/linkparts.h"

#include "controller/controlleroptions.h"
#include "controller/link/boxdescriptions.h"
#include "controller/link/boxlink.h"
#include "controller/link/samplingperiod.h"
#include "controller/recording/recorder.h"
#include "device/mesotraconnector.h"
#include "view/window/view.h"

LinkParts::LinkParts(const Desk &desk, const Carriers &carriers, const ControllerOptions &options)
    : clock(carriers.lines, options.linkTimes.tick)
    , silence(options.linkTimes)
    , answers(options.linkTimes.answerWait)
    , shot(desk, carriers.recorder)
    , continuation(desk.model, carriers.recorder)
    , memory(desk.view, desk.model, carriers.connector, carriers.demoBox)
    , probe(desk, carriers.link, options.port, {options.linkTimes.probeTime, options.linkTimes.probeShown})
    , report(desk, {carriers.link, carriers.connector, carriers.demoBox, silence, answers, shot, continuation})
    , firmware(desk, carriers.connector, carriers.link, carriers.demo, options.restartWait)
    , m_carriers(carriers)
{
    watchLink();
    watchBox(desk.view);
}

/// Receivers of the same signal are called in the order of these lines, after those that carry the link.
void LinkParts::watchLink()
{
    const BoxLink *link = &m_carriers.link;
    QObject::connect(link, &BoxLink::wanted, &probe, &BoxProbe::stop);
    QObject::connect(link, &BoxLink::established, &clock, [this] {
        silence.reset();
        answers.reset();
        memory.reset();
        clock.start();
        continuation.noteEstablished(m_carriers.connector.hostAddress());
        report.refresh();
    });
    QObject::connect(link, &BoxLink::lost, &report, [this](const QString &address, bool wasRecording) {
        continuation.noteLoss(address, wasRecording);
        report.noteLoss();
    });
    QObject::connect(link, &BoxLink::left, &report, [this] {
        continuation.forget();
        report.refresh();
    });
    QObject::connect(&m_carriers.descriptions, &BoxDescriptions::scaleKnown, &report, [this] {
        memory.noteDescribed();
        continuation.noteScaleKnown();
    });
}

void LinkParts::watchBox(View &view)
{
    QObject::connect(&m_carriers.connector, &MesotraConnector::written, &report,
                     [this](const QString &text) { noteSent(text); });
    QObject::connect(&clock, &LinkClock::ticked, &silence, [this](int milliseconds) {
        answers.advance(milliseconds);
        silence.advance(milliseconds, m_carriers.recorder.isRunning(), m_carriers.period.boxPeriod());
    });
    QObject::connect(&silence, &SilenceWatch::signOfLifeWanted, &m_carriers.period, &SamplingPeriod::repeat);
    QObject::connect(&silence, &SilenceWatch::lost, &m_carriers.link, &BoxLink::loseSilent);
    QObject::connect(&answers, &AnswerWatch::unanswered, &m_carriers.link, &BoxLink::noteMute);
    QObject::connect(&answers, &AnswerWatch::unanswered, &view, [&view](const QString &command) {
        view.showStatus(QCoreApplication::translate("LinkParts", "Die Box antwortet nicht (%1).").arg(command));
    });
}

void LinkParts::endWithLink()
{
    clock.stop();
    silence.reset();
    answers.reset();
    shot.finish();
}

void LinkParts::noteSent(const QString &text)
{
    answers.noteSent(text);
    if (expectedAnswer(text) == MessageKind::RunStopped)
        shot.noteStopRequest();
}

void LinkParts::beforeLine(const QString &line)
{
    const MessageKind kind = classify(line);
    silence.noteLine(kind == MessageKind::Sample);
    answers.noteLine(kind);
    if (memory.noteLine(kind, line)) {
        m_carriers.link.noteProven();
        report.noteBack();
    }
    if (kind == MessageKind::Sample)
        shot.noteSample();
    else if (kind == MessageKind::RunStarted || kind == MessageKind::RunStopped)
        shot.finish();
}

void LinkParts::afterLine(const QString &line)
{
    switch (classify(line)) {
    case MessageKind::RunStarted:
        shot.begin(m_carriers.period.boxPeriod());
        continuation.noteStarted();
        break;
    case MessageKind::ClockEcho:
        shot.setPeriod(m_carriers.period.boxPeriod());
        break;
    default:
        break;
    }
}
