#pragma once

#include <QtGlobal>

#include <deque>

/// How many lines a second have come in lately, from a count that is looked at now and then.
class RateMeter
{
public:
    /// The count at a time, in ms of a monotonic clock. A count that has shrunk starts over.
    void note(qint64 time, int count);
    /// Over about the last five seconds; 0 until two counts are known.
    [[nodiscard]] double perSecond() const;

private:
    struct Look
    {
        qint64 time;
        int count;
    };

    std::deque<Look> m_looks; // the oldest first
};
