#include "kit/material/qtmaterialtextfieldstatemachine.h"

QtMaterialTextFieldStateMachine::State QtMaterialTextFieldStateMachine::state() const
{
    if (!m_enabled)
        return State::Disabled;
    if (m_wrong)
        return State::Wrong;
    return m_focused ? State::Focused : State::Resting;
}
