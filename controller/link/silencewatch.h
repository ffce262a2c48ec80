#pragma once

#include "controller/link/linktimes.h"

#include <QObject>

/// Knows for how long a box that records has said nothing, and what to do about it. Outside of a recording silence is
/// normal.
class SilenceWatch : public QObject
{
    Q_OBJECT

public:
    explicit SilenceWatch(const LinkTimes &times)
        : m_times(times)
    {}

    /// From now on nothing has been silent yet.
    void reset();
    /// A line of the box. Cheap enough for every line.
    void noteLine(bool isSample);
    /// So much time has passed, in ms, with or without a recording of that period.
    void advance(int milliseconds, bool isRecording, int period);

    /// For how many ms no sample has come in a recording, once that is worth a word; otherwise 0.
    [[nodiscard]] int staleFor() const { return m_isStale ? m_withoutSample : 0; }

signals:
    /// The box should be sent its sampling period again, which it echoes if it is there. Once per silence.
    void signOfLifeWanted();
    /// The link counts as lost.
    void lost();

private:
    LinkTimes m_times;
    int m_withoutLine = 0;
    int m_withoutSample = 0;
    bool m_isStale = false;
    bool m_isAsked = false;
};
