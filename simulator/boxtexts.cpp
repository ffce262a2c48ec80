#include "simulator/boxtexts.h"

#include <cmath>

namespace {

QByteArray attribute(const char *key, const QByteArray &value)
{
    return QByteArray(" ") + key + "=\"" + value + '"';
}

QByteArray projectDescription()
{
    return "<projectDescription" + attribute("projectName", "Schraubkappe 28 mm")
           + attribute("projectNumber", "P-2024-017") + attribute("projectPerson", "M. Sommer")
           + attribute("projectDate", "05.03.2024") + attribute("projectCustomer", "Musterwerk")
           + attribute("closePower", "850") + attribute("injectionTime", "1.2") + attribute("pressTime", "3.0")
           + attribute("pressure", "520") + attribute("phase1", "Schliessen") + attribute("phase2", "Einspritzen")
           + attribute("phase3", "Nachdruck") + attribute("phase4", "Kuehlen") + attribute("phase5", "Oeffnen") + "/>";
}

} // namespace

QByteArray deviceDescriptionLine(bool withProject)
{
    QByteArray line = "<deviceDescription" + attribute("hardwareVersion", "2.1") + attribute("firmwareVersion", "8.0.3")
                      + attribute("numGroups", "1") + "><group" + attribute("name", "Werkzeug")
                      + attribute("numChannels", QByteArray::number(kNumSensors)) + '>';
    for (int i = 0; i < kNumSensors; ++i)
        line += "<channel" + attribute("min", "0") + attribute("max", "10") + "/>";
    line += "</group></deviceDescription>";
    if (withProject)
        line += projectDescription();
    return line + '\n';
}

QByteArray sensorDescriptionLine()
{
    QByteArray line = "<sensorDescription" + attribute("numGroups", "1") + "><group" + attribute("groupPos", "0")
                      + attribute("name", "Werkzeug") + attribute("numSensors", QByteArray::number(kNumSensors)) + '>';
    for (const SimulatedSensor &sensor : simulatedSensors()) {
        line += "<sensor" + attribute("name", sensor.name) + attribute("type", sensor.type)
                + attribute("min", QByteArray::number(sensor.minimum))
                + attribute("max", QByteArray::number(sensor.maximum)) + attribute("unit", sensor.unit) + "/>";
    }
    return line + "</group></sensorDescription>\n";
}

QByteArray listBlock()
{
    return "list {\n.\n..\ndir-20240304\ndir-20240305\ndir-20240306\n} list\n";
}

QByteArray sampleLine(quint64 counter, const SampleValues &values, bool inThousandths)
{
    QByteArray line = QByteArray::number(counter);
    for (double value : values) {
        line += ';';
        line += inThousandths ? QByteArray::number(static_cast<qint64>(std::llround(value * 1000.0)))
                              : QByteArray::number(value, 'f', 3);
    }
    return line + '\n';
}

QByteArray garbageLine(quint64 number)
{
    static const std::array<QByteArray, 12> lines{
        QByteArray(),
        QByteArray("t=abc"),
        QByteArray("t=99999999999999999999"),
        QByteArray("run=2"),
        QByteArray(";;;;;"),
        QByteArray("+1;2;3;4;5;6"),
        QByteArray("nan;inf;1e999"),
        QByteArray("<group name="),
        QByteArray("\"\"\"=\"<<<"),
        QByteArray("\xFF\xFE\xC2", 3),
        QByteArray("\0\0;\0\x1B[2J\x07", 9),
        QByteArray("Error 0x80: %1 %n %s"),
    };
    return lines.at(number % lines.size()) + '\n';
}

QByteArray overlongLine(quint64 number)
{
    // A prime step spreads the lengths over the whole range.
    return QByteArray(1100 + static_cast<int>(number * 379 % 1900), 'x') + '\n';
}
