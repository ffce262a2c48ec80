#include "controller/link/linkreason.h"

#include <QCoreApplication>

namespace {

struct Reason
{
    QAbstractSocket::SocketError error;
    const char *words;
    const char *advice;
};

// The last one is for every other error.
constexpr Reason kReasons[] = {
    {QAbstractSocket::ConnectionRefusedError, QT_TRANSLATE_NOOP("LinkReason", "Verbindung abgelehnt"),
     QT_TRANSLATE_NOOP("LinkReason", "%1 ist im Netzwerk, nimmt aber keine Verbindung an. Läuft die Box schon? Nach "
                                     "dem Einschalten braucht sie einen Moment.")},
    {QAbstractSocket::HostNotFoundError, QT_TRANSLATE_NOOP("LinkReason", "Name unbekannt"),
     QT_TRANSLATE_NOOP("LinkReason", "Das Netzwerk kennt den Namen %1 nicht. Bitte die Schreibweise prüfen oder die "
                                     "IPv4-Adresse der Box eingeben.")},
    {QAbstractSocket::NetworkError, QT_TRANSLATE_NOOP("LinkReason", "kein Weg zur Box"),
     QT_TRANSLATE_NOOP("LinkReason", "Von diesem Rechner führt kein Weg zu %1. Bitte Netzwerkkabel und WLAN prüfen, "
                                     "und ob Rechner und Box im selben Netz sind.")},
    {QAbstractSocket::SocketTimeoutError, QT_TRANSLATE_NOOP("LinkReason", "keine Antwort"),
     QT_TRANSLATE_NOOP("LinkReason", "%1 antwortet nicht. Ist die Box eingeschaltet, und stimmt die Adresse?")},
    {QAbstractSocket::RemoteHostClosedError, QT_TRANSLATE_NOOP("LinkReason", "Verbindung abgerissen"),
     QT_TRANSLATE_NOOP("LinkReason", "Die Verbindung zu %1 ist abgerissen. Bitte Stromversorgung und Netzwerkkabel "
                                     "der Box prüfen, und ob sich ein anderer Rechner mit ihr verbunden hat.")},
    {QAbstractSocket::UnknownSocketError, QT_TRANSLATE_NOOP("LinkReason", "Störung im Netzwerk"),
     QT_TRANSLATE_NOOP("LinkReason", "Die Verbindung zu %1 ist gestört. Bitte Box und Netzwerk prüfen.")},
};

const Reason &reasonOf(QAbstractSocket::SocketError error)
{
    const Reason *reason = std::begin(kReasons);
    while (reason + 1 != std::end(kReasons) && reason->error != error)
        ++reason;
    return *reason;
}

} // namespace

QString linkReason(QAbstractSocket::SocketError error)
{
    return QCoreApplication::translate("LinkReason", reasonOf(error).words);
}

QString linkAdvice(QAbstractSocket::SocketError error, const QString &address)
{
    return QCoreApplication::translate("LinkReason", reasonOf(error).advice).arg(address);
}
