#pragma once

#include <memory>

class QThread;

/// Quits the application once the standard input has ended. Reads on a separate thread, as the event loop cannot
/// watch a pipe on every platform. Must be destroyed after the event loop has ended: it waits for that thread.
class InputWatch
{
public:
    InputWatch();
    ~InputWatch();

private:
    std::unique_ptr<QThread> m_reader;
};
