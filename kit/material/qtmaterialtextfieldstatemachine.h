#pragma once

/// Decides how a text field looks. Knows nothing of widgets.
class QtMaterialTextFieldStateMachine
{
public:
    /// Of the underline, and of the label above a field that is in use.
    enum class State { Resting, Focused, Wrong, Disabled };

    void setEnabled(bool enabled) { m_enabled = enabled; }
    void setFocused(bool focused) { m_focused = focused; }
    /// \a filled: there is text in the field.
    void setFilled(bool filled) { m_filled = filled; }
    void setLabelled(bool labelled) { m_labelled = labelled; }
    /// \a wrong: an error is reported for what is in the field.
    void setWrong(bool wrong) { m_wrong = wrong; }

    [[nodiscard]] State state() const;
    [[nodiscard]] bool isFocused() const { return m_focused && m_enabled; }
    /// Otherwise the label lies where the text will be.
    [[nodiscard]] bool isLabelFloating() const { return m_filled || isFocused(); }
    /// The placeholder is not shown while the label is in its place.
    [[nodiscard]] bool isPlaceholderShown() const { return !m_filled && (!m_labelled || isLabelFloating()); }

private:
    bool m_enabled = true;
    bool m_focused = false;
    bool m_filled = false;
    bool m_labelled = false;
    bool m_wrong = false;
};
