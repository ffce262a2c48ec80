#pragma once

#include "controller/logger/loggerfetch.h"
#include "controller/logger/loggerimport.h"
#include "controller/logger/loggerlist.h"

/// What deals with the logger files of the box.
struct LoggerParts
{
    LoggerList list;
    LoggerFetch fetch;
    LoggerImport import;
};
