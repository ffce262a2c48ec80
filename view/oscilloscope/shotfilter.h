#pragma once

#include <QString>

class OsziRows;
class ShotBar;
class SlotPointer;

/// Decides which curves are shown: all of them or those that the user typed, and which one is highlighted.
class ShotFilter
{
public:
    /// All three must outlive it.
    ShotFilter(OsziRows &rows, ShotBar &bar, const SlotPointer &pointer);

    /// Shows all measurements, or those typed and the highlighted one.
    void setAll(bool all);
    /// Shows what is typed and nothing else. `fromField`: the field reported the end of its editing, which it also
    /// does when it only loses the focus.
    void takeTyped(bool fromField);
    /// Highlights a measurement, counted from 1; 0 for none.
    void highlight(int measurement);
    /// The slots were pointed and show all: applies what is typed if not all are to be shown.
    void reapply();

private:
    void showTyped();
    void showTypedAndHighlighted();

    OsziRows &m_rows;
    ShotBar &m_bar;
    const SlotPointer &m_pointer;
    QString m_applied; ///< the text in force
};
