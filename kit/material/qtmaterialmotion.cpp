#include "kit/material/qtmaterialmotion.h"

#include <QEasingCurve>
#include <QEvent>
#include <QStyle>
#include <QTimerEvent>
#include <QWidget>

#include <algorithm>

namespace {

constexpr int kInterval = 16; // ms between two steps

} // namespace

QtMaterialMotion::QtMaterialMotion(QWidget *widget, int count)
    : QObject(widget)
    , m_widget(widget)
    , m_tracks(count)
{
    m_clock.start();
    widget->installEventFilter(this);
}

bool QtMaterialMotion::canAnimate() const
{
    if (!m_widget->isVisible() || m_widget->window()->isMinimized())
        return false;
    const QStyle *style = m_widget->style();
    return style->styleHint(QStyle::SH_Widget_Animate, nullptr, m_widget) != 0
           && style->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, m_widget) > 0;
}

void QtMaterialMotion::moveTo(int index, qreal target, int milliseconds)
{
    Track &track = m_tracks[index];
    if (track.to == target)
        return;
    if (milliseconds <= 0 || !canAnimate()) {
        jumpTo(index, target);
        return;
    }
    track.from = track.value;
    track.to = target;
    track.begin = m_clock.elapsed();
    track.duration = milliseconds;
    if (!m_timer.isActive())
        m_timer.start(kInterval, Qt::PreciseTimer, this);
}

void QtMaterialMotion::jumpTo(int index, qreal value)
{
    Track &track = m_tracks[index];
    track.value = track.to = value;
    track.duration = 0;
    stopIfAtRest();
    m_widget->update();
    emit stepped();
}

void QtMaterialMotion::finish()
{
    if (!m_timer.isActive())
        return;
    for (Track &track : m_tracks) {
        track.value = track.to;
        track.duration = 0;
    }
    m_timer.stop();
    m_widget->update();
    emit stepped();
}

void QtMaterialMotion::step(Track &track, qint64 now) const
{
    static const QEasingCurve curve(QEasingCurve::OutCubic);
    const qreal part = std::min<qreal>(1.0, static_cast<qreal>(now - track.begin) / track.duration);
    if (part < 1.0) {
        track.value = track.from + (track.to - track.from) * curve.valueForProgress(part);
    } else {
        track.value = track.to;
        track.duration = 0;
    }
}

void QtMaterialMotion::stopIfAtRest()
{
    const auto rests = [](const Track &track) { return track.duration == 0; };
    if (std::all_of(m_tracks.cbegin(), m_tracks.cend(), rests))
        m_timer.stop();
}

void QtMaterialMotion::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    const qint64 now = m_clock.elapsed();
    for (Track &track : m_tracks) {
        if (track.duration > 0)
            step(track, now);
    }
    stopIfAtRest();
    m_widget->update();
    emit stepped();
}

bool QtMaterialMotion::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_widget && event->type() == QEvent::Hide)
        finish();
    return QObject::eventFilter(watched, event);
}
