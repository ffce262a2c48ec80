#pragma once

#include "model/model.h"
#include "plots/oscilloscope/osziwidget.h"
#include "view/oscilloscope/taboszilloscope.h"

#include <QCoreApplication>

/// A tab of a known size and the model that it shows.
struct OsziBench
{
    OsziBench()
    {
        tab.setModel(&model);
        QObject::connect(&tab, &TabOszilloscope::offsetEdited, &model, &Model::setOffset);
        tab.resize(1080, 640);
        tab.show();
        QCoreApplication::processEvents();
    }

    void addShot(int samples, double value = 1.0)
    {
        for (int sensor = 0; sensor < kNumSensors; ++sensor)
            (void)model.appendMeasurement(sensor);
        grow(samples, value);
        model.emitDataChanged();
    }
    void grow(int samples, double value = 1.0)
    {
        for (int sensor = 0; sensor < kNumSensors; ++sensor) {
            for (int k = 0; k < samples; ++k)
                (void)model.appendSample(sensor, model.numChannels(sensor) - 1, value + sensor + k);
        }
    }
    template <typename T>
    T *find(const char *name, int number = 0) const
    {
        const QString base = QLatin1String(name);
        return tab.findChild<T *>(number > 0 ? base + QString::number(number) : base);
    }
    [[nodiscard]] int visible() const
    {
        // Counted here once more, so that a wrong count of the plot does not go unnoticed.
        return (tab.row(0)->contentsRect().width() - OsziWidget::kLeftMargin) / tab.row(0)->zoom();
    }
    [[nodiscard]] QVector<int> shown(int row = 0) const
    {
        QVector<int> numbers;
        for (int slot = 0; slot < OsziWidget::kNumSlots; ++slot) {
            if (tab.row(row)->curve(slot) && tab.row(row)->isShown(slot))
                numbers << slot + 1;
        }
        return numbers;
    }

    Model model{QString()};
    TabOszilloscope tab;
};
