#include "controller/project/filequestions.h"

#include "controller/occupancy.h"
#include "controller/project/projectlock.h"
#include "view/common/choice.h"
#include "view/common/faulttext.h"
#include "view/window/prompts/questions.h"
#include "view/window/view.h"

#include <QDir>
#include <QFileInfo>

FileQuestions::FileQuestions(const Desk &desk)
    : m_view(desk.view)
    , m_occupancy(desk.occupancy)
{}

QString FileQuestions::whoHas(const QString &file, const LockOwner &owner)
{
    const QString name = QFileInfo(file).fileName();
    if (owner.isHere())
        return tr("Das Projekt \"%1\" ist auf diesem Rechner schon geöffnet (%2, Prozess %3).")
            .arg(name, owner.program, QString::number(owner.process));
    return tr("Das Projekt \"%1\" ist auf dem Rechner %2 schon geöffnet (%3, Prozess %4).\n\nLäuft das Programm dort "
              "nicht mehr, kann die Datei %5 gelöscht werden.")
        .arg(name, owner.host, owner.program, QString::number(owner.process), QDir::toNativeSeparators(owner.lockFile));
}

FileQuestions::Opening FileQuestions::howToOpen(const QString &file, const LockOwner &owner) const
{
    Choice choice;
    choice.title = tr("Projekt öffnen");
    choice.text = whoHas(file, owner);
    choice.hint = tr("Beides lässt die Datei, wie sie ist: Gespeichert wird unter einem anderen Namen.");
    choice.answers = QStringList{tr("Nur lesen"), tr("Als Kopie öffnen"), tr("Abbrechen")};
    switch (m_occupancy.ask([&] { return m_view.questions().choose(choice); })) {
    case 0:
        return Opening::ReadOnly;
    case 1:
        return Opening::Copy;
    default:
        return Opening::Not;
    }
}

FileQuestions::Saving FileQuestions::whereInstead(const QString &file, const LockOwner &owner) const
{
    Choice choice;
    choice.title = tr("Projekt speichern");
    choice.text = whoHas(file, owner);
    choice.hint = tr("Speichern würde verwerfen, was dort geändert wird.");
    choice.answers = QStringList{tr("Anderen Ort wählen..."), tr("Abbrechen")};
    return m_occupancy.ask([&] { return m_view.questions().choose(choice); }) == 0 ? Saving::Elsewhere : Saving::Not;
}

FileQuestions::Saving FileQuestions::whetherToReplace(const QString &file, bool isGone) const
{
    const QString name = QDir::toNativeSeparators(file);
    Choice choice;
    choice.title = tr("Projekt speichern");
    choice.text =
        isGone ? tr("Die Datei \"%1\" ist nicht mehr da: Sie wurde verschoben, umbenannt oder gelöscht.").arg(name)
               : tr("Die Datei \"%1\" wurde geändert, seit sie hier geöffnet oder gespeichert wurde.").arg(name);
    choice.hint = isGone ? tr("Der Stand in diesem Programm ist vollständig.")
                         : tr("Überschreiben verwirft, was das andere Programm gespeichert hat.");
    choice.answers =
        QStringList{isGone ? tr("Neu anlegen") : tr("Überschreiben"), tr("Speichern unter..."), tr("Abbrechen")};
    choice.safest = 1;
    choice.isDestructive = !isGone;
    switch (m_occupancy.ask([&] { return m_view.questions().choose(choice); })) {
    case 0:
        return Saving::Here;
    case 1:
        return Saving::Elsewhere;
    default:
        return Saving::Not;
    }
}

FileQuestions::Saving FileQuestions::afterFailure(const FileFault &fault) const
{
    Choice choice;
    choice.title = tr("Problem");
    choice.text = FaultText::appendedTo(tr("Das Projekt konnte nicht gespeichert werden!"), fault);
    choice.hint = tr("Das Projekt bleibt geöffnet und geändert.");
    choice.answers = QStringList{tr("Anderen Ort wählen..."), tr("Noch einmal versuchen"), tr("Abbrechen")};
    choice.isDestructive = true; // for the icon: what is not saved can be lost
    switch (m_occupancy.ask([&] { return m_view.questions().choose(choice); })) {
    case 0:
        return Saving::Elsewhere;
    case 1:
        return Saving::Here;
    default:
        return Saving::Not;
    }
}

void FileQuestions::tellNotOpened(const QString &file, const FileFault &fault) const
{
    warn(FaultText::appendedTo(tr("Cannot open file %1 !.").arg(file), fault));
}

void FileQuestions::warn(const QString &text) const
{
    m_occupancy.ask([&] { m_view.showWarning(text, tr("Problem")); });
}
