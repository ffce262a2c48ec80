#pragma once

#include "controller/desk.h"
#include "device/demobox.h"

#include <QObject>

class BoxLink;
class DeferredQuestions;

/// The demonstration: starts the simulated box, links to it, and ends both together.
class DemoLink : public QObject
{
    Q_OBJECT

public:
    /// All references must outlive the demonstration.
    DemoLink(const Desk &desk, DemoBox &box, BoxLink &link, DeferredQuestions &questions);

    /// The user starts or ends the demonstration.
    void toggle();
    void onListening(quint16 port);
    /// The simulator did not start, or it or the link to it ended.
    void onFailed(DemoBox::End end);
    /// Ends the simulator; every end of the link is the end of the demonstration.
    void stop();
    void showState();
    /// True, and a status message, while the demonstration runs: the simulated box has no storage for files.
    [[nodiscard]] bool refuseTransfer() const;

private:
    [[nodiscard]] bool mayStart();

    Desk m_desk;
    DemoBox &m_box;
    BoxLink &m_link;
    DeferredQuestions &m_questions;
};
