#pragma once

#include "kit/material/qtmaterialmotion.h"
#include "kit/material/qtmaterialoverlaywidget.h"

#include <QColor>
#include <QMargins>

#include <array>

/// Waves that spread over the parent from where it is pressed, clipped to its rounded surface. A wave stays as long as
/// the press is held and fades afterwards. Hidden whenever there is no wave.
class QtMaterialRipple : public QtMaterialOverlayWidget
{
    Q_OBJECT

public:
    static constexpr int kMostWaves = 4; ///< at a time; another one replaces the oldest

    explicit QtMaterialRipple(QWidget *parent);

    /// The parent's surface: its area without the margins, with corners of this radius in pixels.
    void setSurface(const QMargins &margins, qreal radius);
    /// The opacity of the colour is that of a wave at its strongest.
    void setColor(const QColor &color) { m_color = color; }
    [[nodiscard]] int waveCount() const;
    /// True while a wave spreads or fades, not while one is only held at its full size.
    [[nodiscard]] bool isAnimating() const { return m_motion.isRunning(); }

    /// Starts a wave at a point of the parent. Does nothing while the parent is not visible.
    void press(const QPointF &origin);
    /// Lets every wave fade.
    void release();

protected:
    void paintEvent(QPaintEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    enum class Phase { Gone, Held, Fading };

    struct Wave
    {
        QPointF origin;
        Phase phase = Phase::Gone;
    };

    void dropFadedWaves();
    void paintWave(QPainter &painter, int index) const;

    QtMaterialMotion m_motion; ///< of each wave how far it has spread, then how far it has faded: both 0 to 1
    std::array<Wave, kMostWaves> m_waves;
    int m_next = 0;
    QColor m_color;
    QMargins m_margins;
    qreal m_radius = 0.0;
};
