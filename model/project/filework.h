#pragma once

#include <QScopedValueRollback>

#include <functional>
#include <new>

/// Whether a file is being read or written, which only one may be at a time, and what is called meanwhile so that the
/// window stays alive.
class FileWork
{
public:
    using Yield = std::function<void(int percent)>;

    FileWork() { setYield({}); }

    /// An empty function means QCoreApplication::processEvents().
    void setYield(const Yield &yield);
    [[nodiscard]] const Yield &yield() const { return m_yield; }
    [[nodiscard]] bool isBusy() const { return m_busy; }
    /// True while busy; logs that under the name of the caller.
    [[nodiscard]] bool refuses(const char *function) const;

    /// True if the last task that was run ended because memory ran out.
    [[nodiscard]] bool lacksMemory() const { return m_lacksMemory; }

    /// Runs a task that returns a bool or an optional; busy meanwhile. If memory runs out, that is logged under the
    /// name of the caller and the result is false or empty.
    template <typename Task>
    [[nodiscard]] auto run(const Task &task, const char *function) -> decltype(task())
    {
        const QScopedValueRollback<bool> busy(m_busy, true);
        m_lacksMemory = false;
        try {
            return task();
        } catch (const std::bad_alloc &) {
            m_lacksMemory = true;
            logOutOfMemory(function);
            return {};
        }
    }

private:
    static void logOutOfMemory(const char *function);

    Yield m_yield;
    bool m_busy = false;
    bool m_lacksMemory = false;
};
