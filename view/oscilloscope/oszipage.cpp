#include "view/oscilloscope/oszipage.h"

#include "model/edit/editscope.h"
#include "model/model.h"
#include "plots/oscilloscope/osziwidget.h"
#include "view/oscilloscope/markerbar.h"
#include "view/oscilloscope/oszicontrols.h"
#include "view/oscilloscope/oszihead.h"
#include "view/oscilloscope/oszirow.h"
#include "view/oscilloscope/oszirows.h"
#include "view/oscilloscope/samplingbox.h"
#include "view/oscilloscope/shotbar.h"
#include "view/oscilloscope/timeaxisbar.h"
#include "view/oscilloscope/ycorrectionbox.h"

#include <QVBoxLayout>

OsziPage::OsziPage(QWidget *parent)
    : QWidget(parent)
    , m_head(new OsziHead(this))
    , m_rows(new OsziRows(this))
    , m_axis(new TimeAxisBar(this))
    , m_markers(new MarkerBar(this))
    , m_shots(new ShotBar(this))
    , m_sampling(new SamplingBox(m_shots))
    , m_pointer(*m_rows)
    , m_filter(*m_rows, *m_shots, m_pointer)
    , m_yCorrection(*m_rows, *m_head->yCorrection(), m_pointer)
    , m_ranges(*m_rows)
    , m_readOut(*m_rows, m_pointer)
{
    m_shots->addGroup(m_sampling);
    layOut();
    connectRows();
    connectTimeAxis();
    connectPointing();
    showSensorNames();
    updateEnabled();
}

void OsziPage::layOut()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(oszicontrols::kGap, oszicontrols::kLineGap, oszicontrols::kGap, oszicontrols::kLineGap);
    layout->setSpacing(oszicontrols::kLineGap);
    layout->addWidget(m_head);
    layout->addWidget(m_rows, 1);
    layout->addWidget(m_axis);
    // Separate lines, so that a wide window does not break in the middle of the controls of the measurements.
    layout->addWidget(m_markers);
    layout->addWidget(m_shots);
}

void OsziPage::connectRows()
{
    connect(m_rows, &OsziRows::rangeMoved, this, [this](int position) { m_ranges.store(position); });
    connect(m_head, &OsziHead::sensorToggled, this, [this](int position, bool shown) {
        m_rows->setRowShown(position, shown);
        m_axis->refreshExtent(); // another row may be the topmost one, which decides what fits
    });
    connect(m_head, &OsziHead::lockToggled, this, &OsziPage::setLocked);
    connect(&m_pointer, &SlotPointer::slotsPointed, this, &OsziPage::takeSlots);
    connect(&m_pointer, &SlotPointer::samplesAppended, this, [this] {
        m_yCorrection.takeGrowth();
        emit extentWanted();
    });
}

void OsziPage::connectTimeAxis()
{
    for (int position = 0; position < kNumSensors; ++position) {
        const OsziWidget *plot = m_rows->plot(position);
        m_axis->listenTo(m_rows->input(position));
        connect(m_axis, &TimeAxisBar::startIndexChanged, plot, &OsziWidget::setStartIndex);
        connect(m_axis, &TimeAxisBar::clockGridAutoToggled, plot, &OsziWidget::setClockGridAuto);
    }
    connect(m_axis, &TimeAxisBar::clockGridEdited, m_rows, &OsziRows::setClockGrid);
    connect(m_axis, &TimeAxisBar::zoomChanged, m_rows, &OsziRows::setZoom);
    connect(m_axis, &TimeAxisBar::extentWanted, this, &OsziPage::extentWanted);
    connect(m_rows, &OsziRows::clockGridChanged, m_axis, &TimeAxisBar::showClockGrid);
    connect(m_rows, &OsziRows::plotResized, m_axis, &TimeAxisBar::refreshExtent);
}

