#include "view/tabsensors.h"

#include "model/model.h"
#include "view/logging.h"
#include "view/sensorpanel.h"
#include "view/tabstyle.h"

#include <QEvent>
#include <QVBoxLayout>

#include <array>

struct TabSensors::Private
{
    Model *model = nullptr;
    std::array<SensorPanel *, kNumSensors> panels{};
};

TabSensors::TabSensors(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    QWidget *page = tabstyle::addScrolledPage(this);
    auto *rows = new QVBoxLayout(page);
    rows->setContentsMargins(16, 16, 16, 16);
    rows->setSpacing(12);
    for (std::size_t i = 0; i < d->panels.size(); ++i) {
        d->panels[i] = new SensorPanel(page);
        d->panels[i]->setObjectName(QStringLiteral("sensorPanel%1").arg(i + 1));
        rows->addWidget(d->panels[i], 1);
    }
}

TabSensors::~TabSensors() = default;

void TabSensors::setModel(Model *model)
{
    d->model = model;
    updateDescription();
    updateValues();
}

void TabSensors::updateDescription()
{
    if (!d->model)
        return;
    const SensorDescription &description = d->model->sensorDescription();
    const SensorGroup group = description.numSensorGroups() > 0 ? description.sensorGroup(0) : SensorGroup();
    for (int i = 0; i < kNumSensors; ++i) {
        const bool described = i < group.numSensors();
        const QString name = described ? group.sensorName(i) : QString();
        d->panels[static_cast<std::size_t>(i)]->setDescription(name.isEmpty() ? tr("Sensor %1").arg(i + 1) : name,
                                                               described ? group.sensorUnit(i) : QString(),
                                                               d->model->color(i));
    }
}

void TabSensors::updateValues()
{
    if (!d->model)
        return;
    for (int i = 0; i < kNumSensors; ++i) {
        SensorPanel *panel = d->panels[static_cast<std::size_t>(i)];
        const SampleList *newest = d->model->measurement(i, d->model->numChannels(i) - 1);
        if (newest && !newest->isEmpty())
            panel->setValue(newest->constLast());
        else
            panel->clearValue();
    }
}

void TabSensors::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        updateDescription();
        updateValues();
    }
    QWidget::changeEvent(event);
}
