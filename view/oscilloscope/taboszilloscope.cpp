#include "view/oscilloscope/taboszilloscope.h"

#include "app/theme.h"
#include "model/model.h"
#include "plots/oscilloscope/osziwidget.h"
#include "view/common/logging.h"
#include "view/common/tabstyle.h"
#include "view/oscilloscope/markerbar.h"
#include "view/oscilloscope/oszidoublespinbox.h"
#include "view/oscilloscope/oszihead.h"
#include "view/oscilloscope/oszipage.h"
#include "view/oscilloscope/oszirow.h"
#include "view/oscilloscope/oszirows.h"
#include "view/oscilloscope/samplingbox.h"
#include "view/oscilloscope/shotbar.h"
#include "view/oscilloscope/ycorrectionbox.h"

#include <QPointer>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

constexpr int kDefaultClock = 100;  // milliseconds
constexpr int kGridsPerClock = 100; // the largest clock grid in sampling periods

/// What makes five rows and all controls fit a small laptop: the application's sheet, but tighter.
QString compactSheet()
{
    return QStringLiteral("QLabel, QCheckBox, QLineEdit, QSpinBox, QDoubleSpinBox {font-size: 16px;}"
                          "QSpinBox, QDoubleSpinBox {min-height: 32px; padding: 0px;}"
                          "QPushButton {min-height: 34px; min-width: 44px;}"
                          "QPushButton#lockButton {min-width: 56px;}"
                          "QPushButton#lockButton:checked {background-color: #B3261E;}"
                          "QComboBox {font-size: 16px; min-height: 28px; padding: 0px 2px;}"
                          "QComboBox QAbstractItemView::item {min-height: 34px;}"
                          "QCheckBox {spacing: 4px; padding: 1px;}"
                          "QCheckBox::indicator {width: 24px; height: 24px;}"
                          "QCheckBox#checkBoxAllMeasurings {min-width: 34px;}"
                          "QWidget#osziRows {background-color: white;}"
                          "*[osziParams=true] QLabel {font-size: 13px; min-height: 15px; max-height: 18px;}"
                          "*[osziParams=true] QLabel#osziTitle {font-size: 14px; font-weight: bold;}"
                          "*[osziParams=true] QDoubleSpinBox {font-size: 15px; min-height: 25px; min-width: 110px;}"
                          "*[osziParams=true] QDoubleSpinBox::up-button, *[osziParams=true] QDoubleSpinBox::down-button"
                          " {width: 24px; height: 25px;}"
                          "QScrollBar:horizontal {min-height: 34px;}"
                          "QSlider {min-height: 32px;}"
                          "QSlider::groove:horizontal {height: 8px; border-radius: 4px; background-color: #D5D5D5;}"
                          "QSlider::handle:horizontal {width: 28px; margin: -10px 0px; border-radius: 14px;"
                          " background-color: %1;}"
                          "QSlider::handle:horizontal:focus {border: 3px solid black;}")
        .arg(theme::colorPrimary);
}

} // namespace

struct TabOszilloscope::Private
{
    OsziPage *page = nullptr;
    QPointer<Model> model;
};

TabOszilloscope::TabOszilloscope(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    setStyleSheet(compactSheet());
    QWidget *scrolled = tabstyle::addScrolledPage(this); // for windows that are too low
    d->page = new OsziPage(scrolled);
    auto *layout = new QVBoxLayout(scrolled);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->page);
    connectRows();
    connectMarkers();
    connectMeasurements();
    setClock(kDefaultClock, kGridsPerClock * kDefaultClock);
    updateOsziSlider();
}

TabOszilloscope::~TabOszilloscope() = default;

// --- Connections ---

void TabOszilloscope::connectRows()
{
    const auto changed = qOverload<double>(&QDoubleSpinBox::valueChanged);
    const OsziRows *rows = d->page->rows();
    for (int position = 0; position < kNumSensors; ++position) {
        connect(rows->row(position)->maxBox(), changed, this, &TabOszilloscope::onSpinBoxMaxValueChanged);
        connect(rows->row(position)->minBox(), changed, this, &TabOszilloscope::onSpinBoxMinValueChanged);
    }
    connect(rows, &OsziRows::offsetEdited, this, &TabOszilloscope::offsetEdited);
    connect(d->page, &OsziPage::extentWanted, this, &TabOszilloscope::updateOsziSlider);
    connect(d->page->sampling(), &SamplingBox::periodChosen, this, &TabOszilloscope::samplingPeriodChosen);
}

