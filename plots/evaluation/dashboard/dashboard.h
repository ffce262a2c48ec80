#pragma once

#include "model/sensordescription.h"
#include "plots/evaluation/common/evaluationpage.h"

#include <array>

class CycleTile;
class DashboardTile;

/// The first page of the evaluation: the newest shot at a glance. One tile per sensor, and one for the cycle time.
class Dashboard final : public EvaluationPage
{
    Q_OBJECT

public:
    explicit Dashboard(QWidget *parent = nullptr);

signals:
    /// The user wants to see the values of a sensor, or the runtimes.
    void valuesWanted(int sensor);
    void runtimesWanted();

protected:
    void refresh() override;
    void retranslateUi() override;

private:
    void showSensor(int sensor);
    void showCycle();

    std::array<DashboardTile *, kNumSensors> m_tiles{};
    CycleTile *m_cycleTile = nullptr;
};
