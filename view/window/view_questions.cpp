#include "app/theme.h"
#include "view/common/logging.h"
#include "view/window/viewprivate.h"

#include <QFileInfo>

template <typename Answer, typename Question>
Answer View::Private::oneAtATime(Answer refusal, Question question)
{
    if (asking) {
        qCDebug(lcView) << "refused: a question is open already";
        return refusal;
    }
    asking = true;
    const Answer answer = question();
    asking = false;
    if (!waitingMessages.isEmpty())
        QTimer::singleShot(0, q, [this] { showWaitingMessage(); });
    return answer;
}

QMessageBox::StandardButton View::Private::ask(const QString &title, const QString &text,
                                               QMessageBox::StandardButtons buttons,
                                               QMessageBox::StandardButton refusal)
{
    return oneAtATime(refusal, [&] { return prompts->ask(title, text, buttons); });
}

void View::Private::showOrQueue(const Message &message)
{
    if (asking) {
        waitingMessages.append(message);
        return;
    }
    (void)oneAtATime(true, [&] { // true or not: a message has no answer
        if (message.isWarning)
            prompts->warn(message.title, message.text);
        else
            prompts->inform(message.title, message.text);
        return true;
    });
}

void View::Private::showWaitingMessage()
{
    if (!asking && !waitingMessages.isEmpty())
        showOrQueue(waitingMessages.takeFirst());
}

void View::Private::rememberFolder(const QString &file)
{
    if (!file.isEmpty())
        lastDir = QFileInfo(file).absolutePath();
}

bool View::isAsking() const
{
    return d->asking;
}

bool View::askToSave()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    return d->ask(theme::applicationName, tr("Projekt speichern?"), QMessageBox::Save | QMessageBox::Discard,
                  QMessageBox::Save)
           == QMessageBox::Save;
}

bool View::askToQuit()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    return d->ask(theme::applicationName, tr("Ventaro beenden?"), QMessageBox::Ok | QMessageBox::Cancel,
                  QMessageBox::Cancel)
           == QMessageBox::Ok;
}

QMessageBox::StandardButton View::askToSaveAndQuit()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    return d->ask(theme::applicationName, tr("Vor dem Beenden Ventaro Projekt speichern?"),
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel);
}

bool View::askYesNo(const QString &title, const QString &text)
{
    qCDebug(lcView) << Q_FUNC_INFO << title;
    return d->ask(title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

bool View::askToClearData()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    return d->ask(theme::applicationName, tr("Achtung: Alle Messdaten werden gelöscht!"),
                  QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel)
           == QMessageBox::Ok;
}

void View::showMessage(const QString &text, const QString &title)
{
    qCDebug(lcView) << Q_FUNC_INFO << title << text;
    d->showOrQueue({title, text, false});
}

void View::showWarning(const QString &text, const QString &title)
{
    qCDebug(lcView) << Q_FUNC_INFO << title << text;
    d->showOrQueue({title, text, true});
}

QString View::askOpenFile(const QString &title, const QString &filter)
{
    qCDebug(lcView) << Q_FUNC_INFO << title;
    const QString file = d->oneAtATime(QString(), [&] { return d->prompts->openFileName(title, d->lastDir, filter); });
    d->rememberFolder(file);
    return file;
}

QString View::askSaveFile(const QString &title, const QString &filter)
{
    qCDebug(lcView) << Q_FUNC_INFO << title;
    const QString file = d->oneAtATime(QString(), [&] { return d->prompts->saveFileName(title, d->lastDir, filter); });
    d->rememberFolder(file);
    return file;
}

QString View::askFolder(const QString &title)
{
    qCDebug(lcView) << Q_FUNC_INFO << title;
    const QString folder = d->oneAtATime(QString(), [&] { return d->prompts->openFolder(title, d->lastDir); });
    if (!folder.isEmpty())
        d->lastDir = folder;
    return folder;
}

std::optional<QString> View::askAddress(const QString &current)
{
    qCDebug(lcView) << Q_FUNC_INFO << current;
    return d->oneAtATime(std::optional<QString>(), [&] { return d->prompts->askAddress(current); });
}

void View::setAddressValidator(std::function<bool(const QString &)> isValid)
{
    d->isValidAddress = isValid;
    d->prompts->setAddressValidator(std::move(isValid));
    d->readRecent(); // what the settings hold may be no address
}
