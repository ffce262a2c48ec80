#include "view/oscilloscope/taboszilloscope.h"

#include "plots/oscilloscope/osziwidget.h"
#include "view/common/logging.h"
#include "view/oscilloscope/oszirowcontrols.h"
#include "view/oscilloscope/taboszilloscope_p.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

TabOszilloscope::TabOszilloscope(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    d->build();
    d->retranslateUi();
    setClock(100, 10000);
    d->showSensorNames();
    d->showMarkers();
    d->showPhaseNames();
    d->showLock();
    updateOsziSlider();
}

TabOszilloscope::~TabOszilloscope() = default;

void TabOszilloscope::setModel(Model *model)
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (d->model)
        disconnect(d->model, nullptr, this, nullptr);
    d->model = model;
    d->pointed = false;
    if (!model) {
        qCDebug(lcView) << "model is NULL !!!";
        clearSlots();
        return;
    }
    connect(model, &Model::appStateChanged, this, [this] { d->updateEnabled(); });
    connect(model, &Model::projectChanged, this, &TabOszilloscope::onModel_projectChanged);
    connect(model, &Model::dataChanged, this, &TabOszilloscope::onModel_dataChanged);
    connect(model, &Model::viewDataChanged, this, &TabOszilloscope::onModel_viewDataChanged);
    connect(model, &QObject::destroyed, this, &TabOszilloscope::clearSlots);
    onModel_viewDataChanged();
    onModel_projectChanged();
    onModel_dataChanged();
}

OsziWidget *TabOszilloscope::row(int position) const
{
    return position >= 0 && position < kNumSensors ? d->rows.at(static_cast<size_t>(position))->plot() : nullptr;
}

void TabOszilloscope::update()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    const QSignalBlocker blocker(this);
    for (const OsziRow *row : d->rows)
        row->plot()->update();
    if (!d->model) {
        qCDebug(lcView) << " ERROR: model==nullptr!";
        return;
    }
    d->showSensorNames();
    updateOsziSlider();
    QWidget::update();
}

void TabOszilloscope::onModel_projectChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (!d->model) {
        qCDebug(lcView) << "model is NULL !!!";
        return;
    }
    const QSignalBlocker blocker(this);
    if (d->model->clock() != d->clock)
        setClock(d->model->clock(), 100 * d->model->clock());
    for (int position = 0; position < kNumSensors; ++position)
        d->rows.at(static_cast<size_t>(position))->showOffset(d->model->offset(position));
    d->showSensorNames();
    d->showMarkers();
    d->showPhaseNames();
}

void TabOszilloscope::onModel_viewDataChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (!d->model) {
        qCDebug(lcView) << "model is NULL !!!";
        return;
    }
    d->applyViewData();
    setCheckBoxMarkerAbsolute(d->model->markersAbsolute());
}

void TabOszilloscope::Private::applyViewData()
{
    for (int position = 0; position < kNumSensors; ++position) {
        OsziRow *row = rows.at(static_cast<size_t>(position));
        // A range that cannot be shown is replaced by what is shown, so that the next save writes what the user saw.
        if (!row->setSpan({model->osziMinimum(position), model->osziMaximum(position)}))
            storeSpan(row);
    }
}

void TabOszilloscope::Private::storeSpan(const OsziRow *row)
{
    const auto found = std::find(rows.begin(), rows.end(), row);
    if (!model || found == rows.end())
        return;
    const int position = static_cast<int>(found - rows.begin());
    model->setOsziMinimum(position, row->span().minimum);
    model->setOsziMaximum(position, row->span().maximum);
}

int TabOszilloscope::Private::rowOf(const QObject *sender, OsziDoubleSpinBox *(OsziRow::*box)() const) const
{
    for (int position = 0; position < kNumSensors; ++position) {
        if (sender && (rows.at(static_cast<size_t>(position))->*box)() == sender)
            return position;
    }
    qCDebug(lcView) << " wrong sensor index!";
    return -1;
}

