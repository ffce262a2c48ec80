#include "controller/link/linkdialogs.h"

#include "controller/occupancy.h"
#include "view/window/prompts/questions.h"
#include "view/window/view.h"

LinkDialogs::LinkDialogs(const Desk &desk)
    : m_desk(desk)
{}

void LinkDialogs::tell(QAbstractSocket::SocketError error)
{
    QString text;
    if (error == QAbstractSocket::RemoteHostClosedError)
        text = tr("Die Mesotra Hardware ist nicht mehr erreichbar.");
    else if (error == QAbstractSocket::HostNotFoundError)
        text = tr("Die Mesotra Hardware wurde nicht gefunden! Bitte IP-Adresse überprüfen!");
    else if (error == QAbstractSocket::ConnectionRefusedError)
        text = tr("Die Verbindung wurde abgelehnt!\n(Die IP-Adresse wurde jedoch gefunden.)");
    else
        return;
    m_isOpen = true;
    m_desk.occupancy.ask([&] { m_desk.view.showMessage(text, tr("Netzwerk Fehler")); });
    m_isOpen = false;
}

std::optional<QString> LinkDialogs::askAddress(const QString &current, const QString &reason)
{
    m_desk.view.questions().setAddressReason(reason);
    m_isOpen = true;
    const std::optional<QString> address = m_desk.occupancy.ask([&] { return m_desk.view.askAddress(current); });
    m_isOpen = false;
    return address;
}

void LinkDialogs::withdraw()
{
    if (m_isOpen)
        m_desk.view.questions().withdraw();
}
