#pragma once

#include "controller/logger/loggerfetch.h"
#include "controller/logger/loggerimport.h"
#include "controller/logger/loggerlist.h"
#include "controller/logger/transferdialogs.h"

/// What deals with the logger files of the box, and with their transfer.
struct LoggerParts
{
    TransferDialogs transfers;
    LoggerList list;
    LoggerFetch fetch;
    LoggerImport import;
};
