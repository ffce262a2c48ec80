#pragma once

#include <QList>
#include <QVector>

#include <vector>

/// The thresholds of one sensor, in its unit.
struct RuntimeThresholds
{
    double start = 0.0;
    double stop = 0.0;
};

/// What a shot is measured against. Values are compared after the offset was added.
struct RuntimeCriteria
{
    double offset = 0.0;
    double startThreshold = 0.0;
    double stopThreshold = 0.0;
};

[[nodiscard]] bool operator==(const RuntimeCriteria &a, const RuntimeCriteria &b);

/// The first sample, from index `from` on, that lies strictly below the threshold; -1 if there is none.
[[nodiscard]] int firstBelow(const QVector<double> &samples, double offset, double threshold, int from = 0);
/// The last such sample, searched down to index `from`; -1 if there is none.
[[nodiscard]] int lastBelow(const QVector<double> &samples, double offset, double threshold, int from = 0);

/// Start and stop of one shot. Ten samples count as one second, whatever the sampling period is.
struct ShotRuntime
{
    static constexpr int kSamplesPerSecond = 10;

    int startIndex = -1; ///< -1: the signal never fell below the start threshold
    int stopIndex = -1;
    int count = 0; ///< samples of the shot

    /// Seconds; -0.1 for an index of -1.
    [[nodiscard]] double startTime() const { return double(startIndex) / kSamplesPerSecond; }
    [[nodiscard]] double stopTime() const { return double(stopIndex) / kSamplesPerSecond; }
    [[nodiscard]] double duration() const { return double(stopIndex - startIndex) / kSamplesPerSecond; }
    [[nodiscard]] double totalTime() const { return double(count) / kSamplesPerSecond; }
    [[nodiscard]] int wholeSeconds() const { return count / kSamplesPerSecond; }
    /// False where start and stop coincide.
    [[nodiscard]] bool hasDuration() const { return startIndex != stopIndex; }
};

[[nodiscard]] bool operator==(const ShotRuntime &a, const ShotRuntime &b);

[[nodiscard]] ShotRuntime shotRuntime(const QVector<double> &samples, const RuntimeCriteria &criteria);
/// The result for a list to which samples were only appended since `before`: reads only the new ones.
[[nodiscard]] ShotRuntime extendedRuntime(const ShotRuntime &before, const QVector<double> &samples,
                                          const RuntimeCriteria &criteria);

/// The figures of all shots that the box plots show, in seconds.
struct RuntimeSummary
{
    QList<double> starts;
    QList<double> durations; ///< only of shots whose start and stop differ
    QList<double> stops;
    double longestTime = 0.0; ///< total time of the longest shot
};

[[nodiscard]] RuntimeSummary runtimeSummary(const std::vector<ShotRuntime> &results);

/// The results of all shots of one sensor. Keeps a shared copy of every list but the last: that tells for certain
/// whether a list is still the same one, even if it was removed and its memory reused. A list that is appended to
/// while it is shared is copied once.
class RuntimeCache
{
public:
    using Shots = std::vector<const QVector<double> *>;

    /// How many shots a refresh had to read.
    struct Work
    {
        int scanned = 0;  ///< from their first sample
        int extended = 0; ///< their new samples only
    };

    /// Brings the results up to date. `revision` must differ from the last call's if a list was added or removed since.
    Work refresh(const Shots &shots, const RuntimeCriteria &criteria, quint64 revision);
    /// Forgets the results and copies of removed lists, so that their memory is freed; computes nothing.
    void releaseRemoved(const Shots &shots);

    /// As of the last refresh, one per shot.
    [[nodiscard]] const std::vector<ShotRuntime> &results() const { return m_results; }

private:
    [[nodiscard]] bool isKnown(size_t shot, const QVector<double> &samples) const;
    void alignTo(const Shots &shots);
    void refreshShot(size_t shot, const QVector<double> &samples, bool sameList, Work &work);

    RuntimeCriteria m_criteria;
    quint64 m_revision = 0;
    std::vector<QVector<double>> m_lists; // as long as the results; the last one is left empty
    std::vector<ShotRuntime> m_results;
};
