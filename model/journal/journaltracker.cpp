#include "model/journal/journaltracker.h"

#include "model/arrayindex.h"
#include "model/journal/journalblock.h"
#include "model/journal/journalrecords.h"
#include "model/project/metatransfer.h"
#include "model/project/pacer.h"
#include "model/project/project.h"
#include "model/project/projectdocument.h"
#include "model/project/projecttransfer.h"
#include "model/project/projectwriter.h"

#include <QBuffer>

#include <algorithm>

namespace {

// A block of a usual tick is much smaller, and so takes effect as a whole.
constexpr int kBlockSize = 4 << 20;
constexpr int kSamplesAtOnce = 1 << 19;
constexpr int kLargestPicture = journalblock::kLargestPayload - (16 << 20);

QByteArray settingsText(const Project &project)
{
    QBuffer buffer;
    Pacer pacer([](int) {}, 0);
    const bool written =
        buffer.open(QIODevice::WriteOnly) && projectfile::write(buffer, settingsDocumentOf(project), pacer);
    return written ? buffer.data() : QByteArray();
}

QByteArray evaluationText(const Project &project)
{
    QBuffer buffer;
    ProjectMeta meta = metaOf(project);
    meta.clearShots();
    return buffer.open(QIODevice::WriteOnly) && writeProjectMeta(buffer, meta, {}) ? buffer.data() : QByteArray();
}

std::vector<quint64> idsOf(const ShotStore &shots, int sensor)
{
    std::vector<quint64> ids(at(shots.count(sensor)));
    for (std::size_t i = 0; i < ids.size(); ++i)
        ids[i] = shots.id(sensor, static_cast<int>(i));
    return ids;
}

quint64 shotIdOf(const ShotStore &shots, int shot)
{
    quint64 id = 0;
    for (int sensor = 0; sensor < kNumSensors && id == 0; ++sensor)
        id = shots.id(sensor, shot);
    return id;
}

JournalMarks marksOf(const Project &project, quint64 changeCount)
{
    return {project.shots.structureRevision(), project.shots.revision(), changeCount, project.settings.osziMinimum,
            project.settings.osziMaximum};
}

} // namespace

/// Closes blocks when they are large enough.
class JournalTracker::Packer
{
public:
    explicit Packer(std::vector<QByteArray> &blocks)
        : m_blocks(blocks)
    {}
    [[nodiscard]] JournalRecordWriter &next()
    {
        if (m_writer.size() >= kBlockSize)
            close();
        return m_writer;
    }
    [[nodiscard]] bool isEmpty() const { return m_writer.size() == 0 && m_blocks.empty(); }
    void close()
    {
        if (m_writer.size() > 0)
            m_blocks.push_back(journalblock::packed(m_writer.take()));
    }

private:
    std::vector<QByteArray> &m_blocks;
    JournalRecordWriter m_writer;
};

void JournalTracker::begin(const JournalBase &base, const SavedShots &saved)
{
    *this = JournalTracker();
    m_base = base;
    m_base.checks = saved.checks;
    m_pictures = m_basePictures = saved.pictures;
    for (std::size_t image = 0; image < saved.pictures.size(); ++image)
        m_base.hasPicture[image] = saved.pictures[image] != 0;
    for (std::size_t sensor = 0; sensor < saved.runs.size(); ++sensor) {
        for (const SavedRun &run : saved.runs[sensor]) {
            m_base.runs[sensor].push_back({run.id, run.count});
            m_order[sensor].push_back(run.id);
            if (run.id != 0)
                m_counts[run.id] = run.count;
        }
    }
}

JournalDelta JournalTracker::changes(const Project &project, quint64 changeCount, const QDateTime &now) const
{
    JournalDelta delta;
    delta.marks = marksOf(project, changeCount);
    Packer packer(delta.blocks);
    if (!m_isBegun)
        packer.next().base(m_base);
    const bool structure = !m_isBegun || delta.marks.structure != m_marks.structure;
    const bool described = structure || delta.marks.changes != m_marks.changes;
    // Before what may take several blocks: if the first look is cut off, the file's shots have lost nothing else.
    if (described || delta.marks.osziMinimum != m_marks.osziMinimum || delta.marks.osziMaximum != m_marks.osziMaximum)
        findSettings(project, delta, packer);
    if (described)
        findNotes(project, delta, packer);
    findSamples(project, delta, packer);
    if (structure)
        findOrder(project, delta, packer);
    findPictures(project, delta, packer);
    if (!packer.isEmpty())
        packer.next().time(now);
    packer.close();
    return delta;
}

void JournalTracker::commit(JournalDelta &&delta)
{
    m_isBegun = true;
    m_marks = delta.marks;
    for (std::size_t sensor = 0; sensor < m_order.size(); ++sensor) {
        if (delta.order[sensor])
            m_order[sensor] = *std::move(delta.order[sensor]);
    }
    for (const auto &[id, count] : delta.counts)
        m_counts[id] = count;
    m_growing = std::move(delta.growing);
    for (const auto &[id, notes] : delta.notes)
        m_notes[id] = notes;
    m_settings = delta.settings.value_or(m_settings);
    m_evaluation = delta.evaluation.value_or(m_evaluation);
    m_colors = delta.colors.value_or(m_colors);
    m_pictures = delta.pictures;
}

