#include "tools/scp-bridge/folderdownload.h"

#include "device/protocol/scpoutput.h"

#include <QSet>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <unistd.h>
#include <utility>

using sftp::PacketReader;
using sftp::PacketWriter;
using sftp::Status;
using sftp::Type;

namespace {

constexpr std::size_t kMostFiles = 32;     // open at once
constexpr int kMostReads = 64;             // under way at once
constexpr quint32 kReadLength = 32 * 1024; // bytes; every server answers that with one packet
constexpr std::size_t kMostEntries = 1000000;
constexpr int kMostErrors = 20;
constexpr quint32 kOpenToRead = 1;
const QByteArray kPartSuffix = QByteArrayLiteral(".part");

/// Also what the server says could lead out of the folder.
bool isPlainName(const QByteArray &name)
{
    return !name.isEmpty() && name != "." && name != ".." && !name.contains('/') && !name.contains('\0');
}

QByteArray systemError()
{
    return std::strerror(errno);
}

QByteArray statusText(quint32 code)
{
    if (code == static_cast<quint32>(Status::NoSuchFile))
        return "not found";
    if (code == static_cast<quint32>(Status::PermissionDenied))
        return "permission denied";
    if (code == static_cast<quint32>(Status::Eof))
        return "the file has become shorter meanwhile";
    return "error " + QByteArray::number(code) + " of the server";
}

} // namespace

FolderDownload::FolderDownload(const QByteArray &remoteFolder, const QByteArray &localFolder, Channel channel)
    : m_remoteFolder(remoteFolder)
    , m_localFolder(localFolder)
    , m_channel(std::move(channel))
{}

void FolderDownload::begin()
{
    m_channel.send(PacketWriter(Type::Init).add(sftp::kVersion).packet());
}

void FolderDownload::take(const QByteArray &arrived)
{
    m_arrived += arrived;
    bool isBroken = false;
    while (!m_isOver) {
        const std::optional<QByteArray> packet = sftp::takePacket(m_arrived, isBroken);
        if (!packet)
            break;
        handle(*packet);
    }
    if (isBroken)
        fail("what the server sends makes no sense");
}

void FolderDownload::handle(const QByteArray &packet)
{
    PacketReader answer(packet);
    if (answer.type() == Type::Version) {
        if (m_lastId == 0)
            m_channel.send(
                PacketWriter(Type::OpenDir).add(newRequest({Type::OpenDir, {}, 0, 0, 0})).add(m_remoteFolder).packet());
        return;
    }
    const quint32 id = answer.number();
    const auto request = m_requests.constFind(id);
    if (!answer.isWhole() || request == m_requests.constEnd())
        return fail("the server answers what was not asked");
    const Request asked = *request;
    m_requests.erase(request);
    handleAnswer(asked, answer);
}

void FolderDownload::handleAnswer(const Request &request, PacketReader &answer)
{
    if (request.type == Type::OpenDir)
        openFolder(answer);
    else if (request.type == Type::ReadDir)
        listFolder(answer);
    else if (request.type == Type::Open)
        openFile(request.job, answer);
    else if (request.type == Type::Read)
        takeData(request, answer);
    readOn();
}

// --- The list ----------------------------------------------------------------------------------------------------

void FolderDownload::openFolder(PacketReader &answer)
{
    if (answer.type() != Type::Handle)
        return fail(m_remoteFolder + ": " + statusText(answer.number()));
    m_folderHandle = answer.bytes();
    m_channel.send(
        PacketWriter(Type::ReadDir).add(newRequest({Type::ReadDir, {}, 0, 0, 0})).add(m_folderHandle).packet());
}

void FolderDownload::listFolder(PacketReader &answer)
{
    if (answer.type() == Type::Name) {
        takeEntries(answer);
        if (!m_isOver)
            m_channel.send(
                PacketWriter(Type::ReadDir).add(newRequest({Type::ReadDir, {}, 0, 0, 0})).add(m_folderHandle).packet());
        return;
    }
    const quint32 code = answer.number();
    if (answer.type() != Type::Status || code != static_cast<quint32>(Status::Eof))
        return fail(m_remoteFolder + ": " + statusText(code));
    closeHandle(m_folderHandle);
    takeListed();
}

void FolderDownload::takeEntries(PacketReader &answer)
{
    const quint32 count = answer.number();
    for (quint32 i = 0; i < count && answer.isWhole(); ++i) {
        const sftp::Entry entry = sftp::readEntry(answer);
        if (answer.isWhole() && entry.isFile && isPlainName(entry.name))
            m_listed.push_back(entry);
    }
    if (!answer.isWhole() || m_listed.size() > kMostEntries)
        fail("the list of the server makes no sense");
}

void FolderDownload::takeListed()
{
    // In the order of their names, that is of their recording: the first ones are complete if the run is broken off.
    std::sort(m_listed.begin(), m_listed.end(),
              [](const sftp::Entry &a, const sftp::Entry &b) { return a.name < b.name; });
    for (const sftp::Entry &entry : m_listed) {
        auto file = std::make_unique<PartFile>(m_localFolder, entry.name, entry.size, entry.modified);
        if (!file->isComplete())
            m_waiting.push_back(std::make_shared<Job>(std::move(file)));
    }
    m_channel.say(folderSizeLine({static_cast<int>(m_listed.size()), static_cast<int>(m_waiting.size())}).toLatin1());
    m_listed.clear();
    m_isListed = true;
    removeStaleParts();
}

