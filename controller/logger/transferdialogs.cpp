#include "controller/logger/transferdialogs.h"

#include "controller/occupancy.h"
#include "device/scptransfer.h"
#include "view/window/view.h"

#include <QApplication>

namespace {

void setWaitCursor(bool waiting)
{
    if (waiting)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

} // namespace

TransferDialogs::TransferDialogs(const Desk &desk)
    : m_desk(desk)
{}

void TransferDialogs::attach(ScpTransfer &transfer)
{
    transfer.setSurroundings({[this](const ScpMessage &message) { show(message); }, setWaitCursor});
}

void TransferDialogs::show(const ScpMessage &message)
{
    m_desk.occupancy.ask([&] {
        if (message.isWarning)
            m_desk.view.showWarning(message.text, message.title);
        else
            m_desk.view.showMessage(message.text, message.title);
    });
}
