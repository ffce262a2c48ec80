#include "controller/link/firmwareupdate.h"

#include "controller/link/boxlink.h"
#include "controller/link/demolink.h"
#include "controller/occupancy.h"
#include "view/box/updatedialog.h"
#include "view/window/view.h"

FirmwareUpdate::FirmwareUpdate(const Desk &desk, MesotraConnector &connector, BoxLink &link, const DemoLink &demo,
                               int restartWait)
    : m_desk(desk)
    , m_connector(connector)
    , m_link(link)
    , m_demo(demo)
    , m_restartWait(restartWait)
{}

void FirmwareUpdate::run()
{
    if (m_desk.occupancy.refuseWhileOccupied() || m_desk.occupancy.refuseWhileConnecting() || m_demo.refuseTransfer())
        return;
    m_desk.occupancy.ask([this] {
        const auto askFile = [this](const QString &title, const QString &filter) {
            return m_desk.view.askOpenFile(title, filter);
        };
        m_link.reconnect().setHeld(true); // the dialog makes links of its own
        UpdateDialog dialog(&m_desk.view, askFile, &m_connector, m_link.address(), m_restartWait);
        QObject::connect(&dialog, &UpdateDialog::restartSent, &m_link, &BoxLink::expectRestart);
        (void)dialog.exec(); // both buttons only close it
        m_link.reconnect().setHeld(false);
    });
}
