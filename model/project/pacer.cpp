#include "model/project/pacer.h"

#include <algorithm>

Pacer::Pacer(const std::function<void(int percent)> &yield, qint64 total)
    : m_yield(yield)
    , m_total(std::max<qint64>(total, 1))
{
    m_yield(0);
    m_sinceTurn.start();
}

void Pacer::moveTo(qint64 done)
{
    m_done = done;
    look();
}

void Pacer::look()
{
    m_nextLook = m_done + kUnitsPerLook;
    if (m_sinceTurn.elapsed() < kMillisecondsPerTurn)
        return;
    m_yield(static_cast<int>(std::clamp<qint64>(m_done * 100 / m_total, 0, 100)));
    m_sinceTurn.start(); // after the turn, which may have taken longer than the work
}
