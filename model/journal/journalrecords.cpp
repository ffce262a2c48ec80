#include "model/journal/journalrecords.h"

#include "model/arrayindex.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace {

constexpr int kMostSamples = 200000000; // of one measurement: what one list can hold

void prepare(QDataStream &stream)
{
    stream.setVersion(QDataStream::Qt_5_12);
    stream.setByteOrder(QDataStream::LittleEndian);
}

// True if that many things of a size can follow: numbers in a file are not trusted.
bool fits(QDataStream &stream, quint32 count, int size)
{
    return stream.status() == QDataStream::Ok && qint64(count) * size <= stream.device()->bytesAvailable();
}

bool readRuns(QDataStream &stream, std::vector<SavedRun> &runs)
{
    quint32 count = 0;
    stream >> count;
    if (!fits(stream, count, 12))
        return false;
    runs.resize(count);
    for (SavedRun &run : runs) {
        quint32 samples = 0;
        stream >> run.id >> samples;
        if (samples > quint32(kMostSamples))
            return false;
        run.count = int(samples);
    }
    return true;
}

bool readBase(QDataStream &stream, JournalContents &contents)
{
    JournalBase &base = contents.base;
    qint64 started = 0;
    quint32 count = 0;
    stream >> base.programVersion >> started >> base.file >> base.fileSize >> base.fileTime >> count;
    if (!fits(stream, count, 4))
        return false;
    for (bool &has : base.hasPicture)
        stream >> has;
    base.started = QDateTime::fromMSecsSinceEpoch(started);
    base.checks.resize(count);
    for (quint32 &check : base.checks)
        stream >> check;
    std::set<quint64> ids;
    for (std::size_t sensor = 0; sensor < base.runs.size(); ++sensor) {
        if (!readRuns(stream, base.runs[sensor]))
            return false;
        // One measurement in two places is no state of a project.
        for (const SavedRun &run : base.runs[sensor]) {
            if (run.id != 0 && !ids.insert(run.id).second)
                return false;
        }
        contents.order[sensor].clear();
        for (const SavedRun &run : base.runs[sensor]) {
            contents.order[sensor].push_back(run.id);
            if (run.id != 0 && run.count > 0)
                contents.samples[run.id].start = run.count;
        }
    }
    return true;
}

bool readSamples(QDataStream &stream, JournalContents &contents)
{
    quint64 id = 0;
    quint32 start = 0;
    quint32 count = 0;
    stream >> id >> start >> count;
    if (!fits(stream, count, 8) || id == 0)
        return false;
    JournalSamples &known = contents.samples[id];
    const int end = known.start + known.samples.size();
    // A gap would shift whatever comes behind it.
    if (start != quint32(end) || count > quint32(kMostSamples - end))
        return false;
    const int before = known.samples.size();
    known.samples.resize(before + int(count));
    double *samples = known.samples.data() + before;
    const int size = int(count) * 8;
    bool isValid = stream.readRawData(reinterpret_cast<char *>(samples), size) == size;
    qFromLittleEndian<quint64>(samples, int(count), samples);
    isValid = isValid && std::all_of(samples, samples + count, [](double sample) { return std::isfinite(sample); });
    if (!isValid)
        known.samples.resize(before); // what came before it is still restored
    return isValid;
}

bool readOrder(QDataStream &stream, JournalContents &contents)
{
    quint8 sensor = 0;
    quint32 first = 0;
    quint32 removed = 0;
    quint32 count = 0;
    stream >> sensor >> first >> removed >> count;
    if (sensor >= kNumSensors || !fits(stream, count, 8))
        return false;
    std::vector<quint64> &order = contents.order[sensor];
    if (first > order.size() || removed > order.size() - first)
        return false;
    std::vector<quint64> inserted(count);
    for (quint64 &id : inserted)
        stream >> id;
    const auto from = order.begin() + qint64(first);
    order.insert(order.erase(from, from + qint64(removed)), inserted.begin(), inserted.end());
    return true;
}

bool readNotes(QDataStream &stream, JournalContents &contents)
{
    quint32 count = 0;
    stream >> count;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        quint64 id = 0;
        ShotNotes notes;
        stream >> id >> notes;
        contents.notes[id] = notes;
    }
    return true;
}

bool readColors(QDataStream &stream, JournalContents &contents)
{
    contents.colors.resize(kNumSensors);
    for (QRgb &color : contents.colors)
        stream >> color;
    return true;
}

