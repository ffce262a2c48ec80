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

    // --- Which box the page is about ---
    /// Empties the page of another box than that of this address.
    void show(const QString &box);
    /// The box was left: empties the page.
    void forget();

private:
    void setButtonEnabled(bool enabled);

    Desk m_desk;
    BoxLink &m_link;
    QTimer m_timer;
    QStringList m_block;
    QString m_box; // its address; empty if it was left
    bool m_active = false;
};
