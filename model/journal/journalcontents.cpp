#include "model/journal/journalcontents.h"

#include "model/arrayindex.h"
#include "model/project/projectkeys.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

int JournalContents::shotCount() const
{
    std::size_t count = 0;
    for (const std::vector<quint64> &ids : order)
        count = std::max(count, ids.size());
    return static_cast<int>(count);
}

quint64 JournalContents::shotId(int shot) const
{
    for (const std::vector<quint64> &ids : order) {
        if (shot >= 0 && at(shot) < ids.size())
            return ids[at(shot)];
    }
    return 0;
}

qint64 JournalContents::sampleCount() const
{
    qint64 count = 0;
    for (std::size_t sensor = 0; sensor < order.size(); ++sensor) {
        std::unordered_map<quint64, int> inBase;
        for (const SavedRun &run : base.runs[sensor])
            inBase[run.id] = run.count;
        for (const quint64 id : order[sensor]) {
            const auto own = samples.find(id);
            const auto saved = inBase.find(id);
            count += own == samples.end() ? 0 : own->second.samples.size();
            count += saved == inBase.end() ? 0 : saved->second;
        }
    }
    return count;
}

QString JournalContents::projectName() const
{
    return QJsonDocument::fromJson(settings).object().value(QLatin1String(projectkeys::kName)).toString();
}
