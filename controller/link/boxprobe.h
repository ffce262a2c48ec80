#pragma once

#include "controller/desk.h"
#include "device/mesotraconnector.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

class BoxLink;

/// Finds out which of the remembered boxes take connections now, and shows it on the start page: one after the other,
/// once for each time that the user wants to know, and only while no link is there or wanted. Sends nothing to the
/// boxes; but a box that serves its newest client only leaves another one for the attempt, so nobody asks by himself.
class BoxProbe : public QObject
{
    Q_OBJECT

public:
    /// Times in ms: for one box to answer, and for which the answers are shown.
    struct Times
    {
        int answer;
        int shown;
    };

    /// All must outlive the probe.
    BoxProbe(const Desk &desk, const BoxLink &link, quint16 port, Times times);
    ~BoxProbe() override;

    /// Ends the attempt that may be under way, at once, and forgets the answers.
    void stop();
    /// Asks the user, then the boxes.
    void run();

protected:
    /// Of the start page.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool mayAsk() const;
    void askNext();
    void take(bool answers);
    void showRefusal();

    Desk m_desk;
    const BoxLink &m_link;
    MesotraConnector m_connector;
    Times m_times;
    QTimer m_answerTimer; // runs while a box is asked
    QTimer m_shownTimer;  // runs while there are answers
    QString m_asked;
    QStringList m_toAsk;
};
