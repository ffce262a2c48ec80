#pragma once

#include <QColor>

/// How the phases of a cycle and the markers between them look, the same wherever they are shown.
namespace cyclephases {

/// Colour of a marker; invalid for an index outside 0 to 3.
[[nodiscard]] QColor markerColor(int index);
/// The marker that ends a phase, 0 to 4; for the last one, which has no end, the marker at which it begins.
[[nodiscard]] int markerOfPhase(int phase);

} // namespace cyclephases
