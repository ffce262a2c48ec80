#pragma once

#include "model/samplelist.h"

#include <memory>
#include <vector>

/// Collects samples whose number is not known before, and makes a list of exactly that size of them without ever
/// holding them twice.
class SampleCollector
{
public:
    static constexpr int kBlockSize = 65536;

    /// Room for the next samples; tell with commit() how many were put there.
    [[nodiscard]] double *room();
    [[nodiscard]] int roomSize() const { return kBlockSize - m_usedOfLast; }
    void commit(int count) { m_usedOfLast += count; }

    /// The samples since the last call.
    [[nodiscard]] SampleList take();

private:
    using Block = std::unique_ptr<double[]>;

    std::vector<Block> m_full;
    Block m_last;
    int m_usedOfLast = 0;
};
