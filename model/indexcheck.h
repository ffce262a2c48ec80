#pragma once

#include "model/logging.h"

#include <QDebug>

#include <cstddef>

/// True for 0 <= index < count; otherwise logs the error under the name of the caller.
[[nodiscard]] inline bool isIndex(int index, std::size_t count, const char *function)
{
    if (index >= 0 && static_cast<std::size_t>(index) < count)
        return true;
    qCDebug(lcModel).noquote().nospace() << function << " ERROR: index out of range! (" << index << ")";
    return false;
}

[[nodiscard]] constexpr std::size_t at(int index)
{
    return static_cast<std::size_t>(index);
}
