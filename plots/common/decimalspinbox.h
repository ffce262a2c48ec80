#pragma once

#include <QDoubleSpinBox>

/// A number field that takes both comma and point as the decimal point. QDoubleSpinBox takes the point of a German
/// "12.5" for a group separator and reads 125.
class DecimalSpinBox : public QDoubleSpinBox
{
public:
    using QDoubleSpinBox::QDoubleSpinBox;

    [[nodiscard]] QValidator::State validate(QString &input, int &position) const override;
    [[nodiscard]] double valueFromText(const QString &text) const override;

private:
    [[nodiscard]] QString withDecimalPoint(QString text) const;
};
