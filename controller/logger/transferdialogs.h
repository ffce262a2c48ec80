#pragma once

#include "controller/desk.h"

class ScpTransfer;
struct ScpMessage;

/// What the user sees of transfers from and to the box: their messages and the wait cursor.
class TransferDialogs
{
public:
    /// References must outlive the dialogs.
    explicit TransferDialogs(const Desk &desk);

    /// Shows what these transfers report from now on; the dialogs must outlive them or their last report.
    void attach(ScpTransfer &transfer);
    void show(const ScpMessage &message);

private:
    Desk m_desk;
};
