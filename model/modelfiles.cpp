#include "model/modelfiles.h"

#include "model/arrayindex.h"
#include "model/logging.h"
#include "model/modelchanges.h"
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
#include "model/project/readingfault.h"
#include "model/storage/atomicfile.h"
#include "model/storage/hashedsource.h"
#include "model/storage/rewrittenfile.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

// In place of a picture's key where the file has another one, or may have.
constexpr qint64 kOtherPicture = -1;

} // namespace

struct ModelFiles::Opened
{
    FileStamp stamp;
    ProjectDocument document;
    ImageStore images;
};

/// A project that was read and not opened yet.
struct ModelFiles::ReadAhead
{
    QString fileName;
    std::unique_ptr<Opened> opened;
};

namespace {

/// What was put together from another file than the project's is in no file that a later journal could begin with.
void forgetSaved(RecoveredProject &project)
{
    project.saved = {};
    project.origins = {};
}

FileFault outOfMemory(const QString &fileName)
{
    FileFault fault;
    fault.kind = FileFault::Kind::OutOfMemory;
    fault.path = fileName;
    return fault;
}

/// The file beside the project is for the same eyes.
ReplaceOptions metaOptions(const QString &projectFile, const SaveOptions &options)
{
    ReplaceOptions meta;
    meta.keepsOld = options.keepsBackup;
    meta.accessOf = realFile(projectFile);
    meta.rescueFolder = options.folderForRescue();
    return meta;
}

} // namespace

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
    if (std::exchange(m_currentFile, absolutePath) == absolutePath)
        return;
    if (absolutePath.isEmpty())
        noteSaved({});
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
    std::unique_ptr<Opened> opened = readFile(fileName, function);
    if (opened)
        m_readAhead = std::make_unique<ReadAhead>(ReadAhead{fileName, std::move(opened)});
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
    if (!ahead || ahead->fileName != fileName || !stampOf(fileName).looksLike(ahead->opened->stamp))
        return nullptr;
    return std::move(ahead->opened);
}

std::unique_ptr<ModelFiles::Opened> ModelFiles::readFile(const QString &fileName, const char *function)
{
    m_fault = {};
    QFile file(fileName);
    // Only regular files: opening a FIFO would block.
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly)) {
        m_fault = openingFault(fileName);
        qCDebug(lcModel).noquote().nospace() << function << " could not open file:" << fileName;
        return nullptr;
    }
    std::optional<Opened> opened = read(file);
    if (!opened) {
        m_fault = readingFault(file, m_work.lacksMemory());
        const QString copy = RewrittenFile::copyNameIn(m_saveOptions.folderForRescue(), realFile(fileName));
        if (QFileInfo::exists(copy)) // the program may have ended while it wrote into the file
            m_fault.keptCopy = copy;
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
        FileStamp stamp = stampOf(file.fileName()); // now: what is written while it is read makes it out of date
        HashedSource source(file);
        std::optional<ProjectDocument> document = projectfile::read(source, pacer);
        if (!document)
            return {};
        stamp.hash = source.hash();
        ImageStore images = ImageStore::decoded(std::move(document->images), [&] { pacer.moveTo(file.size()); });
        return Opened{stamp, std::move(*document), std::move(images)};
    };
    return m_work.run(task, Q_FUNC_INFO);
}

// What clear() and the setters announce is not passed on, as open() announces everything afterwards.
void ModelFiles::apply(Opened &opened, const QString &absolutePath, const char *function)
{
    const ModelChanges::Silence silence(m_changes);
    OpenLosses losses = lossesOf(opened.document, opened.images);
    m_editor.clear();
    m_diskCopy.note(absolutePath, opened.stamp);
    m_project.images = std::move(opened.images);
    applyDocument(opened.document, absolutePath, m_editor, m_project, function);
    MetaReading reading = openMeta(absolutePath, m_project.shots, function);
    losses.meta = reading.state;
    losses.metaFile = reading.fileName;
    if (reading.state == MetaState::Read)
        applyMeta(std::move(reading.meta), m_project);
    m_openLosses = std::move(losses);
    noteSaved(savedShots(m_project));
}

