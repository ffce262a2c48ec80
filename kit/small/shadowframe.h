#pragma once

#include <QColor>
#include <QFrame>

/// A card: a rounded white area with a soft shadow, around other widgets or painted content. Its contents margins
/// leave room for the shadow, so that a layout in it fills the card. The shadow is computed once per screen resolution
/// and stretched, so that resizing is cheap.
class ShadowFrame : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected)
    Q_PROPERTY(bool raisedByHover READ isRaisedByHover WRITE setRaisedByHover)

public:
    enum class Elevation { Flat, Low, High };
    Q_ENUM(Elevation)

    /// Pixels between the widget's edge and the card, on all sides and at every elevation.
    static constexpr int kShadow = 10;
    static constexpr double kRadius = 4.0; ///< of the card's corners

    explicit ShadowFrame(QWidget *parent = nullptr);

    /// Low by default. Flat has an outline instead of a shadow.
    [[nodiscard]] Elevation elevation() const { return m_elevation; }
    void setElevation(Elevation elevation);
    /// A selected card has an outline in the theme's "primary1".
    [[nodiscard]] bool isSelected() const { return m_selected; }
    void setSelected(bool selected);
    /// Whether the card rises while the mouse is over it.
    [[nodiscard]] bool isRaisedByHover() const { return m_raisedByHover; }
    void setRaisedByHover(bool raised);

    /// The card itself, without the shadow.
    [[nodiscard]] QRect cardRect() const { return cardRect(rect()); }
    [[nodiscard]] static QRect cardRect(const QRect &widget);
    /// Paints a card with its shadow into a widget's area; for other widgets that look like a card.
    static void paintCard(QPainter &painter, const QRect &widget, Elevation elevation, const QColor &fill);

protected:
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Elevation m_elevation = Elevation::Low;
    bool m_selected = false;
    bool m_raisedByHover = false;
};
