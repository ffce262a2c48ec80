#include "kit/gauge/qcannouncer.h"

#include <QAccessible>
#include <QWidget>

#include <utility>

namespace {

constexpr int kPause = 1000; // ms

} // namespace

QcAnnouncer::QcAnnouncer(QWidget *widget, Tell tell)
    : m_widget(widget)
    , m_tell(std::move(tell))
    , m_pause(kPause)
{
    QObject::connect(&m_pause, &Throttle::due, widget, [this] { announce(); });
}

// The first change is told at once: only those that follow it within the pause wait for its end.
void QcAnnouncer::changed()
{
    if ((m_tell || QAccessible::isActive()) && m_widget->isVisible() && !m_pause.isPending())
        announce();
}

void QcAnnouncer::announce()
{
    QAccessibleInterface *shown = QAccessible::queryAccessibleInterface(m_widget);
    const QString text = shown ? shown->text(QAccessible::Value) : QString();
    if (text == m_told)
        return;
    m_told = text;
    m_pause.request();
    if (m_tell) {
        m_tell(text);
        return;
    }
    QAccessibleValueChangeEvent event(m_widget, text);
    QAccessible::updateAccessibility(&event);
}
