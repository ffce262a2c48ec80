#include "device/messages.h"

#include <QElapsedTimer>
#include <QTest>

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
    return QStringLiteral("<deviceDescription hardwareVersion=\"2.1\" firmwareVersion=\"5.0.3\" numGroups=\"2\">"
                          "<group name=\"Analog\" numChannels=\"2\"><channel min=\"-10\" max=\"10.5\"/>"
                          "<channel min=\"0\" max=\"1e999\"/></group>"
                          "<group name=\"Digital\" numChannels=\"1\"><channel min=\"0\" max=\"1\"/></group>"
                          "</deviceDescription>\n");
}

QString sensorElement(int number, const QString &unit)
{
    return QStringLiteral("<sensor name=\"S%1\" type=\"T%1\" min=\"-%1\" max=\"%1.5\" unit=\"%2\"/>")
        .arg(number)
        .arg(unit);
}

QString sensorLine(const char *numGroups, const char *position, int numSensors)
{
    QString line =
        QStringLiteral("<sensorDescription numGroups=\"%1\"><group groupPos=\"%2\" name=\"Tool\" numSensors=\"%3\">")
            .arg(QLatin1String(numGroups), QLatin1String(position), QString::number(numSensors));
    for (int i = 1; i <= numSensors; ++i)
        line += sensorElement(i, QStringLiteral("bar"));
    return line + QStringLiteral("</group></sensorDescription>\n");
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
    void classifiesByTheFirstCharacters_data();
    void classifiesByTheFirstCharacters();
    void convertsFieldsLikeToDouble_data();
    void convertsFieldsLikeToDouble();
    void convertsRandomNumbersLikeToDouble();
    void splitsSampleLines_data();
    void splitsSampleLines();
    void readsClockEchoes_data();
    void readsClockEchoes();
    void readsADeviceDescription();
    void readsOneDigitOfACount();
    void readsAProjectDescription();
    void readsASensorDescription();
    void repairsUnits_data();
    void repairsUnits();
    void keepsFiveSensors_data();
    void keepsFiveSensors();
    void survivesHostileDescriptions_data();
    void survivesHostileDescriptions();
};

void TestMessages::classifiesByTheFirstCharacters_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<MessageKind>("kind");
    QTest::newRow("digit") << "0;1;2\n" << MessageKind::Sample;
    QTest::newRow("minus") << "-1.5;2;3\n" << MessageKind::Sample;
    QTest::newRow("superscript digit") << QString(QChar(0x00B2)) << MessageKind::Other;
    QTest::newRow("plus") << "+1;2;3\n" << MessageKind::Other;
    QTest::newRow("start") << "run=1\n" << MessageKind::RunStarted;
    QTest::newRow("sensors") << "<sensorDescription>\n" << MessageKind::SensorDescription;
    QTest::newRow("list") << "list {\n" << MessageKind::ListBegin;
    QTest::newRow("entry") << "dir-20240305\n" << MessageKind::Other;
    QTest::newRow("empty") << "" << MessageKind::Other;
}

void TestMessages::classifiesByTheFirstCharacters()
{
    QFETCH(QString, line);
    QTEST(classify(line), "kind");
}

void TestMessages::convertsFieldsLikeToDouble_data()
{
    QTest::addColumn<QString>("field");
    const char *const fields[]{"0",
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
                               "179769313486231580000.25"};
    for (const char *field : fields)
        QTest::newRow(qPrintable(QStringLiteral("\"%1\"").arg(QString::fromUtf8(field)))) << field;
    QTest::newRow("NUL inside") << QString::fromLatin1("1\0002", 3);
    QTest::newRow("no-break space") << QString(QChar(0xA0)) + QLatin1Char('5');
    QTest::newRow("Arabic digit") << QString(QChar(0x0663));
}

// The line feed, which stands behind the last field only, must make no difference either.
void TestMessages::convertsFieldsLikeToDouble()
{
    QFETCH(QString, field);
    const double converted = field.toDouble();
    const double expected = std::isfinite(converted) ? converted : 0.0;
    const auto line = parseSampleLine(QLatin1String("1;") + field + QLatin1Char(';') + field + QLatin1Char('\n'));
    QVERIFY(line);
    QCOMPARE(bitsOf(line->values[0]), bitsOf(expected));
    QCOMPARE(bitsOf(line->values[1]), bitsOf(expected));
}

void TestMessages::convertsRandomNumbersLikeToDouble()
{
    quint32 state = 20240305;
    const auto next = [&state] { return state = state * 1664525u + 1013904223u; };
    for (int i = 0; i < 20000; ++i) {
        const double number = (static_cast<double>(next()) - 2e9) / std::pow(10.0, next() % 12);
        const QString field = QString::number(number, 'f', static_cast<int>(next() % 14));
        const auto line = parseSampleLine(QStringLiteral("1;%1;2").arg(field));
        QVERIFY(line);
        QVERIFY2(bitsOf(line->values[0]) == bitsOf(field.toDouble()), qPrintable(field));
    }
}

