#pragma once

#include <QElapsedTimer>

#include <functional>

/// Lets a long loop give the window a turn after a certain time, however long the steps of the loop are.
class Pacer
{
public:
    /// `yield` gets the progress in percent; `total` is the amount of work in units of the caller's choice.
    /// Yields at once, so that a progress display shows up.
    Pacer(const std::function<void(int percent)> &yield, qint64 total);

    /// Counts work done; looks at the clock only every few hundred units.
    void advance(qint64 units)
    {
        m_done += units;
        if (m_done >= m_nextLook)
            look();
    }
    /// Sets the work done so far and looks at the clock.
    void moveTo(qint64 done);
    /// Looks at the clock, where work goes on without progress.
    void look();

private:
    static constexpr qint64 kUnitsPerLook = 512;
    static constexpr int kMillisecondsPerTurn = 20;

    std::function<void(int percent)> m_yield;
    QElapsedTimer m_sinceTurn;
    qint64 m_total;
    qint64 m_done = 0;
    qint64 m_nextLook = kUnitsPerLook;
};
