#pragma once

#include <memory>

class QThread;

/// Quits the application once the standard input has ended. Reads on a thread of its own, as the event loop cannot
/// watch a pipe on every platform. Destroy it only after the event loop, which it has ended then.
class InputWatch
{
public:
    InputWatch();
    ~InputWatch();

private:
    std::unique_ptr<QThread> m_reader;
};
