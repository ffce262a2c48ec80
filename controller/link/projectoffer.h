#pragma once

#include "controller/desk.h"
#include "device/protocol/descriptions.h"

#include <QCoreApplication>

#include <deque>

class DeferredQuestions;
class LineQueue;
class ProjectEdits;
struct Comparison;

/// Asks the user whether the description of a project that the box has sent replaces that of the current one, with both
/// side by side. Of several only the newest is asked about; each is asked about once per project, however often the box
/// repeats it, and not at all if it would change nothing.
class ProjectOffer
{
    Q_DECLARE_TR_FUNCTIONS(ProjectOffer)

public:
    /// All references must outlive the offer.
    ProjectOffer(const Desk &desk, DeferredQuestions &questions, LineQueue &lines, ProjectEdits &edits);

    /// Returns at once; the user is asked when nothing else is under way.
    void receive(const ReceivedProject &project);
    /// The user has left the box: what was not asked yet is not asked any more.
    void withdraw();
    /// Another project is open: what was declined for the one before may be asked again.
    void forgetAnswers() { m_asked.clear(); }

private:
    [[nodiscard]] bool isOfInterest(const ReceivedProject &project) const;
    void ask(const ReceivedProject &project);
    [[nodiscard]] Comparison compared(const ReceivedProject &project) const;
    void apply(const ReceivedProject &project);

    Desk m_desk;
    DeferredQuestions &m_questions;
    LineQueue &m_lines;
    ProjectEdits &m_edits;
    std::deque<ReceivedProject> m_asked; // the newest last
};
