#pragma once

#include <cstddef>
#include <utility>
#include <vector>

/// Keeps the newest entries up to a fixed number; a push into a full buffer replaces the oldest. Grows to its full
/// size once and allocates nothing afterwards.
template <typename T>
class RingBuffer
{
public:
    /// The capacity counts as 1 at least.
    explicit RingBuffer(std::size_t capacity)
        : m_capacity(capacity > 0 ? capacity : 1)
    {}

    [[nodiscard]] bool isEmpty() const { return m_entries.empty(); }
    [[nodiscard]] std::size_t size() const { return m_entries.size(); }

    void push(T entry)
    {
        if (m_entries.size() < m_capacity) {
            m_entries.push_back(std::move(entry));
            return;
        }
        m_entries[m_oldest] = std::move(entry);
        m_oldest = m_oldest + 1 == m_capacity ? 0 : m_oldest + 1;
    }

    /// Calls use(entry) for every entry, oldest first.
    template <typename Use>
    void forEach(Use use) const
    {
        for (std::size_t i = m_oldest; i < m_entries.size(); ++i)
            use(m_entries[i]);
        for (std::size_t i = 0; i < m_oldest; ++i)
            use(m_entries[i]);
    }

    void clear()
    {
        m_entries.clear();
        m_oldest = 0;
    }

private:
    std::vector<T> m_entries;
    std::size_t m_capacity;
    std::size_t m_oldest = 0;
};
