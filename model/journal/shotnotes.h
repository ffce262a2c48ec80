#pragma once

#include "model/project/shotorigin.h"

#include <QDateTime>
#include <QJsonObject>
#include <QString>

class QDataStream;
struct ProjectMeta;

/// What is known of a shot beside its samples. A new field is one line in each of the functions.
struct ShotNotes
{
    QString label;
    QDateTime timestamp; ///< null for none
    int period = 0;      ///< ms per sample; 0 if unknown
    int missing = 0;     ///< values of each sensor that never came
    QJsonObject others;  ///< what another version of the program keeps
    ShotOrigin origin;
};

[[nodiscard]] bool operator==(const ShotNotes &a, const ShotNotes &b);
QDataStream &operator<<(QDataStream &stream, const ShotNotes &notes);
QDataStream &operator>>(QDataStream &stream, ShotNotes &notes);

[[nodiscard]] ShotNotes notesOf(const ProjectMeta &meta, int shot);
void setNotes(ProjectMeta &meta, int shot, const ShotNotes &notes);
