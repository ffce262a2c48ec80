#include "model/journal/journalblock.h"
#include "model/journal/journalreader.h"
#include "model/journal/journaltracker.h"
#include "model/model.h"
#include "tests/fuzz/modelfiles.h"

#include <QBuffer>

namespace {

/// The file that every journal here begins with: three shots, of which the second has no samples for two sensors.
QString baseFile()
{
    static const QString file = [] {
        Model model{QString()};
        model.setYield([](int) {});
        for (int shot = 0; shot < 3; ++shot) {
            for (int sensor = 0; sensor < (shot == 2 ? 4 : kNumSensors); ++sensor) {
                const int index = model.appendMeasurement(sensor);
                if (shot != 1 || sensor < 3)
                    (void)model.appendSample(sensor, index, shot + 1.0);
            }
        }
        REQUIRE(model.save(modelfiles::path("base.vnt")));
        return modelfiles::path("base.vnt");
    }();
    return file;
}

/// Each block of the input has a length of two bytes in front. No fuzzer would find the right check numbers.
QByteArray packedBlocks(const QByteArray &input)
{
    QByteArray journal = journalblock::mark();
    for (int at = 0; at + 2 <= input.size();) {
        const int length = uchar(input.at(at)) + 256 * uchar(input.at(at + 1));
        journal += journalblock::packed(input.mid(at + 2, length));
        at += 2 + length;
    }
    return journal;
}

std::optional<JournalContents> read(QByteArray journal)
{
    QBuffer file(&journal);
    REQUIRE(file.open(QIODevice::ReadOnly));
    std::optional<JournalContents> contents = readJournal(file);
    if (contents)
        contents->base.file = baseFile(); // never one that the input names
    return contents;
}

/// The journal that the program begins for a restored project.
QByteArray journalOf(const Model &model)
{
    JournalTracker tracker;
    tracker.begin({}, model.files().saved());
    QByteArray journal = journalblock::mark();
    for (const QByteArray &block : tracker.changes(model.project(), model.changeCount(), QDateTime()).blocks)
        journal += block;
    return journal;
}

bool areAlike(const Model &a, const Model &b)
{
    for (int shot = 0; shot < a.project().shots.shotCount(); ++shot) {
        if (a.shotLabel(shot) != b.shotLabel(shot))
            return false;
    }
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        if (a.numChannels(sensor) != b.numChannels(sensor))
            return false;
        for (int shot = 0; shot < a.numChannels(sensor); ++shot) {
            if (*a.measurement(sensor, shot) != *b.measurement(sensor, shot))
                return false;
        }
    }
    return a.comment() == b.comment();
}

} // namespace

// A journal, as it is or as blocks whose check numbers are right. What is restored is journalled and restored alike.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray input = bytes(data, size);
    const bool isJournal = input.startsWith(journalblock::mark());
    std::optional<JournalContents> contents = read(isJournal ? input : packedBlocks(input));
    if (!contents)
        return 0;
    REQUIRE(contents->sampleCount() >= 0);
    (void)contents->projectName();
    Model model{QString()};
    model.setYield([](int) {});
    REQUIRE(model.restore(*contents));
    REQUIRE(model.isProjectModified() && model.currentFile() == baseFile());
    std::optional<JournalContents> next = read(journalOf(model));
    REQUIRE(next);
    Model again{QString()};
    again.setYield([](int) {});
    REQUIRE(again.restore(*next));
    REQUIRE(areAlike(model, again));
    return 0;
}
