#include "model/edit/editstep.h"

namespace {

constexpr qint64 kBytesOfAnyStep = 20000; // two states with the settings of the evaluation

qint64 bytesOf(const StoredShot &shot)
{
    qint64 bytes = sizeof(ShotChange);
    for (const auto &samples : shot.samples)
        bytes += samples ? qint64(samples->capacity()) * qint64(sizeof(double)) : 0;
    return bytes;
}

} // namespace

bool EditStep::isNothing() const
{
    return notes.shots.empty() && notes.labels.empty() && before == after;
}

bool EditStep::isContinuedBy(const EditStep &next) const
{
    const auto isOfShots = [](const EditNotes &some) { return !some.shots.empty() || !some.labels.empty(); };
    return !mergeKey.isEmpty() && mergeKey == next.mergeKey && isDone && !isOfShots(notes) && !isOfShots(next.notes);
}

qint64 EditStep::bytes() const
{
    qint64 bytes = kBytesOfAnyStep;
    for (const ShotChange &change : notes.shots)
        bytes += bytesOf(change.shot);
    const EditState &away = isDone ? before : after;
    for (int image = 0; image < kNumProjectImages; ++image)
        bytes += before.images.isSame(image, after.images) ? 0 : away.images.bytes(image);
    if (before.comment != after.comment)
        bytes += qint64(away.comment.size()) * qint64(sizeof(QChar));
    return bytes;
}
