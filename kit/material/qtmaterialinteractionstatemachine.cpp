#include "kit/material/qtmaterialinteractionstatemachine.h"

#include <QFocusEvent>

QtMaterialInteractionStateMachine::State QtMaterialInteractionStateMachine::state() const
{
    if (!m_enabled)
        return State::Disabled;
    if (m_pressed)
        return State::Pressed;
    if (m_hovered)
        return State::Hovered;
    return isFocusShown() ? State::Focused : State::Resting;
}

qreal QtMaterialInteractionStateMachine::tint() const
{
    switch (state()) {
    case State::Focused:
    case State::Pressed:
        return 0.12;
    case State::Hovered:
        return 0.08;
    case State::Resting:
    case State::Disabled:
        break;
    }
    return 0.0;
}

bool QtMaterialInteractionStateMachine::apply(const QEvent &event, bool enabled)
{
    m_enabled = enabled;
    switch (event.type()) {
    case QEvent::EnabledChange:
        m_pressed = m_pressed && enabled;
        return true;
    case QEvent::Enter:
    case QEvent::Leave:
        m_hovered = event.type() == QEvent::Enter;
        return true;
    case QEvent::Hide: // no leave event comes before the mouse moves next
        m_hovered = m_pressed = false;
        return true;
    case QEvent::FocusIn:
        takeFocus(event);
        return true;
    case QEvent::FocusOut:
        m_focused = false;
        return true;
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
        m_byKeyboard = event.type() == QEvent::KeyPress;
        return true;
    default:
        return false;
    }
}

void QtMaterialInteractionStateMachine::takeFocus(const QEvent &event)
{
    m_focused = true;
    const Qt::FocusReason reason = static_cast<const QFocusEvent &>(event).reason();
    // Back from another window or a menu, the focus is shown or not as it was before.
    if (reason == Qt::MouseFocusReason)
        m_byKeyboard = false;
    else if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        m_byKeyboard = true;
}
