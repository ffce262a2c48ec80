#pragma once

#include "controller/recording/linequeue.h"

/// Keeps the lines of the box waiting for its lifetime.
class LineHold
{
public:
    explicit LineHold(LineQueue &lines)
        : m_lines(lines)
    {
        m_lines.hold();
    }
    ~LineHold() { m_lines.release(); }
    Q_DISABLE_COPY_MOVE(LineHold)

private:
    LineQueue &m_lines;
};
