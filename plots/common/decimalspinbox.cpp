#include "plots/common/decimalspinbox.h"

QValidator::State DecimalSpinBox::validate(QString &input, int &position) const
{
    input = withDecimalPoint(input); // the user sees the replacement while typing
    return QDoubleSpinBox::validate(input, position);
}

double DecimalSpinBox::valueFromText(const QString &text) const
{
    return QDoubleSpinBox::valueFromText(withDecimalPoint(text));
}

QString DecimalSpinBox::withDecimalPoint(QString text) const
{
    const QChar point = locale().decimalPoint();
    return text.replace(QLatin1Char(','), point).replace(QLatin1Char('.'), point);
}
