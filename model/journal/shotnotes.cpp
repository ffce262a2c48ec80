#include "model/journal/shotnotes.h"

#include "model/project/projectmeta.h"

#include <QDataStream>

#include <limits>

namespace {

constexpr qint64 kNoTime = std::numeric_limits<qint64>::min();

} // namespace

bool operator==(const ShotNotes &a, const ShotNotes &b)
{
    return a.label == b.label && a.timestamp == b.timestamp;
}

QDataStream &operator<<(QDataStream &stream, const ShotNotes &notes)
{
    stream << notes.label;
    stream << (notes.timestamp.isValid() ? notes.timestamp.toMSecsSinceEpoch() : kNoTime);
    return stream;
}

QDataStream &operator>>(QDataStream &stream, ShotNotes &notes)
{
    qint64 time = kNoTime;
    stream >> notes.label >> time;
    notes.timestamp = time == kNoTime ? QDateTime() : QDateTime::fromMSecsSinceEpoch(time);
    return stream;
}

ShotNotes notesOf(const ProjectMeta &meta, int shot)
{
    return {meta.label(shot), meta.timestamp(shot)};
}

void setNotes(ProjectMeta &meta, int shot, const ShotNotes &notes)
{
    meta.setLabel(shot, notes.label);
    meta.setTimestamp(shot, notes.timestamp);
}
