#include "view/window/windowplacement.h"

#include <QRegion>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kTitleBarHeight = 30; // a guess; the real one is known once the window is shown

constexpr int kFarthest = 100000; // pixels; a position farther away is a damaged settings file

QPoint believable(QPoint position)
{
    const bool isNear = std::abs(position.x()) <= kFarthest && std::abs(position.y()) <= kFarthest;
    return isNear ? position : WindowPlacement().position;
}

int sharedArea(const QRect &one, const QRect &other)
{
    const QRect shared = one.intersected(other);
    return shared.width() * shared.height();
}

bool isOnScreens(const QRect &frame, const QVector<QRect> &screens)
{
    QRegion hidden(frame);
    for (const QRect &screen : screens)
        hidden -= screen;
    return hidden.isEmpty();
}

} // namespace

WindowPlacement placedOnScreens(const WindowPlacement &stored, const QVector<QRect> &screens)
{
    const QSize titleBar(0, kTitleBarHeight);
    WindowPlacement placed;
    placed.position = believable(stored.position);
    if (!stored.size.isEmpty())
        placed.size = stored.size.boundedTo(QSize(kFarthest, kFarthest));
    const QRect frame(placed.position, placed.size + titleBar);
    if (screens.isEmpty() || isOnScreens(frame, screens))
        return placed;
    const QRect &screen = *std::max_element(screens.cbegin(), screens.cend(), [&frame](const QRect &a, const QRect &b) {
        return sharedArea(a, frame) < sharedArea(b, frame);
    });
    placed.size = placed.size.boundedTo(screen.size() - titleBar);
    // A window that was on a monitor that is now missing starts at the default place.
    if (sharedArea(screen, frame) == 0)
        placed.position = screen.topLeft() + WindowPlacement().position;
    const QPoint last =
        screen.topLeft()
        + QPoint(screen.width() - placed.size.width(), screen.height() - placed.size.height() - kTitleBarHeight);
    placed.position.setX(std::clamp(placed.position.x(), screen.left(), last.x()));
    placed.position.setY(std::clamp(placed.position.y(), screen.top(), last.y()));
    return placed;
}
