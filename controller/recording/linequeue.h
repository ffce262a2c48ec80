#pragma once

#include <QString>
#include <QTimer>

#include <deque>
#include <functional>

class MesotraConnector;
class Model;

/// Hands on the lines of the box, one at a time and in order, and keeps them waiting while they must not be handled:
/// while somebody holds them, while a file is being read or written, and while the line before is being handled.
///
/// Lines wait in the socket, whose buffer is bounded, so that hours of an unanswered question cost no more memory than
/// the samples themselves would. Only those that were already on their way wait here. Needs no window.
class LineQueue
{
public:
    using Handler = std::function<void(const QString &line)>;

    /// Connector and model must outlive the queue.
    LineQueue(MesotraConnector &connector, const Model &model, Handler handler);

    /// The next line that the connector delivered. Handled at once unless it has to wait.
    void take(const QString &line);
    /// Handles everything that waits here: at the end of the link, before anybody is told of that.
    void flush();
    [[nodiscard]] bool isHeld() const;

    /// Lines wait until release() was called as often; LineHold does that.
    void hold();
    void release();

private:
    void resume();
    void handleFirst();
    void handle(const QString &line);

    MesotraConnector &m_connector;
    const Model &m_model;
    Handler m_handler;
    std::deque<QString> m_waiting;
    QTimer m_resumeTimer;
    int m_holds = 0;
    bool m_handling = false;
};
