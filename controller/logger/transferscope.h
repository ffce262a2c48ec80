#pragma once

#include "controller/desk.h"
#include "controller/occupancy.h"
#include "model/project/pacer.h"
#include "view/blackbox/tabblackbox.h"
#include "view/window/view.h"

#include <QCoreApplication>

#include <functional>

/// Shows for its lifetime that logger files are being fetched or copied, which nothing else may be done beside.
class TransferScope
{
public:
    TransferScope(const Desk &desk, const QString &text)
        : m_task(desk.occupancy, Task::Fetch)
        , m_view(desk.view)
    {
        m_view.showProgress(text);
    }
    ~TransferScope()
    {
        m_view.tabBlackBox()->setTransferProgress(0, 0);
        m_view.hideProgress();
    }
    Q_DISABLE_COPY_MOVE(TransferScope)

private:
    TaskScope m_task;
    View &m_view;
};

/// Gives the window its turns while files are read one after the other.
class ReadingTurns
{
public:
    [[nodiscard]] std::function<void(qint64)> counter()
    {
        return [this](qint64 bytes) { m_pacer.advance(bytes); };
    }
    /// Between two files.
    void look() { m_pacer.look(); }

private:
    Pacer m_pacer{[](int) { QCoreApplication::processEvents(); }, 1};
};
