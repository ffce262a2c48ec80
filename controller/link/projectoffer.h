#pragma once

#include "controller/desk.h"
#include "device/protocol/descriptions.h"

#include <QCoreApplication>

class DeferredQuestions;
class LineQueue;
class ProjectEdits;

/// Asks the user whether the description of a project that the box has sent replaces that of the current one. Of
/// several only the newest is asked about.
class ProjectOffer
{
    Q_DECLARE_TR_FUNCTIONS(ProjectOffer)

public:
    /// All references must outlive the offer.
    ProjectOffer(const Desk &desk, DeferredQuestions &questions, LineQueue &lines, ProjectEdits &edits);

    /// Returns at once; the user is asked when nothing else is under way.
    void receive(const ReceivedProject &project);

private:
    void ask(const ReceivedProject &project);
    void apply(const ReceivedProject &project);

    Desk m_desk;
    DeferredQuestions &m_questions;
    LineQueue &m_lines;
    ProjectEdits &m_edits;
};
