#pragma once

#include "view/sensors/sensorscale.h"

#include <QColor>
#include <QVector>

class Model;

/// What the tab "Sensoren" knows about a sensor apart from its values.
struct SensorInfo
{
    int group = 0;
    int sensor = 0;   ///< within the group
    int channel = -1; ///< 0 to 4: where its values come from; -1: the box sends none for it
    QString key;      ///< identifies its settings: its name, made unique
    QString ownName;  ///< as described or typed; may be empty
    QString name;     ///< never empty
    QString unit;
    QColor color;
    SensorLimits limits;
    double offset = 0.0; ///< added to every value that is shown

    [[nodiscard]] bool operator==(const SensorInfo &other) const;
    /// Only sensors of the first group have a name and a colour in the model that can be changed.
    [[nodiscard]] bool canRename() const { return group == 0; }
    [[nodiscard]] bool canColor() const { return channel >= 0; }
};

struct SensorList
{
    struct Group
    {
        QString name; ///< never empty
        int first = 0;
        int count = 0;

        [[nodiscard]] bool operator==(const Group &other) const
        {
            return name == other.name && first == other.first && count == other.count;
        }
    };

    QVector<Group> groups;
    QVector<SensorInfo> sensors; ///< of all groups, one group after the other

    [[nodiscard]] bool operator==(const SensorList &other) const
    {
        return groups == other.groups && sensors == other.sensors;
    }
    /// True if a box or the user has described at least one sensor.
    [[nodiscard]] bool isDescribed() const;
};

/// Texts in the current language.
[[nodiscard]] SensorList listSensors(const Model &model);

/// The key of the n-th sensor (from 0) with this name.
[[nodiscard]] QString sensorKey(const QString &name, int n);
