#pragma once

#include <QColor>
#include <QPushButton>

/// A push button filled with a settable colour, its text black or white, whichever is easier to read. A checkable one
/// is filled and ticked while checked, pale with an outline otherwise; a disabled one keeps a stripe of the colour.
/// Font, minimum size and the disabled look come from the style sheet (selector "ColoredButton").
class ColoredButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor)
    Q_PROPERTY(bool picksColor READ picksColor WRITE setPicksColor)

public:
    explicit ColoredButton(QWidget *parent = nullptr);
    explicit ColoredButton(const QString &text, QWidget *parent = nullptr);

    /// The theme's "primary1" until one is set.
    [[nodiscard]] QColor color() const;
    /// An invalid colour is logged and ignored.
    void setColor(const QColor &color);

    /// A button that picks its colour shows an arrow, and a click on it opens the colour dialog, which does not block.
    [[nodiscard]] bool picksColor() const { return m_picksColor; }
    void setPicksColor(bool picks);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// The user chose a colour other than the current one in the dialog. The button does not apply it: the owner of the
    /// colour decides and calls setColor().
    void colorPicked(const QColor &color);

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Look;

    [[nodiscard]] Look look() const;
    [[nodiscard]] int symbolRoom() const;
    [[nodiscard]] QString elidedText(int width) const;
    [[nodiscard]] QRect labelArea() const;
    void describe();
    void onClicked();
    void drawDisabled(QPainter &painter) const;
    void drawLabel(QPainter &painter, const QColor &color) const;
    void drawSymbol(QPainter &painter, const QColor &color) const;

    QColor m_color; ///< invalid: the theme's
    bool m_picksColor = false;
};
