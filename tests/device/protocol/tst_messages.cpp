#include "device/protocol/descriptions.h"
#include "device/protocol/messages.h"
#include "device/protocol/sampleline.h"
#include "tests/support/literals.h"
#include "tests/support/rows.h"

#include <QElapsedTimer>

#include <cmath>
#include <cstring>
#include <limits>

namespace {

quint64 bitsOf(double value)
{
    quint64 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

QString deviceLine()
{
    return "<deviceDescription hardwareVersion=\"2.1\" firmwareVersion=\"5.0.3\" numGroups=\"2\">"
           "<group name=\"Analog\" numChannels=\"2\"><channel min=\"-10\" max=\"10.5\"/>"
           "<channel min=\"0\" max=\"1e999\"/></group>"
           "<group name=\"Digital\" numChannels=\"1\"><channel min=\"0\" max=\"1\"/></group>"
           "</deviceDescription>\n"_s;
}

QString sensorElement(int number, const QString &unit)
{
    return "<sensor name=\"S%1\" type=\"T%1\" min=\"-%1\" max=\"%1.5\" unit=\"%2\"/>"_s.arg(number).arg(unit);
}

QString sensorLine(const char *numGroups, const char *position, int numSensors)
{
    QString line = "<sensorDescription numGroups=\"%1\"><group groupPos=\"%2\" name=\"Tool\" numSensors=\"%3\">"_s.arg(
        QLatin1String(numGroups), QLatin1String(position), QString::number(numSensors));
    for (int i = 1; i <= numSensors; ++i)
        line += sensorElement(i, "bar"_s);
    return line + "</group></sensorDescription>\n"_s;
}

SensorDescription described(const QString &line)
{
    SensorDescription description;
    description.setNumSensorGroups(1);
    description.modifiableSensorGroup(0)->setNumSensors(kNumSensors);
    applySensorDescription(parseSensorDescription(line), description);
    return description;
}

} // namespace

Q_DECLARE_METATYPE(MessageKind)

class TestMessages : public QObject
{
    Q_OBJECT

private slots:
    void classifiesByTheFirstCharacters_data()
    {
        columns<QString, MessageKind>("line", "kind");
        row("digit", "0;1;2\n", MessageKind::Sample);
        row("minus", "-1.5;2;3\n", MessageKind::Sample);
        row("superscript digit", QString(QChar(0x00B2)), MessageKind::Other);
        row("plus", "+1;2;3\n", MessageKind::Other);
        row("start", "run=1\n", MessageKind::RunStarted);
        row("sensors", "<sensorDescription>\n", MessageKind::SensorDescription);
        row("list", "list {\n", MessageKind::ListBegin);
        row("entry", "dir-20240305\n", MessageKind::Other);
        row("empty", "", MessageKind::Other);
    }

    void classifiesByTheFirstCharacters()
    {
        QFETCH(QString, line);
        QTEST(classify(line), "kind");
    }

    void convertsFieldsLikeToDouble_data()
    {
        columns<QString>("field");
        for (const char *field : {"0",
                                  "-0",
                                  "-1.5",
                                  ".5",
                                  ".",
                                  "",
                                  " 7 ",
                                  "7\r",
                                  "1e5",
                                  "1e400",
                                  "nan",
                                  "inf",
                                  "0x10",
                                  "1,5",
                                  "--1",
                                  "1abc",
                                  "007",
                                  "0.3",
                                  "123.456",
                                  "9007199254740993",
                                  "0.1234567890123456789",
                                  "9223372036854775808.5",
                                  "1.7976931348623157e308",
                                  "179769313486231580000.25"})
            row(qPrintable("\"%1\""_s.arg(QString::fromUtf8(field))), field);
        row("NUL inside", QString::fromLatin1("1\0002", 3));
        row("no-break space", QString(QChar(0xA0)) + QLatin1Char('5'));
        row("Arabic digit", QString(QChar(0x0663)));
    }

