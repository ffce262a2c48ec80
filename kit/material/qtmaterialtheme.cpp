#include "kit/material/qtmaterialtheme.h"

#include "kit/logging.h"

QStringList QtMaterialTheme::keys()
{
    return {QStringLiteral("primary1"), QStringLiteral("primary2"),      QStringLiteral("primary3"),
            QStringLiteral("accent1"),  QStringLiteral("accent2"),       QStringLiteral("accent3"),
            QStringLiteral("text"),     QStringLiteral("alternateText"), QStringLiteral("canvas"),
            QStringLiteral("border"),   QStringLiteral("disabled"),      QStringLiteral("disabled2"),
            QStringLiteral("disabled3")};
}

void QtMaterialTheme::setColor(const QString &key, const QColor &color)
{
    if (!keys().contains(key) || !color.isValid()) {
        qCWarning(lcKit) << "ERROR: theme colour not accepted! key=" << key << "color=" << color;
        return;
    }
    m_colors.insert(key, color);
}

QColor QtMaterialTheme::getColor(const QString &key) const
{
    const auto found = m_colors.constFind(key);
    if (found == m_colors.constEnd()) {
        qCWarning(lcKit) << "ERROR: theme has no such colour! key=" << key;
        return {Qt::black};
    }
    return *found;
}
