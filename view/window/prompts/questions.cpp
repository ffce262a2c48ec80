#include "view/window/prompts/questions.h"

#include "app/theme.h"
#include "view/common/logging.h"

#include <QDir>
#include <QFileInfo>
#include <QTimer>

const QString Questions::kProjectFolder = QStringLiteral("projects");
const QString Questions::kPictureFolder = QStringLiteral("pictures");

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

QMessageBox::StandardButton Questions::ask(const StandardQuestion &question)
{
    return oneAtATime(QMessageBox::NoButton, [&] { return m_prompts->ask(question); });
}

SaveAnswer Questions::toSaveOrStay()
{
    switch (ask({theme::applicationName, tr("Projekt speichern?"), QMessageBox::Save | QMessageBox::Discard,
                 QMessageBox::Save, false, tr("Escape oder Schließen bricht ab, und nichts ändert sich.")})) {
    case QMessageBox::Save:
        return SaveAnswer::Save;
    case QMessageBox::Discard:
        return SaveAnswer::Discard;
    default:
        return SaveAnswer::Stay;
    }
}

bool Questions::toQuit()
{
    return ask({theme::applicationName, tr("Ventaro beenden?"), QMessageBox::Ok | QMessageBox::Cancel,
                QMessageBox::Ok}) // nothing is unsaved
           == QMessageBox::Ok;
}

QMessageBox::StandardButton Questions::toSaveAndQuit()
{
    const QMessageBox::StandardButton answer =
        ask({theme::applicationName, tr("Vor dem Beenden Ventaro Projekt speichern?"),
             QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save});
    return answer == QMessageBox::NoButton ? QMessageBox::Cancel : answer;
}

bool Questions::toClearData(const QString &details)
{
    const QString text = tr("Achtung: Alle Messdaten werden gelöscht!");
    return ask({theme::applicationName, details.isEmpty() ? text : text + QLatin1String("\n\n") + details,
                QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel, true})
           == QMessageBox::Ok;
}

bool Questions::yesNo(const QString &title, const QString &text)
{
    return ask({title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No}) == QMessageBox::Yes;
}

bool Questions::yesNoDestructive(const QString &title, const QString &text)
{
    return ask({title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No, true}) == QMessageBox::Yes;
}

bool Questions::compare(const Comparison &comparison)
{
    return oneAtATime(QMessageBox::NoButton, [&] { return m_prompts->compare(comparison); }) == QMessageBox::Yes;
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

QString Questions::startPath(const FileStart &start) const
{
    QString folder = m_folders.value(start.topic);
    if (folder.isEmpty() || !QFileInfo(folder).isDir()) // such as that of a stick that was pulled out
        folder = m_lastFolder;
    return start.proposal.isEmpty() ? folder : QDir(folder).filePath(start.proposal);
}

void Questions::rememberFolderOf(const QString &file, const QString &topic)
{
    if (file.isEmpty())
        return;
    m_lastFolder = QFileInfo(file).absolutePath();
    if (!topic.isEmpty())
        m_folders.insert(topic, m_lastFolder);
}

QString Questions::openFile(const QString &title, const QString &filter, const FileStart &start)
{
    const QString file =
        oneAtATime(QString(), [&] { return m_prompts->openFileName(title, startPath(start), filter); });
    rememberFolderOf(file, start.topic);
    return file;
}

QString Questions::saveFile(const QString &title, const QString &filter, const FileStart &start)
{
    const QString file =
        oneAtATime(QString(), [&] { return m_prompts->saveFileName(title, startPath(start), filter); });
    rememberFolderOf(file, start.topic);
    return file;
}

QString Questions::saveFileWithSuffix(const QString &title, const QString &filter, const QString &suffix,
                                      Qt::CaseSensitivity sensitivity, const QString &overwriteTitle,
                                      const FileStart &start)
{
    const QString chosen = saveFile(title, filter, start);
    if (chosen.isEmpty())
        return chosen;
    const QString file = chosen.endsWith(suffix, sensitivity) ? chosen : chosen + suffix;
    if (file == chosen || !QFileInfo::exists(file)) // the dialog has asked about the name chosen in it
        return file;
    const QString text = tr("Die Datei \"%1\" ist schon vorhanden. Überschreiben?").arg(QDir::toNativeSeparators(file));
    return yesNoDestructive(overwriteTitle.isEmpty() ? title : overwriteTitle, text) ? file : QString();
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

void Questions::setAddressValidator(std::function<bool(const QString &)> isValid)
{
    m_prompts->setAddressValidator(std::move(isValid));
}
