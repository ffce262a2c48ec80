#pragma once

#include <QColor>
#include <QObject>

#include <memory>

class QtMaterialTheme;

/// Holds the current theme for the material widgets. There is one per program, to be used from the GUI thread.
class QtMaterialStyle : public QObject
{
    Q_OBJECT

public:
    [[nodiscard]] static QtMaterialStyle &instance();
    ~QtMaterialStyle() override;

    /// Replaces the theme. Null is logged and ignored.
    void setTheme(std::unique_ptr<QtMaterialTheme> theme);
    /// Black if the theme has no such colour, see QtMaterialTheme::getColor(), or while there is no theme.
    [[nodiscard]] QColor themeColor(const QString &key) const;

signals:
    /// Another theme applies; widgets repaint.
    void themeChanged();

private:
    QtMaterialStyle();

    std::unique_ptr<QtMaterialTheme> m_theme;
};