void TestMessages::splitsSampleLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<double>("divisor");
    QTest::addColumn<int>("numFields"); // 0: no sample
    QTest::addColumn<QVector<double>>("values");
    const QVector<double> none;
    QTest::newRow("all") << "7;1;2;3;4;5\n" << 1.0 << 6 << QVector<double>{1, 2, 3, 4, 5};
    QTest::newRow("negative counter") << "-1.5;2;3\n" << 1.0 << 3 << QVector<double>{2, 3, 0, 0, 0};
    QTest::newRow("thousandths") << "0;1500;250\n" << 1000.0 << 3 << QVector<double>{1.5, 0.25, 0, 0, 0};
    QTest::newRow("empty fields") << "0;;2;;4;\n" << 1.0 << 6 << QVector<double>{0, 2, 0, 4, 0};
    QTest::newRow("more than six") << "0;1;2;3;4;5;6;7\n" << 1.0 << 8 << QVector<double>{1, 2, 3, 4, 5};
    QTest::newRow("two fields") << "12;1\n" << 1.0 << 0 << none;
    QTest::newRow("empty") << "" << 1.0 << 0 << none;
    QTest::newRow("not finite") << "0;nan;inf;-inf;1e999;5" << 1.0 << 6 << QVector<double>{0, 0, 0, 0, 5};
}

void TestMessages::splitsSampleLines()
{
    QFETCH(QString, line);
    QFETCH(double, divisor);
    QFETCH(QVector<double>, values);
    const std::optional<SampleLine> sample = parseSampleLine(line, divisor);
    QTEST(sample ? sample->numFields : 0, "numFields");
    if (sample)
        QCOMPARE(QVector<double>(sample->values.begin(), sample->values.end()), values);
}

void TestMessages::readsClockEchoes_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<int>("period");
    QTest::newRow("usual") << "t=250\n" << true << 250;
    QTest::newRow("zero") << "t=0\n" << true << 0;
    QTest::newRow("largest") << "t=2147483647\n" << true << std::numeric_limits<int>::max();
    QTest::newRow("too large") << "t=2147483648\n" << false << 0;
    QTest::newRow("hexadecimal") << "t=0x10\n" << false << 0;
    QTest::newRow("no echo") << "5\n" << false << 0;
}

void TestMessages::readsClockEchoes()
{
    QFETCH(QString, line);
    const std::optional<int> period = parseClockEcho(line);
    QTEST(period.has_value(), "valid");
    QTEST(period.value_or(0), "period");
}

void TestMessages::readsADeviceDescription()
{
    const DeviceDescription device = parseDeviceDescription(deviceLine());
    QCOMPARE(device.hardwareVersion, QStringLiteral("2.1"));
    QCOMPARE(device.firmwareVersion, QStringLiteral("5.0.3"));
    QCOMPARE(device.numGroups, 2);
    QCOMPARE(device.groups.size(), 2);
    QCOMPARE(device.groups.at(0).name, QStringLiteral("Analog"));
    QCOMPARE(device.groups.at(0).numChannels, 2);
    QCOMPARE(device.groups.at(0).channels.size(), 2);
    QCOMPARE(device.groups.at(0).channels.at(0).minimum, -10.0);
    QCOMPARE(device.groups.at(0).channels.at(0).maximum, 10.5);
    QCOMPARE(device.groups.at(0).channels.at(1).maximum, 0.0); // not finite
    QCOMPARE(device.groups.at(1).name, QStringLiteral("Digital"));
    QCOMPARE(device.groups.at(1).channels.size(), 1);
}

void TestMessages::readsOneDigitOfACount()
{
    QCOMPARE(parseSensorDescription(QStringLiteral("<sensorDescription numGroups=\"12\">")).numGroups, 1);
    QCOMPARE(parseSensorDescription(QStringLiteral("<sensorDescription numGroups=\"-3\">")).numGroups, 0);
    QCOMPARE(parseSensorDescription(QStringLiteral("<sensorDescription numGroups=\"\">")).numGroups, 0);
    QCOMPARE(parseDeviceDescription(QStringLiteral("<deviceDescription numGroups=")).numGroups, 0);
}

void TestMessages::readsAProjectDescription()
{
    QVERIFY(!parseProjectDescription(deviceLine()));
    const auto project = parseProjectDescription(
        deviceLine().trimmed()
        + QStringLiteral(
            "<projectDescription projectName=\"Cap\" projectNumber=\"P-1\" projectPerson=\"Ada\" "
            "projectDate=\"05.03.2024\" projectCustomer=\"Acme\" closePower=\"850\" injectionTime=\"1.25\" "
            "pressTime=\"4.5\" pressure=\"620\" phase1=\"a\" phase2=\"b\" phase3=\"\" phase4=\"d\" "
            "phase5=\"e\"/>\n"));
    QVERIFY(project);
    const ProjectData expected{QStringLiteral("Cap"),
                               QStringLiteral("P-1"),
                               QStringLiteral("Ada"),
                               QStringLiteral("05.03.2024"),
                               QStringLiteral("Acme"),
                               850,
                               1.25,
                               4.5,
                               620};
    QCOMPARE(project->data, expected);
    const std::array<QString, kNumPhases> phases{QStringLiteral("a"), QStringLiteral("b"), QString(),
                                                 QStringLiteral("d"), QStringLiteral("e")};
    QVERIFY(project->phases == phases);
}

