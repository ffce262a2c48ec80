#include "model/blackbox/blackboxfile.h"

#include "model/arrayindex.h"
#include "model/blackbox/linesource.h"
#include "model/logging.h"
#include "model/project/samplecollector.h"

#include <QDebug>
#include <QIODevice>
#include <QTextCodec>

#include <cmath>
#include <utility>

namespace {

constexpr int kMostComplaints = 100;    // so that a broken file does not flood the log
constexpr int kMostSensorLines = 10000; // likewise; the box writes some thirty
constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";
const QByteArray kSensorKey = QByteArrayLiteral("group0/sensor");

/// Decodes UTF-8; anything else is taken byte by byte.
QString toText(const QByteArray &bytes)
{
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars > 0 || state.remainingChars > 0 ? QString::fromLatin1(bytes) : text;
}

QByteArray valueOf(const QByteArray &line)
{
    return line.mid(line.indexOf('=') + 1);
}

std::optional<int> toInteger(const QByteArray &text)
{
    bool ok = false;
    const int number = text.trimmed().toInt(&ok);
    return ok ? std::optional<int>(number) : std::nullopt;
}

/// Interprets the lines of one file.
class Reader
{
public:
    explicit Reader(const SensorDescription &known) { m_document.sensors = known; }

    void take(QByteArray line);
    void skip() { ++m_document.losses.skippedLines; }
    [[nodiscard]] BlackBoxDocument finish(const std::function<void()> &pause);

private:
    enum class Section { Device, Sensors, Data };

    [[nodiscard]] bool takeMarker(const QByteArray &line);
    void takeSensorLine(const QByteArray &line);
    [[nodiscard]] bool takeGroupKey(const QByteArray &line);
    void takeSensorKey(const QByteArray &line, int keyAt);
    [[nodiscard]] bool setSensor(int sensor, const QByteArray &key, const QByteArray &value);
    void takeDataLine(const QByteArray &line);
    void takeSample(const QByteArray &line);
    void takeTime(const QByteArray &text);
    [[nodiscard]] double toNumber(const QByteArray &text);
    void complain(const char *text);

