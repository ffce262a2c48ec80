#pragma once

#include <QColor>

/// How the vertical markers and the phases of a cycle belong together, and their colours. Indices count from 0.
namespace cyclemarkers {

/// Colour of a marker's line and button; invalid for an index outside 0 to 3.
[[nodiscard]] QColor color(int marker);
/// The marker that ends a phase, 0 to 4; for the last one, which has no end, the marker at which it begins.
[[nodiscard]] int markerOfPhase(int phase);

} // namespace cyclemarkers
