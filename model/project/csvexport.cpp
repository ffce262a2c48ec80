#include "model/project/csvexport.h"

#include "model/arrayindex.h"
#include "model/project/germannumber.h"
#include "model/project/pacer.h"
#include "model/project/projectdocument.h"

#include <QIODevice>

#include <array>
#include <cstring>

namespace {

class CsvWriter
{
public:
    CsvWriter(QIODevice &target, Pacer &pacer)
        : m_target(target)
        , m_pacer(pacer)
    {}

    void line(const QString &text)
    {
        put(text.toUtf8());
        put("\n");
    }

    void measurement(int number, const SampleRun &run)
    {
        put("data " + QByteArray::number(number) + ';');
        for (int i = 0; i < run.count() && !m_failed; ++i) {
            if (i > 0)
                m_buffer[m_used++] = ';';
            // data() for each sample: events that the pacer lets in may move the list.
            char *end = writeGermanNumber(m_buffer.data() + m_used, run.data()[i]);
            m_used = static_cast<std::size_t>(end - m_buffer.data());
            flushIfFull();
            m_pacer.advance(1);
        }
        put("\n");
        m_pacer.advance(1);
    }

    [[nodiscard]] bool finish()
    {
        flush();
        return !m_failed;
    }

private:
    static constexpr std::size_t kFull = 65536;
    static constexpr std::size_t kRoom = kMaxGermanNumberLength + 1; // a number and its separator

    void put(const QByteArray &text)
    {
        const auto size = static_cast<std::size_t>(text.size());
        if (m_used + size > kFull)
            flush();
        if (size > kFull) {
            m_failed = m_failed || m_target.write(text) != text.size();
            return;
        }
        std::memcpy(m_buffer.data() + m_used, text.constData(), size);
        m_used += size;
        flushIfFull();
    }

    void flushIfFull()
    {
        if (m_used >= kFull)
            flush();
    }

    void flush()
    {
        const auto size = static_cast<qint64>(m_used);
        m_failed = m_failed || m_target.write(m_buffer.data(), size) != size;
        m_used = 0;
    }

    QIODevice &m_target;
    Pacer &m_pacer;
    std::array<char, kFull + kRoom> m_buffer;
    std::size_t m_used = 0; ///< below kFull between two calls
    bool m_failed = false;
};

void writeHead(CsvWriter &csv, const QString &projectFileName, const ProjectDocument &document)
{
    csv.line(QStringLiteral("Dateiname: ") + projectFileName);
    csv.line(QStringLiteral("Projekt: ") + document.name.value_or(QString()));
    csv.line(QStringLiteral("Proj.Nr.: ") + document.number.value_or(QString()));
    csv.line(QStringLiteral("Bearbeiter: ") + document.user.value_or(QString()));
    csv.line(QStringLiteral("Datum: ") + document.date.value_or(QString()));
    csv.line(QString());
    csv.line(QStringLiteral("Abtastrate: ") + QString::number(document.clock.value_or(0)) + QStringLiteral("ms"));
}

void writeMeasurements(CsvWriter &csv, const std::optional<SampleRuns> &runs)
{
    if (!runs)
        return;
    int number = 0;
    for (const SampleRun &run : *runs)
        csv.measurement(number++, run);
}

} // namespace

bool writeCsv(QIODevice &target, const QString &projectFileName, const ProjectDocument &document, Pacer &pacer)
{
    CsvWriter csv(target, pacer);
    writeHead(csv, projectFileName, document);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        csv.line(QStringLiteral("Sensor ") + QString::number(sensor + 1) + QStringLiteral(": ")
                 + document.sensorNames[at(sensor)].value_or(QString()));
        writeMeasurements(csv, document.samples[at(sensor)]);
    }
    return csv.finish();
}
