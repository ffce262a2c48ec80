#include "kit/material/qtmaterialpalette.h"

namespace QtMaterialPalette {

namespace {

QColor black(double opacity)
{
    QColor color(Qt::black);
    color.setAlphaF(opacity);
    return color;
}

} // namespace

QColor cyan700()
{
    return {0x00, 0x97, 0xa7};
}

QColor grey100()
{
    return {0xf5, 0xf5, 0xf5};
}

QColor grey300()
{
    return {0xe0, 0xe0, 0xe0};
}

QColor grey500()
{
    return {0x9e, 0x9e, 0x9e};
}

QColor red700()
{
    return {0xd3, 0x2f, 0x2f};
}

QColor white()
{
    return {0xff, 0xff, 0xff};
}

QColor lightBlack()
{
    return black(0.54);
}

QColor minBlack()
{
    return black(0.26);
}

QColor faintBlack()
{
    return black(0.12);
}

} // namespace QtMaterialPalette
