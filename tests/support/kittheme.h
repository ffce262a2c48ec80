#pragma once

#include "kit/material/qtmaterialstyle.h"
#include "kit/material/qtmaterialtheme.h"

#include <QHash>

/// Puts a theme in force in which every colour is the same, but for the exceptions.
inline void useKitTheme(const QColor &color, const QHash<QString, QColor> &exceptions = {})
{
    auto theme = std::make_unique<QtMaterialTheme>();
    for (const QString &key : QtMaterialTheme::keys())
        theme->setColor(key, exceptions.value(key, color));
    QtMaterialStyle::instance().setTheme(std::move(theme));
}
