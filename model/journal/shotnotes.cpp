#include "model/journal/shotnotes.h"

#include "model/project/projectmeta.h"

#include <QDataStream>
#include <QJsonDocument>

#include <limits>

namespace {

constexpr qint64 kNoTime = std::numeric_limits<qint64>::min();

} // namespace

bool operator==(const ShotNotes &a, const ShotNotes &b)
{
    return a.label == b.label && a.timestamp == b.timestamp && a.period == b.period && a.missing == b.missing
           && a.others == b.others && a.origin == b.origin;
}

QDataStream &operator<<(QDataStream &stream, const ShotNotes &notes)
{
    stream << notes.label;
    stream << (notes.timestamp.isValid() ? notes.timestamp.toMSecsSinceEpoch() : kNoTime);
    stream << qint32(notes.period) << qint32(notes.missing)
           << QJsonDocument(notes.others).toJson(QJsonDocument::Compact);
    stream << notes.origin.box << notes.origin.file << notes.origin.hash;
    return stream;
}

QDataStream &operator>>(QDataStream &stream, ShotNotes &notes)
{
    qint64 time = kNoTime;
    qint32 period = 0;
    qint32 missing = 0;
    QByteArray others;
    stream >> notes.label >> time >> period >> missing >> others;
    stream >> notes.origin.box >> notes.origin.file >> notes.origin.hash;
    notes.period = qMax(0, period);
    notes.missing = qMax(0, missing);
    notes.others = QJsonDocument::fromJson(others).object();
    notes.timestamp = time == kNoTime ? QDateTime() : QDateTime::fromMSecsSinceEpoch(time);
    return stream;
}

ShotNotes notesOf(const ProjectMeta &meta, int shot)
{
    const ShotMeta known = meta.shot(shot);
    return {known.label, known.timestamp, known.period, known.missing, known.others, known.origin};
}

void setNotes(ProjectMeta &meta, int shot, const ShotNotes &notes)
{
    meta.setLabel(shot, notes.label);
    meta.setTimestamp(shot, notes.timestamp);
    meta.setPeriod(shot, notes.period);
    meta.setMissingValues(shot, notes.missing);
    meta.setOthers(shot, notes.others);
    meta.setOrigin(shot, notes.origin);
}
