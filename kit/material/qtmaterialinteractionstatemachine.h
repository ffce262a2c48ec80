#pragma once

#include <QtGlobal>

class QEvent;

/// What the user is doing with a control: reads it from the events that the control gets, knows nothing of painting.
class QtMaterialInteractionStateMachine
{
public:
    /// The later ones win where several apply.
    enum class State { Resting, Focused, Hovered, Pressed, Disabled };

    [[nodiscard]] State state() const;
    /// Whether the focus should be shown: after a click it is not, until the keyboard is used.
    [[nodiscard]] bool isFocusShown() const { return m_focused && m_byKeyboard && m_enabled; }
    /// How strongly the content's colour tints the surface, 0 to 1.
    [[nodiscard]] qreal tint() const;

    /// Returns whether the event is one that matters. \a enabled is whether the control is enabled now.
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