/// Beginnings of files that have changed since, or are gone.
void FolderDownload::removeStaleParts() const
{
    QSet<QByteArray> expected;
    for (const JobPointer &job : m_waiting)
        expected.insert(job->file->partName());
    DIR *folder = ::opendir(m_localFolder.constData());
    if (!folder)
        return; // what is to be written there will say why
    QByteArrayList stale;
    while (const dirent *entry = ::readdir(folder)) {
        const QByteArray name(entry->d_name);
        if (name.endsWith(kPartSuffix) && !expected.contains(name))
            stale.append(name);
    }
    ::closedir(folder);
    for (const QByteArray &name : qAsConst(stale))
        ::unlink((m_localFolder + '/' + name).constData());
}

// --- The files ---------------------------------------------------------------------------------------------------

void FolderDownload::readOn()
{
    if (m_isOver || !m_isListed)
        return;
    startFiles();
    for (std::size_t i = 0; i < m_active.size() && !m_isOver; ++i)
        readFile(m_active[i]);
    m_isOver = m_isOver || (m_waiting.empty() && m_active.empty());
}

void FolderDownload::startFiles()
{
    while (!m_isOver && m_active.size() < kMostFiles && !m_waiting.empty()) {
        const JobPointer job = m_waiting.front();
        m_waiting.pop_front();
        startFile(job);
    }
}

void FolderDownload::startFile(const JobPointer &job)
{
    if (!job->file->open())
        return fail(job->file->name() + ": " + systemError());
    job->asked = job->file->written();
    m_active.push_back(job);
    if (job->file->written() == job->file->size())
        return finishFile(job); // empty, or only its end was missing
    m_channel.send(PacketWriter(Type::Open)
                       .add(newRequest({Type::Open, job, 0, 0, 0}))
                       .add(m_remoteFolder + '/' + job->file->name())
                       .add(kOpenToRead)
                       .add(quint32{0}) // no attributes
                       .packet());
}

void FolderDownload::openFile(const JobPointer &job, PacketReader &answer)
{
    if (answer.type() == Type::Handle)
        job->handle = answer.bytes();
    else
        abandon(job, statusText(answer.number()));
}

void FolderDownload::readFile(const JobPointer &job)
{
    while (!job->handle.isEmpty() && m_readsUnderWay < kMostReads && job->asked < job->file->size()) {
        const auto length = static_cast<quint32>(std::min<quint64>(kReadLength, job->file->size() - job->asked));
        const quint32 id = newRequest({Type::Read, job, job->asked, length, job->series});
        m_channel.send(PacketWriter(Type::Read).add(id).add(job->handle).addLong(job->asked).add(length).packet());
        job->asked += length;
        ++m_readsUnderWay;
    }
}

void FolderDownload::takeData(const Request &request, PacketReader &answer)
{
    --m_readsUnderWay;
    const JobPointer &job = request.job;
    if (job->isAbandoned || request.offset < job->file->written())
        return; // asked for twice
    if (answer.type() != Type::Data)
        return abandon(job, statusText(answer.number()));
    const QByteArray bytes = answer.bytes();
    if (bytes.isEmpty() || static_cast<quint32>(bytes.size()) > request.length)
        return abandon(job, "the server answers what was not asked");
    if (request.offset > job->file->written())
        return askAgain(request);
    if (!job->file->append(bytes))
        return fail(job->file->name() + ": " + systemError());
    if (static_cast<quint32>(bytes.size()) < request.length)
        askAgain(request);
    if (job->file->written() == job->file->size())
        finishFile(job);
}

/// There is a gap: everything behind what has been written is asked for again, but only once for each gap.
void FolderDownload::askAgain(const Request &request)
{
    if (request.series != request.job->series)
        return;
    ++request.job->series;
    request.job->asked = request.job->file->written();
}

void FolderDownload::finishFile(const JobPointer &job)
{
    if (!job->file->finish())
        return fail(job->file->name() + ": " + systemError());
    closeHandle(job->handle);
    m_active.erase(std::remove(m_active.begin(), m_active.end(), job), m_active.end());
}

/// The other files may be fetched all the same.
void FolderDownload::abandon(const JobPointer &job, const QByteArray &why)
{
    note(job->file->name() + ": " + why);
    job->isAbandoned = true;
    closeHandle(job->handle);
    m_active.erase(std::remove(m_active.begin(), m_active.end(), job), m_active.end());
}

void FolderDownload::closeHandle(const QByteArray &handle)
{
    if (!handle.isEmpty())
        m_channel.send(PacketWriter(Type::Close).add(newRequest({Type::Close, {}, 0, 0, 0})).add(handle).packet());
}

void FolderDownload::fail(const QByteArray &why)
{
    note(why);
    m_isOver = true;
}

void FolderDownload::note(const QByteArray &error)
{
    if (m_errors.size() < kMostErrors)
        m_errors.append(error);
}

quint32 FolderDownload::newRequest(const Request &request)
{
    m_requests.insert(++m_lastId, request);
    return m_lastId;
}
