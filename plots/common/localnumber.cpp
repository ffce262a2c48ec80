#include "plots/common/localnumber.h"

#include <QLocale>

QString localNumber(double value, char format, int precision)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(value, format, precision);
}
