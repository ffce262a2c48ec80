#pragma once

#include <QColor>
#include <QObject>

#include <memory>

class QtMaterialTheme;

/// Where the material widgets find the theme that is in force. One for the program; use it from the GUI thread.
class QtMaterialStyle : public QObject
{
    Q_OBJECT

public:
    [[nodiscard]] static QtMaterialStyle &instance();
    ~QtMaterialStyle() override;

    /// Takes the theme, drops the one before. Null is logged and ignored.
    void setTheme(std::unique_ptr<QtMaterialTheme> theme);
    /// Black where the theme has no such colour, see QtMaterialTheme::getColor(), or as long as there is no theme.
    [[nodiscard]] QColor themeColor(const QString &key) const;

signals:
    /// Widgets repaint on this.
    void themeChanged();

private:
    QtMaterialStyle();

    std::unique_ptr<QtMaterialTheme> m_theme;
};
