#include "controller/journal/recovery.h"

#include "controller/deferredquestions.h"
#include "controller/journal/journal.h"
#include "controller/logging.h"
#include "controller/occupancy.h"
#include "controller/project/fileprogress.h"
#include "controller/project/projectsaving.h"
#include "controller/recording/linehold.h"
#include "controller/waitcursor.h"
#include "model/journal/journalblock.h"
#include "model/journal/journalreader.h"
#include "model/model.h"
#include "view/common/choice.h"
#include "view/window/prompts/questions.h"
#include "view/window/view.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <utility>

namespace {

constexpr int kRecordingRetry = 1000; // ms

enum Answer { Restore, Later, Discard };

QString shownName(const JournalContents &contents)
{
    const QString name = contents.projectName().simplified();
    if (!name.isEmpty())
        return name;
    const QString file = QFileInfo(contents.base.file).completeBaseName();
    return file.isEmpty() ? Recovery::tr("(ohne Namen)") : file;
}

QString shownTime(const QDateTime &time)
{
    return QLocale().toString(time.date(), QLocale::ShortFormat) + QLatin1Char(' ')
           + time.time().toString(QStringLiteral("HH:mm:ss"));
}

QString description(const JournalContents &contents)
{
    QStringList lines{Recovery::tr("Projekt: %1").arg(shownName(contents))};
    if (!contents.base.file.isEmpty())
        lines << Recovery::tr("Datei: %1").arg(QDir::toNativeSeparators(contents.base.file));
    lines << Recovery::tr("Stand: %1").arg(shownTime(contents.lastWritten))
          << Recovery::tr("Messungen: %1").arg(QLocale().toString(contents.shotCount()))
          << Recovery::tr("Messwerte: %1").arg(QLocale().toString(contents.sampleCount()));
    const QDateTime changed = QFileInfo(contents.base.file).lastModified();
    if (!contents.base.file.isEmpty() && changed > contents.lastWritten)
        lines << Recovery::tr("Die Projektdatei wurde danach noch geändert: %1").arg(shownTime(changed));
    return lines.join(QLatin1Char('\n'));
}

QString title()
{
    return Recovery::tr("Wiederherstellung");
}

Choice offerOf(const JournalContents &contents)
{
    Choice choice;
    choice.title = title();
    choice.text = Recovery::tr("Das Programm wurde beendet, bevor dieses Projekt gespeichert war:")
                  + QLatin1String("\n\n") + description(contents);
    choice.hint = Recovery::tr("„Später“ lässt alles, wie es ist; beim nächsten Start wird wieder gefragt.");
    choice.answers = QStringList{Recovery::tr("Wiederherstellen"), Recovery::tr("Später"), Recovery::tr("Verwerfen")};
    choice.safest = Restore;
    return choice;
}

} // namespace

Recovery::Recovery(const Desk &desk, const Needs &needs, Journal &journal, std::function<bool()> isRecording,
                   const QString &folder)
    : m_desk(desk)
    , m_needs(needs)
    , m_journal(journal)
    , m_isRecording(std::move(isRecording))
    , m_folder(folder)
{}

void Recovery::begin()
{
    for (LeftJournal &journal : m_folder.left())
        m_left.push_back(std::move(journal));
    askLater();
}

void Recovery::askLater(int wait)
{
    if (!m_left.empty())
        m_needs.questions.put(
            Question::Recovery, [this] { askNext(); }, wait);
}

void Recovery::askNext()
{
    if (m_isRecording()) {
        askLater(kRecordingRetry);
        return;
    }
    const LeftJournal journal = std::move(m_left.front());
    m_left.pop_front();
    qCDebug(lcController).noquote() << Q_FUNC_INFO << journal.file;
    std::optional<JournalContents> contents = read(journal);
    if (contents)
        offer(journal, *contents);
    else
        setAside(journal);
    askLater();
}

std::optional<JournalContents> Recovery::read(const LeftJournal &journal)
{
    const WaitCursor cursor;
    QFile file(journal.file);
    return file.open(QIODevice::ReadOnly) ? readJournal(file) : std::nullopt;
}

void Recovery::setAside(const LeftJournal &journal)
{
    // The program ended before it could write anything: there is nothing to lose.
    if (QFileInfo(journal.file).size() <= journalblock::mark().size()) {
        discard(journal);
        return;
    }
    const QString file = JournalFolder::setAside(journal);
    warn(tr("Ungespeicherte Änderungen aus einem früheren Lauf sind nicht lesbar. Sie bleiben aufgehoben:\n%1")
             .arg(QDir::toNativeSeparators(file.isEmpty() ? journal.file : file)));
}

