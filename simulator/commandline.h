#pragma once

#include "simulator/boxsimulator.h"

#include <QHostAddress>
#include <QStringList>

/// The options that the simulator was started with.
struct CommandLine
{
    BoxOptions box;
    QHostAddress address = QHostAddress(QHostAddress::LocalHost);
    quint16 port = 2222;
    bool untilInputCloses = false;
    QString error; ///< not empty: what is wrong with the arguments
    QString help;  ///< not empty: a text to print instead of running
};

/// `arguments`: the program's name first.
[[nodiscard]] CommandLine parseCommandLine(const QStringList &arguments);