bool ModelFiles::save(const QString &fileName, const char *function)
{
    if (m_work.refuses(function))
        return false;
    // Events come in while the project is written, so what goes into the file beside it is taken now.
    const quint64 changesBefore = countChanges();
    const ProjectMeta meta = metaOf(m_project);
    SavedShots saved = savedShots(m_project);
    if (!writeProject(fileName))
        return false;
    forgetReadAhead(); // it may be of this file
    m_metaFault = saveMeta(fileName, meta, saved.checks, metaOptions(fileName, m_saveOptions));
    noteSaved(std::move(saved));
    const bool isUpToDate = countChanges() == changesBefore;
    m_editor.setCurrentFile(QFileInfo(fileName).absoluteFilePath());
    m_changes.project(function);
    m_editor.setProjectModifiedFlag(!isUpToDate || m_metaFault);
    return true;
}

void ModelFiles::noteSaved(SavedShots saved)
{
    m_saved = std::move(saved);
    ++m_generation;
}

// --- Restoring ---

struct ModelFiles::Restored
{
    RecoveredProject project;
    ImageStore images;
    FileStamp stamp;        ///< of the file that the journal began with
    OpenLosses losses;      ///< of that file
    bool isFromFile = true; ///< not from a copy of it
};

namespace {

/// A file that is still the one that the journal began with.
bool isBase(const FileStamp &stamp, const JournalBase &base)
{
    return stamp.size == base.fileSize && stamp.modified / 1000000 == base.fileTime;
}

} // namespace

std::optional<RecoveryLosses> ModelFiles::restore(JournalContents &contents, const char *function)
{
    if (m_work.refuses(function))
        return {};
    qCDebug(lcModel).noquote().nospace() << function << " file=" << contents.base.file;
    std::optional<Restored> restored = readRestored(contents);
    if (!restored)
        return {};
    apply(*restored, contents, function);
    m_changes.opened(function);
    m_editor.setProjectModifiedFlag(true);
    return restored->project.losses;
}

/// Where the shots of the journal's file may be, the best first: in the file or, if the program ended while it was
/// being replaced, in the one that it was before.
QStringList ModelFiles::baseFiles(const JournalBase &base) const
{
    if (base.file.isEmpty())
        return {};
    const QString real = realFile(base.file);
    QStringList files{base.file, backupName(real), RewrittenFile::copyNameIn(m_saveOptions.folderForRescue(), real)};
    std::stable_partition(files.begin(), files.end(),
                          [&base](const QString &file) { return isBase(stampOf(file), base); });
    return files;
}

std::optional<ModelFiles::Restored> ModelFiles::readRestored(JournalContents &contents)
{
    const auto task = [&]() -> std::optional<Restored> {
        const QStringList files = baseFiles(contents.base);
        Pacer pacer(m_work.yield(), 2 * QFileInfo(contents.base.file).size());
        const FileStamp stamp = stampOf(contents.base.file); // now: as when a project is opened
        std::optional<ProjectDocument> base;
        QString baseFile;
        for (auto name = files.cbegin(); name != files.cend() && !base; ++name) {
            QFile file(*name);
            if (QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly))
                base = projectfile::read(file, pacer);
            baseFile = *name;
        }
        const bool isFromFile = !base || baseFile == contents.base.file;
        OpenLosses losses = base ? lossesOf(*base, {}) : OpenLosses();
        RecoveredProject project = recoverProject(contents, std::move(base));
        if (!isFromFile)
            forgetSaved(project);
        ImageStore images = ImageStore::decoded(std::move(project.document.images), [&pacer] { pacer.look(); });
        for (int image = 0; image < kNumProjectImages; ++image)
            losses.pictures[at(image)] = images.state(image);
        return Restored{std::move(project), std::move(images), stamp, std::move(losses), isFromFile};
    };
    return m_work.run(task, Q_FUNC_INFO);
}