// --- The question ---

int Recovery::choose(const Choice &choice)
{
    return m_desk.occupancy.ask([&] { return m_desk.view.questions().choose(choice); });
}

void Recovery::offer(const LeftJournal &journal, JournalContents &contents)
{
    int answer = choose(offerOf(contents));
    while (answer == Discard && !confirmDiscarding(contents))
        answer = choose(offerOf(contents));
    if (answer == Discard)
        discard(journal);
    else if (answer == Restore && mayReplaceProject())
        restore(journal, contents);
    else
        m_desk.view.showStatus(tr("Die ungespeicherten Änderungen bleiben aufgehoben."));
}

bool Recovery::confirmDiscarding(const JournalContents &contents)
{
    Choice choice;
    choice.title = title();
    choice.text = tr("Achtung: Diese ungespeicherten Änderungen gehen endgültig verloren!") + QLatin1String("\n\n")
                  + description(contents);
    choice.answers = QStringList{tr("Behalten"), tr("Endgültig verwerfen")};
    choice.isDestructive = true;
    return choose(choice) == 1;
}

void Recovery::discard(const LeftJournal &journal)
{
    if (!QFile::remove(journal.file))
        m_desk.view.showStatus(tr("%1 kann nicht gelöscht werden.").arg(QDir::toNativeSeparators(journal.file)));
}

/// What is open may have changed since the start, or was restored a moment ago.
bool Recovery::mayReplaceProject()
{
    m_desk.view.commitInput();
    if (mustWaitForRecording())
        return false;
    if (!m_desk.model.isProjectModified())
        return true;
    Choice choice;
    choice.title = title();
    choice.text = tr("Das geöffnete Projekt ist noch nicht gespeichert.");
    choice.hint = tr("Es wird durch das wiederhergestellte Projekt ersetzt.");
    choice.answers = QStringList{tr("Speichern und wiederherstellen"), tr("Später")};
    choice.safest = 1;
    return choose(choice) == 0 && m_needs.saving.saveUnsavedChanges([] {}) && !m_desk.model.isProjectModified()
           && !mustWaitForRecording();
}

/// The box may have begun one while the question was open; its shot must not land in the restored project.
bool Recovery::mustWaitForRecording()
{
    if (!m_isRecording())
        return false;
    warn(
        tr("Inzwischen läuft eine Aufzeichnung. Die ungespeicherten Änderungen bleiben aufgehoben; beim nächsten Start "
           "wird wieder gefragt."));
    return true;
}

// --- Restoring ---

void Recovery::restore(const LeftJournal &journal, JournalContents &contents)
{
    std::optional<RecoveryLosses> losses;
    {
        const ProgressScope progress(m_needs.progress, tr("Loading..."));
        const LineHold hold(m_needs.lines);
        losses = m_desk.model.restore(contents);
    }
    if (!losses) {
        warn(tr("Das Projekt kann nicht wiederhergestellt werden: Der Speicher reicht nicht. Die Daten bleiben "
                "aufgehoben; nach einem Neustart kann es noch einmal versucht werden."));
        return;
    }
    // Only now is it in two places.
    if (m_journal.secure())
        discard(journal);
    emit restored();
    show(*losses);
}

void Recovery::show(const RecoveryLosses &losses)
{
    if (!m_desk.model.isConnected())
        m_desk.view.forgetLiveValues();
    m_desk.view.setConnected(m_desk.model.isConnected());
    if (!m_desk.model.currentFile().isEmpty())
        m_desk.view.rememberProject(m_desk.model.currentFile());
    m_desk.view.showStatus(tr("Projekt wiederhergestellt; es ist noch nicht gespeichert."));
    QStringList lines;
    if (losses.shots > 0)
        lines << tr("Fehlende Messungen: %1").arg(losses.shots);
    if (losses.cutShots > 0)
        lines << tr("Messungen ohne ihren Anfang: %1").arg(losses.cutShots);
    if (losses.pictures > 0)
        lines << tr("Fehlende Bilder: %1").arg(losses.pictures);
    if (lines.isEmpty())
        return;
    lines.prepend(tr("Die Projektdatei fehlt oder wurde inzwischen geändert. Nicht alles konnte wiederhergestellt "
                     "werden:"));
    warn(lines.join(QLatin1Char('\n')));
}

void Recovery::warn(const QString &text)
{
    m_desk.occupancy.ask([&] { m_desk.view.showWarning(text, title()); });
}
