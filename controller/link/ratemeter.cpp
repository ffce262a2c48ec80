#include "controller/link/ratemeter.h"

namespace {

constexpr qint64 kSpan = 5000; // ms

} // namespace

void RateMeter::note(qint64 time, int count)
{
    if (!m_looks.empty() && count < m_looks.back().count)
        m_looks.clear();
    m_looks.push_back({time, count});
    while (m_looks.size() > 2 && m_looks[1].time <= time - kSpan)
        m_looks.pop_front();
}

double RateMeter::perSecond() const
{
    if (m_looks.size() < 2 || m_looks.back().time <= m_looks.front().time)
        return 0.0;
    const double seconds = double(m_looks.back().time - m_looks.front().time) / 1000.0;
    return (m_looks.back().count - m_looks.front().count) / seconds;
}
