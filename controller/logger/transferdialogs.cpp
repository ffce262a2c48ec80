#include "controller/logger/transferdialogs.h"

#include "controller/logger/boxfolders.h"
#include "controller/occupancy.h"
#include "device/scptransfer.h"
#include "view/window/prompts/questions.h"
#include "view/window/view.h"

#include <QApplication>

namespace {

constexpr int kMostNames = 10; // of transfers in a message

void setWaitCursor(bool waiting)
{
    if (waiting)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

} // namespace

TransferDialogs::TransferDialogs(const Desk &desk)
    : m_desk(desk)
{}

void TransferDialogs::attach(ScpTransfer &transfer)
{
    transfer.setSurroundings({[this](const ScpMessage &message) { show(message); }, setWaitCursor});
}

void TransferDialogs::show(const ScpMessage &message)
{
    const bool isOneOfMany = message.isOfThisTransfer && !m_name.isEmpty();
    if (isOneOfMany && m_hasAsked)
        m_failed.append(m_name);
    else if (isOneOfMany && m_others > 0)
        askToGoOn(message);
    else
        showAlone(message);
}

bool TransferDialogs::prepare(const BoxFolders &folders)
{
    if (folders.prepare())
        return true;
    show({tr("Problem"), tr("Der Ordner %1 kann nicht angelegt werden.").arg(folders.temporaryDirectory().path())});
    return false;
}

void TransferDialogs::showAlone(const ScpMessage &message)
{
    m_desk.occupancy.ask([&] {
        if (message.isWarning)
            m_desk.view.showWarning(message.text, message.title);
        else
            m_desk.view.showMessage(message.text, message.title);
    });
}

void TransferDialogs::askToGoOn(const ScpMessage &message)
{
    Choice choice;
    choice.title = message.title;
    choice.text = message.text;
    choice.hint = m_others == 1 ? tr("Noch 1 weiterer Tag ist ausgewählt.")
                                : tr("Noch %1 weitere Tage sind ausgewählt.").arg(m_others);
    choice.answers = QStringList{tr("Weitere Tage holen"), tr("Weitere Tage auslassen")};
    choice.safest = 1;
    choice.isDestructive = message.isWarning; // for its icon
    m_hasAsked = true;
    m_isGivenUp = m_desk.occupancy.ask([&] { return m_desk.view.questions().choose(choice); }) != 0;
}

void TransferDialogs::beginSeries()
{
    m_hasAsked = false;
    m_isGivenUp = false;
    m_failed.clear();
}

void TransferDialogs::beginTransfer(const QString &name, int others)
{
    m_name = name;
    m_others = others;
}

void TransferDialogs::endSeries()
{
    m_name.clear();
    if (m_failed.isEmpty())
        return;
    QString names = m_failed.mid(0, kMostNames).join(QLatin1Char('\n'));
    if (m_failed.size() > kMostNames)
        names += QStringLiteral("\n…");
    showAlone({tr("Problem"), tr("Auch diese Tage konnten nicht geholt werden:") + QLatin1Char('\n') + names, true});
}
