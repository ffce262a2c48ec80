#include "model/samplecollector.h"

#include <algorithm>
#include <iterator>
#include <new>

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

SampleList SampleCollector::take()
{
    constexpr std::size_t kMostSamples = (std::size_t(1) << 31) / sizeof(double) - 64; // what one list can hold
    if (m_full.size() >= kMostSamples / kBlockSize)
        throw std::bad_alloc();
    SampleList samples;
    samples.reserve(static_cast<int>(m_full.size()) * kBlockSize + m_usedOfLast);
    for (Block &block : m_full) {
        std::copy_n(block.get(), kBlockSize, std::back_inserter(samples));
        block.reset();
    }
    m_full.clear();
    std::copy_n(m_last.get(), m_usedOfLast, std::back_inserter(samples));
    m_usedOfLast = 0;
    return samples;
}
