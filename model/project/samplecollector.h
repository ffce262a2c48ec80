#pragma once

#include "model/samplelist.h"

#include <functional>
#include <memory>
#include <vector>

/// Collects samples whose number is not known in advance, and turns them into a list of exactly that size without ever
/// holding them twice.
class SampleCollector
{
public:
    static constexpr int kBlockSize = 65536;

    /// Room for the next samples, roomSize() of them after this call; tell with commit() how many were put there.
    [[nodiscard]] double *room();
    [[nodiscard]] int roomSize() const { return kBlockSize - m_usedOfLast; }
    void commit(int count) { m_usedOfLast += count; }

    /// The samples since the last call. `pause` is called now and then while many are put together. Throws
    /// std::bad_alloc if they do not fit into memory or into one list.
    [[nodiscard]] SampleList take(const std::function<void()> &pause);

private:
    using Block = std::unique_ptr<double[]>;

    std::vector<Block> m_full;
    Block m_last;
    int m_usedOfLast = 0;
};
