#include "controller/link/boxrestart.h"

namespace {

// For how long the box may refuse connections before that is worth a message, in ms.
constexpr int kPatience = 120000;
constexpr int kRetryInterval = 1000;

} // namespace

BoxRestart::BoxRestart()
{
    m_retryTimer.setSingleShot(true);
    m_retryTimer.setInterval(kRetryInterval);
    connect(&m_retryTimer, &QTimer::timeout, this, &BoxRestart::retry);
}

bool BoxRestart::explains(QAbstractSocket::SocketError error) const
{
    const bool notThere = error == QAbstractSocket::ConnectionRefusedError || error == QAbstractSocket::NetworkError
                          || error == QAbstractSocket::SocketTimeoutError;
    return notThere && m_since.isValid() && m_since.elapsed() < kPatience;
}
