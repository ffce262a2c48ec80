#pragma once

#include <QAbstractButton>

/// A tile of the dashboard, and a button: a card with a coloured edge that shows hovering, pressing and focus.
class Tile : public QAbstractButton
{
    Q_OBJECT

public:
    explicit Tile(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    /// Sets accessible texts and tool tip; called when the language changes.
    virtual void describe() = 0;

    void drawFrame(QPainter &painter, const QColor &edge) const;
    /// The area that the frame leaves for the contents.
    [[nodiscard]] QRect contents() const;
    /// The tile's font in a size in pixels.
    [[nodiscard]] QFont sizedFont(int pixels, bool bold = false) const;

    void changeEvent(QEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
};
