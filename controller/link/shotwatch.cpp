#include "controller/link/shotwatch.h"

#include "controller/recording/recorder.h"
#include "model/model.h"
#include "view/window/view.h"

#include <QLocale>

ShotWatch::ShotWatch(const Desk &desk, const Recorder &recorder)
    : m_desk(desk)
    , m_recorder(recorder)
{
    m_clock.start();
}

void ShotWatch::begin(int period)
{
    m_lines.begin(period);
    m_since = QDateTime::currentDateTime();
    m_shot = m_desk.model.measurementId(0, m_recorder.seriesIndex(0));
    m_lastMissing = 0;
}

void ShotWatch::finish()
{
    if (!m_since.isValid())
        return;
    m_since = {};
    keepMissing();
}

void ShotWatch::keepMissing()
{
    const int missing = m_lines.worthTelling();
    const int shot = m_recorder.seriesIndex(0);
    // The shot may have been deleted meanwhile, and another one begun.
    if (missing == 0 || shot < 0 || m_desk.model.measurementId(0, shot) != m_shot)
        return;
    m_lastMissing = missing;
    ProjectMeta meta = m_desk.model.projectMeta();
    meta.setMissingValues(shot, missing);
    m_desk.model.setProjectMeta(meta);
    m_desk.view.showStatus(
        tr("Messung %1: %2 Werte fehlen.").arg(QLocale().toString(shot + 1), QLocale().toString(missing)));
}
