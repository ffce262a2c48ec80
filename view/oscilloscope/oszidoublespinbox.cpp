#include "view/oscilloscope/oszidoublespinbox.h"

OsziDoubleSpinBox::OsziDoubleSpinBox(const QString &sample, QWidget *parent)
    : CalmSpinBox(sample, parent)
{}

QString OsziDoubleSpinBox::textFromValue(double value) const
{
    QLocale plain = locale();
    plain.setNumberOptions(QLocale::OmitGroupSeparator); // as QDoubleSpinBox does
    QString text = plain.toString(value, 'f', decimals());
    if (!text.contains(plain.decimalPoint()))
        return text;
    while (text.endsWith(plain.zeroDigit()))
        text.chop(1);
    if (text.endsWith(plain.decimalPoint()))
        text.chop(1);
    return text;
}
