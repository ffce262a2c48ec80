#include "model/modelfiles.h"

#include "model/logging.h"
#include "model/modelchanges.h"
#include "model/project/atomicfile.h"
#include "model/project/csvexport.h"
#include "model/project/filework.h"
#include "model/project/metafile.h"
#include "model/project/metatransfer.h"
#include "model/project/pacer.h"
#include "model/project/project.h"
#include "model/project/projectdocument.h"
#include "model/project/projecteditor.h"
#include "model/project/projectreader.h"
#include "model/project/projecttransfer.h"
#include "model/project/projectwriter.h"

#include <QDateTime>
#include <QDebug>
#include <QFile>
#include <QFileInfo>

#include <utility>

struct ModelFiles::Opened
{
    ProjectDocument document;
    ImageStore images;
};

/// A project that was read and not opened yet, and what tells whether its file is still the same.
struct ModelFiles::ReadAhead
{
    QString fileName;
    QDateTime modified;
    qint64 size = 0;
    std::unique_ptr<Opened> opened;
};

ModelFiles::ModelFiles(ProjectEditor &editor, Project &project, ModelChanges &changes, FileWork &work)
    : m_editor(editor)
    , m_project(project)
    , m_changes(changes)
    , m_work(work)
{}

ModelFiles::~ModelFiles() = default;

void ModelFiles::setCurrentFile(const QString &absolutePath)
{
    m_openLosses = {}; // a saved file holds what the project does
    if (std::exchange(m_currentFile, absolutePath) != absolutePath)
        m_changes.fileState();
}

void ModelFiles::setModified(bool modified)
{
    if (std::exchange(m_modified, modified) != modified)
        m_changes.fileState();
}

bool ModelFiles::readAhead(const QString &fileName, const char *function)
{
    forgetReadAhead();
    if (m_work.refuses(function))
        return false;
    const QFileInfo before(fileName); // looked up now: what is written while it is read makes it out of date
    const QDateTime modified = before.lastModified();
    const qint64 size = before.size();
    std::unique_ptr<Opened> opened = readFile(fileName, function);
    if (opened)
        m_readAhead = std::make_unique<ReadAhead>(ReadAhead{fileName, modified, size, std::move(opened)});
    return m_readAhead != nullptr;
}

void ModelFiles::forgetReadAhead()
{
    m_readAhead.reset();
}

bool ModelFiles::open(const QString &fileName, const char *function)
{
    if (m_work.refuses(function))
        return false;
    std::unique_ptr<Opened> opened = takeReadAhead(fileName);
    if (!opened)
        opened = readFile(fileName, function);
    if (!opened)
        return false;
    apply(*opened, QFileInfo(fileName).absoluteFilePath(), function);
    m_changes.opened(function);
    // Receivers may have set it: to them, opening looks like a change.
    m_editor.setProjectModifiedFlag(false);
    qCDebug(lcModel) << function << " END";
    return true;
}

/// nullptr if there is nothing, or another file, or one that was changed or replaced since.
std::unique_ptr<ModelFiles::Opened> ModelFiles::takeReadAhead(const QString &fileName)
{
    const std::unique_ptr<ReadAhead> ahead = std::move(m_readAhead);
    const QFileInfo now(fileName);
    if (!ahead || ahead->fileName != fileName || ahead->modified != now.lastModified() || ahead->size != now.size())
        return nullptr;
    return std::move(ahead->opened);
}

std::unique_ptr<ModelFiles::Opened> ModelFiles::readFile(const QString &fileName, const char *function)
{
    QFile file(fileName);
    // Only regular files: opening a FIFO would block.
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly)) {
        qCDebug(lcModel).noquote().nospace() << function << " could not open file:" << fileName;
        return nullptr;
    }
    std::optional<Opened> opened = read(file);
    if (!opened) {
        qCDebug(lcModel).noquote().nospace() << function << " jdoc is no object!";
        return nullptr;
    }
    return std::make_unique<Opened>(*std::move(opened));
}

// All that can fail, takes long or lets events in happens here, before the model is touched.
std::optional<ModelFiles::Opened> ModelFiles::read(QFile &file)
{
    const auto task = [&]() -> std::optional<Opened> {
        Pacer pacer(m_work.yield(), file.size());
        std::optional<ProjectDocument> document = projectfile::read(file, pacer);
        if (!document)
            return {};
        ImageStore images = ImageStore::decoded(std::move(document->images), [&] { pacer.moveTo(file.size()); });
        return Opened{std::move(*document), std::move(images)};
    };
    return m_work.run(task, Q_FUNC_INFO);
}

// What clear() and the setters announce is not passed on, as open() announces everything afterwards.
void ModelFiles::apply(Opened &opened, const QString &absolutePath, const char *function)
{
    const ModelChanges::Silence silence(m_changes);
    OpenLosses losses = lossesOf(opened.document, opened.images);
    m_editor.clear();
    m_project.images = std::move(opened.images);
    applyDocument(opened.document, absolutePath, m_editor, m_project, function);
    MetaReading reading = openMeta(absolutePath, m_project.shots, function);
    losses.meta = reading.state;
    losses.metaFile = reading.fileName;
    if (reading.state == MetaState::Read)
        applyMeta(std::move(reading.meta), m_project);
    m_openLosses = std::move(losses);
}

bool ModelFiles::save(const QString &fileName, const char *function)
{
    if (m_work.refuses(function))
        return false;
    // Events come in while the project is written, so what goes into the file beside it is taken now.
    const quint64 changesBefore = countChanges();
    const ProjectMeta meta = metaOf(m_project);
    const ShotChecks checks = shotChecks(m_project.shots);
    if (!writeProject(fileName))
        return false;
    forgetReadAhead(); // it may be of this file
    m_metaSaved = saveMeta(fileName, meta, checks);
    const bool isUpToDate = countChanges() == changesBefore;
    m_editor.setCurrentFile(QFileInfo(fileName).absoluteFilePath());
    m_changes.project(function);
    m_editor.setProjectModifiedFlag(!isUpToDate);
    return true;
}

bool ModelFiles::saveCsv(const QString &fileName, const char *function)
{
    return !m_work.refuses(function) && writeCsv(fileName);
}

quint64 ModelFiles::countChanges() const
{
    return m_changes.count() + m_project.shots.revision(); // neither ever goes back
}

bool ModelFiles::writeProject(const QString &fileName)
{
    const auto task = [&] {
        ProjectDocument document = documentOf(m_project);
        // Copies, which share their pixels: pictures may be changed while the file is written.
        const ImageStore::Pixmaps pixmaps = m_project.images.pixmaps();
        Pacer pacer(m_work.yield(), document.sampleCount());
        const auto write = [&](QIODevice &target) {
            document.images = m_project.images.encoded(pixmaps, [&pacer] { pacer.moveTo(0); });
            return projectfile::write(target, document, pacer);
        };
        return replaceFile(fileName, write, [&pacer] { pacer.look(); });
    };
    return m_work.run(task, Q_FUNC_INFO);
}

bool ModelFiles::writeCsv(const QString &fileName)
{
    const auto task = [&] {
        const ProjectDocument document = documentOf(m_project);
        const QString projectFile = QFileInfo(m_currentFile).fileName();
        Pacer pacer(m_work.yield(), document.sampleCount());
        const auto write = [&](QIODevice &target) { return ::writeCsv(target, projectFile, document, pacer); };
        return replaceFile(fileName, write, [&pacer] { pacer.look(); });
    };
    return m_work.run(task, Q_FUNC_INFO);
}
