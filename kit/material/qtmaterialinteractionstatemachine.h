#pragma once

#include <QtGlobal>

class QEvent;

/// What the user is doing with a control, derived from the events that the control gets. Knows nothing of painting.
class QtMaterialInteractionStateMachine
{
public:
    /// If several apply, the later one wins.
    enum class State { Resting, Focused, Hovered, Pressed, Disabled };

    [[nodiscard]] State state() const;
    /// Whether the focus should be shown: after a click only once the keyboard is used.
    [[nodiscard]] bool isFocusShown() const { return m_focused && m_byKeyboard && m_enabled; }
    /// How strongly the content's colour tints the surface, 0 to 1.
    [[nodiscard]] qreal tint() const;

    /// Returns whether the event may have changed the state. \a enabled is whether the control is enabled now.
    bool apply(const QEvent &event, bool enabled);
    void setPressed(bool pressed) { m_pressed = pressed; }

private:
    void takeFocus(const QEvent &event);

    bool m_enabled = true;
    bool m_hovered = false;
    bool m_focused = false;
    bool m_byKeyboard = true;
    bool m_pressed = false;
};
