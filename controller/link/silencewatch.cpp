#include "controller/link/silencewatch.h"

#include <algorithm>
#include <utility>

namespace {

// In sampling periods: with a long one, a pause between two lines is no silence.
constexpr int kStalePeriods = 3;
constexpr int kResendPeriods = 10;
constexpr int kLostPeriods = 20;

} // namespace

void SilenceWatch::reset()
{
    m_withoutLine = 0;
    m_withoutSample = 0;
    m_isStale = false;
    m_isAsked = false;
}

void SilenceWatch::noteLine(bool isSample)
{
    m_withoutLine = 0;
    m_isAsked = false;
    if (isSample) {
        m_withoutSample = 0;
        m_isStale = false;
    }
}

void SilenceWatch::advance(int milliseconds, bool isRecording, int period)
{
    if (!isRecording) {
        reset();
        return;
    }
    m_withoutLine += milliseconds;
    m_withoutSample += milliseconds;
    m_isStale = m_withoutSample >= std::max(m_times.staleAfter, kStalePeriods * period);
    if (m_withoutLine >= std::max(m_times.lostAfter, kLostPeriods * period)) {
        reset(); // the slot may run an event loop
        emit lost();
    } else if (m_withoutLine >= std::max(m_times.resendAfter, kResendPeriods * period)) {
        if (!std::exchange(m_isAsked, true))
            emit signOfLifeWanted();
    }
}