void TabOszilloscope::connectMarkers()
{
    const auto changed = qOverload<double>(&QDoubleSpinBox::valueChanged);
    const MarkerBar *markers = d->page->markers();
    for (int index = 0; index < kNumVerticalMarkers; ++index)
        connect(markers->secondsBox(index), changed, this, &TabOszilloscope::onMarkerChanged);
    connect(markers, &MarkerBar::markerChangedAbsolute, this, &TabOszilloscope::markerChangedAbsolute);
    connect(markers, &MarkerBar::markerChangedRelative, this, &TabOszilloscope::markerChangedRelative);
    connect(markers, &MarkerBar::absoluteClicked, this, &TabOszilloscope::onCheckBoxMarkerAbsClicked);
}

void TabOszilloscope::connectMeasurements()
{
    const YCorrectionBox *yCorrection = d->page->head()->yCorrection();
    connect(yCorrection, &YCorrectionBox::toggled, this, &TabOszilloscope::autoYCorrectionClicked);
    connect(yCorrection, &YCorrectionBox::timeEdited, this, &TabOszilloscope::autoYCorrectionSpinBoxChanged);
    const ShotBar *shots = d->page->shots();
    connect(shots, &ShotBar::allDisplayedToggled, this, &TabOszilloscope::displayAllMeas);
    connect(shots, &ShotBar::displayedEdited, this, &TabOszilloscope::displayedMeasChanged);
    connect(shots, &ShotBar::highlightEdited, this, &TabOszilloscope::highlightBoxChanged);
    connect(shots, &ShotBar::deletionTriggered, this, &TabOszilloscope::onDeleteMeasurementClicked);
    connect(shots, &ShotBar::deletionRequested, this, &TabOszilloscope::deleteMeasurements);
}

// --- The model ---

void TabOszilloscope::setModel(Model *model)
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (d->model)
        disconnect(d->model, nullptr, this, nullptr);
    d->model = model;
    d->page->setModel(model);
    if (!model) {
        qCDebug(lcView) << "model is NULL !!!";
        clearSlots();
        return;
    }
    connect(model, &Model::appStateChanged, this, [this] { d->page->updateEnabled(); });
    connect(model, &Model::projectChanged, this, &TabOszilloscope::onModel_projectChanged);
    connect(model, &Model::dataChanged, this, &TabOszilloscope::onModel_dataChanged);
    connect(model, &Model::viewDataChanged, this, &TabOszilloscope::onModel_viewDataChanged);
    connect(model, &QObject::destroyed, this, &TabOszilloscope::clearSlots);
    onModel_viewDataChanged();
    onModel_projectChanged();
    onModel_dataChanged();
}

void TabOszilloscope::onModel_projectChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (!d->model) {
        qCDebug(lcView) << "model is NULL !!!";
        return;
    }
    const QSignalBlocker blocker(this);
    if (d->model->clock() != d->page->rows()->clock())
        setClock(d->model->clock(), kGridsPerClock * d->model->clock());
    d->page->showProject();
}

void TabOszilloscope::onModel_dataChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (!d->model) {
        qCDebug(lcView) << "model is NULL !!!";
        return;
    }
    const QSignalBlocker blocker(this);
    d->page->pointer().takeChange();
}

void TabOszilloscope::onModel_viewDataChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (!d->model) {
        qCDebug(lcView) << "model is NULL !!!";
        return;
    }
    d->page->ranges().showModel();
    setCheckBoxMarkerAbsolute(d->model->markersAbsolute());
}

void TabOszilloscope::pointSlotsAtModel()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (!d->model) {
        qCDebug(lcView) << "model is NULL !!!";
        return;
    }
    const QSignalBlocker blocker(this);
    d->page->pointer().pointAtModel();
}

void TabOszilloscope::clearSlots()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->page->pointer().clear();
}

