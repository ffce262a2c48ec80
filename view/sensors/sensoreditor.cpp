#include "view/sensors/sensoreditor.h"

#include "model/edit/editscope.h"
#include "model/model.h"
#include "view/sensors/sensorchoices.h"
#include "view/sensors/sensordialog.h"
#include "view/sensors/sensortreemodel.h"

#include <algorithm>
#include <utility>

SensorEditor::SensorEditor(const SensorTreeModel &sensors, SensorChoices &choices, QWidget *parent)
    : QObject(parent)
    , m_sensors(sensors)
    , m_choices(choices)
    , m_parent(parent)
{}

void SensorEditor::setModel(Model *model)
{
    m_model = model;
}

void SensorEditor::openDialog(int sensor)
{
    const SensorInfo before = m_sensors.sensors().sensors.at(sensor);
    auto *dialog = new SensorDialog(before, m_parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, before] { applyEdit(before, dialog->sensor()); });
    dialog->open();
}

void SensorEditor::rename(int sensor, const QString &name)
{
    const SensorInfo before = m_sensors.sensors().sensors.at(sensor);
    SensorInfo after = before;
    after.ownName = name;
    applyEdit(before, after);
}

void SensorEditor::applyEdit(const SensorInfo &before, const SensorInfo &after)
{
    const EditScope edit(m_model, [name = before.name] { return tr("Änderung von %1").arg(name); });
    if (after.ownName != before.ownName) {
        keepChoices(before, after.ownName);
        emit nameEdited(before.sensor, after.ownName);
    }
    if (after.unit != before.unit)
        emit unitEdited(before.sensor, after.unit);
    if (after.color != before.color)
        emit colorEdited(before.channel, after.color);
    if (!(after.limits == before.limits))
        emit limitsEdited(before.group, before.sensor, after.limits.minimum(), after.limits.maximum());
}

/// Other sensors may already have the new name: the key depends on how many of them come first.
void SensorEditor::keepChoices(const SensorInfo &before, const QString &name)
{
    const QVector<SensorInfo> &all = m_sensors.sensors().sensors;
    const auto namesakes = std::count_if(all.cbegin(), all.cend(), [&](const SensorInfo &other) {
        return other.ownName == name
               && std::make_pair(other.group, other.sensor) < std::make_pair(before.group, before.sensor);
    });
    m_choices.copy(before.key, sensorKey(name, static_cast<int>(namesakes)));
}
