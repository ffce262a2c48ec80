#pragma once

#include "view/common/calmspinbox.h"

#include <QSpinBox>

/// The tab's spin box for whole numbers.
class OsziSpinBox : public CalmSpinBox<QSpinBox>
{
    Q_OBJECT

public:
    using CalmSpinBox::CalmSpinBox;
};