bool readPicture(QDataStream &stream, JournalContents &contents)
{
    quint8 index = 0;
    quint8 kind = 0;
    stream >> index >> kind;
    if (index >= contents.pictures.size() || kind > quint8(JournalPicture::Kind::Png))
        return false;
    JournalPicture &picture = contents.pictures[index];
    picture.kind = JournalPicture::Kind(kind);
    stream >> picture.png;
    return true;
}

bool readTime(QDataStream &stream, JournalContents &contents)
{
    qint64 time = 0;
    stream >> time;
    contents.lastWritten = QDateTime::fromMSecsSinceEpoch(time);
    return true;
}

bool readRecord(JournalRecord record, QDataStream &stream, JournalContents &contents)
{
    switch (record) {
    case JournalRecord::Base:
        return readBase(stream, contents);
    case JournalRecord::Samples:
        return readSamples(stream, contents);
    case JournalRecord::Order:
        return readOrder(stream, contents);
    case JournalRecord::Notes:
        return readNotes(stream, contents);
    case JournalRecord::Settings:
        stream >> contents.settings;
        return true;
    case JournalRecord::Evaluation:
        stream >> contents.evaluation;
        return true;
    case JournalRecord::Colors:
        return readColors(stream, contents);
    case JournalRecord::Picture:
        return readPicture(stream, contents);
    case JournalRecord::Time:
        return readTime(stream, contents);
    }
    return false;
}

} // namespace

JournalRecordWriter::JournalRecordWriter()
    : m_stream(&m_payload, QIODevice::WriteOnly)
{
    prepare(m_stream);
}

QByteArray JournalRecordWriter::take()
{
    m_stream.device()->seek(0);
    return std::exchange(m_payload, {});
}

void JournalRecordWriter::begin(JournalRecord record)
{
    m_stream << quint8(record);
}

void JournalRecordWriter::bytes(JournalRecord record, const QByteArray &text)
{
    begin(record);
    m_stream << text;
}

void JournalRecordWriter::base(const JournalBase &base)
{
    begin(JournalRecord::Base);
    m_stream << base.programVersion << base.started.toMSecsSinceEpoch() << base.file << base.fileSize << base.fileTime
             << quint32(base.checks.size());
    for (const bool has : base.hasPicture)
        m_stream << has;
    for (const quint32 check : base.checks)
        m_stream << check;
    for (const std::vector<SavedRun> &runs : base.runs) {
        m_stream << quint32(runs.size());
        for (const SavedRun &run : runs)
            m_stream << run.id << quint32(run.count);
    }
}

void JournalRecordWriter::samples(quint64 id, const SampleList &list, int start, int count)
{
    begin(JournalRecord::Samples);
    m_stream << id << quint32(start) << quint32(count);
    QByteArray raw(count * 8, Qt::Uninitialized);
    qToLittleEndian<quint64>(list.constData() + start, count, raw.data());
    m_stream.writeRawData(raw.constData(), raw.size());
}

void JournalRecordWriter::order(int sensor, int first, int removed, const std::vector<quint64> &inserted)
{
    begin(JournalRecord::Order);
    m_stream << quint8(sensor) << quint32(first) << quint32(removed) << quint32(inserted.size());
    for (const quint64 id : inserted)
        m_stream << id;
}

void JournalRecordWriter::notes(const std::vector<std::pair<quint64, ShotNotes>> &notes)
{
    begin(JournalRecord::Notes);
    m_stream << quint32(notes.size());
    for (const auto &[id, note] : notes)
        m_stream << id << note;
}

void JournalRecordWriter::colors(const std::vector<QRgb> &colors)
{
    begin(JournalRecord::Colors);
    for (int sensor = 0; sensor < kNumSensors; ++sensor)
        m_stream << (at(sensor) < colors.size() ? colors[at(sensor)] : QRgb(0));
}

void JournalRecordWriter::picture(int index, const JournalPicture &picture)
{
    begin(JournalRecord::Picture);
    m_stream << quint8(index) << quint8(picture.kind) << picture.png;
}

void JournalRecordWriter::time(const QDateTime &time)
{
    begin(JournalRecord::Time);
    m_stream << time.toMSecsSinceEpoch();
}

bool applyRecords(const QByteArray &payload, JournalContents &contents)
{
    QDataStream stream(payload);
    prepare(stream);
    while (!stream.atEnd()) {
        quint8 record = 0;
        stream >> record;
        if (!readRecord(JournalRecord(record), stream, contents) || stream.status() != QDataStream::Ok)
            return false;
    }
    return true;
}
