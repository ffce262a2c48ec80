#pragma once

#include "tools/scp-bridge/partfile.h"
#include "tools/scp-bridge/sftppacket.h"

#include <QByteArrayList>
#include <QHash>

#include <deque>
#include <functional>
#include <memory>

/// Fetches the files of one folder of an SFTP server, without folders below it and links: those that are not here with
/// the same size and time. Many files are under way at once, as one after another would take several round trips each.
/// Works on bytes; who carries them is the caller's business.
class FolderDownload
{
public:
    struct Channel
    {
        std::function<void(const QByteArray &)> send; ///< to the server
        std::function<void(const QByteArray &)> say;  ///< a line about the progress
    };

    /// The local folder must exist.
    FolderDownload(const QByteArray &remoteFolder, const QByteArray &localFolder, Channel channel);

    void begin();
    void take(const QByteArray &arrived);
    /// Everything has been fetched that can be, or nothing more can be expected of this server.
    [[nodiscard]] bool isOver() const { return m_isOver; }
    /// What went wrong, a line each; empty after a complete transfer. Only the first of very many.
    [[nodiscard]] QByteArrayList errors() const { return m_errors; }

private:
    struct Job
    {
        explicit Job(std::unique_ptr<PartFile> part)
            : file(std::move(part))
        {}
        std::unique_ptr<PartFile> file;
        QByteArray handle;
        quint64 asked = 0;  ///< bytes from the beginning on
        quint32 series = 0; ///< counts how often the rest was asked for again
        bool isAbandoned = false;
    };
    using JobPointer = std::shared_ptr<Job>;
    struct Request
    {
        sftp::Type type = sftp::Type::Init;
        JobPointer job;
        quint64 offset = 0;
        quint32 length = 0;
        quint32 series = 0;
    };

    void handle(const QByteArray &packet);
    void handleAnswer(const Request &request, sftp::PacketReader &answer);
    void openFolder(sftp::PacketReader &answer);
    void listFolder(sftp::PacketReader &answer);
    void takeEntries(sftp::PacketReader &answer);
    void takeListed();
    void removeStaleParts() const;
    void openFile(const JobPointer &job, sftp::PacketReader &answer);
    void takeData(const Request &request, sftp::PacketReader &answer);
    void askAgain(const Request &request);
    void readOn();
    void startFiles();
    void startFile(const JobPointer &job);
    void readFile(const JobPointer &job);
    void finishFile(const JobPointer &job);
    void abandon(const JobPointer &job, const QByteArray &why);
    void fail(const QByteArray &why);
    void note(const QByteArray &error);
    void closeHandle(const QByteArray &handle);
    [[nodiscard]] quint32 newRequest(const Request &request);

    QByteArray m_remoteFolder;
    QByteArray m_localFolder;
    Channel m_channel;
    QByteArray m_arrived;
    QByteArray m_folderHandle;
    QHash<quint32, Request> m_requests; ///< that wait for their answers
    std::deque<sftp::Entry> m_listed;
    std::deque<JobPointer> m_waiting;
    std::deque<JobPointer> m_active;
    QByteArrayList m_errors;
    quint32 m_lastId = 0;
    int m_readsUnderWay = 0;
    bool m_isListed = false;
    bool m_isOver = false;
};
