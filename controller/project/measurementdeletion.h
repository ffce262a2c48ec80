#pragma once

#include "controller/desk.h"

#include <QCoreApplication>

class ProjectEdits;
class Recorder;

/// Deletes measurements after a question: those of a range that the user typed, or all.
class MeasurementDeletion
{
    Q_DECLARE_TR_FUNCTIONS(MeasurementDeletion)

public:
    /// All references must outlive the deletion.
    MeasurementDeletion(const Desk &desk, ProjectEdits &edits, Recorder &recorder);

    /// Such as "1-3,5", numbers as shown to the user. A malformed part ends the deletion: the parts before it
    /// stay deleted and the model's signals stay blocked.
    void deleteRange(const QString &range);
    void deleteAll();

private:
    /// What the deletion of a range has done.
    struct Result
    {
        int removed = 0;
        bool complete = true; ///< false: ended at a malformed part
    };

    [[nodiscard]] Result removeAsOneStep(const QString &range);
    [[nodiscard]] Result removeParts(const QString &range);
    [[nodiscard]] int remove(qint64 first, qint64 count);
    void finish();
    void breakOff(const QString &range);

    Desk m_desk;
    ProjectEdits &m_edits;
    Recorder &m_recorder;
};