    // The line feed, which follows the last field only, must make no difference either.
    void convertsFieldsLikeToDouble()
    {
        QFETCH(QString, field);
        const double converted = field.toDouble();
        const double expected = std::isfinite(converted) ? converted : 0.0;
        const auto line = parseSampleLine("1;"_s + field + QLatin1Char(';') + field + QLatin1Char('\n'));
        QVERIFY(line);
        QCOMPARE(bitsOf(line->values[0]), bitsOf(expected));
        QCOMPARE(bitsOf(line->values[1]), bitsOf(expected));
    }

    void convertsRandomNumbersLikeToDouble()
    {
        quint32 state = 20240305;
        const auto next = [&state] { return state = state * 1664525u + 1013904223u; };
        for (int i = 0; i < 20000; ++i) {
            const double number = (static_cast<double>(next()) - 2e9) / std::pow(10.0, next() % 12);
            const QString field = QString::number(number, 'f', static_cast<int>(next() % 14));
            const auto line = parseSampleLine("1;%1;2"_s.arg(field));
            QVERIFY(line);
            QVERIFY2(bitsOf(line->values[0]) == bitsOf(field.toDouble()), qPrintable(field));
        }
    }

    void splitsSampleLines_data()
    {
        // numFields: 0: no sample
        columns<QString, double, int, QVector<double>>("line", "divisor", "numFields", "values");
        const QVector<double> none;
        row("all", "7;1;2;3;4;5\n", 1.0, 6, QVector<double>{1, 2, 3, 4, 5});
        row("negative counter", "-1.5;2;3\n", 1.0, 3, QVector<double>{2, 3, 0, 0, 0});
        row("thousandths", "0;1500;250\n", 1000.0, 3, QVector<double>{1.5, 0.25, 0, 0, 0});
        row("empty fields", "0;;2;;4;\n", 1.0, 6, QVector<double>{0, 2, 0, 4, 0});
        row("more than six", "0;1;2;3;4;5;6;7\n", 1.0, 8, QVector<double>{1, 2, 3, 4, 5});
        row("two fields", "12;1\n", 1.0, 0, none);
        row("empty", "", 1.0, 0, none);
        row("not finite", "0;nan;inf;-inf;1e999;5", 1.0, 6, QVector<double>{0, 0, 0, 0, 5});
    }

    void splitsSampleLines()
    {
        QFETCH(QString, line);
        QFETCH(double, divisor);
        QFETCH(QVector<double>, values);
        const std::optional<SampleLine> sample = parseSampleLine(line, divisor);
        QTEST(sample ? sample->numFields : 0, "numFields");
        if (sample)
            QCOMPARE(QVector<double>(sample->values.begin(), sample->values.end()), values);
    }

    void readsADeviceDescription()
    {
        const DeviceDescription device = parseDeviceDescription(deviceLine());
        QCOMPARE(device.hardwareVersion, "2.1"_s);
        QCOMPARE(device.firmwareVersion, "5.0.3"_s);
        QCOMPARE(device.numGroups, 2);
        QCOMPARE(device.groups.size(), 2);
        QCOMPARE(device.groups.at(0).name, "Analog"_s);
        QCOMPARE(device.groups.at(0).numChannels, 2);
        QCOMPARE(device.groups.at(0).channels.size(), 2);
        QCOMPARE(device.groups.at(0).channels.at(0).minimum, -10.0);
        QCOMPARE(device.groups.at(0).channels.at(0).maximum, 10.5);
        QCOMPARE(device.groups.at(0).channels.at(1).maximum, 0.0); // not finite
        QCOMPARE(device.groups.at(1).name, "Digital"_s);
        QCOMPARE(device.groups.at(1).channels.size(), 1);
    }

    void readsOneDigitOfACount()
    {
        QCOMPARE(parseSensorDescription("<sensorDescription numGroups=\"12\">"_s).numGroups, 1);
        QCOMPARE(parseSensorDescription("<sensorDescription numGroups=\"-3\">"_s).numGroups, 0);
        QCOMPARE(parseSensorDescription("<sensorDescription numGroups=\"\">"_s).numGroups, 0);
        QCOMPARE(parseDeviceDescription("<deviceDescription numGroups="_s).numGroups, 0);
    }

