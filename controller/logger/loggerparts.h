#pragma once

#include "controller/logger/boxfolders.h"
#include "controller/logger/localfolder.h"
#include "controller/logger/loggerfetch.h"
#include "controller/logger/loggerimport.h"
#include "controller/logger/loggerlist.h"
#include "controller/logger/transferdialogs.h"

/// The parts around the logger files, from the list of the box to the shots of the project.
struct LoggerParts
{
    /// What they need of the other parts.
    struct Needs
    {
        Desk desk;
        BoxLink &link;
        MesotraConnector &connector;
        const DemoLink &demo;
        FileProgress &progress;
        LineQueue &lines;
        ProjectEdits &edits;
        Recorder &recorder;
    };

    /// All references must outlive the parts. The temporary directory is created when it is needed.
    LoggerParts(const Needs &needs, const QString &temporaryDirectory);

    /// Ends the transfer that is under way.
    void cancel();

    TransferDialogs dialogs; ///< also of a firmware upload
    BoxFolders folders;
    LoggerList list;
    LoggerFetch fetch;
    LocalFolder local;
    LoggerImport import;
};
