#include "controller/logger/loggerparts.h"

LoggerParts::LoggerParts(const Needs &needs, const QString &temporaryDirectory)
    : folders(temporaryDirectory)
    , list(needs.desk, needs.link)
    , fetch(needs.desk, needs.connector, needs.demo, needs.dialogs, folders)
    , local(needs.desk, needs.dialogs, folders)
    , import(needs.desk, needs.progress, needs.lines, needs.edits, needs.recorder, folders, local)
{}

void LoggerParts::cancel()
{
    fetch.cancel();
    local.cancel();
}
