#pragma once

#include <QTimer>
#include <QWidget>

/// A small turning ring for work in progress, or a ring that fills up around a percentage. Takes its colours from the
/// current theme. Costs nothing while hidden or stopped: its timer runs only while it turns and is visible.
class ProgressIndicator : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kTurning = -1; ///< no percentage is known

    explicit ProgressIndicator(QWidget *parent = nullptr);

    [[nodiscard]] bool isAnimated() const { return m_animated; }
    /// 0 to 100, or kTurning.
    [[nodiscard]] int percent() const { return m_percent; }
    /// True while the timer runs.
    [[nodiscard]] bool isTimerRunning() const { return m_timer.isActive(); }
    /// Also while it is stopped, when it shows nothing.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

public slots:
    void startAnimation();
    void stopAnimation();
    /// Values above 100 count as 100, negative ones as kTurning.
    void setPercent(int percent);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void setAnimated(bool animated);
    void updateTimer();
    void turn();

    QTimer m_timer;
    int m_angle = 0; ///< degrees, clockwise from the top
    int m_percent = kTurning;
    bool m_animated = false;
};