void TestMessages::readsASensorDescription()
{
    const SensorDescription description = described(
        QStringLiteral("<sensorDescription numGroups=\"2\"><group groupPos=\"1\" name=\"Second\" numSensors=\"1\">")
        + sensorElement(9, QStringLiteral("mm"))
        + QStringLiteral("</group><group groupPos=\"0\" name=\"First\" numSensors=\"5\">")
        + sensorElement(1, QStringLiteral("bar")) + sensorElement(2, QStringLiteral("V"))
        + QStringLiteral("</group>\n"));
    QCOMPARE(description.numSensorGroups(), 2);
    QCOMPARE(description.sensorGroup(1).name(), QStringLiteral("Second"));
    QCOMPARE(description.sensorGroup(1).numSensors(), 1);
    QCOMPARE(description.sensorGroup(1).sensorName(0), QStringLiteral("S9"));
    const SensorGroup &first = description.sensorGroup(0);
    QCOMPARE(first.name(), QStringLiteral("First"));
    QCOMPARE(first.sensorName(1), QStringLiteral("S2"));
    QCOMPARE(first.sensorType(1), QStringLiteral("T2"));
    QCOMPARE(first.sensorUnit(1), QStringLiteral("V"));
    QCOMPARE(first.sensorMinimum(1), -2.0);
    QCOMPARE(first.sensorMaximum(1), 2.5);
    QCOMPARE(first.sensorName(2), QStringLiteral("Sensor X")); // announced, but not described
}

void TestMessages::repairsUnits_data()
{
    QTest::addColumn<QByteArray>("sent");
    QTest::addColumn<QString>("unit");
    QTest::newRow("degree") << QByteArray("\xC2\xB0"
                                          "C")
                            << QStringLiteral("°C");
    QTest::newRow("degree as one byte") << QByteArray("\xB0"
                                                      "C")
                                        << QStringLiteral("°C");
    QTest::newRow("micro") << QByteArray("\xC2\xB5"
                                         "m")
                           << QStringLiteral("µm");
}

void TestMessages::repairsUnits()
{
    QFETCH(QByteArray, sent);
    const QString line =
        QStringLiteral("<sensorDescription numGroups=\"1\"><group groupPos=\"0\" name=\"\" numSensors=\"5\">");
    const QString wire = QString::fromLatin1(sent);
    QTEST(described(line + sensorElement(1, wire)).sensorGroup(0).sensorUnit(0), "unit");
}

void TestMessages::keepsFiveSensors_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("firstName");
    QTest::newRow("as announced") << sensorLine("1", "0", 5) << "S1";
    QTest::newRow("three only") << sensorLine("1", "0", 3) << "S1";
    QTest::newRow("group behind the end") << sensorLine("1", "7", 5) << "Sensor X";
    QTest::newRow("negative group") << sensorLine("1", "-1", 5) << "Sensor X";
    QTest::newRow("huge group") << sensorLine("1", "2147483647", 5) << "Sensor X";
    QTest::newRow("no groups") << "<sensorDescription numGroups=\"0\">"
                               << "Sensor X";
    QTest::newRow("more sensors than announced")
        << sensorLine("1", "0", 5).replace(QLatin1String("</group>"), sensorElement(6, QString())) << "S1";
}

void TestMessages::keepsFiveSensors()
{
    QFETCH(QString, line);
    const SensorDescription description = described(line);
    QCOMPARE(description.numSensorGroups(), 1);
    QCOMPARE(description.sensorGroup(0).numSensors(), kNumSensors);
    QTEST(description.sensorGroup(0).sensorName(0), "firstName");
}

void TestMessages::survivesHostileDescriptions_data()
{
    QTest::addColumn<QString>("part");
    for (const char *part :
         {"<group", "<sensor", "<channel", "<group<sensor ", "<group name=\"<channel min=\"", "name=", "\"",
          "<sensor name=\"", "<sensor unit=\xC3\x82", "numSensors=\"9\"<group groupPos=\"0\"<sensor max=\"nan\""})
        QTest::newRow(part) << QString::fromUtf8(part);
}

// Two thousand such lines arrive within a second or two; a cost that grows with the square of the elements would show.
void TestMessages::survivesHostileDescriptions()
{
    QFETCH(QString, part);
    const QString line = QStringLiteral("<sensorDescription numGroups=\"9\"<projectDescription<group")
                         + part.repeated(1000 / part.size());
    QElapsedTimer elapsed;
    elapsed.start();
    for (int i = 0; i < 500; ++i) {
        QVERIFY(described(line).sensorGroup(0).numSensors() >= kNumSensors);
        QVERIFY(parseDeviceDescription(line).groups.size() <= line.size());
        QVERIFY(parseProjectDescription(line).has_value());
    }
    qInfo("%.3f ms a line", static_cast<double>(elapsed.nsecsElapsed()) / 1e6 / 500.0);
}

QTEST_APPLESS_MAIN(TestMessages)
#include "tst_messages.moc"