void OsziPage::connectPointing()
{
    connect(m_rows, &OsziRows::pointedAt, this, &OsziPage::point);
    connect(m_rows, &OsziRows::pointerReleased, this, &OsziPage::releasePointer);
    connect(&m_readOut, &KeyReadOut::pointedAt, this, &OsziPage::point);
    connect(&m_readOut, &KeyReadOut::ended, this, &OsziPage::releasePointer);
    connect(m_rows, &OsziRows::cancelled, m_markers, &MarkerBar::disarm);
    connect(m_markers, &MarkerBar::armedChanged, m_rows, &OsziRows::setPlacing);
    connect(m_markers, &MarkerBar::clearClicked, this, [this] {
        const EditScope edit(m_model, [] { return tr("Löschen der Marker"); }); // of all four, which come one by one
        m_markers->clear();
    });
}

// --- What the user does ---

void OsziPage::point(int x)
{
    m_markers->pointAt(m_rows->sampleAt(x));
    m_rows->showReadOut(x);
}

void OsziPage::releasePointer()
{
    m_markers->release();
    m_rows->hideReadOut();
}

void OsziPage::setLocked(bool locked)
{
    if (locked)
        m_markers->disarm(); // the next click in a plot would still place it
    updateEnabled();
}

void OsziPage::updateEnabled()
{
    const bool open = !m_head->isLocked();
    m_rows->setEditable(open);
    m_axis->setEditable(open);
    m_markers->setEnabled(open);
    m_head->yCorrection()->setEditable(open);
    m_sampling->setSelectable(open && m_model && m_model->isConnected());
    m_shots->updateEnabled(open, m_pointer.measurementCount() > 0);
}

// --- What the model says ---

void OsziPage::setModel(Model *model)
{
    m_model = model;
    m_pointer.setModel(model);
    m_ranges.setModel(model);
}

void OsziPage::takeSlots()
{
    // Pointing the slots shows all curves and keeps the channel offsets, which were those of other measurements.
    m_filter.reapply();
    m_yCorrection.applyIfOn();
    m_shots->showCount(m_pointer.measurementCount());
    updateEnabled();
    emit extentWanted();
}

void OsziPage::showProject()
{
    for (int position = 0; position < kNumSensors; ++position)
        m_rows->row(position)->showOffset(m_model->offset(position));
    showSensorNames();
    showMarkers();
    for (int phase = 0; phase < kNumCyclePhases; ++phase)
        m_rows->showPhaseName(phase, m_model->phaseName(phase));
}

void OsziPage::showSensorNames()
{
    const SensorDescription description = m_model ? m_model->sensorDescription() : SensorDescription();
    const int known = description.numSensorGroups() > 0 ? description.sensorGroup(0).numSensors() : 0;
    for (int position = 0; position < kNumSensors; ++position) {
        const QString name = position < known ? description.sensorGroup(0).sensorName(position) : QString();
        const QString unit = position < known ? description.sensorGroup(0).sensorUnit(position) : QString();
        const QColor color = m_model ? m_model->color(position) : defaultSensorColor(position);
        m_rows->row(position)->setTitle(name, unit, color);
        m_head->setSensorName(position, name);
    }
}

void OsziPage::showMarkers()
{
    VerticalMarkers samples{};
    for (int index = 0; m_model && index < kNumVerticalMarkers; ++index)
        samples.at(static_cast<std::size_t>(index)) = m_model->verticalMarker(index);
    m_markers->showMarkers(samples, m_rows->clock());
    m_rows->showMarkers(samples);
}

void OsziPage::showExtent()
{
    m_axis->setExtent({m_pointer.longestCurve(), m_rows->visibleSamples(), m_pointer.isGrowing()});
}

void OsziPage::setClock(int clock, int largestGrid)
{
    m_rows->setClock(clock);
    m_axis->setClock(clock, largestGrid);
    m_rows->setClockGrid(m_axis->clockGrid());
    m_sampling->showPeriod(clock);
    showMarkers(); // kept as samples, shown in seconds
    m_yCorrection.applyIfOn();
}
