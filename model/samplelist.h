#pragma once

#include <QVector>

/// The samples of one measurement of one sensor, in time order, all finite.
using SampleList = QVector<double>;
