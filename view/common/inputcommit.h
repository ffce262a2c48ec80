#pragma once

class QWidget;

/// Takes over what is being typed into a field of the window that waits for the end of the input. Afterwards the
/// same field, or the table that it belongs to, has the focus.
void commitInputOf(const QWidget *window);
