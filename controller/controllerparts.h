#pragma once

#include "controller/deferredquestions.h"
#include "controller/journal/journalparts.h"
#include "controller/link/boxdescriptions.h"
#include "controller/link/boxlink.h"
#include "controller/link/demolink.h"
#include "controller/link/firmwareupdate.h"
#include "controller/link/projectoffer.h"
#include "controller/link/samplingperiod.h"
#include "controller/logger/loggerparts.h"
#include "controller/occupancy.h"
#include "controller/project/fileaccess.h"
#include "controller/project/fileprogress.h"
#include "controller/project/measurementdeletion.h"
#include "controller/project/projectfiles.h"
#include "controller/project/projectpictures.h"
#include "controller/project/projectsaving.h"
#include "controller/project/tabedits.h"
#include "controller/recording/linequeue.h"
#include "controller/recording/messagedispatch.h"
#include "controller/recording/projectedits.h"
#include "controller/recording/recorder.h"
#include "controller/recordingactions.h"
#include "controller/recordingdisplay.h"
#include "controller/undo/undocontrol.h"
#include "device/demobox.h"
#include "device/mesotraconnector.h"

struct ControllerOptions;

/// The parts of the controller, each of which is given what it needs of the others, and the connections between them.
/// None of the parts knows this struct.
struct ControllerParts
{
    /// Model and view must outlive the parts.
    ControllerParts(Model &model, View &view, const ControllerOptions &options);
    ~ControllerParts();
    Q_DISABLE_COPY_MOVE(ControllerParts)

    // A part uses only those above it.
    MesotraConnector connector;
    DemoBox demoBox; ///< while it is active, the link is or will be to the simulated box
    Occupancy occupancy;
    DeferredQuestions questions;
    FileProgress progress;
    RecordingDisplay display;
    ProjectEdits edits;
    Recorder recorder;
    MessageDispatch dispatch; ///< the owner sets the handlers of samples and descriptions
    LineQueue lines;
    BoxLink link;
    DemoLink demo;
    BoxDescriptions descriptions;
    SamplingPeriod period;
    ProjectOffer offer;
    FirmwareUpdate firmware;
    RecordingActions recording;
    MeasurementDeletion deletion;
    TabEdits tabEdits;
    FileAccess access;
    ProjectSaving saving;
    ProjectFiles files;
    ProjectPictures pictures;
    LoggerParts logger;
    UndoControl undo;
    JournalParts protection;

private:
    void setUpTransfers(const ControllerOptions &options);
    void takeLine(View &view, const QString &line);
    void handleMessages();
    void connectParts(View &view);
    void connectLink(View &view);
    void connectFiles();
    void connectJournal(View &view);
    void connectView(View &view);
    void connectTabs(View &view);
};
