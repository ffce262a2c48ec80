#pragma once

#include "kit/material/qtmaterialinteractionstatemachine.h"
#include "kit/material/qtmaterialmotion.h"
#include "kit/material/qtmaterialtogglestatemachine.h"

#include <QCheckBox>

/// A switch for something that takes effect at once, with an optional label: a check box for the program and for screen
/// readers. Clicking, dragging the thumb, Space and Enter turn it on and off. "On" is at the trailing end.
class QtMaterialToggle : public QCheckBox
{
    Q_OBJECT
    Q_PROPERTY(bool animating READ isAnimating)

public:
    explicit QtMaterialToggle(QWidget *parent = nullptr);
    explicit QtMaterialToggle(const QString &label, QWidget *parent = nullptr);

    /// Where the thumb is painted, 0 (off) to 1 (on).
    [[nodiscard]] qreal thumbPosition() const { return m_motion.value(0); }
    [[nodiscard]] bool isAnimating() const { return m_motion.isRunning(); }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    [[nodiscard]] bool hitButton(const QPoint &position) const override;
    void checkStateSet() override;
    void nextCheckState() override;
    void paintEvent(QPaintEvent *event) override;

private:
    void showState();
    [[nodiscard]] bool isDragged() const;
    [[nodiscard]] qreal towardsOn(const QPointF &position) const;
    [[nodiscard]] QSize trackSize() const;
    [[nodiscard]] QSize touchSize() const;
    [[nodiscard]] QRect trackRect() const;
    [[nodiscard]] QRect labelRect() const;
    void paintHalo(QPainter &painter, const QPointF &thumb, const QColor &color) const;
    void paintTrack(QPainter &painter) const;
    void paintLabel(QPainter &painter) const;

    QtMaterialInteractionStateMachine m_interaction;
    QtMaterialToggleStateMachine m_hand;
    QtMaterialMotion m_motion; ///< the thumb, then its halo
};
