#pragma once

#include "controller/desk.h"
#include "controller/link/ratemeter.h"
#include "view/window/state/linkstatus.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class AnswerWatch;
class BoxLink;
class Continuation;
class DemoBox;
class MesotraConnector;
class ShotWatch;
class SilenceWatch;
class StateLine;

/// Keeps the state line up to date, and remembers the loss of a link until the user has seen it.
class LinkReport : public QObject
{
    Q_OBJECT

public:
    /// What the state is made of; all must outlive the report.
    struct Sources
    {
        BoxLink &link;
        const MesotraConnector &connector;
        const DemoBox &demoBox;
        const SilenceWatch &silence;
        const AnswerWatch &answers;
        ShotWatch &shot;
        const Continuation &continuation;
    };

    /// Adds the state line to the window.
    LinkReport(const Desk &desk, const Sources &sources);

    void noteLoss();
    /// The box is there, perhaps after a loss.
    void noteBack();
    /// Shows what is new. Cheap if nothing is.
    void refresh();

private:
    [[nodiscard]] LinkStatus status();
    [[nodiscard]] LinkStatus::Link linkState() const;
    void addRecording(LinkStatus &status);
    void addLoss(LinkStatus &status);
    void stopRetrying();
    void acknowledge();

    Desk m_desk;
    Sources m_sources;
    StateLine *m_line; // owned by the window
    QTimer m_timer;
    QElapsedTimer m_clock;
    RateMeter m_rate;
    QDateTime m_lostAt; // invalid: nothing that the user has not seen
    QDateTime m_backAt;
};
