#pragma once

#include <functional>

struct OsziScene;

/// Keeps the automatic grids of a scene in step with its axes and announces the spacings that it chooses.
///
/// Whoever shows an announced spacing may send it back, rounded to what a spin box can hold. Such an echo is ignored.
class GridFollower
{
public:
    /// The scene must outlive this object.
    GridFollower(OsziScene &scene, std::function<void()> valueGridChosen, std::function<void()> clockGridChosen);

    /// Before each paint: chooses the automatic spacings again and announces those that changed.
    void follow();
    /// A spacing that the user chose; false when it is refused or an echo.
    [[nodiscard]] bool setValueGrid(double grid);
    [[nodiscard]] bool setClockGrid(int grid);

private:
    void followValueGrid();
    void followClockGrid();
    void announce(const std::function<void()> &chosen);

    OsziScene &m_scene;
    std::function<void()> m_valueGridChosen;
    std::function<void()> m_clockGridChosen;
    bool m_announcing = false;
};
