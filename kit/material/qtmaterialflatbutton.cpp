#include "kit/material/qtmaterialflatbutton.h"

#include "kit/material/qtmaterialpaint.h"

#include <QPainter>

namespace {

constexpr qreal kCheckedTint = 0.16;

} // namespace

QtMaterialFlatButton::QtMaterialFlatButton(QWidget *parent)
    : QtMaterialAbstractButton(QMargins(), parent)
{}

QtMaterialFlatButton::QtMaterialFlatButton(const QString &text, QWidget *parent)
    : QtMaterialFlatButton(QIcon(), text, parent)
{}

QtMaterialFlatButton::QtMaterialFlatButton(const QIcon &icon, const QString &text, QWidget *parent)
    : QtMaterialFlatButton(parent)
{
    setIcon(icon);
    setText(text);
}

void QtMaterialFlatButton::paintSurface(QPainter &painter) const
{
    if (!isChecked() && !isDefault())
        return;
    painter.setPen(isChecked() ? contentColor() : QtMaterialPaint::themeColor(QLatin1String("accent3")));
    if (isChecked())
        painter.setBrush(QtMaterialPaint::withOpacity(contentColor(), kCheckedTint));
    // Half a pixel inwards: the outline is centred on its path and stays sharp.
    painter.drawRoundedRect(QRectF(surface()).adjusted(0.5, 0.5, -0.5, -0.5), surfaceRadius(), surfaceRadius());
}

QColor QtMaterialFlatButton::contentColor() const
{
    return isEnabled() ? baseColor() : QtMaterialPaint::themeColor(QLatin1String("disabled"));
}
