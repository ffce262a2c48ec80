#pragma once

#include <QLabel>

/// A label that works like a button: with the mouse, with Space or Enter, and for screen readers. Its text must not
/// contain links. Does nothing while it is disabled.
class ClickableLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ClickableLabel(QWidget *parent = nullptr);
    explicit ClickableLabel(const QString &text, QWidget *parent = nullptr);

    /// Emits clicked() unless the label is disabled.
    void click();

signals:
    /// The left mouse button was pressed and released inside the label, or Space or Enter was pressed.
    void clicked();

protected:
    void enterEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    /// The frame that shows the focus; for subclasses that paint the label themselves.
    void drawFocus(QPainter &painter) const;

private:
    bool m_pressed = false;
};
