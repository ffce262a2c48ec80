#include "model/json/jsonnumber.h"
#include "model/project/pacer.h"
#include "model/project/projectreader.h"
#include "model/project/projectwriter.h"
#include "tests/model/project/referenceproject.h"
#include "tests/support/faildevice.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QBuffer>
#include <QElapsedTimer>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace {

const auto kNoYield = [](int) {};

quint64 bits(double value)
{
    quint64 result = 0;
    std::memcpy(&result, &value, sizeof result);
    return result;
}

// Every finite double with the same likelihood for each exponent, mixed with what sensors deliver.
QVector<double> randomDoubles(int count, unsigned seed)
{
    std::mt19937_64 random(seed);
    QVector<double> values;
    while (values.size() < count) {
        const quint64 pattern = random();
        double value = 0.0;
        std::memcpy(&value, &pattern, sizeof value);
        const auto digits = static_cast<double>(static_cast<qint64>(pattern) >> (pattern % 60));
        values << digits << digits / 1000.0 << digits / 1e6 << std::ldexp(value, 0) << digits * 1e3;
        if (!std::isfinite(value))
            values.removeAt(values.size() - 2);
    }
    return values;
}

QByteArray numberText(double value)
{
    char text[kMaxNumberLength];
    return QByteArray(text, static_cast<int>(writeJsonNumber(text, value) - text));
}

QByteArray write(const ProjectDocument &document)
{
    QBuffer buffer;
    Pacer pacer(kNoYield, 1);
    if (!buffer.open(QIODevice::WriteOnly) || !projectfile::write(buffer, document, pacer))
        return "failed";
    return buffer.data();
}

std::optional<ProjectDocument> read(QByteArray text)
{
    QBuffer buffer(&text);
    Pacer pacer(kNoYield, 1);
    return buffer.open(QIODevice::ReadOnly) ? projectfile::read(buffer, pacer) : std::nullopt;
}

// The samples of "sensor 1" of a file that holds nothing else.
QVector<SampleList> readSamples(const QByteArray &measurements)
{
    const auto document = read("{\"sensor 1\": " + measurements + "}");
    if (!document || !document->samples[0])
        return {{-1.0}};
    QVector<SampleList> result;
    for (const SampleRun &run : *document->samples[0])
        result.append(SampleList(run.data(), run.data() + run.count()));
    return result;
}

ProjectDocument described()
{
    ProjectDocument document;
    document.name = "Deckel \"groß\""_s;
    document.number = "4711"_s;
    document.user = "J. Öz"_s;
    document.date = "1.2.2021"_s;
    document.customer = "K\\L"_s;
    document.closingForce = 850;
    document.injectionTime = 1.25;
    document.pressTime = 0.1;
    document.pressure = 1200;
    document.clock = 20;
    document.comment = "Zeile 1\nZeile 2\t\u20ac \U0001F600 / \x7f"_s + QChar(1) + QChar(0xd800);
    document.mesotraType = 3;
    document.hardwareVersion = "H"_s;
    document.firmwareVersion = QString();
    return document;
}

// A document without gaps, which points at the samples.
ProjectDocument fullDocument(const QVector<SampleList> &samples)
{
    ProjectDocument document = described();
    document.viewData = {ProjectViewData::Kind::Given, true, QVector<double>{-1.5, 0, 1e-7, 3e300, 5e-324},
                         QVector<double>{1, 2, 3, 4, 1e22}};
    document.images[1] = QByteArray("\x89PNG\0\xff", 6);
    document.sensorNames = {"Weg"_s, "Druck"_s, QString(), QString(), QString()};
    document.markers = QVector<int>{1, 20, 300, std::numeric_limits<int>::max()};
    document.phases = QStringList{"a"_s, "b"_s, "ß"_s, QString(), QString()};
    document.corrections = QVector<double>{0.1, -0.2, 0, 1e-9, 12345678.9};
    document.sensorMinimum = QVector<double>(5, -3.5);
    document.sensorMaximum = QVector<double>(5, 3.5);
    for (std::optional<SampleRuns> &runs : document.samples)
        runs.emplace();
    for (int i = 0; i < samples.size(); ++i)
        document.samples[static_cast<std::size_t>(i % kNumSensors)]->emplace_back(&samples[i], samples[i].size());
    return document;
}

} // namespace

