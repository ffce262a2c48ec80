#include "model/model.h"
#include "tests/support/files.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QBuffer>
#include <QTemporaryDir>

namespace {

/// A picture of one colour.
QByteArray pngOf(QSize size, QImage::Format format)
{
    QImage image(size, format);
    image.fill(Qt::gray);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG", 80); // quickly
    return buffer.data();
}

/// One letter for each picture.
QString statesOf(const ImageStore &images)
{
    QString letters;
    for (int image = 0; image < kNumProjectImages; ++image)
        letters += QLatin1Char("-WRTU"[static_cast<int>(images.state(image))]);
    return letters;
}

} // namespace

class TestOpenLosses : public QObject
{
    Q_OBJECT

private slots:
    void told_data()
    {
        // what: of the losses, in words of this test
        columns<QByteArray, QString>("text", "what");
        row("project", R"({"fileVersion":"7","clock":20})"_ba, "");
        row("older project", R"({"fileVersion":"6.0","clock":20})"_ba, "");
        row("newer version", R"({"fileVersion":"8","clock":20})"_ba, "newer 8");
        row("newer version as a number", R"({"fileVersion":12})"_ba, "newer 12");
        row("number below", R"({"fileVersion":7})"_ba, "");
        row("version beyond numbers", R"({"fileVersion":"99999999999999999999"})"_ba, "");
        row("unknown keys", R"({"clock":20,"b":1,"a":2,"ViewData":{"c":3}})"_ba, "keeps a b ViewData/c");
        row("of another type", R"({"clock":"20"})"_ba, "loses clock");
        row("no project", R"({"name":"left-pad","version":"1"})"_ba, "foreign keeps name version");
        row("nothing", "{}"_ba, "foreign");
        row("picture", R"({"projectImage3":"AAAA"})"_ba, "picture 3");
    }

    void told()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, what);
        writeFile(path("told.vnt"), text);
        Model model(path("told.vnt"));
        const OpenLosses losses = model.openLosses();
        QStringList words;
        if (!losses.newerVersion.isEmpty())
            words << "newer"_s << losses.newerVersion;
        if (losses.isForeign)
            words << "foreign"_s;
        if (losses.unknown.count > 0)
            words << "keeps"_s << losses.unknown.names;
        if (losses.lost.count > 0)
            words << "loses"_s << losses.lost.names;
        for (int image = 0; image < kNumProjectImages; ++image)
            if (losses.pictures.at(std::size_t(image)) == PictureState::Undecodable)
                words << "picture"_s << QString::number(image);
        QCOMPARE(words.join(QLatin1Char(' ')), what);
        QCOMPARE(losses.isAny(), !what.isEmpty());
        // A file that was written from it is an ordinary project.
        QVERIFY(model.save(path("saved.vnt")));
        QVERIFY(!model.openLosses().isAny());
        QVERIFY(contentOf(path("saved.vnt")).contains("\"fileVersion\": \"7\""));
    }

    void unknownKeysGoWithTheProject()
    {
        writeFile(path("new.vnt"), R"({"fileVersion":"9","klima":[1, 2],"clock":20,"ViewData":{"zoom":1.50}})");
        Model model(path("new.vnt"));
        model.setComment("edited"_s);
        QVERIFY(model.save(path("copy.vnt")));
        QVERIFY(model.open(path("copy.vnt")));
        QVERIFY(model.save(path("copy.vnt")));
        for (const QByteArray member : {"\"klima\": [1, 2]", "\"zoom\": 1.50", "\"comment\": \"edited\""})
            QVERIFY2(contentOf(path("copy.vnt")).contains(member), member);
        model.clear();
        QVERIFY(!model.openLosses().isAny() && model.save(path("fresh.vnt")));
        QVERIFY(!contentOf(path("fresh.vnt")).contains("klima") && !contentOf(path("fresh.vnt")).contains("zoom"));
    }

    /// 20 million pixels, and pictures of nine million and one million.
    void pictureBudget_data()
    {
        columns<QString, QString>("pictures", "states");
        row("all fit", "sbss-", "WWWW-");
        row("the smallest first", "bbbss", "WRRWW");
        row("grey pictures would be decoded as a whole", "bgg-b", "WTT-R");
        row("one alone", "b----", "W----");
    }

    void pictureBudget()
    {
        QFETCH(QString, pictures);
        const QHash<char, QByteArray> kinds{{'s', pngOf({1000, 1000}, QImage::Format_RGB32)},
                                            {'b', pngOf({3000, 3000}, QImage::Format_RGB32)},
                                            {'g', pngOf({3600, 3600}, QImage::Format_Grayscale8)}};
        EncodedImages read;
        for (int image = 0; image < kNumProjectImages; ++image)
            read.at(std::size_t(image)) = kinds.value(pictures.at(image).toLatin1());
        constexpr qint64 kBudget = 20000000;
        ImageStore images = ImageStore::decoded(
            read, [] {}, kBudget);
        QTEST(statesOf(images), "states");
        QVERIFY(images.pixelsBeside(-1) <= kBudget);
        for (int image = 0; image < kNumProjectImages; ++image) {
            const bool isReduced = images.state(image) == PictureState::Reduced;
            QVERIFY(!isReduced || images.shown(image).size() == QSize(1600, 1600));
            QVERIFY(!isReduced || images.size(image) == QSize(3000, 3000));
            QVERIFY(images.original(image).isEmpty() || images.original(image) == read.at(std::size_t(image)));
        }
        QVERIFY(images.encoded(images.pixmaps(), [] {}) == read);
    }

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

QTEST_MAIN(TestOpenLosses)
#include "tst_openlosses.moc"
