#pragma once

#include "kit/material/qtmaterialinteractionstatemachine.h"
#include "kit/material/qtmaterialmotion.h"
#include "kit/material/qtmaterialscrolltrack.h"

#include <QScrollBar>

/// A scroll bar without arrows: a slim thumb that widens under the mouse without the bar needing more room, and is
/// never too short for a finger. Can replace any QScrollBar, for example with
/// QAbstractScrollArea::setVerticalScrollBar(). A click beside the thumb turns a page, a middle click moves the thumb
/// there.
class QtMaterialScrollBar : public QScrollBar
{
    Q_OBJECT
    Q_PROPERTY(bool autoHide READ isAutoHide WRITE setAutoHide)
    Q_PROPERTY(bool animating READ isAnimating)

public:
    explicit QtMaterialScrollBar(QWidget *parent = nullptr);
    explicit QtMaterialScrollBar(Qt::Orientation orientation, QWidget *parent = nullptr);

    /// Whether the bar hides itself while there is nothing to scroll; false by default. A scroll area hides its bars
    /// itself.
    [[nodiscard]] bool isAutoHide() const { return m_autoHide; }
    void setAutoHide(bool autoHide);
    [[nodiscard]] bool isAnimating() const { return m_motion.isRunning(); }
    /// Where the thumb is painted; empty while there is nothing to scroll.
    [[nodiscard]] QRect thumbRect() const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void sliderChange(SliderChange change) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] bool isHorizontal() const { return orientation() == Qt::Horizontal; }
    [[nodiscard]] bool isMirrored() const;
    [[nodiscard]] QtMaterialScrollTrack track() const;
    [[nodiscard]] int extent() const;
    [[nodiscard]] int along(const QPoint &position) const;
    [[nodiscard]] QRect barRect(int start, int length, int thickness) const;
    [[nodiscard]] int thickness() const;
    [[nodiscard]] QColor thumbColor() const;
    void drag(const QPoint &position);
    void endPress();
    void showState();
    void hideIfUnneeded();

    QtMaterialInteractionStateMachine m_state;
    QtMaterialMotion m_motion; ///< 0 slim to 1 wide
    int m_grip = 0;            ///< pixels from the beginning of the thumb to where it is held
    QPoint m_pressed;          ///< the last position of the pressed mouse
    bool m_autoHide = false;
    bool m_hidByItself = false;
};
