#pragma once

#include "model/journal/journalcontents.h"
#include "model/journal/savedshots.h"

#include <QByteArray>

#include <array>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

class JournalRecordWriter;
struct Project;
struct ProjectSettings;

/// The state that decides whether there may be something to write; cheap to take and to compare.
struct JournalMarks
{
    quint64 structure = 0;                         ///< ShotStore::structureRevision()
    quint64 samples = 0;                           ///< ShotStore::revision()
    quint64 changes = 0;                           ///< ModelChanges::count()
    std::array<double, kNumSensors> osziMinimum{}; ///< a change of them is not counted
    std::array<double, kNumSensors> osziMaximum{};
};

/// What is to be written, and what the journal holds once it is.
struct JournalDelta
{
    std::vector<QByteArray> blocks; ///< complete, in their order; none if nothing has changed

    JournalMarks marks;
    std::array<std::optional<std::vector<quint64>>, kNumSensors> order;
    std::vector<std::pair<quint64, int>> counts; ///< id and samples
    std::vector<std::pair<int, int>> growing;    ///< sensor and index of the measurements that grew
    std::vector<std::pair<quint64, ShotNotes>> notes;
    std::optional<QByteArray> settings;
    std::optional<QByteArray> evaluation;
    std::optional<std::vector<QRgb>> colors;
    std::array<qint64, 5> pictures{};
};

/// Knows what a journal holds, and finds what a project has more or else. It compares and needs no signals. Without
/// new or removed measurements the cost does not depend on how many are stored.
class JournalTracker
{
public:
    /// Begins a new journal against a file and what that holds.
    void begin(const JournalBase &base, const SavedShots &saved);
    /// Changes nothing: what cannot be written is found again. `changeCount` is ModelChanges::count().
    [[nodiscard]] JournalDelta changes(const Project &project, quint64 changeCount, const QDateTime &now) const;
    /// All blocks of the delta were written.
    void commit(JournalDelta &&delta);

private:
    class Packer;
    struct Place
    {
        int sensor;
        int index;
    };
    void findSamples(const Project &project, JournalDelta &delta, Packer &packer) const;
    [[nodiscard]] std::vector<Place> places(const Project &project, bool everywhere) const;
    [[nodiscard]] qint64 countGrowth(const Project &project, const std::vector<Place> &places) const;
    void findOrder(const Project &project, JournalDelta &delta, Packer &packer) const;
    void findNotes(const Project &project, JournalDelta &delta, Packer &packer) const;
    void findSettings(const Project &project, JournalDelta &delta, Packer &packer) const;
    void findPictures(const Project &project, JournalDelta &delta, Packer &packer) const;
    [[nodiscard]] int writtenOf(quint64 id) const;

    JournalBase m_base;
    bool m_isBegun = false; // the base is in the journal
    JournalMarks m_marks;
    std::array<std::vector<quint64>, kNumSensors> m_order;
    std::unordered_map<quint64, int> m_counts; // samples by id, those of removed measurements too: they may come back
    std::vector<std::pair<int, int>> m_growing;
    std::unordered_map<quint64, ShotNotes> m_notes;
    QByteArray m_settings;
    QByteArray m_evaluation;
    std::vector<QRgb> m_colors;
    std::array<qint64, 5> m_pictures{};
    std::array<qint64, 5> m_basePictures{};
};
