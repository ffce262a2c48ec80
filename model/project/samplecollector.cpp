#include "model/project/samplecollector.h"

#include <algorithm>
#include <iterator>
#include <new>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

// Otherwise the allocator would keep the freed blocks, and the samples would take up twice their memory after all.
void returnFreedMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace

double *SampleCollector::room()
{
    if (m_last && m_usedOfLast == kBlockSize) {
        m_full.push_back(std::move(m_last));
        m_usedOfLast = 0;
    }
    if (!m_last)
        m_last.reset(new double[kBlockSize]);
    return m_last.get() + m_usedOfLast;
}

SampleList SampleCollector::take(const std::function<void()> &pause)
{
    constexpr std::size_t kMostSamples = (std::size_t(1) << 31) / sizeof(double) - 64; // what one list can hold
    if (m_full.size() >= kMostSamples / kBlockSize)
        throw std::bad_alloc();
    SampleList samples;
    samples.reserve(static_cast<int>(m_full.size()) * kBlockSize + m_usedOfLast);
    constexpr std::size_t kBlocksAtOnce = 8;
    for (std::size_t i = 0; i < m_full.size(); ++i) {
        std::copy_n(m_full[i].get(), kBlockSize, std::back_inserter(samples));
        m_full[i].reset();
        if (i % kBlocksAtOnce == kBlocksAtOnce - 1)
            returnFreedMemory();
        pause();
    }
    m_full.clear();
    std::copy_n(m_last.get(), m_usedOfLast, std::back_inserter(samples));
    m_usedOfLast = 0;
    return samples;
}