void TabOszilloscope::update()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    const QSignalBlocker blocker(this);
    for (OsziWidget *plot : d->page->rows()->plots())
        plot->update();
    if (!d->model) {
        qCDebug(lcView) << " ERROR: model==nullptr!";
        return;
    }
    d->page->showSensorNames();
    updateOsziSlider();
    QWidget::update();
}

// --- Rows and time axis ---

OsziWidget *TabOszilloscope::row(int position) const
{
    return d->page->rows()->plot(position);
}

void TabOszilloscope::updateOsziSlider()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->page->showExtent();
}

void TabOszilloscope::setClock(int clock, int clockGrid)
{
    qCDebug(lcView) << Q_FUNC_INFO << "clock=" << clock << "clockGrid=" << clockGrid;
    if (clock <= 0)
        return;
    d->page->setClock(clock, clockGrid);
}

void TabOszilloscope::setSamplingPeriods(const QStringList &labels)
{
    qCDebug(lcView) << Q_FUNC_INFO << labels;
    d->page->sampling()->setPeriods(labels);
}

void TabOszilloscope::setMaximumSensorRange(int group, int sensor, double min, double max)
{
    qCDebug(lcView) << Q_FUNC_INFO << "group=" << group << "sensor=" << sensor << "min=" << min << "max=" << max;
    if (group == 0)
        d->page->ranges().setLimits(sensor, {min, max});
}

void TabOszilloscope::setCurrentSensorRange(int group, int sensor, double min, double max)
{
    qCDebug(lcView) << Q_FUNC_INFO << "group=" << group << "sensor=" << sensor << "min=" << min << "max=" << max;
    if (group == 0)
        d->page->ranges().setSpan(sensor, {min, max});
}

void TabOszilloscope::onSpinBoxMaxValueChanged(double maxValue)
{
    qCDebug(lcView).nospace() << Q_FUNC_INFO << " maxValue=" << maxValue;
    if (d->page->ranges().takeMaximum(sender()))
        emit rangeEdited();
}

void TabOszilloscope::onSpinBoxMinValueChanged(double minValue)
{
    qCDebug(lcView).nospace() << Q_FUNC_INFO << " maxValue=" << minValue;
    if (d->page->ranges().takeMinimum(sender()))
        emit rangeEdited();
}

// --- Markers ---

void TabOszilloscope::onMarkerChanged(double seconds)
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->page->markers()->reportEntry(sender(), seconds);
}

void TabOszilloscope::onCheckBoxMarkerAbsClicked(bool absolute)
{
    qCDebug(lcView) << Q_FUNC_INFO << "absolute=" << absolute;
    setCheckBoxMarkerAbsolute(absolute);
    qCDebug(lcView) << "emit checkBoxMarkerAbsClicked(bool)";
    emit checkBoxMarkerAbsClicked(absolute);
}

void TabOszilloscope::setCheckBoxMarkerAbsolute(bool absolute)
{
    qCDebug(lcView) << Q_FUNC_INFO << "absolute=" << absolute;
    d->page->markers()->setAbsolute(absolute);
    d->page->showMarkers();
}

// --- Measurements ---

void TabOszilloscope::displayAllMeas(bool state)
{
    qCDebug(lcView) << Q_FUNC_INFO << "state=" << state;
    d->page->filter().setAll(state);
}

void TabOszilloscope::displayedMeasChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->page->filter().takeTyped(sender() == d->page->shots());
}

void TabOszilloscope::highlightBoxChanged(int measurement)
{
    qCDebug(lcView) << Q_FUNC_INFO << "measurement=" << measurement;
    d->page->filter().highlight(measurement);
}

void TabOszilloscope::autoYCorrectionClicked()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->page->yCorrection().apply();
}

void TabOszilloscope::autoYCorrectionSpinBoxChanged(int milliseconds)
{
    qCDebug(lcView) << Q_FUNC_INFO << "milliseconds=" << milliseconds;
    d->page->yCorrection().setTime(milliseconds);
}

void TabOszilloscope::onDeleteMeasurementClicked()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->page->shots()->requestDeletion();
}

void TabOszilloscope::clearDeletionField()
{
    d->page->shots()->clearDeletion();
}
