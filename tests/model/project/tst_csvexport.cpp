#include "model/project/csvexport.h"
#include "model/project/pacer.h"
#include "model/project/projectdocument.h"
#include "tests/support/faildevice.h"
#include "tests/support/literals.h"

#include <QBuffer>
#include <QtTest>

namespace {

ProjectDocument document()
{
    ProjectDocument result;
    result.name = "Deckel"_s;
    result.number = "47"_s;
    result.user = "Öz"_s;
    result.date = "heute"_s;
    result.clock = 250;
    result.sensorNames[1] = "Weg"_s;
    return result;
}

bool write(QIODevice &target, const ProjectDocument &source)
{
    Pacer pacer([](int) {}, 1);
    return writeCsv(target, "a.vnt"_s, source, pacer);
}

QByteArray csv(const ProjectDocument &source)
{
    QBuffer buffer;
    return buffer.open(QIODevice::WriteOnly) && write(buffer, source) ? buffer.data() : "failed"_ba;
}

} // namespace

class TestCsvExport : public QObject
{
    Q_OBJECT

private slots:
    void writesTheLayout()
    {
        const SampleList first{1.5, 1234567.0, -2.0};
        const SampleList empty;
        ProjectDocument source = document();
        SampleRuns &runs = source.samples[1].emplace();
        runs.emplace_back(&first, 3);
        runs.emplace_back(empty);
        runs.emplace_back(&first, 1);
        QCOMPARE(csv(source), "Dateiname: a.vnt\nProjekt: Deckel\nProj.Nr.: 47\nBearbeiter: Öz\nDatum: heute\n\n"
                              "Abtastrate: 250ms\nSensor 1: \nSensor 2: Weg\n"
                              "data 0;1,5;1,23457e+06;-2\ndata 1;\ndata 2;1,5\n"
                              "Sensor 3: \nSensor 4: \nSensor 5: \n"_ba);
    }

    void reportsAFullDevice()
    {
        const SampleList samples(30000, 1.25);
        ProjectDocument source = document();
        source.samples[0].emplace().emplace_back(&samples, samples.size());
        const int size = csv(source).size();
        for (int limit : {0, 1, 65536, size / 2, size - 1, size}) {
            FailDevice device(limit);
            QCOMPARE(write(device, source), limit == size);
        }
    }
};

QTEST_GUILESS_MAIN(TestCsvExport)
#include "tst_csvexport.moc"
