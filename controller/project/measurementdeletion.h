#pragma once

#include "controller/desk.h"
#include "controller/project/deletionplan.h"

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
    [[nodiscard]] int removeAsOneStep(const DeletionPlan &plan);
    [[nodiscard]] int remove(const DeletionPlan &plan);
    [[nodiscard]] int remove(const DeletionPlan::Step &step);
    void finish();
    void breakOff(const QString &range);

    Desk m_desk;
    ProjectEdits &m_edits;
    Recorder &m_recorder;
};
