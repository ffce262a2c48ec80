#pragma once

#include <QtGlobal>

class QMessageLogContext;
class QString;

/// Appends each message as one line to "debug.txt" in the current folder: "Debug: ", "Info: ", "Warning: ",
/// "Critical: " or "Fatal: " and the text; an empty line for any other type. The file is opened for every message, so
/// that nothing is lost in a crash. Never aborts; a file that cannot be written is ignored. To be installed with
/// qInstallMessageHandler(), which the program by itself does not do.
void textLogHandler(QtMsgType type, const QMessageLogContext &context, const QString &text);