void TabOszilloscope::onSpinBoxMaxValueChanged(double maxValue)
{
    qCDebug(lcView).nospace() << Q_FUNC_INFO << " maxValue=" << maxValue;
    const int position = d->rowOf(sender(), &OsziRow::maxBox);
    if (position < 0 || !d->model)
        return;
    d->model->setOsziMaximum(position, row(position)->maxValue());
    emit rangeEdited();
}

void TabOszilloscope::onSpinBoxMinValueChanged(double minValue)
{
    qCDebug(lcView).nospace() << Q_FUNC_INFO << " maxValue=" << minValue;
    const int position = d->rowOf(sender(), &OsziRow::minBox);
    if (position < 0 || !d->model)
        return;
    d->model->setOsziMinimum(position, row(position)->minValue());
    emit rangeEdited();
}

void TabOszilloscope::setMaximumSensorRange(int group, int sensor, double min, double max)
{
    qCDebug(lcView) << Q_FUNC_INFO << "group=" << group << "sensor=" << sensor << "min=" << min << "max=" << max;
    if (group != 0 || !row(sensor))
        return;
    OsziRow *limited = d->rows.at(static_cast<size_t>(sensor));
    if (limited->setLimits({min, max}))
        d->storeSpan(limited);
}

void TabOszilloscope::setCurrentSensorRange(int group, int sensor, double min, double max)
{
    qCDebug(lcView) << Q_FUNC_INFO << "group=" << group << "sensor=" << sensor << "min=" << min << "max=" << max;
    if (group != 0 || !row(sensor))
        return;
    OsziRow *shown = d->rows.at(static_cast<size_t>(sensor));
    if (shown->setSpan({min, max}))
        d->storeSpan(shown);
}

void TabOszilloscope::setClock(int clock, int clockGrid)
{
    qCDebug(lcView) << Q_FUNC_INFO << "clock=" << clock << "clockGrid=" << clockGrid;
    if (clock <= 0)
        return;
    d->clock = clock;
    for (const OsziRow *row : d->rows)
        row->plot()->setClock(clock);
    d->clockGrid->setRange(clock, std::max(clock, clockGrid));
    d->clockGrid->setSingleStep(clock);
    for (const OsziRow *row : d->rows)
        row->plot()->setClockGrid(d->clockGrid->value());
    d->showSampleRate();
    d->showMarkers();
    if (d->yCorrection->isChecked())
        d->applyYCorrection();
}

void TabOszilloscope::setSamplingPeriods(const QStringList &labels)
{
    qCDebug(lcView) << Q_FUNC_INFO << labels;
    const QSignalBlocker blocker(d->sampleRate);
    d->sampleRate->clear();
    for (const QString &label : labels)
        d->sampleRate->addItem(QString(label).replace(QLatin1String("ms"), QLatin1String(" ms")), label);
    d->showSampleRate();
}

void TabOszilloscope::Private::chooseSampleRate(int index)
{
    const QString label = sampleRate->itemData(index).toString();
    showSampleRate();
    qCDebug(lcView) << "emit samplingPeriodChosen(QString)" << label;
    emit q->samplingPeriodChosen(label);
}

void TabOszilloscope::Private::showSampleRate()
{
    const QString text = TabOszilloscope::tr("%1 ms").arg(clock);
    sampleRate->setCurrentIndex(sampleRate->findText(text));
    sampleRate->setPlaceholderText(text); // seen where it is none of those on offer
}

void TabOszilloscope::Private::showSensorNames()
{
    const bool described = model && model->sensorDescription().numSensorGroups() > 0;
    for (int position = 0; position < kNumSensors; ++position) {
        OsziRow *row = rows.at(static_cast<size_t>(position));
        QString name;
        QString unit;
        if (described && position < model->sensorDescription().sensorGroup(0).numSensors()) {
            name = model->sensorDescription().sensorGroup(0).sensorName(position);
            unit = model->sensorDescription().sensorGroup(0).sensorUnit(position);
        }
        row->setTitle(name, unit, model ? model->color(position) : defaultSensorColor(position));
        const SensorSwitch &shown = sensors.at(static_cast<size_t>(position));
        shown.label->setText(name.isEmpty() ? row->defaultName() : name);
        shown.box->setAccessibleName(shown.label->text());
    }
}

void TabOszilloscope::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        d->retranslateUi();
}