class TestProjectFile : public QObject
{
    Q_OBJECT

private slots:
    void writesNumbersLikeQt_data()
    {
        columns<double>("value");
        const QVector<double> values{0.0,   1.0,    -1.0,       0.1,    0.5,    123.456,   999999.999,
                                     0.001, 0.0001, 0.00012345, 1e-5,   1.5e-7, 1e12,      1e15,
                                     1e19,  1e20,   1e21,       1e22,   1.5e20, 1.2345e19, 12345e18,
                                     1e100, 1e101,  1.7e25,     5e-324, 1e-99,  1e-100,    2.5e-310};
        for (double value : values)
            row(qPrintable(QString::number(value, 'g', 17)), value);
        for (int power = 50; power <= 65; ++power)
            for (double step : {-1.0, -0.5, 0.0, 0.5, 1.0})
                row(qPrintable("2^%1 + %2"_s.arg(power).arg(step)),
                    -(std::ldexp(1.0, power) + step * std::ldexp(1.0, std::max(power - 52, 0))));
        row("largest", std::numeric_limits<double>::max());
        row("smallest normal", std::numeric_limits<double>::min());
    }

    void writesNumbersLikeQt()
    {
        QFETCH(double, value);
        const QByteArray expected = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        QCOMPARE(numberText(value), expected.mid(1, expected.size() - 2));
    }

    void writesAnyNumberLikeQt()
    {
        const QVector<double> values = randomDoubles(50000, 1);
        const QByteArray expected = QJsonDocument(reference::array(values)).toJson(QJsonDocument::Compact);
        QByteArray text;
        for (double value : values)
            text += ',' + (value == 0.0 ? "0"_ba : numberText(value));
        QCOMPARE('[' + text.mid(1) + ']', expected);
    }

    void writesTheTextOfQt()
    {
        const QVector<SampleList> none;
        QCOMPARE(write(fullDocument(none)), reference::text(fullDocument(none)));
        const QVector<SampleList> samples{{1.5, 2.0}, {}, {-3.25}, {}, {1e-300}, randomDoubles(20000, 2), {0.0}};
        QVector<SampleList> positiveZeros = samples;
        for (double &value : positiveZeros[5])
            value += 0.0;
        const ProjectDocument document = fullDocument(positiveZeros);
        QCOMPARE(write(document), reference::text(document));
    }

    void readsBackEveryBit()
    {
        QVector<SampleList> samples{
            {}, {-0.0, 0.0, 5e-324, -5e-324, std::numeric_limits<double>::min(), 2.2250738585072011e-308}};
        samples << randomDoubles(150000, 3) << SampleList(66000, 1.0 / 3) << SampleList() << randomDoubles(1000, 4);
        const QByteArray text = write(fullDocument(samples));
        const auto document = read(text);
        QVERIFY(document);
        for (int i = 0; i < samples.size(); ++i) {
            const auto &runs = document->samples[static_cast<std::size_t>(i % kNumSensors)];
            QVERIFY(runs && int(runs->size()) > i / kNumSensors);
            const SampleRun &found = runs->at(static_cast<std::size_t>(i / kNumSensors));
            QCOMPARE(found.count(), samples[i].size());
            for (int k = 0; k < found.count(); ++k)
                QCOMPARE(bits(found.data()[k]), bits(samples[i][k]));
        }
        QCOMPARE(*document->fileVersion, "7"_s);
        QVERIFY(write(*document) == text);
    }

    void keepsGaps_data()
    {
        columns<QByteArray, QByteArray>("text", "written");
        row("nothing", "{}"_ba, "{}"_ba);
        row("wrong types",
            R"({"clock":"20","comment":1,"markers":{},"phases":"x","sensor 2":7,"sensorName 1":null})"_ba, "{}"_ba);
        row("last one counts", R"({"clock":5,"clock":7,"comment":"a","comment":2,"sensor 1":[[1]],"sensor 1":[]})"_ba,
            R"({"clock":7,"sensor 1":[]})"_ba);
        row("rounded and cut", R"({"clock":99.5,"markers":[1.5,"2",null],"phases":["a",5],"paramPressure":-1e99})"_ba,
            R"({"clock":100,"markers":[2,0,0],"paramPressure":-2147483648,"phases":["a",""]})"_ba);
        row("empty view", R"({"ViewData":{}})"_ba, "{}"_ba);
        row("view of no use", R"({"ViewData":{"x":1}})"_ba, R"({"ViewData":{"x":1}})"_ba);
        row("view replaced", R"({"ViewData":{"osziMinValues":[1]},"ViewData":{"checkBoxMarkerAbsolute":true}})"_ba,
            R"({"ViewData":{"checkBoxMarkerAbsolute":true}})"_ba);
    }

