#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"
#include "tools/scp-bridge/folderdownload.h"

#include <QDir>
#include <QMap>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using sftp::PacketReader;
using sftp::PacketWriter;
using sftp::Type;

namespace {

constexpr quint32 kTime = 1709633472;

/// A server that behaves as a test wants.
struct Server
{
    QMap<QByteArray, QByteArray> files;
    int longestAnswer = 1 << 20; ///< bytes of data in one packet
    bool answersBackwards = false;
    quint32 mode = 0100644;
    QByteArray refuses; ///< a file that cannot be opened
    QMap<QByteArray, QByteArray> handles;
    QByteArrayList answers;
    int reads = 0;
    bool isListed = false;

    void take(QByteArray bytes)
    {
        bool isBroken = false;
        while (const auto packet = sftp::takePacket(bytes, isBroken))
            answer(PacketReader(*packet));
    }

    void answer(PacketReader request)
    {
        if (request.type() == Type::Init) {
            answers += PacketWriter(Type::Version).add(3U).packet();
            return;
        }
        const quint32 id = request.number();
        const QByteArray name = request.bytes();
        if (request.type() == Type::OpenDir)
            answers += PacketWriter(Type::Handle).add(id).add("folder"_ba).packet();
        else if (request.type() == Type::ReadDir)
            answers += std::exchange(isListed, true) ? status(id, 1) : list(id);
        else if (request.type() == Type::Open)
            open(id, name.mid(name.lastIndexOf('/') + 1));
        else if (request.type() == Type::Read)
            read(id, name, request);
        else
            answers += status(id, 0);
    }

    static QByteArray status(quint32 id, quint32 code)
    {
        return PacketWriter(Type::Status).add(id).add(code).add(QByteArray()).add(QByteArray()).packet();
    }

    [[nodiscard]] QByteArray list(quint32 id) const
    {
        PacketWriter writer(Type::Name);
        writer.add(id).add(static_cast<quint32>(files.size()));
        for (auto file = files.begin(); file != files.end(); ++file)
            writer.add(file.key())
                .add("for people"_ba)
                .add(0xdU)
                .addLong(quint64(file->size()))
                .add(mode)
                .add(0U)
                .add(kTime);
        return writer.packet();
    }

    void open(quint32 id, const QByteArray &name)
    {
        handles.insert("h" + name, name);
        answers += name == refuses ? status(id, 3) : PacketWriter(Type::Handle).add(id).add("h" + name).packet();
    }

    void read(quint32 id, const QByteArray &handle, PacketReader &request)
    {
        ++reads;
        const quint64 offset = request.longNumber();
        const QByteArray content = files.value(handles.value(handle));
        const auto length = std::min<int>(static_cast<int>(request.number()), longestAnswer);
        const QByteArray data = content.mid(static_cast<int>(offset), length);
        answers += data.isEmpty() ? status(id, 1) : PacketWriter(Type::Data).add(id).add(data).packet();
    }

    [[nodiscard]] QByteArray takeAnswers()
    {
        QByteArrayList taken = std::exchange(answers, {});
        if (answersBackwards)
            std::reverse(taken.begin(), taken.end());
        return taken.join();
    }
};

QByteArray bytesOf(int count)
{
    QByteArray bytes(count, '\0');
    for (int i = 0; i < count; ++i)
        bytes[i] = static_cast<char>(i % 251);
    return bytes;
}

} // namespace

Q_DECLARE_METATYPE(Server)

/// The client against servers that are allowed to be odd, and against nonsense.
class TestFolderDownload : public QObject
{
    Q_OBJECT

private slots:
    void servers_data()
    {
        // arrived: the names of files that are there afterwards, with their whole content
        columns<Server, QByteArrayList, QByteArrayList>("server", "arrived", "errors");
        Server usual;
        usual.files = {{"a.bb", bytesOf(200000)}, {"b.bb", bytesOf(7)}, {"empty.bb", {}}};
        const QByteArrayList all{"a.bb", "b.bb", "empty.bb"};
        row("usual", usual, all, QByteArrayList());
        Server odd = usual;
        odd.longestAnswer = 1000;
        row("short answers", odd, all, QByteArrayList());
        odd.answersBackwards = true;
        row("short and in another order", odd, all, QByteArrayList());
        odd = usual;
        odd.answersBackwards = true;
        row("another order", odd, all, QByteArrayList());
        odd = usual;
        odd.refuses = "b.bb";
        row("one refused", odd, QByteArrayList{"a.bb", "empty.bb"}, QByteArrayList{"b.bb: permission denied"});
        odd = usual;
        odd.files.insert("../out", "x");
        odd.files.insert("..", "x");
        odd.files.insert("a/b", "x");
        odd.files.insert(QByteArray("n\0l", 3), "x");
        row("names that lead elsewhere", odd, all, QByteArrayList());
        odd = usual;
        odd.mode = 0120777;
        row("links", odd, QByteArrayList(), QByteArrayList());
    }

    void servers()
    {
        QFETCH(Server, server);
        QFETCH(QByteArrayList, arrived);
        const QTemporaryDir folder;
        QByteArrayList said;
        FolderDownload download(
            "/day", folder.path().toLocal8Bit(),
            {[&](const QByteArray &bytes) { server.take(bytes); }, [&](const QByteArray &line) { said += line; }});
        download.begin();
        for (int turn = 0; turn < 5000 && !download.isOver(); ++turn)
            download.take(server.takeAnswers());
        QVERIFY(download.isOver());
        QTEST(download.errors(), "errors");
        QCOMPARE(said.size(), 1);
        const QDir there(folder.path());
        QCOMPARE(there.entryList(QDir::Files).filter(QRegularExpression("bb$"_s)).size(), arrived.size());
        for (const QByteArray &name : arrived) {
            QCOMPARE(contentOf(there.filePath(QString::fromLatin1(name))), server.files.value(name));
            QCOMPARE(QFileInfo(there.filePath(QString::fromLatin1(name))).lastModified().toSecsSinceEpoch(), kTime);
        }
    }

    /// Whatever comes, the run ends or waits for more, and nothing is written outside of the folder.
    void nonsense()
    {
        QRandomGenerator random(7);
        const QTemporaryDir base;
        for (int round = 0; round < 1000; ++round) {
            Server server;
            server.files = {{"a.bb", bytesOf(40000)}, {"b.bb", bytesOf(9)}};
            const QDir folder(base.filePath("in"_s));
            QVERIFY(QDir().mkpath(folder.path()));
            FolderDownload download("/day", folder.path().toLocal8Bit(),
                                    {[&](const QByteArray &bytes) { server.take(bytes); }, [](const QByteArray &) {}});
            download.begin();
            for (int turn = 0; turn < 20 && !download.isOver(); ++turn) {
                QByteArray bytes = server.takeAnswers();
                if (!bytes.isEmpty() && random.bounded(2) == 0)
                    bytes[int(random.bounded(quint32(std::min(bytes.size(), 200))))] = char(random.generate());
                download.take(bytes);
            }
            QVERIFY(server.reads < 10000);
        }
        QCOMPARE(QDir(base.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("in"_s));
    }
};

QTEST_GUILESS_MAIN(TestFolderDownload)
#include "tst_folderdownload.moc"
