#pragma once

#include <cstddef>

/// True for 0 <= index < count; otherwise logs the error under the name of the caller.
[[nodiscard]] bool isIndex(int index, std::size_t count, const char *function);

/// The element of an array; for an index outside it `otherwise`, and a log line under the name of the caller.
template <typename Row>
[[nodiscard]] typename Row::value_type valueAt(const Row &row, int index, const char *function,
                                               const typename Row::value_type &otherwise = {})
{
    return isIndex(index, row.size(), function) ? row[static_cast<std::size_t>(index)] : otherwise;
}

/// Replaces an element of an array. False, and a log line under the name of the caller, for an index outside it.
template <typename Row>
bool setAt(Row &row, int index, const typename Row::value_type &value, const char *function)
{
    if (!isIndex(index, row.size(), function))
        return false;
    row[static_cast<std::size_t>(index)] = value;
    return true;
}
