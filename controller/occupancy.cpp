#include "controller/occupancy.h"

#include "controller/logging.h"
#include "model/model.h"
#include "view/window/view.h"

#include <QApplication>

#include <algorithm>

Occupancy::Occupancy(View &view, const Model &model, int typingPause)
    : m_view(view)
    , m_model(model)
    , m_typing(typingPause)
{}

bool Occupancy::isOccupied() const
{
    const bool anyTask = std::any_of(m_counts.begin(), m_counts.end(), [](int count) { return count > 0; });
    return anyTask || m_view.isAsking() || m_model.isBusy();
}

bool Occupancy::mayInterrupt() const
{
    // Pages open dialogs that nobody counts here.
    return !isOccupied() && !QApplication::activeModalWidget() && !m_typing.isTyping();
}

bool Occupancy::refuseWhileOccupied()
{
    if (!isOccupied())
        return false;
    qCDebug(lcController) << "refused: a dialog is open or a file is being read or written";
    showRefusal();
    return true;
}

bool Occupancy::refuseWhileConnecting()
{
    if (!m_view.isProgressShown())
        return false;
    showRefusal();
    return true;
}

void Occupancy::showRefusal()
{
    m_view.showStatus(tr("Bitte warten, bis der laufende Vorgang beendet ist."));
}
