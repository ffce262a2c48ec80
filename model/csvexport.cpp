#include "model/csvexport.h"

#include "model/indexcheck.h"
#include "model/pacer.h"

#include <QIODevice>
#include <QLocale>

namespace {

constexpr int kSignificantDigits = 6;

class CsvWriter
{
public:
    CsvWriter(QIODevice &target, Pacer &pacer)
        : m_target(target)
        , m_pacer(pacer)
    {}

    void line(const QString &text)
    {
        m_buffer += text.toUtf8();
        m_buffer += '\n';
        flushIfFull();
    }

    void measurement(int number, const SampleRun &run)
    {
        m_buffer += QByteArrayLiteral("data ") + QByteArray::number(number) + ';';
        for (int i = 0; i < run.count && !m_failed; ++i) {
            if (i > 0)
                m_buffer += ';';
            m_buffer += m_german.toString(run.samples->at(i), 'g', kSignificantDigits).toUtf8();
            flushIfFull();
            m_pacer.advance(1);
        }
        m_buffer += '\n';
        m_pacer.advance(1);
    }

    [[nodiscard]] bool finish()
    {
        flush();
        return !m_failed;
    }

private:
    static constexpr int kBufferSize = 65536;

    void flushIfFull()
    {
        if (m_buffer.size() >= kBufferSize)
            flush();
    }

    void flush()
    {
        m_failed = m_failed || m_target.write(m_buffer) != m_buffer.size();
        m_buffer.resize(0); // keeps its memory
    }

    QIODevice &m_target;
    Pacer &m_pacer;
    const QLocale m_german{QLocale::German};
    QByteArray m_buffer;
    bool m_failed = false;
};

void writeHead(CsvWriter &csv, const QString &projectFileName, const ProjectDocument &document)
{
    csv.line(QStringLiteral("Dateiname: ") + projectFileName);
    csv.line(QStringLiteral("Projekt: ") + document.data.name);
    csv.line(QStringLiteral("Proj.Nr.: ") + document.data.number);
    csv.line(QStringLiteral("Bearbeiter: ") + document.data.user);
    csv.line(QStringLiteral("Datum: ") + document.data.date);
    csv.line(QString());
    csv.line(QStringLiteral("Abtastrate: ") + QString::number(document.clock) + QStringLiteral("ms"));
}

} // namespace

bool writeCsv(QIODevice &target, const QString &projectFileName, const ProjectDocument &document, Pacer &pacer)
{
    CsvWriter csv(target, pacer);
    writeHead(csv, projectFileName, document);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        csv.line(QStringLiteral("Sensor ") + QString::number(sensor + 1) + QStringLiteral(": ")
                 + document.sensorNames[at(sensor)]);
        int number = 0;
        for (const SampleRun &run : document.samples[at(sensor)])
            csv.measurement(number++, run);
    }
    return csv.finish();
}
