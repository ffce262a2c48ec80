#include "model/journal/projectrecovery.h"

#include "model/arrayindex.h"
#include "model/project/metafile.h"
#include "model/project/pacer.h"
#include "model/project/projectreader.h"
#include "model/shotstore.h"

#include <QBuffer>

#include <algorithm>
#include <utility>

namespace {

ProjectDocument readSettings(QByteArray text)
{
    QBuffer buffer(&text);
    Pacer pacer([](int) {}, 0);
    std::optional<ProjectDocument> document;
    if (buffer.open(QIODevice::ReadOnly))
        document = projectfile::read(buffer, pacer);
    return document ? *std::move(document) : ProjectDocument();
}

ProjectMeta readEvaluation(QByteArray text)
{
    QBuffer buffer(&text);
    return buffer.open(QIODevice::ReadOnly) ? readProjectMeta(buffer, {}).value_or(ProjectMeta()) : ProjectMeta();
}

/// The shots of the base file, found by the index that they had when the journal began.
class BaseShots
{
public:
    BaseShots(const JournalContents &contents, ProjectDocument *document)
    {
        const JournalBase &base = contents.base;
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            takeChannel(sensor, document);
            const std::vector<SavedRun> &runs = base.runs[at(sensor)];
            for (std::size_t index = 0; index < runs.size(); ++index) {
                if (runs[index].id != 0)
                    m_wanted[runs[index].id] = {static_cast<int>(index), runs[index].count};
            }
        }
        m_checks = shotChecks(m_store);
        match(base.checks);
        matchGrown(contents);
    }

    struct Run
    {
        int wantedIndex = -1;
        int count = 0;
    };
    /// An index of -1 for a measurement that is not one of the base file's.
    [[nodiscard]] Run wanted(quint64 id) const
    {
        const auto found = m_wanted.find(id);
        return found == m_wanted.end() ? Run() : found->second;
    }
    /// Where the shot is in the file now; -1 if it is not there.
    [[nodiscard]] int indexNow(int wantedIndex) const
    {
        return at(wantedIndex) < m_now.size() ? m_now[at(wantedIndex)] : -1;
    }
    [[nodiscard]] SampleList samples(int sensor, int index) const
    {
        const SampleList *list = m_store.samples(sensor, index);
        return list ? *list : SampleList();
    }
    [[nodiscard]] int count(int sensor) const { return m_store.count(sensor); }
    [[nodiscard]] const ShotChecks &checks() const { return m_checks; }

private:
    void takeChannel(int sensor, ProjectDocument *document)
    {
        if (!document || !document->samples[at(sensor)])
            return;
        ShotStore::Channel channel;
        for (SampleRun &run : *document->samples[at(sensor)])
            channel.push_back(run.take());
        m_store.setChannel(sensor, std::move(channel));
    }

    // At the same place first: shots that are alike, such as empty ones, keep their order.
    void match(const ShotChecks &wanted)
    {
        std::unordered_multimap<quint32, int> elsewhere;
        m_now.assign(wanted.size(), -1);
        for (std::size_t index = 0; index < m_checks.size(); ++index) {
            if (index < wanted.size() && wanted[index] == m_checks[index])
                m_now[index] = static_cast<int>(index);
            else
                elsewhere.emplace(m_checks[index], static_cast<int>(index));
        }
        for (std::size_t index = 0; index < wanted.size(); ++index) {
            const auto found = m_now[index] < 0 ? elsewhere.find(wanted[index]) : elsewhere.end();
            if (found == elsewhere.end())
                continue;
            m_now[index] = found->second;
            elsewhere.erase(found);
        }
    }

    /// A shot that was being recorded may have been saved once more: the file has it with more samples.
    void matchGrown(const JournalContents &contents)
    {
        for (std::size_t index = 0; index < m_now.size(); ++index) {
            if (m_now[index] < 0 && hasGrown(contents, index))
                m_now[index] = findGrown(contents.base, index);
        }
    }

    [[nodiscard]] static bool hasGrown(const JournalContents &contents, std::size_t index)
    {
        for (const std::vector<SavedRun> &runs : contents.base.runs) {
            const auto own = index < runs.size() ? contents.samples.find(runs[index].id) : contents.samples.end();
            if (own != contents.samples.end() && !own->second.samples.isEmpty())
                return true;
        }
        return false;
    }

