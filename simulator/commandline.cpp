#include "simulator/commandline.h"

#include <QCommandLineParser>

#include <limits>

namespace {

void addOptions(QCommandLineParser &parser)
{
    const auto text = [](const char *latin1) { return QString::fromLatin1(latin1); };
    parser.setApplicationDescription(
        text("A measuring box without hardware: five sensors on a moulding tool, over TCP."));
    parser.addOptions({
        {text("port"), text("Listen on this port; 0 takes any free one."), text("number"), text("2222")},
        {text("address"), text("Listen on this address; 0.0.0.0 for all."), text("address"), text("127.0.0.1")},
        {text("seed"), text("Repeats the same noise and variation for the same number."), text("number"), text("1")},
        {text("cycle"), text("Length of a mould cycle."), text("seconds"), text("12")},
        {text("repeat"), text("Repeat the cycle in a run; otherwise one cycle, then the idle level.")},
        {text("project-description"), text("Send a project description with the device description.")},
        {text("no-sensor-description"), text("Do not describe the sensors; the values are then thousandths.")},
        {text("reboot-pause"), text("Time without a listening port after a reboot."), text("ms"), text("2000")},
        {text("drop-after"), text("Drop each link after so many bytes."), text("bytes")},
        {text("silence"), text("Take commands, but say nothing.")},
        {text("garbage"), text("Send a meaningless line before every sample.")},
        {text("long-lines"), text("Send a line of more than 1023 bytes before every tenth sample.")},
        {text("burst"), text("Begin each run with so many samples at once."), text("lines"), text("0")},
        {text("data-folder"), text("List the days of this folder, and log every run there."), text("folder")},
        {text("until-input-closes"),
         text("End when the standard input ends, as it does with the program that gave it.")},
        {{text("h"), text("help")}, text("Show this help.")},
    });
}

/// Reads the options that are numbers and remembers the first one that is not.
class Numbers
{
public:
    explicit Numbers(const QCommandLineParser &parser)
        : m_parser(parser)
    {}

    template <typename Number>
    [[nodiscard]] Number value(const char *name, Number lowest, Number highest)
    {
        const QString text = m_parser.value(QLatin1String(name));
        bool ok = false;
        const double number = text.toDouble(&ok);
        const auto converted = ok && number >= static_cast<double>(lowest) && number <= static_cast<double>(highest)
                                   ? static_cast<Number>(number)
                                   : lowest;
        // Compared in this way so that a fraction is no number of lines, and "nan" is no number of seconds.
        const bool exact = static_cast<double>(converted) >= number && static_cast<double>(converted) <= number;
        if (!(ok && exact) && m_error.isEmpty())
            m_error = QStringLiteral("--%1: \"%2\" is not a number that fits").arg(QLatin1String(name), text);
        return converted;
    }
    [[nodiscard]] QString error() const { return m_error; }

private:
    const QCommandLineParser &m_parser;
    QString m_error;
};

BoxOptions boxOptions(const QCommandLineParser &parser, Numbers &numbers)
{
    constexpr int kMaxInt = std::numeric_limits<int>::max();
    const auto isSet = [&parser](const char *name) { return parser.isSet(QLatin1String(name)); };
    BoxOptions box;
    box.seed = numbers.value<quint32>("seed", 0, std::numeric_limits<quint32>::max());
    box.cycleSeconds = numbers.value<double>("cycle", 0.1, 3600.0);
    box.repeatCycles = isSet("repeat");
    box.sendsProjectDescription = isSet("project-description");
    box.describesSensors = !isSet("no-sensor-description");
    box.rebootPause = numbers.value<int>("reboot-pause", 0, kMaxInt);
    if (isSet("drop-after"))
        box.dropAfter = numbers.value<qint64>("drop-after", 0, qint64{1} << 52);
    box.silent = isSet("silence");
    box.garbage = isSet("garbage");
    box.longLines = isSet("long-lines");
    box.burst = numbers.value<int>("burst", 0, kMaxInt);
    box.dataFolder = parser.value(QStringLiteral("data-folder"));
    return box;
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    CommandLine line;
    if (!parser.parse(arguments)) {
        line.error = parser.errorText();
        return line;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        line.help = parser.helpText();
        return line;
    }
    Numbers numbers(parser);
    line.box = boxOptions(parser, numbers);
    line.port = numbers.value<quint16>("port", 0, std::numeric_limits<quint16>::max());
    line.error = numbers.error();
    line.untilInputCloses = parser.isSet(QStringLiteral("until-input-closes"));
    if (!line.address.setAddress(parser.value(QStringLiteral("address"))))
        line.error = QStringLiteral("--address: no IP address");
    if (!parser.positionalArguments().isEmpty())
        line.error = QStringLiteral("unexpected: ") + parser.positionalArguments().constFirst();
    return line;
}
