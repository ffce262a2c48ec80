#pragma once

#include <QTimer>

#include <array>
#include <functional>

class Occupancy;

/// What may have to be asked or reported, in order of precedence.
enum class Question { Recovery, FilesGiven, LinkError, DemoWarning, ReceivedProject };

/// Keeps the questions that the box, or the start of the program, causes until no other dialog is up and no file is
/// being read or written, and asks them one after the other. There is at most one of each kind.
class DeferredQuestions
{
public:
    /// The occupancy must outlive the questions.
    explicit DeferredQuestions(const Occupancy &occupancy);

    /// Replaces one of the same kind. `ask` is called from the event loop, at the earliest after `wait` ms without
    /// another call of this function.
    void put(Question kind, std::function<void()> ask, int wait = 0);
    void drop(Question kind);

private:
    void askNext();

    const Occupancy &m_occupancy;
    std::array<std::function<void()>, 5> m_pending;
    QTimer m_timer;
};
