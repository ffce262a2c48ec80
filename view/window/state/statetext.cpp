#include "view/window/state/statetext.h"

#include "view/window/state/linkstatus.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(StateText)
};

const QString kBetween = QStringLiteral("  ·  ");

QString number(int value)
{
    return QLocale().toString(value);
}

QString clockTime(const QDateTime &time)
{
    return time.toString(QStringLiteral("HH:mm:ss"));
}

/// Whole seconds; a time that has begun counts.
int seconds(int milliseconds)
{
    return (milliseconds + 999) / 1000;
}

QString boxText(const LinkStatus &status)
{
    return status.isDemo ? Texts::tr("Simulierte Box") : status.box;
}

QString recordingText(const LinkStatus &status)
{
    return QStringList{boxText(status), Texts::tr("seit %1").arg(clockTime(status.recordingSince)),
                       Texts::tr("Messung %1").arg(number(status.shots)),
                       Texts::tr("%1 Werte").arg(number(status.samples)),
                       Texts::tr("%1 Werte/s").arg(QLocale().toString(status.rate, 'f', 1))}
        .join(kBetween);
}

/// What stays to be said after something went wrong.
QStringList noteworthy(const LinkStatus &status)
{
    QStringList notes;
    if (status.lostAt.isValid() && status.backAt.isValid())
        notes << Texts::tr("Verbindung unterbrochen %1–%2").arg(clockTime(status.lostAt), clockTime(status.backAt));
    if (status.missing > 0)
        notes << Texts::tr("letzte Messung: %1 Werte fehlen").arg(number(status.missing));
    return notes;
}

StateText offText(const LinkStatus &status)
{
    StateText text;
    if (!status.lostAt.isValid()) {
        text.head = Texts::tr("Nicht verbunden");
        return text;
    }
    text.head = Texts::tr("Verbindung verloren");
    text.detail =
        QStringList{Texts::tr("um %1").arg(clockTime(status.lostAt)), boxText(status), status.reason}.join(kBetween);
    text.mood = StateText::Mood::Alarm;
    text.canAcknowledge = true;
    return text;
}

StateText retryText(const LinkStatus &status)
{
    StateText text;
    text.head = Texts::tr("Verbindung verloren");
    QStringList parts{
        Texts::tr("%1. Versuch in %2 s").arg(number(status.nextAttempt), number(seconds(status.timeToNext))),
        status.reason};
    if (status.willContinue)
        parts << Texts::tr("Aufzeichnung geht dann weiter");
    parts << Texts::tr("seit %1").arg(clockTime(status.lostAt)) << boxText(status); // the end may be cut off
    parts.removeAll(QString());
    text.detail = parts.join(kBetween);
    text.mood = StateText::Mood::Alarm;
    text.canStop = true;
    return text;
}

StateText onText(const LinkStatus &status)
{
    const bool isRecording = status.recordingSince.isValid();
    const QStringList notes = noteworthy(status);
    StateText text;
    QStringList details{isRecording ? recordingText(status) : boxText(status)};
    if (status.staleFor > 0) {
        text.head = Texts::tr("keine Daten seit %1 s").arg(number(status.staleFor / 1000));
    } else if (status.isBoxMute) {
        text.head = Texts::tr("Die Box antwortet nicht");
        details << Texts::tr("Netzwerkkabel und Stromversorgung prüfen");
    } else {
        text.head = isRecording ? Texts::tr("Aufzeichnung läuft") : Texts::tr("Verbunden");
        if (!isRecording)
            details << Texts::tr("Messungen: %1").arg(number(status.shots));
    }
    const bool isDisturbed = status.staleFor > 0 || status.isBoxMute;
    text.mood = isDisturbed || !notes.isEmpty() ? StateText::Mood::Warning
                : isRecording                   ? StateText::Mood::Recording
                                                : StateText::Mood::Good;
    text.detail = (notes + details).join(kBetween); // the end may be cut off
    text.canAcknowledge = status.lostAt.isValid() || status.missing > 0;
    return text;
}

} // namespace

StateText stateText(const LinkStatus &status)
{
    switch (status.link) {
    case LinkStatus::Link::On:
        return onText(status);
    case LinkStatus::Link::Retrying:
        return retryText(status);
    case LinkStatus::Link::Connecting: {
        StateText text;
        text.head = Texts::tr("Verbindung wird aufgebaut ...");
        text.detail = boxText(status);
        return text;
    }
    case LinkStatus::Link::Off:
        break;
    }
    return offText(status);
}
