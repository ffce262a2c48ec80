#pragma once

#include "kit/small/throttle.h"
#include "view/window/pages.h"

#include <QObject>

class Model;
class StatusDisplay;

/// Keeps the pages up to date with the model, bundling changes that arrive in quick succession. The evaluation and the
/// oscilloscope follow the model themselves; the oscilloscope can also be told to.
class ModelDisplay : public QObject
{
    Q_OBJECT

public:
    /// Hands the model to the pages. All must outlive this object; the pages belong to the window.
    ModelDisplay(Model *model, const Pages &pages, StatusDisplay &status);

    /// Shows everything at once.
    void refreshAll();
    /// What shows descriptions and settings, at once.
    void refreshProject();
    /// What shows the newest samples on the page in front, at once.
    void refreshData();
    /// The fields of the project page at once, the rest in the next turn of the event loop.
    void noteProjectChange();
    /// Within 50 ms; cheap enough for every sample line.
    void noteDataChange() { m_data.request(); }

private:
    Model *m_model;
    Pages m_pages;
    StatusDisplay &m_status;
    Throttle m_data;
    Throttle m_project;
};