    BlackBoxDocument m_document;
    std::array<SampleCollector, kNumSensors> m_samples;
    Section m_section = Section::Data;
    int m_complaints = 0;
    int m_sensorLines = 0;
    bool m_atBeginning = true;
};

void Reader::take(QByteArray line)
{
    if (std::exchange(m_atBeginning, false) && line.startsWith(kByteOrderMark))
        line.remove(0, 3);
    if (takeMarker(line) || line.trimmed().isEmpty())
        return;
    if (m_section == Section::Sensors)
        takeSensorLine(line);
    else if (m_section == Section::Data)
        takeDataLine(line);
}

bool Reader::takeMarker(const QByteArray &line)
{
    // Almost every line is a sample; most of those need no further look.
    if (!line.contains('['))
        return false;
    if (line.contains("[device]"))
        m_section = Section::Device;
    else if (line.contains("[sensors]"))
        m_section = Section::Sensors;
    else if (line.contains("[data]"))
        m_section = Section::Data;
    else
        return false;
    return true;
}

void Reader::complain(const char *text)
{
    if (++m_complaints <= kMostComplaints)
        qCDebug(lcModel) << text;
}

double Reader::toNumber(const QByteArray &text)
{
    bool ok = false;
    const double number = text.trimmed().toDouble(&ok);
    if (ok && std::isfinite(number))
        return number;
    ++m_document.losses.badValues;
    return 0.0;
}

// --- Section "sensors" -----------------------------------------------------------------------------------------

// An unknown key may come from a newer box and is not counted as a loss.
void Reader::takeSensorLine(const QByteArray &line)
{
    if (!line.contains('=') || ++m_sensorLines > kMostSensorLines) {
        skip();
        return;
    }
    if (const int keyAt = line.indexOf(kSensorKey); keyAt >= 0)
        takeSensorKey(line, keyAt);
    else if (!takeGroupKey(line))
        skip();
}

/// False if the line should have had an effect and has none.
bool Reader::takeGroupKey(const QByteArray &line)
{
    SensorDescription &sensors = m_document.sensors;
    const QByteArray value = valueOf(line);
    if (line.contains("numGroups=")) {
        qCDebug(lcModel) << "setNumSensorGroups:" << value;
        const std::optional<int> count = toInteger(value);
        sensors.setNumSensorGroups(count.value_or(sensors.numSensorGroups()));
        return count.has_value();
    }
    const bool isName = line.contains("group0/name=");
    if (!isName && !line.contains("group0/numSensors="))
        return true;
    SensorGroup *group = sensors.modifiableSensorGroup(0);
    if (isName) {
        qCDebug(lcModel) << "setSensorGroupName:" << toText(value);
        if (group)
            group->setName(toText(value));
        return group != nullptr;
    }
    qCDebug(lcModel) << "setNumSensors:" << value;
    const int count = toInteger(value).value_or(0);
    if (group && count > 0)
        group->setNumSensors(count);
    return group && count > 0;
}

void Reader::takeSensorKey(const QByteArray &line, int keyAt)
{
    const QByteArray rest = line.mid(keyAt + kSensorKey.size());
    const int sensor = rest.isEmpty() ? -1 : rest.front() - '0'; // the box counts from 0
    if (sensor < 0 || sensor > 9) {
        skip();
        return;
    }
    qCDebug(lcModel) << "sensors:" << sensor;
    if (sensor >= m_document.sensors.sensorGroup(0).numSensors()) {
        complain("ERROR: index >= numSens !!");
        skip();
        return;
    }
    const QByteArray key = rest.mid(1, rest.indexOf('=') - 1);
    if (!setSensor(sensor, key, valueOf(line)))
        qCDebug(lcModel) << "unknown key:" << toText(key);
}

bool Reader::setSensor(int sensor, const QByteArray &key, const QByteArray &value)
{
    SensorGroup *group = m_document.sensors.modifiableSensorGroup(0);
    if (key == "/name") {
        qCDebug(lcModel) << "name:" << toText(value);
        group->setSensorName(sensor, toText(value));
    } else if (key == "/type") {
        qCDebug(lcModel) << "type:" << toText(value);
        group->setSensorType(sensor, toText(value));
    } else if (key == "/min") {
        qCDebug(lcModel) << "min:" << value;
        group->setSensorMinimum(sensor, toNumber(value));
    } else if (key == "/max") {
        qCDebug(lcModel) << "max:" << value;
        group->setSensorMaximum(sensor, toNumber(value));
    } else if (key == "/unit") {
        qCDebug(lcModel) << "unit:" << toText(value);
        group->setSensorUnit(sensor, toText(value));
    } else {
        return false;
    }
    return true;
}

// --- Section "data" --------------------------------------------------------------------------------------------

void Reader::takeDataLine(const QByteArray &line)
{
    const QByteArray text = line.trimmed();
    if (text.startsWith("A="))
        takeSample(text);
    else if (text.startsWith("T="))
        takeTime(text.mid(2));
    else if (!text.startsWith("t=")) // the box may write these; they say nothing about the shot
        skip();
}

void Reader::takeSample(const QByteArray &line)
{
    // Without both brackets the values are separated by blanks.
    const bool bracketed = line.startsWith("A=[") && line.contains(']');
    QByteArray list = line.mid(bracketed ? 3 : 2);
    list.replace(']', "");
    const QList<QByteArray> items = bracketed ? list.simplified().split(',') : list.simplified().split(' ');
    if (items.size() != kNumSensors) {
        complain("ERROR: not 5 items in list!");
        skip();
        return;
    }
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        SampleCollector &collector = m_samples[at(sensor)];
        *collector.room() = toNumber(items.at(sensor));
        collector.commit(1);
    }
}

void Reader::takeTime(const QByteArray &text)
{
    const QString time = QString::fromLatin1(text).trimmed();
    m_document.timestamp = QDateTime::fromString(time, QStringLiteral("yyyyMMdd-hhmmss"));
    if (!m_document.timestamp->isValid())
        skip();
}

BlackBoxDocument Reader::finish(const std::function<void()> &pause)
{
    for (std::size_t sensor = 0; sensor < m_samples.size(); ++sensor)
        m_document.samples[sensor] = m_samples[sensor].take(pause);
    return std::move(m_document);
}

} // namespace

BlackBoxDocument readBlackBox(QIODevice &source, const SensorDescription &known,
                              const std::function<void(qint64 bytes)> &progress, qint64 maxBytes)
{
    LineSource lines(source, maxBytes);
    Reader reader(known);
    for (LineSource::Part part = lines.next(); part != LineSource::Part::End; part = lines.next()) {
        if (part == LineSource::Part::Line)
            reader.take(lines.line());
        else if (part == LineSource::Part::Overlong)
            reader.skip();
        progress(lines.bytesRead());
    }
    return reader.finish([&] { progress(lines.bytesRead()); });
}
