#include "controller/controllerparts.h"

#include "app/theme.h"
#include "controller/controlleroptions.h"
#include "controller/project/readonlysign.h"
#include "device/scptransfer.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/project/tabproject.h"
#include "view/sensors/tabsensors.h"
#include "view/window/view.h"

ControllerParts::ControllerParts(Model &model, View &view, const ControllerOptions &options)
    : connector(options.port)
    , demoBox(options.demoProgram, options.demoStartTimeout)
    , occupancy(view, model, options.typingPause)
    , questions(occupancy)
    , progress(view, model)
    , display(view)
    , edits(model)
    , recorder(model, edits, connector, display)
    , lines(connector, model, [this, &view](const QString &line) { handleLine(view, line); })
    , link({view, model, occupancy}, connector, demoBox, questions, recorder,
           {options.deviceAddress, options.linkTimes.retryDelays})
    , demo({view, model, occupancy}, demoBox, link, questions)
    , descriptions(view, model, connector, edits, recorder,
                   {options.deviceDescriptionTimeout, options.sensorDescriptionTimeout})
    , period({view, model, occupancy}, connector, edits, recorder)
    , watch({view, model, occupancy}, {connector, demoBox, lines, recorder, link, demo, descriptions, period}, options)
    , offer({view, model, occupancy}, questions, lines, edits)
    , recording({view, model, occupancy}, recorder, link)
    , deletion({view, model, occupancy}, edits, recorder)
    , tabEdits(view, model, edits)
    , access{ProjectLock(model), FileQuestions({view, model, occupancy}),
             ProjectStart({view, model, occupancy}, questions, access.questions, access.lock, options.filesGiven),
             OpenNotice({view, model, occupancy})}
    , saving({view, model, occupancy}, progress, lines, edits, access.lock, access.questions)
    , files({view, model, occupancy}, progress, lines, edits, saving,
            RecordingEnd({view, model, occupancy}, connector, recorder, options.stopWait), access.lock,
            access.questions)
    , pictures({view, model, occupancy}, edits)
    , logger({{view, model, occupancy}, link, connector, demo, progress, lines, edits, recorder},
             options.temporaryDirectory)
    , undo({view, model, occupancy}, edits, recorder)
    , protection({view, model, occupancy}, options.journal, recorder, {questions, progress, lines, saving})
{
    setUpTransfers(options);
    handleMessages();
    connectParts(view);
}

void ControllerParts::connectParts(View &view)
{
    connectLink(view);
    connectFiles();
    connectJournal(view);
    connectView(view);
    connectTabs(view);
}

ControllerParts::~ControllerParts()
{
    // The last signals of the socket and the process must not find parts that are gone.
    QObject::disconnect(&connector, nullptr, nullptr, nullptr);
    QObject::disconnect(&demoBox, nullptr, nullptr, nullptr);
}

void ControllerParts::handleLine(View &view, const QString &line)
{
    view.terminalReceived(line); // when its turn comes, like its effect
    watch.beforeLine(line);
    dispatch.dispatch(line);
    watch.afterLine(line);
}

void ControllerParts::setUpTransfers(const ControllerOptions &options)
{
    connector.scp().setOptions(
        {options.scpToolFile, theme::deviceUser, theme::devicePassword, options.deviceAddress, options.scpTimeouts});
    logger.dialogs.attach(connector.scp());
}

void ControllerParts::handleMessages()
{
    dispatch.setHandler(MessageKind::RunStarted, [this](const QString &) { recorder.started(); });
    dispatch.setHandler(MessageKind::RunStopped, [this](const QString &) { recorder.stopped(); });
    dispatch.setHandler(MessageKind::ClockEcho, [this](const QString &message) { period.takeEcho(message); });
    dispatch.setHandler(MessageKind::ListBegin, [this](const QString &) { logger.list.begin(); });
    dispatch.setHandler(MessageKind::ListEnd, [this](const QString &) { logger.list.finish(); });
    dispatch.setHandler(MessageKind::Other, [this](const QString &message) { logger.list.take(message); });
}

/// Receivers of the same signal are called in the order of these lines. Parts that are no QObjects are called by a
/// lambda in the context of one that is.
void ControllerParts::connectLink(View &view)
{
    QObject::connect(&connector, &MesotraConnector::written, &view, &View::terminalSent);
    QObject::connect(&connector, &MesotraConnector::error, &link, &BoxLink::onError);
    QObject::connect(&link, &BoxLink::established, &demo, &DemoLink::showState);
    QObject::connect(&link, &BoxLink::established, &period, &SamplingPeriod::begin);
    QObject::connect(&link, &BoxLink::established, &descriptions, &BoxDescriptions::request);
    QObject::connect(&link, &BoxLink::established, &period, &SamplingPeriod::restore);
    // What the box sent before the end of the link comes first.
    QObject::connect(&link, &BoxLink::closing, &link, [this] { lines.flush(); });
    QObject::connect(&link, &BoxLink::closing, &link, [this] { watch.endWithLink(); });
    QObject::connect(&link, &BoxLink::closing, &descriptions, &BoxDescriptions::stopWaiting);
    QObject::connect(&link, &BoxLink::closing, &logger.list, &LoggerList::reset);
    QObject::connect(&link, &BoxLink::left, &demo, &DemoLink::stop);
    QObject::connect(&link, &BoxLink::left, &logger.list, &LoggerList::forget);
    QObject::connect(&link, &BoxLink::established, &logger.list, [this] { logger.list.show(connector.hostAddress()); });
    QObject::connect(&link, &BoxLink::left, &link, [this] { offer.withdraw(); });
    QObject::connect(&link, &BoxLink::demoLost, &demo, [this] { demo.onFailed(DemoBox::End::Ended); });
    QObject::connect(&demoBox, &DemoBox::listening, &demo, &DemoLink::onListening);
    QObject::connect(&demoBox, &DemoBox::failed, &demo, &DemoLink::onFailed);
    QObject::connect(&descriptions, &BoxDescriptions::projectReceived, &descriptions,
                     [this](const ReceivedProject &project) { offer.receive(project); });
    QObject::connect(&period, &SamplingPeriod::boxPeriodChanged, &period, [this](int ms) { display.setPeriod(ms); });
}

