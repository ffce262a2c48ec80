#include "model/blackbox/blackboximport.h"

#include "model/logging.h"
#include "model/modelchanges.h"
#include "model/project/filework.h"
#include "model/project/pacer.h"
#include "model/project/project.h"
#include "model/project/projecteditor.h"

#include <QFile>
#include <QFileInfo>

BlackBoxImport::BlackBoxImport(ProjectEditor &editor, Project &project, ModelChanges &changes, FileWork &work)
    : m_editor(editor)
    , m_project(project)
    , m_changes(changes)
    , m_work(work)
{}

bool BlackBoxImport::add(const QString &fileName, const char *function)
{
    if (m_work.refuses(function))
        return false;
    m_losses = {};
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly)) {
        qCDebug(lcModel).noquote().nospace() << function << " ERROR: could not open file:" << fileName;
        return false;
    }
    std::optional<BlackBoxDocument> document = read(file, function);
    if (!document)
        return false;
    apply(*document, function);
    m_files.add(QFileInfo(fileName).absoluteFilePath());
    remember(fileName);
    // Also without a new shot, as the description of the sensors may have changed.
    m_changes.project(function);
    m_changes.data(function);
    return true;
}

void BlackBoxImport::setFiles(const QStringList &files)
{
    m_files.setFiles(files);
    m_project.meta.importedFiles.clear();
    for (const QString &file : files)
        remember(file);
}

// A file that is gone has no fingerprint. An empty one in the set would match every unreadable file.
void BlackBoxImport::remember(const QString &file)
{
    const QByteArray fingerprint = blackBoxFingerprint(file);
    if (!fingerprint.isEmpty())
        m_project.meta.importedFiles.insert(fingerprint);
}

// Nothing if the file could not be read to its end: half a shot would look like a whole one.
std::optional<BlackBoxDocument> BlackBoxImport::read(QFile &file, const char *function)
{
    const auto task = [&]() -> std::optional<BlackBoxDocument> {
        Pacer pacer(m_work.yield(), file.size());
        qint64 done = 0;
        BlackBoxDocument document = readBlackBox(file, m_project.settings.sensors, [&](qint64 bytes) {
            pacer.advance(bytes - done);
            done = bytes;
        });
        if (file.error() == QFileDevice::NoError)
            return document;
        qCDebug(lcModel).noquote().nospace() << function << " ERROR: could not read file:" << file.fileName();
        return {};
    };
    return m_work.run(task, function);
}

void BlackBoxImport::apply(BlackBoxDocument &document, const char *function)
{
    m_losses = document.losses;
    m_editor.setSensorDescription(document.sensors);
    if (!document.hasMeasurement())
        return;
    const int shot = m_project.appendShot(std::move(document.samples));
    if (!document.timestamp)
        return;
    m_editor.setTimestamp(shot, *document.timestamp);
    m_changes.project(function);
}
