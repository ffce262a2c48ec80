#include "controller/logger/loggerparts.h"

LoggerParts::LoggerParts(const Needs &needs, const QString &temporaryDirectory)
    : dialogs(needs.desk)
    , folders(temporaryDirectory)
    , list(needs.desk, needs.link)
    , fetch(needs.desk, needs.connector, needs.demo, dialogs, folders)
    , local(needs.desk, dialogs, folders)
    , import(needs.desk, needs.progress, needs.lines, needs.edits, needs.recorder, folders, local)
{}

void LoggerParts::cancel()
{
    fetch.cancel();
    local.cancel();
}
