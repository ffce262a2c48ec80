#include "kit/material/qtmaterialripple.h"

#include <QPainter>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kSpreadTime = 350;     // ms
constexpr int kFadeTime = 300;       // ms
constexpr qreal kFirstSpread = 0.15; // so that even the shortest press is visible
constexpr qreal kSoftEdge = 0.06;    // of the radius

int spreadIndex(int wave)
{
    return 2 * wave;
}

int fadeIndex(int wave)
{
    return 2 * wave + 1;
}

qreal farthestCorner(const QRectF &rect, const QPointF &from)
{
    const qreal dx = std::max(from.x() - rect.left(), rect.right() - from.x());
    const qreal dy = std::max(from.y() - rect.top(), rect.bottom() - from.y());
    return std::hypot(dx, dy);
}

} // namespace

QtMaterialRipple::QtMaterialRipple(QWidget *parent)
    : QtMaterialOverlayWidget(parent)
    , m_motion(this, 2 * kMostWaves)
{
    hide();
    connect(&m_motion, &QtMaterialMotion::stepped, this, &QtMaterialRipple::dropFadedWaves);
}

void QtMaterialRipple::setSurface(const QMargins &margins, qreal radius)
{
    m_margins = margins;
    m_radius = radius;
    update();
}

int QtMaterialRipple::waveCount() const
{
    return static_cast<int>(
        std::count_if(m_waves.cbegin(), m_waves.cend(), [](const Wave &wave) { return wave.phase != Phase::Gone; }));
}

void QtMaterialRipple::press(const QPointF &origin)
{
    if (parentWidget() == nullptr || !parentWidget()->isVisible())
        return;
    show();
    raise();
    const int index = m_next;
    m_next = (m_next + 1) % kMostWaves;
    m_waves[static_cast<size_t>(index)] = {origin, Phase::Held};
    m_motion.jumpTo(fadeIndex(index), 0.0); // an older wave may have left it faded
    m_motion.jumpTo(spreadIndex(index), kFirstSpread);
    m_motion.moveTo(spreadIndex(index), 1.0, kSpreadTime);
}

void QtMaterialRipple::release()
{
    for (int index = 0; index < kMostWaves; ++index) {
        Wave &wave = m_waves[static_cast<size_t>(index)];
        if (wave.phase != Phase::Held)
            continue;
        wave.phase = Phase::Fading;
        m_motion.moveTo(fadeIndex(index), 1.0, kFadeTime);
    }
}

void QtMaterialRipple::dropFadedWaves()
{
    for (int index = 0; index < kMostWaves; ++index) {
        Wave &wave = m_waves[static_cast<size_t>(index)];
        if (wave.phase == Phase::Fading && m_motion.value(fadeIndex(index)) >= 1.0)
            wave.phase = Phase::Gone;
    }
    if (waveCount() == 0)
        hide();
}

void QtMaterialRipple::hideEvent(QHideEvent *event)
{
    QtMaterialOverlayWidget::hideEvent(event);
    m_waves.fill(Wave());
}

void QtMaterialRipple::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int index = 0; index < kMostWaves; ++index) {
        if (m_waves[static_cast<size_t>(index)].phase != Phase::Gone)
            paintWave(painter, index);
    }
}

void QtMaterialRipple::paintWave(QPainter &painter, int index) const
{
    const QRectF surface = rect().marginsRemoved(m_margins);
    const QPointF origin = m_waves[static_cast<size_t>(index)].origin;
    const qreal spread = m_motion.value(spreadIndex(index));
    QColor color = m_color;
    color.setAlphaF(color.alphaF() * (1.0 - m_motion.value(fadeIndex(index))));
    // A gradient that ends there instead of a clipped circle: clipping to a path is not anti-aliased at the corners.
    QRadialGradient wave(origin, std::max(1.0, farthestCorner(surface, origin) * spread / (1.0 - kSoftEdge)));
    wave.setColorAt(1.0 - kSoftEdge, color);
    color.setAlpha(0);
    wave.setColorAt(1.0, color);
    painter.setBrush(wave);
    painter.drawRoundedRect(surface, m_radius, m_radius);
}
