#pragma once

#include <QLabel>

/// A label that works like a button: by mouse, by Space or Enter, and for screen readers. For a text without links of
/// its own. Nothing comes of it while it is disabled.
class ClickableLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ClickableLabel(QWidget *parent = nullptr);
    explicit ClickableLabel(const QString &text, QWidget *parent = nullptr);

    /// As if it had been clicked.
    void click();

signals:
    /// The left mouse button was pressed and released within, or Space or Enter was pressed.
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

    /// The frame that shows the focus; for those who paint the label themselves.
    void drawFocus(QPainter &painter) const;

private:
    bool m_pressed = false;
};
