#include "controller/recording/messagedispatch.h"

#include <utility>

void MessageDispatch::setHandler(MessageKind kind, Handler handler)
{
    m_handlers.at(static_cast<std::size_t>(kind)) = std::move(handler);
}

void MessageDispatch::dispatch(const QString &message) const
{
    const Handler &handler = m_handlers[static_cast<std::size_t>(classify(message))];
    if (handler) // a program without a window need not care about lists
        handler(message);
}