    [[nodiscard]] int findGrown(const JournalBase &base, std::size_t index) const
    {
        for (int shot = 0; shot < m_store.shotCount(); ++shot) {
            ShotStore beginning;
            for (int sensor = 0; sensor < kNumSensors; ++sensor) {
                const std::vector<SavedRun> &runs = base.runs[at(sensor)];
                const SampleList *samples = m_store.samples(sensor, shot);
                if (samples && index < runs.size() && runs[index].count <= samples->size())
                    (void)beginning.append(sensor, samples->mid(0, runs[index].count));
            }
            const ShotChecks checks = shotChecks(beginning);
            if (!checks.empty() && checks.front() == base.checks[index])
                return shot;
        }
        return -1;
    }

    ShotStore m_store;
    ShotChecks m_checks;
    std::unordered_map<quint64, Run> m_wanted;
    std::vector<int> m_now;
};

/// Puts shot after shot together.
class Assembly
{
public:
    Assembly(JournalContents &contents, BaseShots &base, RecoveredProject &project)
        : m_contents(contents)
        , m_base(base)
        , m_project(project)
    {
        for (std::optional<SampleRuns> &runs : m_project.document.samples)
            runs.emplace();
    }

    void takeShot(int shot)
    {
        const bool hasGap = isBaseMissing(shot);
        if (hasGap && !hasOwnSamples(shot)) {
            ++m_project.losses.shots;
            return;
        }
        m_project.losses.cutShots += hasGap ? 1 : 0;
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            takeMeasurement(sensor, shot, !hasGap);
        const auto notes = m_contents.notes.find(m_contents.shotId(shot));
        setNotes(m_project.meta, m_taken++, notes == m_contents.notes.end() ? ShotNotes() : notes->second);
    }

private:
    [[nodiscard]] quint64 idOf(int sensor, int shot) const
    {
        const std::vector<quint64> &ids = m_contents.order[at(sensor)];
        return at(shot) < ids.size() ? ids[at(shot)] : 0;
    }

    [[nodiscard]] bool isBaseMissing(int shot) const
    {
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            const BaseShots::Run run = m_base.wanted(idOf(sensor, shot));
            if (run.wantedIndex >= 0 && m_base.indexNow(run.wantedIndex) < 0)
                return true;
        }
        return false;
    }

    [[nodiscard]] bool hasOwnSamples(int shot) const
    {
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            const auto own = m_contents.samples.find(idOf(sensor, shot));
            if (own != m_contents.samples.end() && !own->second.samples.isEmpty())
                return true;
        }
        return false;
    }

    void takeMeasurement(int sensor, int shot, bool withBase)
    {
        const quint64 id = idOf(sensor, shot);
        if (id == 0)
            return; // another sensor is ahead of this one
        RecoveredProject::Origin origin;
        SampleList samples;
        const BaseShots::Run run = m_base.wanted(id);
        // A measurement that is missing has the same check number as one without samples.
        const int index = withBase && run.wantedIndex >= 0 ? m_base.indexNow(run.wantedIndex) : -1;
        if (index >= 0 && index < m_base.count(sensor)) {
            samples = m_base.samples(sensor, index).mid(0, run.count);
            origin = {index, samples.size()};
        }
        const auto own = m_contents.samples.find(id);
        if (own != m_contents.samples.end()) {
            if (samples.isEmpty())
                samples = std::move(own->second.samples);
            else
                samples += own->second.samples;
        }
        m_project.document.samples[at(sensor)]->emplace_back(std::move(samples));
        m_project.origins[at(sensor)].push_back(origin);
    }

    JournalContents &m_contents;
    BaseShots &m_base;
    RecoveredProject &m_project;
    int m_taken = 0;
};

void takePictures(JournalContents &contents, ProjectDocument *base, RecoveredProject &project)
{
    for (std::size_t image = 0; image < contents.pictures.size(); ++image) {
        JournalPicture &picture = contents.pictures[image];
        if (picture.kind == JournalPicture::Kind::Png)
            project.document.images[image] = std::move(picture.png);
        else if (picture.kind == JournalPicture::Kind::InBase && base)
            project.document.images[image] = std::move(base->images[image]);
        if (picture.kind == JournalPicture::Kind::InBase && contents.base.hasPicture[image])
            project.losses.pictures += project.document.images[image].isEmpty() ? 1 : 0;
    }
}

} // namespace

RecoveredProject recoverProject(JournalContents &contents, std::optional<ProjectDocument> base)
{
    RecoveredProject project;
    project.document = readSettings(contents.settings);
    project.meta = readEvaluation(contents.evaluation);
    takePictures(contents, base ? &*base : nullptr, project);
    BaseShots shots(contents, base ? &*base : nullptr);
    Assembly assembly(contents, shots, project);
    for (int shot = 0; shot < contents.shotCount(); ++shot)
        assembly.takeShot(shot);
    project.saved.checks = shots.checks();
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        project.saved.runs[at(sensor)].resize(at(shots.count(sensor)));
    return project;
}
