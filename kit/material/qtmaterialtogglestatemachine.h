#pragma once

/// Where the thumb of a toggle belongs while it is clicked or dragged. Positions count in pixels towards "on"; knows
/// nothing of widgets or of the reading direction.
class QtMaterialToggleStateMachine
{
public:
    enum class State { Off, On, Pressed, Dragged };

    [[nodiscard]] State state() const;
    void setChecked(bool checked) { m_checked = checked; }

    /// \a travel: pixels between off and on. \a dragDistance: how far a press may slip and still be a click.
    void press(double position, double travel, double dragDistance);
    void move(double position);
    void release() { m_state = Hand::Away; }

    /// Where the thumb is, 0 (off) to 1 (on).
    [[nodiscard]] double thumb() const;
    /// Whether releasing the mouse now would switch the toggle.
    [[nodiscard]] bool wouldChange() const;

private:
    enum class Hand { Away, Pressing, Dragging };

    Hand m_state = Hand::Away;
    bool m_checked = false;
    double m_pressed = 0.0;
    double m_moved = 0.0;
    double m_travel = 1.0;
    double m_dragDistance = 0.0;
};
