#pragma once

#include <QString>
#include <QVector>

/// What the measuring box says about itself: its versions and the layout of its groups.
struct DeviceDescription
{
    struct Channel
    {
        double minimum = 0.0;
        double maximum = 0.0;
    };
    struct Group
    {
        QString name;
        int numChannels = 0; ///< as announced, 0 to 9; may differ from channels.size()
        QVector<Channel> channels;
    };

    QString hardwareVersion;
    QString firmwareVersion;
    int numGroups = 0; ///< as announced, 0 to 9; may differ from groups.size()
    QVector<Group> groups;
};
