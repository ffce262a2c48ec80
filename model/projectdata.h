#pragma once

#include <QString>

class QDebug;

/// The descriptive record of a project and its process parameters.
struct ProjectData
{
    QString name;
    QString number;
    QString user;
    QString date;
    QString customer;
    int closingForce = 0;       ///< kN
    double injectionTime = 0.0; ///< seconds
    double pressTime = 0.0;     ///< holding-pressure time, seconds
    int pressure = 0;           ///< bar

    /// "[name=… number=… user=… date=… customer=… closingForce=… injectionTime=… pressTime=… pressure=…"
    [[nodiscard]] QString toDebugText() const;
};

bool operator==(const ProjectData &a, const ProjectData &b);
bool operator!=(const ProjectData &a, const ProjectData &b);
QDebug operator<<(QDebug debug, const ProjectData &data);
