#include "kit/material/qtmaterialtogglestatemachine.h"

#include <algorithm>
#include <cmath>

QtMaterialToggleStateMachine::State QtMaterialToggleStateMachine::state() const
{
    switch (m_state) {
    case Hand::Pressing:
        return State::Pressed;
    case Hand::Dragging:
        return State::Dragged;
    case Hand::Away:
        break;
    }
    return m_checked ? State::On : State::Off;
}

void QtMaterialToggleStateMachine::press(double position, double travel, double dragDistance)
{
    m_state = Hand::Pressing;
    m_pressed = position;
    m_moved = 0.0;
    m_travel = std::max(1.0, travel);
    m_dragDistance = dragDistance;
}

void QtMaterialToggleStateMachine::move(double position)
{
    if (m_state == Hand::Away)
        return;
    m_moved = position - m_pressed;
    if (std::abs(m_moved) >= m_dragDistance)
        m_state = Hand::Dragging; // and stays so: a drag back to its start changes nothing
}

double QtMaterialToggleStateMachine::thumb() const
{
    const double rest = m_checked ? 1.0 : 0.0;
    return m_state == Hand::Dragging ? std::clamp(rest + m_moved / m_travel, 0.0, 1.0) : rest;
}

bool QtMaterialToggleStateMachine::wouldChange() const
{
    switch (m_state) {
    case Hand::Pressing:
        return true;
    case Hand::Dragging:
        return (thumb() >= 0.5) != m_checked;
    case Hand::Away:
        break;
    }
    return false;
}
