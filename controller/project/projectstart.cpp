#include "controller/project/projectstart.h"

#include "controller/deferredquestions.h"
#include "controller/project/filequestions.h"
#include "controller/project/projectlock.h"
#include "model/model.h"

ProjectStart::ProjectStart(const Desk &desk, DeferredQuestions &questions, const FileQuestions &fileQuestions,
                           const ProjectLock &lock, const QStringList &files)
    : m_model(desk.model)
    , m_questions(fileQuestions)
    , m_lock(lock)
    , m_files(files)
{
    if (!files.isEmpty() || lock.owner())
        questions.put(Question::FilesGiven, [this] { tell(); });
}

void ProjectStart::tell()
{
    if (m_files.size() > 1)
        m_questions.warn(tr("Es wurden %1 Dateien angegeben, aber nur eine kann geöffnet werden. Deshalb ist keine "
                            "geöffnet.\n\nBitte eine davon mit \"Projekt öffnen...\" wählen.")
                             .arg(m_files.size()));
    else if (m_files.size() == 1 && m_model.lastFileFault() && m_model.currentFile().isEmpty())
        m_questions.tellNotOpened(m_files.constFirst(), m_model.lastFileFault());
    else if (m_lock.owner())
        askHowToOpen();
}

void ProjectStart::askHowToOpen()
{
    switch (m_questions.howToOpen(m_model.currentFile(), *m_lock.owner())) {
    case FileQuestions::Opening::ReadOnly:
        return;
    case FileQuestions::Opening::Copy:
        emit copyWanted();
        return;
    case FileQuestions::Opening::Not:
        emit declined();
        return;
    }
}
