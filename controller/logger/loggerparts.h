#pragma once

#include "controller/logger/loggerfetch.h"
#include "controller/logger/loggerimport.h"
#include "controller/logger/loggerlist.h"

/// The parts of the controller that bring the box's logged data into the project. None of them knows this struct.
struct LoggerParts
{
    /// All references must outlive the parts.
    LoggerParts(const Desk &desk, BoxLink &link, MesotraConnector &connector, const DemoLink &demo,
                FileProgress &progress, LineQueue &lines, ProjectEdits &edits, Recorder &recorder,
                const QString &temporaryDirectory)
        : list(desk, link)
        , fetch(desk, connector, demo, temporaryDirectory)
        , import(desk, progress, lines, edits, recorder)
    {}

    LoggerList list;
    LoggerFetch fetch;
    LoggerImport import;
};
