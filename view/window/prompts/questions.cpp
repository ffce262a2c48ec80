#include "view/window/prompts/questions.h"

#include "app/theme.h"
#include "view/common/logging.h"

#include <QDir>
#include <QFileInfo>
#include <QTimer>

Questions::Questions(std::unique_ptr<UserPrompts> prompts)
    : m_prompts(std::move(prompts))
{}

template <typename Answer, typename Question>
Answer Questions::oneAtATime(Answer refusal, Question question)
{
    if (m_asking) {
        qCDebug(lcView) << "refused: a question is open already";
        return refusal;
    }
    m_asking = true;
    const Answer answer = question();
    m_asking = false;
    // Not now: the caller must get its answer before the next box opens.
    if (!m_waiting.isEmpty())
        QTimer::singleShot(0, this, &Questions::showWaitingMessage);
    return answer;
}

QMessageBox::StandardButton Questions::ask(const QString &title, const QString &text,
                                           QMessageBox::StandardButtons buttons, QMessageBox::StandardButton refusal)
{
    return oneAtATime(refusal, [&] { return m_prompts->ask(title, text, buttons); });
}

bool Questions::toSave()
{
    // Refused means yes: nothing may be thrown away because another box was open.
    return ask(theme::applicationName, tr("Projekt speichern?"), QMessageBox::Save | QMessageBox::Discard,
               QMessageBox::Save)
           == QMessageBox::Save;
}

bool Questions::toQuit()
{
    return ask(theme::applicationName, tr("Ventaro beenden?"), QMessageBox::Ok | QMessageBox::Cancel,
               QMessageBox::Cancel)
           == QMessageBox::Ok;
}

QMessageBox::StandardButton Questions::toSaveAndQuit()
{
    return ask(theme::applicationName, tr("Vor dem Beenden Ventaro Projekt speichern?"),
               QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel);
}

bool Questions::toClearData()
{
    return ask(theme::applicationName, tr("Achtung: Alle Messdaten werden gelöscht!"),
               QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel)
           == QMessageBox::Ok;
}

bool Questions::yesNo(const QString &title, const QString &text)
{
    return ask(title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

int Questions::choose(const Choice &choice)
{
    return oneAtATime(int(Choice::kClosed), [&] { return m_prompts->choose(choice); });
}

// --- Messages ----------------------------------------------------------------------------------------------------

void Questions::inform(const QString &title, const QString &text)
{
    showOrQueue({title, text, false});
}

void Questions::warn(const QString &title, const QString &text)
{
    showOrQueue({title, text, true});
}

void Questions::showOrQueue(const Message &message)
{
    if (m_asking) {
        m_waiting.append(message);
        return;
    }
    (void)oneAtATime(true, [&] { // true or not: a message has no answer
        if (message.isWarning)
            m_prompts->warn(message.title, message.text);
        else
            m_prompts->inform(message.title, message.text);
        return true;
    });
}

void Questions::showWaitingMessage()
{
    if (!m_asking && !m_waiting.isEmpty())
        showOrQueue(m_waiting.takeFirst());
}

// --- Files and addresses -----------------------------------------------------------------------------------------

void Questions::rememberFolderOf(const QString &file)
{
    if (!file.isEmpty())
        m_lastFolder = QFileInfo(file).absolutePath();
}

QString Questions::openFile(const QString &title, const QString &filter)
{
    const QString file = oneAtATime(QString(), [&] { return m_prompts->openFileName(title, m_lastFolder, filter); });
    rememberFolderOf(file);
    return file;
}

QString Questions::saveFile(const QString &title, const QString &filter)
{
    const QString file = oneAtATime(QString(), [&] { return m_prompts->saveFileName(title, m_lastFolder, filter); });
    rememberFolderOf(file);
    return file;
}

QString Questions::saveFileWithSuffix(const QString &title, const QString &filter, const QString &suffix,
                                      Qt::CaseSensitivity sensitivity, const QString &overwriteTitle)
{
    const QString chosen = saveFile(title, filter);
    if (chosen.isEmpty())
        return chosen;
    const QString file = chosen.endsWith(suffix, sensitivity) ? chosen : chosen + suffix;
    if (file == chosen || !QFileInfo::exists(file)) // the dialog has asked about the name chosen in it
        return file;
    const QString text = tr("Die Datei \"%1\" ist schon vorhanden. Überschreiben?").arg(QDir::toNativeSeparators(file));
    return yesNo(overwriteTitle.isEmpty() ? title : overwriteTitle, text) ? file : QString();
}

QString Questions::folder(const QString &title)
{
    const QString chosen = oneAtATime(QString(), [&] { return m_prompts->openFolder(title, m_lastFolder); });
    if (!chosen.isEmpty())
        m_lastFolder = chosen;
    return chosen;
}

std::optional<QString> Questions::address(const QString &current)
{
    return oneAtATime(std::optional<QString>(), [&] { return m_prompts->askAddress(current); });
}

void Questions::setAddressReason(const QString &reason)
{
    m_prompts->setAddressReason(reason);
}

void Questions::withdraw()
{
    if (m_asking)
        m_prompts->withdraw();
}

void Questions::setAddressValidator(std::function<bool(const QString &)> isValid)
{
    m_prompts->setAddressValidator(std::move(isValid));
}
