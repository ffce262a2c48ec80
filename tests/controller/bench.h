#pragma once

#include "controller/controller.h"
#include "model/model.h"
#include "plots/oscilloscope/osziwidget.h"
#include "tests/support/scriptedprompts.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/window/view.h"

#include <QCoreApplication>
#include <QtTest>

/// The real model, window and controller; dialogs are answered from a script. There is no box unless a test adds one.
struct Bench
{
    explicit Bench(const ControllerOptions &options = {})
        : view(&model, scripted(prompts))
        , controller(&model, &view, options)
    {}

    /// A line as the box would send it.
    void say(const QByteArray &line) { controller.onMessageReceived(QString::fromLatin1(line + '\n')); }

    /// Records shots of one sample line each; every sensor of shot n (from 1) gets the value n.
    void recordShots(int count)
    {
        for (int shot = 0; shot < count; ++shot) {
            const QByteArray value = QByteArray::number(shots() + 1);
            say("run=1");
            say("0;" + value + ';' + value + ';' + value + ';' + value + ';' + value);
            say("run=0");
        }
    }

    [[nodiscard]] int shots() const { return model.numChannels(0); }

    [[nodiscard]] QVector<double> samples(int sensor, int shot) const
    {
        const SampleList *list = model.measurement(sensor, shot);
        return list ? *list : QVector<double>();
    }

    /// The first sample of every shot of a sensor.
    [[nodiscard]] QVector<double> firstSamples(int sensor = 0) const
    {
        QVector<double> values;
        for (int shot = 0; shot < model.numChannels(sensor); ++shot)
            values.append(samples(sensor, shot).value(0));
        return values;
    }

    /// True if the curve slots of all rows show exactly the model's measurements and nothing else.
    [[nodiscard]] bool slotsMatchModel() const
    {
        for (int row = 0; row < kNumSensors; ++row)
            for (int slot = 0; slot <= model.numChannels(row) + 20; ++slot)
                if (view.tabOszi()->row(row)->curve(slot) != model.measurement(row, slot))
                    return false;
        return true;
    }

    ScriptedPrompts *prompts = nullptr; ///< owned by the view
    Model model{QString()};
    View view;
    Controller controller;
};
