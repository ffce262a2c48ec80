#pragma once

#include "kit/material/qtmaterialabstractbutton.h"

/// A push button without a surface, for less important actions: coloured text that is tinted on hover,
/// focus and press. A checked one stays tinted and outlined, the default button of a dialog is outlined.
class QtMaterialFlatButton : public QtMaterialAbstractButton
{
    Q_OBJECT

public:
    explicit QtMaterialFlatButton(QWidget *parent = nullptr);
    explicit QtMaterialFlatButton(const QString &text, QWidget *parent = nullptr);
    QtMaterialFlatButton(const QIcon &icon, const QString &text, QWidget *parent = nullptr);

protected:
    void paintSurface(QPainter &painter) const override;
    [[nodiscard]] QColor contentColor() const override;
};
