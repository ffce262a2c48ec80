#pragma once

#include "kit/material/qtmaterialabstractbutton.h"

/// A push button on a coloured surface that floats above the page and rises on hover and press, for the important
/// actions. A checkable one has a plain surface while it is not checked. Its shadow is inside the widget: neighbours
/// may be placed next to it without a gap.
class QtMaterialRaisedButton : public QtMaterialAbstractButton
{
    Q_OBJECT

public:
    explicit QtMaterialRaisedButton(QWidget *parent = nullptr);
    explicit QtMaterialRaisedButton(const QString &text, QWidget *parent = nullptr);
    QtMaterialRaisedButton(const QIcon &icon, const QString &text, QWidget *parent = nullptr);

protected:
    void paintSurface(QPainter &painter) const override;
    [[nodiscard]] QColor contentColor() const override;

private:
    [[nodiscard]] bool isColored() const { return !isCheckable() || isChecked(); }
    void paintShadow(QPainter &painter) const;
};
