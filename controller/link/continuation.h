#pragma once

#include <QCoreApplication>
#include <QString>

class Model;
class Recorder;

/// Goes on with a recording that a lost link has ended: in a fresh shot that is marked as continued, once the box is
/// back and its scale is known.
class Continuation
{
    Q_DECLARE_TR_FUNCTIONS(Continuation)

public:
    /// Both must outlive the continuation.
    Continuation(Model &model, Recorder &recorder);

    /// The link to the box was lost, perhaps while it recorded.
    void noteLoss(const QString &address, bool wasRecording);
    /// There is a link again, perhaps to another box, which nobody asked to record.
    void noteEstablished(const QString &address);
    /// The box has described its sensors, or will not.
    void noteScaleKnown();
    /// A recording has begun.
    void noteStarted();
    /// The user wants something else.
    void forget();

    [[nodiscard]] bool isWanted() const { return m_isWanted; }

private:
    Model &m_model;
    Recorder &m_recorder;
    QString m_address;
    bool m_isWanted = false;
    bool m_isAsked = false; // over this link
};