    /// What a file lacks, or has of another type, is not in the file that is written from it.
    void keepsGaps()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, written);
        const auto document = read(text);
        QVERIFY(document);
        QJsonObject found = QJsonDocument::fromJson(write(*document)).object();
        QCOMPARE(found.take("fileVersion"_s).toString(), "7"_s);
        for (const char *image : {"projectImage", "projectImage1", "projectImage2", "projectImage3", "projectImage4"})
            QCOMPARE(found.take(QLatin1String(image)).toString("none"_s), QString());
        QCOMPARE(QJsonDocument(found).toJson(QJsonDocument::Compact), written);
    }

    void givesBackUnknownKeys_data()
    {
        columns<QByteArray>("member");
        row("odd blanks", "\"zusatz\": {\"b\" : [1,  2.50,1e5],\n\t\"a\":{ }}"_ba);
        row("escapes", "\"k\\\"ey\\\\\\u00e4\": \"\\/\\u0041\\ud800\""_ba);
        row("not UTF-8", "\"a\xff\": \"\xfe\""_ba);
        row("numbers of many digits", "\"n\": 12345678901234567890.10000000000000000001E-0005"_ba);
        row("longer than the buffer", QByteArray("\"long\": [" + "\"12 \\\" ]\", "_ba.repeated(20000) + "null]"));
        row("behind all others", R"("zz": false)"_ba);
        row("before all others", R"("AA": "")"_ba);
        row("picture of another kind", R"("projectImage2": {"format": "jxl", "data": "AAAA"})"_ba);
        row("picture with line breaks", R"("projectImage2": "iVBO\nRw0KGgo=")"_ba);
    }

    void givesBackUnknownKeys()
    {
        QFETCH(QByteArray, member);
        const auto document = read("{" + member + R"(, "clock": 5, "swVersion": "1"})");
        QVERIFY(document);
        const QByteArray written = write(*document);
        QVERIFY2(written.contains("\n    " + member), written.left(2000).constData());
        const auto again = read(written);
        QVERIFY(again);
        QCOMPARE(write(*again), written);
        QCOMPARE(document->rest.lost.count, 0);
        // The same among the settings of the view.
        const auto view = read("{\"ViewData\":{" + member + "}}");
        QVERIFY(view && write(*view).contains("\n        " + member));
    }

    /// Other keys between those of the format, all in the order of Qt.
    void putsUnknownKeysInTheirPlaces()
    {
        QJsonObject json = QJsonDocument::fromJson(write(fullDocument({}))).object();
        for (const char *key : {"A", "ViewDatb", "clocl", "fileVersion2", "projectImage11", "sensor 6", "sensor A",
                                "sensorName 0", "\u00e4", "~", ""})
            json[QString::fromUtf8(key)] = QJsonArray{1.5, "x"_s, QJsonObject{{"y"_s, true}}};
        QJsonObject view = json["ViewData"_s].toObject();
        view["oszi"_s] = QJsonObject{{"a"_s, 1}};
        json["ViewData"_s] = view;
        const QByteArray text = QJsonDocument(json).toJson();
        const auto document = read(text);
        QVERIFY(document);
        QCOMPARE(write(*document), text);
    }

    void unknownKeysThatComeTwice()
    {
        const auto document = read(R"({"x":1,"b":2,"\u0078":3,"b":4,"c":5,"b":6})");
        QVERIFY(document);
        QCOMPARE(document->rest.unknown.size(), 3);
        QCOMPARE(document->rest.unknown[0].value + document->rest.unknown[1].value + document->rest.unknown[2].value,
                 "653"_ba);
    }

    void notesWhatIsLost_data()
    {
        columns<QByteArray, QString>("text", "lost");
        row("nothing", R"({"clock":5,"comment":null,"y":[1]})"_ba, "");
        row("wrong types", R"({"sensor 1":{},"clock":"5","markers":3,"ViewData":[1],"fileVersion":7})"_ba,
            "sensor 1,clock,markers,ViewData");
        row("within the view", R"({"ViewData":{"checkBoxMarkerAbsolute":1,"osziMinValues":[]}})"_ba,
            "checkBoxMarkerAbsolute");
        row("reserved", R"({"measurement":[1,2]})"_ba, "measurement");
        row("too large", QByteArray("{\"x\":1,\"big\":[" + QByteArray(70000000, ' ') + "],\"y\":2}"), "big");
        row("huge key", QByteArray("{\"" + QByteArray(70000, 'k') + "\":1}"), QString(40, QLatin1Char('k')));
    }

    void notesWhatIsLost()
    {
        QFETCH(QByteArray, text);
        const auto document = read(text);
        QVERIFY(document);
        QTEST(document->rest.lost.names.join(QLatin1Char(',')), "lost");
    }

    /// A file of nothing but unknown keys neither takes long nor much memory, and as many are kept as fit.
    void boundsUnknownKeys()
    {
        QByteArray text = "{";
        for (int i = 0; i < 1000000; ++i)
            text += "\"k" + QByteArray::number(i) + "\":1,";
        QElapsedTimer timer;
        timer.start();
        const auto document = read(text + "\"clock\":7}");
        QVERIFY(timer.elapsed() < 20000);
        QVERIFY(document && document->clock == 7);
        QCOMPARE(document->rest.unknown.size() + document->rest.lost.count, 1000000);
        QVERIFY(document->rest.unknown.size() > 200000 && document->rest.unknown.size() < 400000);
        QCOMPARE(document->rest.lost.names.size(), int(NameList::kMostNames));
    }

    /// Somebody else's list may have grown, and keeps its samples; the document's own list is handed over.
    void runsGiveTheirSamples()
    {
        SampleList list{1.0, 2.0};
        SampleRun borrowed(&list, list.size());
        list.append(3.0);
        QCOMPARE(*borrowed.take(), (SampleList{1.0, 2.0}));
        QCOMPARE(list.size(), 3);
        SampleRun owned(list);
        const double *samples = owned.data();
        QCOMPARE(owned.take()->constData(), samples);
    }

    void reportsAFullDevice()
    {
        const QVector<SampleList> samples{randomDoubles(30000, 5)};
        const ProjectDocument document = fullDocument(samples);
        const QByteArray whole = write(document);
        const int size = whole.size();
        for (int limit : {0, 1, 100, 1000, 65535, 65536, 65537, size / 2, size - 65537, size - 2, size - 1, size}) {
            FailDevice device(limit);
            Pacer pacer(kNoYield, 1);
            QCOMPARE(projectfile::write(device, document, pacer), limit == size);
            QVERIFY(whole.startsWith(device.taken()));
        }
    }

    void acceptsOrRefuses_data()
    {
        columns<QByteArray, bool>("text", "valid");
        const auto row = [](const char *name, const QByteArray &text, bool valid) { ::row(name, text, valid); };
        row("empty object", "{}", true);
        row("blanks around", " \r\n\t{ \"a\" : 1 , \"b\":[ ] }\n ", true);
        row("byte order mark", "\xEF\xBB\xBF{}", true);
        row("lists in unknown keys", "{\"x\":[[],{\"y\":[true,false,null,\"[\",-1.5e+3]}]}", true);
        row("deepest nesting", "{\"x\":" + QByteArray(1023, '[') + QByteArray(1023, ']') + "}", true);
        row("too deep", "{\"x\":" + QByteArray(1024, '[') + QByteArray(1024, ']') + "}", false);
        row("nothing", "", false);
        row("list", "[]", false);
        row("text behind", "{} x", false);
        row("zero byte behind", QByteArray("{}\0", 3), false);
        row("comma at the end", R"({"a":1,})", false);
        row("no comma", R"({"a":1 "b":2})", false);
        row("key without quotes", "{a:1}", false);
        row("wrong bracket", "{\"a\":[1}}", false);
        row("leading zero in a sample", R"({"sensor 1":[[01]]})", false);
        row("plus sign", R"({"a":+1})", false);
        row("nan sample", R"({"sensor 1":[[nan]]})", false);
        row("negative infinity sample", R"({"sensor 1":[[-inf]]})", false);
        row("exponent without digits", R"({"a":1e})", false);
        row("unknown string unfinished", "{\"a\":\"x\\\"", false);
    }

    void acceptsOrRefuses()
    {
        QFETCH(QByteArray, text);
        QTEST(read(text).has_value(), "valid");
    }

    void refusesEveryTruncation()
    {
        const QVector<SampleList> samples{{1.5, -2e-7, 3.0}, {}, {4.0}};
        const QByteArray whole = write(fullDocument(samples)).trimmed();
        for (int size = 0; size < whole.size(); ++size)
            QVERIFY2(!read(whole.left(size)), qPrintable(QString::number(size)));
        QVERIFY(read(whole));
    }

    void readsNumbers_data()
    {
        columns<QByteArray, double>("text", "value");
        const auto row = [](const QByteArray &text, double value) { ::row(text.left(40).constData(), text, value); };
        row("-0", -0.0);
        row("1E+2", 100.0);
        row("1e999", 0.0);
        row("1e-999", 0.0);
        row("1e99999999999999999999", 0.0);
        row("1" + QByteArray(400, '0'), 0.0);
        row("4.9406564584124654e-324", 5e-324);
        row("2.4703282292062327e-324", 0.0);
        row("2.4703282292062328e-324", 5e-324);
        row("9007199254740993", 9007199254740992.0);
        row("9007199254740993.00000000000000000000000000000001", 9007199254740994.0);
        row("0." + QByteArray(200000, '0') + "1e200001", 1.0);
        row("1" + QByteArray(100000, '0') + "e-100000", 1.0);
    }

    void readsNumbers()
    {
        QFETCH(QByteArray, text);
        QFETCH(double, value);
        const QVector<SampleList> samples = readSamples("[[7," + text + ",8]]");
        QCOMPARE(samples.size(), 1);
        QCOMPARE(samples[0].size(), 3);
        QCOMPARE(bits(std::abs(samples[0][1])), bits(std::abs(value)));
        QVERIFY(value != 0.0 || !text.startsWith("-0") || std::signbit(samples[0][1]));
    }

    void readsAcrossBufferEnds()
    {
        const QByteArray numbers = "[-12.5e-1,0,1e+2,123456789]";
        const QByteArray tail =
            ", \"comment\": \"a\\u00e4\\\"b\\\\\", \"clock\": 50, \"markers\": [true, null, false]}";
        for (int shift = 0; shift < 140; ++shift) {
            const QByteArray text = "{" + QByteArray(65536 - 70 - shift, ' ') + "\"sensor 2\":[" + numbers + "]" + tail;
            auto document = read(text);
            QVERIFY(document && document->samples[1]);
            QCOMPARE(*document->samples[1]->front().take(), (SampleList{-1.25, 0.0, 100.0, 123456789.0}));
            QCOMPARE(*document->comment, "aä\"b\\"_s);
            QCOMPARE(*document->clock, 50);
            QCOMPARE(document->markers->size(), 3);
        }
    }

    void readsOddMeasurements_data()
    {
        columns<QByteArray, QVector<SampleList>>("text", "expected");
        const auto row = [](const QByteArray &text, const QVector<SampleList> &expected) {
            ::row(text.constData(), text, expected);
        };
        row("[]", {});
        row("[[],[]]", {{}, {}});
        row("[ [ ] , [ 1 ] ]", {{}, {1.0}});
        row(R"([[1,"2",3]])", {{1.0, 0.0, 3.0}});
        row("[[null,true,[4,[5]],{\"a\":6},7]]", {{0.0, 0.0, 0.0, 0.0, 7.0}});
        row(R"([5,"x",{"a":[1]},[2]])", {{}, {}, {}, {2.0}});
    }

    void readsOddMeasurements()
    {
        QFETCH(QByteArray, text);
        QTEST(readSamples(text), "expected");
    }

    void readsStrings_data()
    {
        columns<QByteArray, QString>("json", "text");
        row("empty", ""_ba, QString());
        row("escapes", R"(\"\\\/\b\f\n\r\t)"_ba, "\"\\/\b\f\n\r\t");
        row("code units", R"(\u20AC\ud83d\ude00)"_ba, "\u20ac\U0001F600");
        row("lone surrogate", R"(x\udc00y)"_ba, QString("x"_s + QChar(0xdc00) + QLatin1Char('y')));
        row("zero", R"(a\u0000b)"_ba, QString("a"_s + QChar(0) + QLatin1Char('b')));
        row("byte order marks", "\xEF\xBB\xBF\xEF\xBB\xBFx"_ba, QString(QString(2, QChar(0xfeff)) + QLatin1Char('x')));
        row("cut code unit", R"(\u12)"_ba, "u12");
        row("broken UTF-8", "a\xff!"_ba, QString("a"_s + QChar(0xfffd) + QLatin1Char('!')));
        row("long", QByteArray(300000, 'x'), QString(300000, QLatin1Char('x')));
    }

    void readsStrings()
    {
        QFETCH(QByteArray, json);
        const auto document = read("{\"comment\":\"" + json + "\"}");
        QVERIFY(document && document->comment);
        QTEST(*document->comment, "text");
    }

    void boundsWhatItKeeps()
    {
        const QByteArray list = "[" + "0,"_ba.repeated(1000000) + "0]";
        const auto document = read("{\"x\":" + list + ",\"markers\":" + list + ",\"corrections\":" + list + "}");
        QVERIFY(document);
        QCOMPARE(document->markers->size(), 64);
        QCOMPARE(document->corrections->size(), 64);
    }
};

QTEST_GUILESS_MAIN(TestProjectFile)
#include "tst_projectfile.moc"
