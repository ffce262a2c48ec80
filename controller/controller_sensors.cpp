#include "controller/controller.h"
#include "controller/controller_p.h"
#include "controller/logging.h"
#include "model/model.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/sensors/sensorscale.h"
#include "view/window/view.h"

#include <QColor>

// --- Edits of the sensors ----------------------------------------------------------------------------------------

void Controller::onTabSensors_nameEdited(int sensor, const QString &name)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    Model *model = d->model;
    applyEdit([model, sensor, name] { model->setSensorName(sensor, name); });
}

void Controller::onTabSensors_colorEdited(int sensor, const QColor &color)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (sensor < 0 || sensor >= kNumSensors || !color.isValid())
        return;
    Model *model = d->model;
    applyEdit([model, sensor, color] { model->setColor(static_cast<uint8_t>(sensor), color); });
}

/// The oscilloscope's row takes the new limits as its range, as it does with those that a box describes.
void Controller::onTabSensors_limitsEdited(int group, int sensor, double minimum, double maximum)
{
    qCDebug(lcController) << Q_FUNC_INFO;
    if (!(minimum < maximum))
        return;
    applyEdit([this, group, sensor, minimum, maximum] {
        d->model->setSensorMinimum(group, sensor, minimum);
        d->model->setSensorMaximum(group, sensor, maximum);
        // An end without a limit is far beyond what a curve could be seen in.
        if (minimum != SensorLimits::kNoLower && maximum != SensorLimits::kNoUpper)
            d->view->tabOszi()->setCurrentSensorRange(group, sensor, minimum, maximum);
    });
}
