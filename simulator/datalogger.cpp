#include "simulator/datalogger.h"

#include "simulator/logging.h"

#include <QDir>

namespace {

constexpr int kDecimals = 3;

QByteArray header()
{
    QByteArray text = "[device]\nhardwareVersion=2.1\nfirmwareVersion=8.0.3\n[sensors]\nnumGroups=1\n"
                      "group0/name=Werkzeug\ngroup0/numSensors="
                      + QByteArray::number(kNumSensors) + '\n';
    int number = 0;
    for (const SimulatedSensor &sensor : simulatedSensors()) {
        const QByteArray key = "group0/sensor" + QByteArray::number(number++) + '/';
        text += key + "name=" + sensor.name + '\n' + key + "type=" + sensor.type + '\n' + key
                + "min=" + QByteArray::number(sensor.minimum) + '\n' + key + "max=" + QByteArray::number(sensor.maximum)
                + '\n' + key + "unit=" + sensor.unit + '\n';
    }
    return text;
}

/// Two runs may begin within one second; their names sort in the order in which they began.
QString freeName(const QDir &day, const QDateTime &time)
{
    const QString name = time.toString(QStringLiteral("yyyyMMdd-hhmmss"));
    QString file = name + QStringLiteral(".bb");
    for (int number = 2; day.exists(file); ++number)
        file = QStringLiteral("%1_%2.bb").arg(name).arg(number);
    return day.filePath(file);
}

} // namespace

void DataLogger::setFolder(const QString &folder)
{
    if (folder == m_folder)
        return;
    end();
    m_folder = folder;
}

void DataLogger::begin(const QDateTime &time, int period)
{
    end();
    if (!isActive())
        return;
    const QDir day(QDir(m_folder).filePath(QStringLiteral("dir-") + time.toString(QStringLiteral("yyyyMMdd"))));
    m_file.setFileName(freeName(day, time));
    if (!QDir().mkpath(day.path()) || !m_file.open(QIODevice::WriteOnly)) {
        qCWarning(lcSimulator).noquote() << "cannot write" << m_file.fileName();
        return;
    }
    write(header() + "[data]\nT=" + time.toString(QStringLiteral("yyyyMMdd-hhmmss")).toLatin1()
          + "\nt=" + QByteArray::number(period) + '\n');
}

void DataLogger::add(const SampleValues &values)
{
    if (!m_file.isOpen())
        return;
    QByteArray line = "A=[";
    for (std::size_t i = 0; i < values.size(); ++i)
        line += (i > 0 ? "," : "") + QByteArray::number(values[i], 'f', kDecimals);
    write(line + "]\n");
}

void DataLogger::write(const QByteArray &text)
{
    if (m_file.write(text) == text.size())
        return;
    qCWarning(lcSimulator).noquote() << "cannot write" << m_file.fileName() << m_file.errorString();
    m_file.close(); // so that the error is not logged for every further sample
}

void DataLogger::end()
{
    m_file.close();
}

QByteArray DataLogger::listBlock() const
{
    QByteArray block = "list {\n.\n..\n"; // the box lists its folder with these two
    const QStringList entries = QDir(m_folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &entry : entries)
        block += entry.toUtf8() + '\n';
    return block + "} list\n";
}