    void readsASensorDescription()
    {
        const SensorDescription description =
            described("<sensorDescription numGroups=\"2\"><group groupPos=\"1\" name=\"Second\" numSensors=\"1\">"_s
                      + sensorElement(9, "mm"_s) + "</group><group groupPos=\"0\" name=\"First\" numSensors=\"5\">"_s
                      + sensorElement(1, "bar"_s) + sensorElement(2, "V"_s) + "</group>\n"_s);
        QCOMPARE(description.numSensorGroups(), 2);
        QCOMPARE(description.sensorGroup(1).name(), "Second"_s);
        QCOMPARE(description.sensorGroup(1).numSensors(), 1);
        QCOMPARE(description.sensorGroup(1).sensorName(0), "S9"_s);
        const SensorGroup &first = description.sensorGroup(0);
        QCOMPARE(first.name(), "First"_s);
        QCOMPARE(first.sensorName(1), "S2"_s);
        QCOMPARE(first.sensorType(1), "T2"_s);
        QCOMPARE(first.sensorUnit(1), "V"_s);
        QCOMPARE(first.sensorMinimum(1), -2.0);
        QCOMPARE(first.sensorMaximum(1), 2.5);
        QCOMPARE(first.sensorName(2), "Sensor X"_s); // announced, but not described
    }

    void repairsUnits_data()
    {
        columns<QByteArray, QString>("sent", "unit");
        row("degree",
            "\xC2\xB0"
            "C"_ba,
            "°C");
        row("degree as one byte",
            "\xB0"
            "C"_ba,
            "°C");
        row("micro",
            "\xC2\xB5"
            "m"_ba,
            "µm");
    }

    void repairsUnits()
    {
        QFETCH(QByteArray, sent);
        const QString line = "<sensorDescription numGroups=\"1\"><group groupPos=\"0\" name=\"\" numSensors=\"5\">"_s;
        const QString wire = QString::fromLatin1(sent);
        QTEST(described(line + sensorElement(1, wire)).sensorGroup(0).sensorUnit(0), "unit");
    }

    void keepsFiveSensors_data()
    {
        columns<QString, QString>("line", "firstName");
        row("as announced", sensorLine("1", "0", 5), "S1");
        row("three only", sensorLine("1", "0", 3), "S1");
        row("group behind the end", sensorLine("1", "7", 5), "Sensor X");
        row("negative group", sensorLine("1", "-1", 5), "Sensor X");
        row("huge group", sensorLine("1", "2147483647", 5), "Sensor X");
        row("no groups", "<sensorDescription numGroups=\"0\">", "Sensor X");
        row("more sensors than announced", sensorLine("1", "0", 5).replace("</group>"_s, sensorElement(6, QString())),
            "S1");
    }

    void keepsFiveSensors()
    {
        QFETCH(QString, line);
        const SensorDescription description = described(line);
        QCOMPARE(description.numSensorGroups(), 1);
        QCOMPARE(description.sensorGroup(0).numSensors(), kNumSensors);
        QTEST(description.sensorGroup(0).sensorName(0), "firstName");
    }

    void survivesHostileDescriptions_data()
    {
        columns<QString>("part");
        for (const char *part :
             {"<group", "<sensor", "<channel", "<group<sensor ", "<group name=\"<channel min=\"", "name=", "\"",
              "<sensor name=\"", "<sensor unit=\xC3\x82", "numSensors=\"9\"<group groupPos=\"0\"<sensor max=\"nan\""})
            row(part, QString::fromUtf8(part));
    }

    // Two thousand such lines arrive within a second or two; a cost that grows with the square of the elements would
    // show.
    void survivesHostileDescriptions()
    {
        QFETCH(QString, part);
        const QString line =
            "<sensorDescription numGroups=\"9\"<projectDescription<group"_s + part.repeated(1000 / part.size());
        QElapsedTimer elapsed;
        elapsed.start();
        for (int i = 0; i < 500; ++i) {
            QVERIFY(described(line).sensorGroup(0).numSensors() >= kNumSensors);
            QVERIFY(parseDeviceDescription(line).groups.size() <= line.size());
            QVERIFY(parseProjectDescription(line).has_value());
        }
        qInfo("%.3f ms a line", static_cast<double>(elapsed.nsecsElapsed()) / 1e6 / 500.0);
    }
};

QTEST_APPLESS_MAIN(TestMessages)
#include "tst_messages.moc"
