#pragma once

#include "model/samplelist.h"

#include <memory>
#include <utility>
#include <vector>

/// The samples of one measurement in a document: a list that the document owns, or the first samples of somebody
/// else's list, which may grow, and so move its samples, while the document is written.
class SampleRun
{
public:
    /// Does not own the list, which must keep its address and must not become shorter.
    SampleRun(const SampleList *samples, int count)
        : m_samples(samples)
        , m_count(count)
    {}
    explicit SampleRun(SampleList samples)
        : m_owned(std::make_unique<SampleList>(std::move(samples)))
        , m_samples(m_owned.get())
        , m_count(m_samples->size())
    {}

    [[nodiscard]] int count() const { return m_count; }
    /// count() samples; valid until the list grows.
    [[nodiscard]] const double *data() const { return m_samples->constData(); }
    /// The samples as a list: the document's own one, or else a copy. The run is not to be used afterwards.
    [[nodiscard]] std::unique_ptr<SampleList> take()
    {
        return m_owned ? std::move(m_owned) : std::make_unique<SampleList>(m_samples->mid(0, m_count));
    }

private:
    std::unique_ptr<SampleList> m_owned; ///< null if the list is somebody else's
    const SampleList *m_samples;
    int m_count;
};

/// The measurements of one sensor, in the order of their recording.
using SampleRuns = std::vector<SampleRun>;
