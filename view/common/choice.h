#pragma once

#include <QString>
#include <QStringList>

/// A question with answers in words of its own.
struct Choice
{
    QString title;
    QString text;
    QString hint;               ///< a line below the text that explains the answers; empty for none
    QStringList answers;        ///< in the order of reading, at least one
    int safest = 0;             ///< index of the answer that loses nothing; it has the focus
    bool isDestructive = false; ///< an answer loses data: the box has the warning icon

    /// What a box that is closed answers: nothing is done.
    static constexpr int kClosed = -1;
};
