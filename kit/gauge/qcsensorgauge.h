#pragma once

class QWidget;
class QcGaugeWidget;

namespace qcgauge {

/// A new gauge with the parts for a measured value: bands, marks, numerals, title, unit, needle, value, held extremes,
/// glass. The parent owns it; without one the caller does.
[[nodiscard]] QcGaugeWidget *createSensorGauge(QWidget *parent = nullptr);

} // namespace qcgauge
