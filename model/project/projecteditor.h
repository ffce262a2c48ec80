#pragma once

#include <QtGlobal>

class QDateTime;
class QString;
class SensorDescription;

/// The changes of a project that are logged and announced one by one. What reads files makes its changes through them,
/// so that each of them is logged.
class ProjectEditor
{
public:
    virtual void clear() = 0;
    virtual void setCurrentFile(const QString &absolutePath) = 0;
    virtual void setProjectModifiedFlag(bool modified) = 0;
    [[nodiscard]] virtual double offset(int sensor) const = 0;
    virtual void setOffset(int sensor, double offset) = 0;
    virtual void setPhaseName(int phase, const QString &name) = 0;
    virtual void setVerticalMarkerAbsolute(int index, int pos) = 0;
    virtual void setSensorDescription(const SensorDescription &description) = 0;
    virtual void setSensorName(int sensor, const QString &name) = 0;
    virtual void setSensorMinimum(int group, int sensor, double minimum) = 0;
    virtual void setSensorMaximum(int group, int sensor, double maximum) = 0;
    virtual void setTimestamp(int measurement, const QDateTime &timestamp) = 0;

protected:
    ProjectEditor() = default;
    ~ProjectEditor() = default; // not deleted through this interface
    Q_DISABLE_COPY_MOVE(ProjectEditor)
};
