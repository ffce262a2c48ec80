#pragma once

#include "controller/desk.h"

class BoxLink;
class DemoLink;
class MesotraConnector;

/// Opens the dialog that uploads a firmware and restarts the box.
class FirmwareUpdate
{
public:
    /// All references must outlive the update. `restartWait`: for how many ms the dialog waits for a connection.
    FirmwareUpdate(const Desk &desk, MesotraConnector &connector, BoxLink &link, const DemoLink &demo, int restartWait);

    /// Returns when the dialog is closed.
    void run();

private:
    Desk m_desk;
    MesotraConnector &m_connector;
    BoxLink &m_link;
    const DemoLink &m_demo;
    int m_restartWait;
};
