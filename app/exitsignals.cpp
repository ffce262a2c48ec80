#include "app/exitsignals.h"

#include "app/logging.h"

#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

#ifdef Q_OS_UNIX

namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

int pipeEnds[2] = {-1, -1}; // read, write; a handler finds nothing else than such a variable

// Only what may be called in a handler.
void onSignal(int number)
{
    const int error = errno;
    const char byte = static_cast<char>(number);
    (void)!::write(pipeEnds[1], &byte, 1); // a full pipe has been told already
    errno = error;
}

void handle(void (*handler)(int))
{
    for (const int number : kSignals) {
        struct sigaction before = {};
        ::sigaction(number, nullptr, &before);
        if (before.sa_handler == SIG_IGN)
            continue; // started so, as by nohup
        struct sigaction action = {};
        action.sa_handler = handler;
        action.sa_flags = SA_RESTART;
        ::sigemptyset(&action.sa_mask);
        ::sigaction(number, &action, nullptr);
    }
}

bool openPipe()
{
    if (::pipe(pipeEnds) != 0)
        return false;
    for (const int end : pipeEnds) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    return true;
}

} // namespace

ExitSignals::ExitSignals()
{
    if (pipeEnds[0] >= 0 || !openPipe())
        return;
    m_notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] { read(); });
    handle(onSignal);
}

ExitSignals::~ExitSignals()
{
    if (!m_notifier)
        return;
    handle(SIG_DFL);
    delete m_notifier; // before its pipe is closed
    for (int &end : pipeEnds) {
        ::close(end);
        end = -1;
    }
}

void ExitSignals::ignoreWriteSignals()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

void ExitSignals::read()
{
    char bytes[16];
    const auto count = ::read(pipeEnds[0], bytes, sizeof bytes);
    if (count <= 0)
        return;
    qCDebug(lcApp) << Q_FUNC_INFO << "signal" << int(bytes[0]);
    emit received();
}

#else

ExitSignals::ExitSignals() = default;
ExitSignals::~ExitSignals() = default;
void ExitSignals::ignoreWriteSignals() {}
void ExitSignals::read() {}

#endif
