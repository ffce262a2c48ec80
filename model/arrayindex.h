#pragma once

#include <cstddef>

/// An index that is known not to be negative, for the containers of the standard library.
[[nodiscard]] constexpr std::size_t at(int index)
{
    return static_cast<std::size_t>(index);
}
