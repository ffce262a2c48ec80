#pragma once

#include "kit/material/qtmaterialinteractionstatemachine.h"
#include "kit/material/qtmaterialmotion.h"

#include <QMargins>
#include <QPushButton>

#include <optional>

class QtMaterialRipple;

/// What the material push buttons share: a rounded surface, an icon, a text with its mnemonic, the tint of hover, focus
/// and press, and a ripple that starts where the button is pressed. Can replace any QPushButton. The style sheet
/// sets its font and its minimum size, though never less than a gloved finger needs; everything else comes from the
/// current theme.
class QtMaterialAbstractButton : public QPushButton
{
    Q_OBJECT
    /// The key of the theme's colour that the button is made of; "primary1" by default.
    Q_PROPERTY(QString colorKey READ colorKey WRITE setColorKey)
    /// Pixels.
    Q_PROPERTY(int cornerRadius READ cornerRadius WRITE setCornerRadius)
    /// Whether the icon is painted in the colour of the text, which suits icons of one colour; true by default.
    Q_PROPERTY(bool iconTinted READ isIconTinted WRITE setIconTinted)
    Q_PROPERTY(bool animating READ isAnimating)

public:
    [[nodiscard]] QString colorKey() const { return m_colorKey; }
    /// A key that no theme has is logged and ignored.
    void setColorKey(const QString &key);
    [[nodiscard]] int cornerRadius() const { return m_cornerRadius; }
    /// At least 0; limited to a half circle at each side.
    void setCornerRadius(int radius);
    [[nodiscard]] bool isIconTinted() const { return m_iconTinted; }
    void setIconTinted(bool tinted);
    [[nodiscard]] bool isAnimating() const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    /// The surface is the widget without the margins.
    QtMaterialAbstractButton(const QMargins &margins, QWidget *parent);

    virtual void paintSurface(QPainter &painter) const = 0;
    /// Of text, focus ring and tint.
    [[nodiscard]] virtual QColor contentColor() const = 0;

    [[nodiscard]] QRect surface() const { return rect().marginsRemoved(m_margins); }
    /// The radius that fits into the surface.
    [[nodiscard]] int surfaceRadius() const;
    /// The button's own colour, opaque.
    [[nodiscard]] QColor baseColor() const;
    /// 0 to 1; animated.
    [[nodiscard]] qreal tint() const;
    /// 0 at rest, 1 while hovered or pressed; animated.
    [[nodiscard]] qreal lift() const;

    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void onPressed();
    void onReleased();
    void showState();
    void placeRipple();
    [[nodiscard]] QFont labelFont() const;
    [[nodiscard]] int labelFlags() const;
    [[nodiscard]] QSize labelSize() const;
    [[nodiscard]] QSize contentSize() const;
    void paintContent(QPainter &painter) const;
    void paintIcon(QPainter &painter, const QRect &place) const;
    void paintLabel(QPainter &painter, const QRect &area) const;

    const QMargins m_margins;
    QtMaterialInteractionStateMachine m_state;
    QtMaterialMotion m_motion;
    QtMaterialRipple *m_ripple;
    std::optional<QPointF> m_pressPoint; ///< none for a press by the keyboard
    QString m_colorKey = QStringLiteral("primary1");
    int m_cornerRadius = 4;
    bool m_iconTinted = true;
};
