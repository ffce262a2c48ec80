#include "controller/link/missinglines.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 kSpan = 1000; // ms
constexpr int kFewLines = 10;
constexpr double kSmallShare = 0.02;

} // namespace

void MissingLines::begin(int period)
{
    *this = {};
    m_period = period;
}

void MissingLines::setPeriod(int period)
{
    if (period == m_period)
        return;
    const double missed = m_missed + missingSincePeriod();
    const int counted = count();
    begin(period);
    m_missed = missed;
    m_counted = counted;
}

void MissingLines::noteLine(qint64 time)
{
    if (m_lines == 0) {
        m_first = time;
        m_spanBegin = time;
    }
    const qint64 delay = time - m_first - qint64{m_lines} * m_period;
    if (time - m_spanBegin > kSpan) {
        m_leastOfSpanBefore = m_leastOfSpan;
        m_leastOfSpan = delay;
        m_spanBegin = time;
    }
    m_leastOfSpan = std::min(m_leastOfSpan, delay);
    m_least = std::min(m_least, delay);
    m_last = time;
    ++m_lines;
}

void MissingLines::noteStopRequest(qint64 time)
{
    if (m_stop < 0)
        m_stop = time;
}

double MissingLines::missingSincePeriod() const
{
    if (m_lines == 0 || m_period <= 0)
        return 0.0;
    const qint64 shift = std::min(m_leastOfSpan, m_leastOfSpanBefore) - m_least;
    // The lines that did not come at the end; the box would have sent them before its echo.
    const qint64 tail = m_stop < 0 ? 0 : std::max<qint64>(0, m_stop - m_last - m_period);
    return double(shift + tail) / m_period;
}

int MissingLines::missing() const
{
    return static_cast<int>(std::lround(m_missed + missingSincePeriod()));
}

int MissingLines::worthTelling() const
{
    const int lines = missing();
    return lines > kFewLines && lines > kSmallShare * (lines + count()) ? lines : 0;
}
