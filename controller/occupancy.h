#pragma once

#include "controller/typingwatch.h"

#include <QCoreApplication>

#include <array>

class Model;
class View;

/// What keeps the program occupied and can be under way at the same time as another.
enum class Task {
    Prompt, ///< a dialog that the user has to answer
    Fetch,  ///< logger files are being fetched from the box
    Import, ///< logger files are being imported
};

/// Sees to it that one thing is done at a time: counts what is under way and refuses what the user asks for meanwhile.
class Occupancy
{
    Q_DECLARE_TR_FUNCTIONS(Occupancy)

public:
    /// Both must outlive the occupancy.
    /// `typingPause`: ms after the last key during which the user counts as typing.
    Occupancy(View &view, const Model &model, int typingPause);

    void begin(Task task) { ++count(task); }
    void end(Task task) { --count(task); }
    [[nodiscard]] bool isUnderWay(Task task) const { return m_counts[static_cast<std::size_t>(task)] > 0; }

    /// True while a task is under way, the view asks something, or a file is being read or written.
    [[nodiscard]] bool isOccupied() const;
    /// True if a question that the user did not cause may be asked now: neither occupied, nor any modal window open,
    /// nor is a text being typed.
    [[nodiscard]] bool mayInterrupt() const;
    /// True, and a status message, if what the user asked for has to wait.
    [[nodiscard]] bool refuseWhileOccupied();
    /// The same for an attempt to connect, or a fetch, whose progress is shown.
    [[nodiscard]] bool refuseWhileConnecting();

    /// Runs a dialog of the view, which counts as a task until it has its answer; returns the answer.
    template <typename Dialog>
    auto ask(Dialog dialog);

private:
    [[nodiscard]] int &count(Task task) { return m_counts[static_cast<std::size_t>(task)]; }
    void showRefusal();

    View &m_view;
    const Model &m_model;
    TypingWatch m_typing;
    std::array<int, 3> m_counts{};
};

/// Counts a task as under way for its lifetime.
class TaskScope
{
public:
    TaskScope(Occupancy &occupancy, Task task)
        : m_occupancy(occupancy)
        , m_task(task)
    {
        m_occupancy.begin(m_task);
    }
    ~TaskScope() { m_occupancy.end(m_task); }
    Q_DISABLE_COPY_MOVE(TaskScope)

private:
    Occupancy &m_occupancy;
    Task m_task;
};

template <typename Dialog>
auto Occupancy::ask(Dialog dialog)
{
    const TaskScope scope(*this, Task::Prompt);
    return dialog();
}
