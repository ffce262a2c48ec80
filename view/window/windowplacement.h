#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVector>

/// A window as it is stored: where its frame begins, and the size inside the frame.
struct WindowPlacement
{
    QPoint position{200, 200};
    QSize size{400, 400};
};

/// The stored placement if all of the window, with a title bar, lies on the screens given (the areas free for windows,
/// the primary one first). Otherwise the window is moved, and made smaller if need be, onto the screen that shows most
/// of it; one that is on no screen at all, because a monitor was taken away, goes to its default place on the primary.
/// An empty size or a position far off counts as not stored.
[[nodiscard]] WindowPlacement placedOnScreens(const WindowPlacement &stored, const QVector<QRect> &screens);
