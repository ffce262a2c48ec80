#include "model/model.h"
#include "view/sensors/sensordialog.h"
#include "view/sensors/sensortreemodel.h"
#include "view/sensors/tabsensors_p.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QTreeView>

// What the user changes goes out as a signal and comes back through the model.

int TabSensors::Private::currentSensor() const
{
    return sensors->sensorAt(tree->currentIndex());
}

void TabSensors::Private::showEditable()
{
    const int index = currentSensor();
    const bool any = index >= 0;
    editButton->setEnabled(any);
    editAction->setEnabled(any);
    resetAction->setEnabled(any);
    renameAction->setEnabled(any && sensors->sensors().sensors.at(index).canRename());
}

bool TabSensors::Private::handleTreeKey(const QKeyEvent &event)
{
    const QModelIndex current = tree->currentIndex();
    const QWidget *focus = QApplication::focusWidget();
    const bool isEditing = focus && tree->viewport()->isAncestorOf(focus); // which passes on the key that ends it
    if (!current.isValid() || isEditing || (event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    const QModelIndex name = current.siblingAtColumn(SensorTreeModel::NameColumn);
    switch (event.key()) {
    case Qt::Key_Space: // in whichever column the user stands
        (void)sensors->setData(name,
                               sensors->data(name, Qt::CheckStateRole) == Qt::Checked ? Qt::Unchecked : Qt::Checked,
                               Qt::CheckStateRole);
        return true;
    case Qt::Key_F2:
        renameInPlace();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        edit(currentSensor());
        return true;
    default:
        return false;
    }
}

void TabSensors::Private::renameInPlace()
{
    const int index = currentSensor();
    if (index < 0 || !sensors->sensors().sensors.at(index).canRename())
        return;
    const QModelIndex name = sensors->indexOf(index);
    tree->setCurrentIndex(name);
    tree->edit(name);
}

void TabSensors::Private::rename(int index, const QString &name)
{
    const SensorInfo before = sensors->sensors().sensors.at(index);
    SensorInfo after = before;
    after.ownName = name;
    applyEdit(before, after);
}

void TabSensors::Private::edit(int index)
{
    if (index < 0 || !model || model->isBusy()) // the sensors may be others when the dialog is closed
        return;
    const SensorInfo before = sensors->sensors().sensors.at(index);
    auto *dialog = new SensorDialog(before, q);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, q, [this, dialog, before] { applyEdit(before, dialog->sensor()); });
    dialog->open();
}

void TabSensors::Private::applyEdit(const SensorInfo &before, const SensorInfo &after)
{
    if (after.ownName != before.ownName) {
        const QVector<SensorInfo> &all = sensors->sensors().sensors;
        const auto namesakes = std::count_if(all.cbegin(), all.cend(), [&](const SensorInfo &other) {
            return other.ownName == after.ownName
                   && std::make_pair(other.group, other.sensor) < std::make_pair(before.group, before.sensor);
        });
        choices.copy(before.key, sensorKey(after.ownName, static_cast<int>(namesakes)));
        emit q->sensorNameEdited(before.sensor, after.ownName);
    }
    if (after.color != before.color)
        emit q->sensorColorEdited(before.channel, after.color);
    if (!(after.limits == before.limits))
        emit q->sensorLimitsEdited(before.group, before.sensor, after.limits.minimum(), after.limits.maximum());
}
