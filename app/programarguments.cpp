#include "app/programarguments.h"

#include "app/theme.h"

#include <QCommandLineParser>

#include <algorithm>
#include <cstring>

namespace {

const QStringList kHelp{QStringLiteral("h"), QStringLiteral("help")};
const QStringList kVersion{QStringLiteral("v"), QStringLiteral("version")};

bool isLetterOrName(const char *argument, const QStringList &names)
{
    const QString given = QString::fromLocal8Bit(argument);
    return given == QLatin1Char('-') + names.constFirst() || given == QLatin1String("--") + names.constLast();
}

/// Qt's own words for these options would be in English.
QString helpText(const QString &program)
{
    return ProgramArguments::tr("Aufruf: %1 [Optionen] [Projekt.vnt]\n"
                                "Zeichnet Messungen an Spritzgießwerkzeugen auf und wertet sie aus.\n"
                                "\n"
                                "Optionen:\n"
                                "  -h, --help     zeigt diese Hilfe\n"
                                "  -v, --version  zeigt die Version\n"
                                "\n"
                                "Argumente:\n"
                                "  Projekt.vnt    Projekt, das geöffnet wird; bei mehreren wird keines geöffnet. Ein\n"
                                "                 Name, der mit \"-\" beginnt, wird als \"./-Name\" angegeben.\n")
        .arg(program);
}

/// As it was typed, for which there is a name without hyphens and value.
QString typedOption(const QStringList &arguments, const QString &name)
{
    const auto isIt = [&name](const QString &argument) {
        return argument.startsWith(QLatin1Char('-')) && argument.contains(name);
    };
    const auto typed = std::find_if(arguments.cbegin(), arguments.cend(), isIt);
    return typed == arguments.cend() ? name : *typed;
}

QString mistakeText(const QString &option, const QString &program)
{
    return ProgramArguments::tr("Unbekannte Option: %1\n"
                                "Ein Dateiname, der mit \"-\" beginnt, wird als \"./-Name\" angegeben.\n"
                                "Hilfe: %2 --help\n")
        .arg(option, program);
}

} // namespace

ProgramArguments::ProgramArguments(const QStringList &arguments)
    : m_arguments(arguments.mid(0, 1))
{
    const QString program = theme::applicationName.toLower();
    QCommandLineParser parser;
    parser.addOption(QCommandLineOption(kHelp));
    parser.addOption(QCommandLineOption(kVersion));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const bool isKnown = parser.parse(arguments);
    m_arguments += parser.positionalArguments();
    if (parser.isSet(kHelp.constLast()))
        m_answer = helpText(program);
    else if (parser.isSet(kVersion.constLast()))
        m_answer = theme::applicationName + QLatin1Char(' ') + theme::applicationVersion + QLatin1Char('\n');
    m_isMistaken = m_answer.isEmpty() && !isKnown;
    if (m_isMistaken)
        m_answer = mistakeText(typedOption(arguments, parser.unknownOptionNames().value(0)), program);
}

bool ProgramArguments::isQuestion(int argc, const char *const *argv)
{
    const auto end = std::find_if(argv + 1, argv + argc, [](const char *text) { return std::strcmp(text, "--") == 0; });
    return std::any_of(argv + 1, end, [](const char *argument) {
        return isLetterOrName(argument, kHelp) || isLetterOrName(argument, kVersion);
    });
}
