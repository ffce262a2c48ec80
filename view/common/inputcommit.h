#pragma once

class QWidget;

/// Takes over what is being typed into a field of the window that waits for the end of the input. The keys go on to the
/// same place afterwards.
void commitInputOf(const QWidget *window);