int JournalTracker::writtenOf(quint64 id) const
{
    const auto found = m_counts.find(id);
    return found == m_counts.end() ? 0 : found->second;
}

// --- Samples ---

/// Usually only the newest measurements grow, and those that grew before. Each appended sample counts once in the
/// revision, so it shows whether another one has grown too.
void JournalTracker::findSamples(const Project &project, JournalDelta &delta, Packer &packer) const
{
    const bool structure = !m_isBegun || delta.marks.structure != m_marks.structure;
    delta.growing = m_growing;
    if (!structure && delta.marks.samples == m_marks.samples)
        return;
    std::vector<Place> where = places(project, structure);
    if (!structure && countGrowth(project, where) != qint64(delta.marks.samples - m_marks.samples))
        where = places(project, true);
    delta.growing.clear();
    for (const Place &place : where) {
        const SampleList &samples = *project.shots.samples(place.sensor, place.index);
        const quint64 id = project.shots.id(place.sensor, place.index);
        const int written = writtenOf(id);
        if (samples.size() <= written)
            continue;
        for (int start = written; start < samples.size(); start += kSamplesAtOnce)
            packer.next().samples(id, samples, start, qMin(kSamplesAtOnce, samples.size() - start));
        delta.counts.emplace_back(id, samples.size());
        delta.growing.emplace_back(place.sensor, place.index);
    }
}

std::vector<JournalTracker::Place> JournalTracker::places(const Project &project, bool everywhere) const
{
    std::vector<Place> places;
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const int count = project.shots.count(sensor);
        for (int index = everywhere ? 0 : qMax(0, count - 1); index < count; ++index)
            places.push_back({sensor, index});
    }
    if (everywhere)
        return places;
    for (const auto &[sensor, index] : m_growing) {
        if (index < project.shots.count(sensor) - 1)
            places.push_back({sensor, index});
    }
    return places;
}

qint64 JournalTracker::countGrowth(const Project &project, const std::vector<Place> &places) const
{
    qint64 growth = 0;
    for (const Place &place : places) {
        growth += project.shots.samples(place.sensor, place.index)->size()
                  - writtenOf(project.shots.id(place.sensor, place.index));
    }
    return growth;
}

// --- The rest ---

void JournalTracker::findOrder(const Project &project, JournalDelta &delta, Packer &packer) const
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const std::vector<quint64> &before = m_order[at(sensor)];
        std::vector<quint64> now = idsOf(project.shots, sensor);
        const auto [beforeFirst, nowFirst] = std::mismatch(before.begin(), before.end(), now.begin(), now.end());
        if (beforeFirst == before.end() && nowFirst == now.end())
            continue;
        const auto [beforeLast, nowLast] = std::mismatch(before.rbegin(), std::make_reverse_iterator(beforeFirst),
                                                         now.rbegin(), std::make_reverse_iterator(nowFirst));
        packer.next().order(sensor, static_cast<int>(beforeFirst - before.begin()),
                            static_cast<int>(beforeLast.base() - beforeFirst),
                            std::vector<quint64>(nowFirst, nowLast.base()));
        delta.order[at(sensor)] = std::move(now);
    }
}

void JournalTracker::findNotes(const Project &project, JournalDelta &delta, Packer &packer) const
{
    for (int shot = 0; shot < project.shots.shotCount(); ++shot) {
        const quint64 id = shotIdOf(project.shots, shot);
        const ShotNotes notes = notesOf(project.meta, shot);
        const auto known = m_notes.find(id);
        if (!(notes == (known == m_notes.end() ? ShotNotes() : known->second)))
            delta.notes.emplace_back(id, notes);
    }
    if (!delta.notes.empty())
        packer.next().notes(delta.notes);
}

void JournalTracker::findSettings(const Project &project, JournalDelta &delta, Packer &packer) const
{
    QByteArray settings = settingsText(project);
    if (settings != m_settings) {
        packer.next().settings(settings);
        delta.settings = std::move(settings);
    }
    QByteArray evaluation = evaluationText(project);
    if (evaluation != m_evaluation) {
        packer.next().evaluation(evaluation);
        delta.evaluation = std::move(evaluation);
    }
    std::vector<QRgb> colors;
    for (const QColor &color : project.colors)
        colors.push_back(color.rgba());
    if (colors != m_colors) {
        packer.next().colors(colors);
        delta.colors = std::move(colors);
    }
}

void JournalTracker::findPictures(const Project &project, JournalDelta &delta, Packer &packer) const
{
    delta.pictures = m_pictures;
    for (std::size_t image = 0; image < m_pictures.size(); ++image) {
        const qint64 key = project.images.pixmaps()[image].cacheKey();
        if (key == m_pictures[image])
            continue;
        JournalPicture picture;
        if (key != m_basePictures[image])
            picture = {key == 0 ? JournalPicture::Kind::None : JournalPicture::Kind::Png,
                       project.images.encodedOne(static_cast<int>(image))};
        delta.pictures[image] = key;
        if (picture.png.size() <= kLargestPicture)
            packer.next().picture(static_cast<int>(image), picture);
    }
}
