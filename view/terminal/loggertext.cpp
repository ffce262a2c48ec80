#include "view/terminal/loggertext.h"

#include <QLocale>

namespace {

constexpr int kHeadlineColumns = 2;
constexpr int kValueDigits = 6;
constexpr int kTimeDecimals = 3;

} // namespace

QString loggerHeadlineText(const LoggerColumns &columns)
{
    QString names = QStringLiteral("time");
    QString rule = QStringLiteral("------");
    for (int i = 0; i < kHeadlineColumns; ++i) {
        if (!columns[static_cast<std::size_t>(i)])
            continue;
        names += QStringLiteral("\tSensor %1").arg(i + 1);
        rule += QLatin1String("\t--");
    }
    return names + QLatin1Char('\n') + rule;
}

QString loggerSampleText(double seconds, const std::array<double, kNumSensors> &values, const LoggerColumns &columns)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator); // spreadsheets take the text as it is
    QString line = locale.toString(seconds, 'f', kTimeDecimals);
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (columns[i])
            line += QLatin1Char('\t') + locale.toString(values[i], 'g', kValueDigits);
    }
    return line;
}
