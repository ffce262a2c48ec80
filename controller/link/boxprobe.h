#pragma once

#include "controller/desk.h"
#include "device/mesotraconnector.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

class BoxLink;

/// Finds out which of the remembered boxes take connections now, and shows it on the start page: one after the other,
/// only while that page is seen and no link is there or wanted. Sends nothing to the boxes.
class BoxProbe : public QObject
{
    Q_OBJECT

public:
    /// Times in ms: for one box to answer, and between two rounds.
    struct Times
    {
        int answer;
        int pause;
    };

    /// All must outlive the probe.
    BoxProbe(const Desk &desk, const BoxLink &link, quint16 port, Times times);
    ~BoxProbe() override;

    /// Ends the attempt that may be under way, at once; the next round follows after the pause if it may.
    void stop();
    /// Begins a round soon if it may.
    void begin();

protected:
    /// Of the start page.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool mayAsk() const;
    void beginRound();
    void askNext();
    void take(bool answers);

    Desk m_desk;
    const BoxLink &m_link;
    MesotraConnector m_connector;
    Times m_times;
    QTimer m_pauseTimer;  // runs between two rounds
    QTimer m_answerTimer; // runs while a box is asked
    QString m_asked;
    QStringList m_toAsk;
};