void ControllerParts::connectFiles()
{
    QObject::connect(&files, &ProjectFiles::boxDismissed, &link, &BoxLink::leaveForAnother);
    QObject::connect(&files, &ProjectFiles::boxGivenUp, &link, &BoxLink::leave);
    QObject::connect(&access.start, &ProjectStart::declined, &files, &ProjectFiles::newProject);
    QObject::connect(&access.start, &ProjectStart::copyWanted, &files, &ProjectFiles::detachFromFile);
    QObject::connect(&files, &ProjectFiles::projectReplaced, &files, [this] {
        offer.forgetAnswers();
        recorder.restartShotClock();
    });
    QObject::connect(&files, &ProjectFiles::cleared, &descriptions, &BoxDescriptions::describeAgain);
    QObject::connect(&files, &ProjectFiles::measurementsReplaced, &files, [this] { recorder.forgetSeries(); });
    QObject::connect(&files, &ProjectFiles::shown, &files, [this] { recorder.announceRunning(); });
    QObject::connect(&files, &ProjectFiles::shown, &period, &SamplingPeriod::matchProject);
    QObject::connect(&files, &ProjectFiles::projectReplaced, &access.notice, &OpenNotice::show);
    QObject::connect(&undo, &UndoControl::samplingPeriodChanged, &period, &SamplingPeriod::matchProject);
    // A recording is continued in the project in which it began.
    QObject::connect(&files, &ProjectFiles::measurementsReplaced, &files, [this] { watch.continuation.forget(); });
    QObject::connect(&files, &ProjectFiles::quitting, &files, [this] { recorder.requestStop(); });
}

void ControllerParts::connectJournal(View &view)
{
    QObject::connect(&protection.journal, &Journal::told, &view,
                     [&view](const QString &text) { view.showStatus(text); });
    QObject::connect(&files, &ProjectFiles::quitting, &protection.journal, &Journal::discard);
    // What takes long may end badly.
    QObject::connect(&progress, &FileProgress::begun, &protection.journal, &Journal::takeChanges);
    QObject::connect(&files, &ProjectFiles::interrupted, &files, [this] { recorder.requestStop(); });
    QObject::connect(&files, &ProjectFiles::interruptionTaken, &protection.journal, &Journal::secure);
    QObject::connect(&protection.recovery, &Recovery::restored, &files, [this] {
        recorder.forgetSeries();
        recorder.restartShotClock();
        watch.continuation.forget();
        offer.forgetAnswers();
    });
    QObject::connect(&protection.recovery, &Recovery::restored, &period, &SamplingPeriod::matchProject);
    QObject::connect(&protection.recovery, &Recovery::restored, &access.notice, &OpenNotice::show);
}

void ControllerParts::connectView(View &view)
{
    view.addStatusWidget(new ReadOnlySign(access.lock, &view));
    QObject::connect(&view, &View::openProjectFile, &files, &ProjectFiles::openNamed);
    QObject::connect(&view, &View::startStopDemo, &demo, &DemoLink::toggle);
    QObject::connect(&view, &View::connectToAddress, &link, &BoxLink::connectToAddress);
    QObject::connect(&view, &View::terminalSend, &link, &BoxLink::sendTerminalLine);
    QObject::connect(&view, &View::about, &view, &View::showAbout);
    // The progress shown is that of an attempt to connect, of a fetch or of a copy; the others ignore this.
    QObject::connect(&view, &View::progressCancelled, &link, &BoxLink::giveUp);
    QObject::connect(&view, &View::progressCancelled, &link, [this] { logger.cancel(); });
}

void ControllerParts::connectTabs(View &view)
{
    const TabProject *project = view.tabProject();
    QObject::connect(project, &TabProject::commentChanged, &tabEdits, &TabEdits::takeComment);
    QObject::connect(project, &TabProject::imageButtonClicked, &pictures, &ProjectPictures::choose);
    QObject::connect(project, &TabProject::imageDeleteClicked, &pictures, &ProjectPictures::remove);
    QObject::connect(project, &TabProject::imageSaveClicked, &pictures, &ProjectPictures::save);
    QObject::connect(project, &TabProject::imageFilesGiven, &pictures, &ProjectPictures::takeFiles);
    QObject::connect(project, &TabProject::imageGiven, &pictures, &ProjectPictures::take);

    const TabOszilloscope *oszi = view.tabOszi();
    QObject::connect(oszi, &TabOszilloscope::offsetEdited, &tabEdits, &TabEdits::setOffset);
    QObject::connect(oszi, &TabOszilloscope::rangeEdited, &tabEdits, &TabEdits::markRangeEdited);
    QObject::connect(oszi, &TabOszilloscope::samplingPeriodChosen, &period, &SamplingPeriod::choose);

    const TabSensors *sensors = view.tabSensors();
    QObject::connect(sensors, &TabSensors::sensorNameEdited, &tabEdits, &TabEdits::setSensorName);
    QObject::connect(sensors, &TabSensors::sensorUnitEdited, &tabEdits, &TabEdits::setSensorUnit);
    QObject::connect(sensors, &TabSensors::sensorColorEdited, &tabEdits, &TabEdits::setSensorColor);
    QObject::connect(sensors, &TabSensors::sensorLimitsEdited, &tabEdits, &TabEdits::setSensorLimits);
}
