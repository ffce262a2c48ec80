#include "model/project/projectdocument.h"

qint64 ProjectDocument::sampleCount() const
{
    qint64 count = 0;
    for (const std::optional<SampleRuns> &runs : samples) {
        if (!runs)
            continue;
        for (const SampleRun &run : *runs)
            count += run.count() + 1;
    }
    return count;
}
