#pragma once

#include "device/protocol/messages.h"

#include <array>
#include <functional>

/// Knows who handles which kind of line. Needs no window.
class MessageDispatch
{
public:
    using Handler = std::function<void(const QString &message)>;

    /// Replaces the handler that there may have been for this kind.
    void setHandler(MessageKind kind, Handler handler);
    /// Calls the handler of the line's kind; a line of a kind without one is ignored.
    void dispatch(const QString &message) const;

private:
    static constexpr auto kNumKinds = static_cast<std::size_t>(MessageKind::Other) + 1;

    std::array<Handler, kNumKinds> m_handlers;
};
