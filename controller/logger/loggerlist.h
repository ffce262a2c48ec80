#pragma once

#include "controller/desk.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

class BoxLink;

/// The list of the days that the box has logged: asks for it and collects the block of lines that comes back.
class LoggerList : public QObject
{
    Q_OBJECT

public:
    /// All references must outlive the list.
    LoggerList(const Desk &desk, BoxLink &link);

    void request();
    /// Asks for the list if the box can send it now; otherwise does nothing, without a message.
    void requestIfPossible();

    // --- Lines of the box ---
    void begin();
    /// Ignored outside a block.
    void take(const QString &message);
    void finish();
    /// The link has ended: drops an incomplete block.
    void reset();

private:
    void setButtonEnabled(bool enabled);

    Desk m_desk;
    BoxLink &m_link;
    QTimer m_timer;
    QStringList m_block;
    bool m_active = false;
};
