#pragma once

#include "plots/common/decimalspinbox.h"
#include "view/common/calmspinbox.h"

/// The tab's spin box for decimal numbers: shows no trailing zeros.
class OsziDoubleSpinBox : public CalmSpinBox<DecimalSpinBox>
{
    Q_OBJECT

public:
    explicit OsziDoubleSpinBox(const QString &sample, QWidget *parent = nullptr);

    [[nodiscard]] QString textFromValue(double value) const override;
};
