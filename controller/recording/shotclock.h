#pragma once

#include <QDateTime>

#include <functional>
#include <optional>

/// Gives shots their time stamps. The first one is the time of the computer's clock; from then on it counts on by
/// itself, so that the times between shots are right, and never negative, although the computer's clock may be set
/// meanwhile. Time during which the computer slept counts, where the system can tell (Linux, Windows). A change to
/// summer time and back is no such case: it is another way to write the same time.
///
/// restart() follows the computer's clock again. That belongs between two projects: within one, a correction would look
/// like a pause.
class ShotClock
{
public:
    using WallClock = std::function<QDateTime()>;
    using Counter = std::function<qint64()>; ///< ms from any moment on; never goes back

    /// Both may be replaced for tests; without them the computer's are used.
    explicit ShotClock(WallClock wallClock = {}, Counter counter = {});

    /// Local time, never before the one of the call before unless restart() came between.
    [[nodiscard]] QDateTime now();
    void restart() { m_first.reset(); }

private:
    struct Start
    {
        QDateTime time; // UTC
        qint64 counter;
    };

    WallClock m_wallClock;
    Counter m_counter;
    std::optional<Start> m_first;
};
