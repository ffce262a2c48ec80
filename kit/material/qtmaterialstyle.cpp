#include "kit/material/qtmaterialstyle.h"

#include "kit/logging.h"
#include "kit/material/qtmaterialtheme.h"

QtMaterialStyle &QtMaterialStyle::instance()
{
    static QtMaterialStyle style;
    return style;
}

QtMaterialStyle::QtMaterialStyle()
    : m_theme(std::make_unique<QtMaterialTheme>())
{}

QtMaterialStyle::~QtMaterialStyle() = default;

void QtMaterialStyle::setTheme(std::unique_ptr<QtMaterialTheme> theme)
{
    if (!theme) {
        qCWarning(lcKit) << "ERROR: no theme given!";
        return;
    }
    m_theme = std::move(theme);
    qCDebug(lcKit) << "emit themeChanged()";
    emit themeChanged();
}

QColor QtMaterialStyle::themeColor(const QString &key) const
{
    return m_theme->getColor(key);
}
