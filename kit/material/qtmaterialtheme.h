#pragma once

#include <QColor>
#include <QHash>
#include <QString>
#include <QStringList>

/// The colours of the material widgets, by key. The keys are fixed: a misspelt one is logged, not stored.
class QtMaterialTheme
{
public:
    /// "primary1" to "primary3", "accent1" to "accent3", "text", "alternateText", "canvas", "border", "disabled",
    /// "disabled2", "disabled3".
    [[nodiscard]] static QStringList keys();

    /// An unknown key or an invalid colour is logged and ignored.
    void setColor(const QString &key, const QColor &color);
    /// Black for a key that is unknown or has no colour yet; both are logged.
    [[nodiscard]] QColor getColor(const QString &key) const;

private:
    QHash<QString, QColor> m_colors;
};
