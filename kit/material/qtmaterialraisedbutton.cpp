#include "kit/material/qtmaterialraisedbutton.h"

#include "kit/material/qtmaterialpaint.h"

#include <QPainter>

namespace {

using QtMaterialPaint::Depth;

constexpr Depth kResting{1, 3};
constexpr Depth kLifted{2, 5};
constexpr QMargins kShadowRoom(4, 5, 4, 5);

} // namespace

QtMaterialRaisedButton::QtMaterialRaisedButton(QWidget *parent)
    : QtMaterialAbstractButton(kShadowRoom, parent)
{}

QtMaterialRaisedButton::QtMaterialRaisedButton(const QString &text, QWidget *parent)
    : QtMaterialRaisedButton(QIcon(), text, parent)
{}

QtMaterialRaisedButton::QtMaterialRaisedButton(const QIcon &icon, const QString &text, QWidget *parent)
    : QtMaterialRaisedButton(parent)
{
    setIcon(icon);
    setText(text);
}

void QtMaterialRaisedButton::paintShadow(QPainter &painter) const
{
    // Both shadows are cached pixmaps; the transition between them only changes their opacity.
    if (lift() < 1.0) {
        painter.setOpacity(1.0 - lift());
        QtMaterialPaint::drawShadow(painter, surface(), surfaceRadius(), kResting);
    }
    if (lift() > 0.0) {
        painter.setOpacity(lift());
        QtMaterialPaint::drawShadow(painter, surface(), surfaceRadius(), kLifted);
    }
    painter.setOpacity(1.0);
}

void QtMaterialRaisedButton::paintSurface(QPainter &painter) const
{
    if (isEnabled()) {
        paintShadow(painter);
        painter.setBrush(isColored() ? baseColor() : QtMaterialPaint::themeColor(QLatin1String("canvas")));
    } else {
        painter.setBrush(QtMaterialPaint::themeColor(QLatin1String("disabled3")));
    }
    painter.drawRoundedRect(surface(), surfaceRadius(), surfaceRadius());
}

QColor QtMaterialRaisedButton::contentColor() const
{
    if (!isEnabled())
        return QtMaterialPaint::themeColor(QLatin1String("disabled"));
    return isColored() ? QtMaterialPaint::themeColor(QLatin1String("alternateText")) : baseColor();
}
