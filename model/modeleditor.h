#pragma once

#include "model/project/projecteditor.h"
#include "model/sensordescription.h"

#include <QDateTime>

/// What the parts that read files may call of the model. Not the model itself: the log names functions by their
/// signatures, which would begin with "virtual" then. A template, so that it and the model need not know each other.
template <typename Model>
class ModelEditor : public ProjectEditor
{
public:
    explicit ModelEditor(Model &model)
        : m_model(model)
    {}
    void clear() override { m_model.clear(); }
    void setCurrentFile(const QString &absolutePath) override { m_model.setCurrentFile(absolutePath); }
    void setProjectModifiedFlag(bool modified) override { m_model.setProjectModifiedFlag(modified); }
    [[nodiscard]] double offset(int sensor) const override { return m_model.offset(sensor); }
    void setOffset(int sensor, double offset) override { m_model.setOffset(sensor, offset); }
    void setPhaseName(int phase, const QString &name) override { m_model.setPhaseName(phase, name); }
    void setVerticalMarkerAbsolute(int index, int pos) override { m_model.setVerticalMarkerAbsolute(index, pos); }
    void setSensorDescription(const SensorDescription &all) override { m_model.setSensorDescription(all); }
    void setSensorName(int sensor, const QString &name) override { m_model.setSensorName(sensor, name); }
    void setSensorMinimum(int group, int sensor, double to) override { m_model.setSensorMinimum(group, sensor, to); }
    void setSensorMaximum(int group, int sensor, double to) override { m_model.setSensorMaximum(group, sensor, to); }
    void setTimestamp(int shot, const QDateTime &time) override { m_model.setTimestamp(shot, time); }

private:
    Model &m_model;
};
