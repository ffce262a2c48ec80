#include "view/window/modeldisplay.h"

#include "model/model.h"
#include "view/blackbox/tabblackbox.h"
#include "view/evaluation/tabevaluation.h"
#include "view/home/tabhome.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/project/tabproject.h"
#include "view/sensors/tabsensors.h"
#include "view/terminal/tabdatalogger.h"
#include "view/window/statusdisplay.h"

#include <QTabWidget>

#include <algorithm>

namespace {

constexpr int kDataInterval = 50; // ms between two updates of what shows the latest samples

QStringList sensorNames(const SensorDescription &description)
{
    QStringList names;
    if (description.numSensorGroups() == 0)
        return names;
    const SensorGroup &group = description.sensorGroup(0);
    for (int i = 0; i < std::min(kNumSensors, group.numSensors()); ++i)
        names.append(group.sensorName(i));
    return names;
}

} // namespace

ModelDisplay::ModelDisplay(Model *model, const Pages &pages, StatusDisplay &status)
    : m_model(model)
    , m_pages(pages)
    , m_status(status)
    , m_data(kDataInterval)
    , m_project(0)
{
    m_pages.home->setModel(model);
    m_pages.project->setModel(model);
    m_pages.sensors->setModel(model);
    m_pages.oszi->setModel(model);
    m_pages.evaluation->setModel(model);
    connect(&m_data, &Throttle::due, this, &ModelDisplay::refreshData);
    connect(&m_project, &Throttle::due, this, &ModelDisplay::refreshProject);
}

void ModelDisplay::refreshAll()
{
    m_pages.project->updateFromModel();
    refreshProject();
    m_pages.oszi->onModel_projectChanged();
    m_pages.oszi->onModel_dataChanged();
    refreshData();
}

void ModelDisplay::refreshProject()
{
    m_project.cancel();
    m_pages.home->updateFromModel();
    m_pages.sensors->updateDescription();
    m_pages.blackBox->setImportedFiles(m_model->importedFiles());
    m_pages.logger->setSensorNames(sensorNames(m_model->sensorDescription()));
    m_status.refreshFile();
}

void ModelDisplay::refreshData()
{
    m_data.cancel();
    const QWidget *shown = m_pages.tabs->currentWidget();
    if (shown == m_pages.home)
        m_pages.home->updateFromModel();
    else if (shown == m_pages.sensors)
        m_pages.sensors->updateValues();
}

void ModelDisplay::noteProjectChange()
{
    // Not throttled: an edit made in between would write the fields of the previous project into the model.
    m_pages.project->updateFromModel();
    m_project.request();
}