void ModelFiles::apply(Restored &restored, const JournalContents &contents, const char *function)
{
    const ModelChanges::Silence silence(m_changes);
    m_editor.clear();
    // Only a file that is still the one that the journal began with is replaced without a question, even if another one
    // was opened just before.
    m_diskCopy.note(contents.base.file, isBase(restored.stamp, contents.base) ? restored.stamp : FileStamp());
    m_project.images = std::move(restored.images);
    applyDocument(restored.project.document, contents.base.file, m_editor, m_project, function);
    applyMeta(std::move(restored.project.meta), m_project);
    for (std::size_t sensor = 0; sensor < contents.colors.size(); ++sensor)
        m_project.colors[sensor] = QColor::fromRgba(contents.colors[sensor]);
    SavedShots saved = std::move(restored.project.saved);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const auto &origins = restored.project.origins[at(sensor)];
        for (std::size_t shot = 0; shot < origins.size(); ++shot) {
            if (origins[shot].index >= 0)
                saved.runs[at(sensor)][at(origins[shot].index)] = {m_project.shots.id(sensor, static_cast<int>(shot)),
                                                                   origins[shot].count};
        }
    }
    for (std::size_t image = 0; image < saved.pictures.size(); ++image) {
        const bool isInFile = restored.isFromFile && contents.pictures[image].kind == JournalPicture::Kind::InBase;
        saved.pictures[image] = isInFile ? m_project.images.pixmaps()[image].cacheKey() : kOtherPicture;
    }
    noteSaved(std::move(saved));
    m_openLosses = std::move(restored.losses);
}

bool ModelFiles::saveCsv(const QString &fileName, const char *function)
{
    return !m_work.refuses(function) && writeCsv(fileName);
}

quint64 ModelFiles::countChanges() const
{
    return m_changes.count() + m_project.shots.revision(); // neither ever goes back
}

DiskCopy::State ModelFiles::fileOnDisk(const char *function)
{
    if (m_currentFile.isEmpty() || m_work.refuses(function))
        return DiskCopy::State::Same;
    const auto task = [this]() -> std::optional<DiskCopy::State> {
        Pacer pacer(m_work.yield(), 0);
        return m_diskCopy.state(m_currentFile, [&pacer] { pacer.look(); });
    };
    return m_work.run(task, function).value_or(DiskCopy::State::Changed);
}

template <typename Task>
bool ModelFiles::replace(const QString &fileName, const Task &task, const char *function)
{
    m_lacksOld = false;
    const std::optional<Replacement> done = m_work.run(task, function);
    m_fault = done ? done->fault : outOfMemory(fileName);
    if (m_fault)
        return false;
    m_lacksOld = done->lacksOld;
    return true;
}

/// Another program may write the file while this one does.
ReplaceOptions ModelFiles::projectOptions(const QString &fileName) const
{
    ReplaceOptions options;
    options.keepsOld = m_saveOptions.keepsBackup;
    options.rescueFolder = m_saveOptions.folderForRescue();
    options.isText = true;
    options.mayReplace = [fileName, before = stampOf(fileName)] { return stampOf(fileName).looksLike(before); };
    return options;
}

bool ModelFiles::writeProject(const QString &fileName)
{
    FileStamp stamp;
    const auto task = [&]() -> std::optional<Replacement> {
        ProjectDocument document = documentOf(m_project);
        // Copies, which share their pixels: pictures may be changed while the file is written.
        const ImageStore::Pixmaps pixmaps = m_project.images.pixmaps();
        Pacer pacer(m_work.yield(), document.sampleCount());
        const auto write = [&](QIODevice &target) {
            document.images = m_project.images.encoded(pixmaps, [&pacer] { pacer.moveTo(0); });
            return projectfile::write(target, document, pacer);
        };
        const auto done = replaceFile(
            fileName, write, [&pacer] { pacer.look(); }, projectOptions(fileName));
        stamp = done.stamp;
        return done;
    };
    if (!replace(fileName, task, Q_FUNC_INFO))
        return false;
    m_diskCopy.note(QFileInfo(fileName).absoluteFilePath(), stamp);
    return true;
}

bool ModelFiles::writeCsv(const QString &fileName)
{
    const auto task = [&]() -> std::optional<Replacement> {
        const ProjectDocument document = documentOf(m_project);
        const QString projectFile = QFileInfo(m_currentFile).fileName();
        Pacer pacer(m_work.yield(), document.sampleCount());
        const auto write = [&](QIODevice &target) { return ::writeCsv(target, projectFile, document, pacer); };
        return replaceFile(fileName, write, [&pacer] { pacer.look(); });
    };
    return replace(fileName, task, Q_FUNC_INFO);
}
