#include "plots/oscilloscope/gridfollower.h"

#include "plots/oscilloscope/osziscene.h"
#include "plots/oscilloscope/plotgrid.h"

#include <QScopedValueRollback>

#include <utility>

GridFollower::GridFollower(OsziScene &scene, std::function<void()> valueGridChosen,
                           std::function<void()> clockGridChosen)
    : m_scene(scene)
    , m_valueGridChosen(std::move(valueGridChosen))
    , m_clockGridChosen(std::move(clockGridChosen))
{}

void GridFollower::follow()
{
    followValueGrid();
    followClockGrid();
}

bool GridFollower::setValueGrid(double grid)
{
    return !m_announcing && m_scene.setValueGrid(grid);
}

bool GridFollower::setClockGrid(int grid)
{
    return !m_announcing && m_scene.setClockGrid(grid);
}

void GridFollower::followValueGrid()
{
    if (!m_scene.valueGridAuto)
        return;
    const double grid = autoValueGrid(m_scene.geometry.span(), m_scene.geometry.plotHeight());
    if (!(grid < m_scene.valueGrid) && !(grid > m_scene.valueGrid))
        return;
    m_scene.valueGrid = grid;
    announce(m_valueGridChosen);
}

void GridFollower::followClockGrid()
{
    if (!m_scene.clockGridAuto)
        return;
    const int grid = autoClockGrid(m_scene.geometry.zoom, m_scene.geometry.clock, m_scene.clockGrid);
    if (grid == m_scene.clockGrid)
        return;
    m_scene.clockGrid = grid; // before announcing: whoever listens may ask for it
    announce(m_clockGridChosen);
}

void GridFollower::announce(const std::function<void()> &chosen)
{
    // A spin box that shows the spacing sends it back at once, rounded to 0.00 or cut to its own maximum.
    const QScopedValueRollback<bool> announcing(m_announcing, true);
    chosen();
}
