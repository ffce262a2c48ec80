#include "plots/oscilloscope/osziwidget.h"
#include "view/common/actionicon.h"
#include "view/common/logging.h"
#include "view/oscilloscope/oszirowcontrols.h"
#include "view/oscilloscope/oszirowinput.h"
#include "view/oscilloscope/taboszilloscope_p.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QIcon>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>

// --- Connections ---

void TabOszilloscope::Private::connectRow(int position)
{
    const auto changed = qOverload<double>(&QDoubleSpinBox::valueChanged);
    OsziRow *row = rows.at(static_cast<size_t>(position));
    OsziWidget *plot = row->plot();
    connect(row->maxBox(), changed, q, &TabOszilloscope::onSpinBoxMaxValueChanged);
    connect(row->minBox(), changed, q, &TabOszilloscope::onSpinBoxMinValueChanged);
    connect(row->offsetBox(), changed, q, [this, position](double offset) {
        qCDebug(lcView) << "emit offsetEdited(int, double)";
        emit q->offsetEdited(position, offset);
    });
    connect(clockGridAuto, &QCheckBox::toggled, plot, &OsziWidget::setClockGridAuto);
    connect(clockGrid, qOverload<int>(&QSpinBox::valueChanged), plot, &OsziWidget::setClockGrid);
    connect(plot, &OsziWidget::clockGridChanged, clockGrid, &OsziSpinBox::showValue);
    connect(scrollBar, &QScrollBar::valueChanged, plot, &OsziWidget::setStartIndex);
    connect(plot, &OsziWidget::mouseAtX, q, [this](int x) { showMouse(x); });
    connect(plot, &OsziWidget::mouseReleased, q, [this] { hideMouse(); });
    connect(sensors.at(static_cast<size_t>(position)).box, &QCheckBox::toggled, q,
            [this, position](bool shown) { showSensor(position, shown); });
}

void TabOszilloscope::Private::connectInput(int position)
{
    OsziRow *row = rows.at(static_cast<size_t>(position));
    auto *input = new OsziRowInput(row->plot());
    connect(input, &OsziRowInput::timeZoomed, q, [this](int x, int steps) { zoomTime(x, steps); });
    connect(input, &OsziRowInput::valueZoomed, q, [this, row](int y, int steps) { zoomValue(row, y, steps); });
    connect(input, &OsziRowInput::dragStarted, q, [this, row] {
        dragStartIndex = scrollBar->value();
        dragSpan = row->span();
    });
    connect(input, &OsziRowInput::timeDragged, q, [this](int pixels) { dragTime(pixels); });
    connect(input, &OsziRowInput::valueDragged, q, [this, row](int pixels) { dragValue(row, pixels); });
    connect(input, &OsziRowInput::timeStepped, q, [this](int tenths) { stepTime(tenths); });
    connect(input, &OsziRowInput::valueStepped, q, [this, row](int tenths) { stepValue(row, tenths); });
    connect(input, &OsziRowInput::jumpedToStart, q, [this] {
        scrollBar->setValue(0);
        holdBack();
    });
    connect(input, &OsziRowInput::jumpedToEnd, q, [this] { scrollBar->setValue(scrollBar->maximum()); });
    connect(input, &OsziRowInput::fitRequested, q, [this, position] { fitValue(position); });
    connect(input, &OsziRowInput::cancelled, q, [this] { armMarker(-1, false); });
    connect(input, &OsziRowInput::readOutStepped, q, [this, row](int samples) { stepReadOut(*row->plot(), samples); });
    connect(input, &OsziRowInput::readOutEnded, q, [this] { endReadOut(); });
    connect(input, &OsziRowInput::plotResized, q, [this] { plotResized(); });
}

void TabOszilloscope::Private::connectControls()
{
    connect(scrollBar, &QScrollBar::actionTriggered, q, [this] { holdBack(); });
    connect(scrollBar, &QScrollBar::valueChanged, q, [this](int start) {
        if (start >= scrollBar->maximum())
            heldBack = false;
    });
    connect(scrollBar, &QScrollBar::sliderReleased, q, [this] { scrollReleased(); });
    connect(zoom, &QSlider::valueChanged, q, [this](int value) { applyZoom(value); });
    connect(clockGridAuto, &QCheckBox::toggled, q, [this] { updateEnabled(); });
    connect(lockButton, &QPushButton::toggled, q, [this] { showLock(); });
    connect(sampleRate, qOverload<int>(&QComboBox::activated), q, [this](int index) { chooseSampleRate(index); });
    for (int i = 0; i < Model::kNumMarkers; ++i) {
        const Marker &marker = markers.at(static_cast<size_t>(i));
        connect(marker.button, &QPushButton::toggled, q, [this, i](bool armed) { armMarker(i, armed); });
        connect(marker.seconds, qOverload<double>(&QDoubleSpinBox::valueChanged), q, &TabOszilloscope::onMarkerChanged);
    }
    connect(markerAbsolute, &QCheckBox::clicked, q, &TabOszilloscope::onCheckBoxMarkerAbsClicked);
    connect(clearMarkersButton, &QPushButton::clicked, q, [this] { clearMarkers(); });
    connect(yCorrection, &QCheckBox::toggled, q, &TabOszilloscope::autoYCorrectionClicked);
    connect(yCorrectionTime, qOverload<int>(&QSpinBox::valueChanged), q,
            &TabOszilloscope::autoYCorrectionSpinBoxChanged);
    connect(allMeasurements, &QCheckBox::toggled, q, &TabOszilloscope::displayAllMeas);
    connect(displayed, &QLineEdit::editingFinished, q, &TabOszilloscope::displayedMeasChanged);
    connect(highlight, qOverload<int>(&QSpinBox::valueChanged), q, &TabOszilloscope::highlightBoxChanged);
    connect(deleteButton, &QPushButton::clicked, q, &TabOszilloscope::onDeleteMeasurementClicked);
    connect(deletion, &QLineEdit::returnPressed, q, &TabOszilloscope::onDeleteMeasurementClicked);
}

// --- What can be used ---

void TabOszilloscope::Private::updateEnabled()
{
    const bool open = !lockButton->isChecked();
    const bool any = measurementCount() > 0;
    for (OsziRow *row : rows)
        row->setEditable(open);
    clockGridAuto->setEnabled(open);
    clockGrid->setEnabled(open && !clockGridAuto->isChecked());
    markerFrame->setEnabled(open);
    yCorrection->setEnabled(open);
    yCorrectionTime->setEnabled(open);
    sampleRate->setEnabled(open && model && model->isConnected());
    for (QWidget *control : {static_cast<QWidget *>(allMeasurements), static_cast<QWidget *>(displayed),
                             static_cast<QWidget *>(highlight)})
        control->setEnabled(any);
    deletion->setEnabled(open && any);
    deleteButton->setEnabled(open && any);
}

void TabOszilloscope::Private::showLock()
{
    const bool closed = lockButton->isChecked();
    lockButton->setIcon(
        actionIcon(closed ? QStringLiteral("lock-closed.png") : QStringLiteral("lock-open.png"), Qt::white));
    lockButton->setToolTip(closed ? TabOszilloscope::tr("Gesperrt: Bereiche, Raster, Korrekturen, Marker und Messungen "
                                                        "sind vor Änderungen geschützt. Klicken zum Entsperren.")
                                  : TabOszilloscope::tr("Alles kann geändert werden. Klicken zum Sperren."));
    lockButton->setAccessibleName(closed ? TabOszilloscope::tr("Gesperrt") : TabOszilloscope::tr("Offen"));
    if (closed)
        armMarker(-1, false);
    updateEnabled();
}

void TabOszilloscope::Private::showSensor(int position, bool shown)
{
    rows.at(static_cast<size_t>(position))->setVisible(shown);
    plotResized();
}

// --- Texts ---

void TabOszilloscope::Private::retranslateUi()
{
    for (OsziRow *row : rows)
        row->retranslateUi();
    for (const SensorSwitch &shown : sensors)
        shown.box->setToolTip(TabOszilloscope::tr("Diagramm dieses Sensors zeigen"));
    zoomCaption->setText(TabOszilloscope::tr("Zoom"));
    zoom->setToolTip(TabOszilloscope::tr("Zeitachse dehnen (im Diagramm: Mausrad, + und -)"));
    zoom->setAccessibleName(TabOszilloscope::tr("Zoom der Zeitachse"));
    scrollBar->setToolTip(TabOszilloscope::tr("Zeitachse verschieben (im Diagramm: Pfeiltasten, Pos1 und Ende).\n"
                                              "Ganz rechts folgt die Ansicht den neuesten Werten."));
    scrollBar->setAccessibleName(TabOszilloscope::tr("Zeitachse verschieben"));
    clockGridCaption->setText(TabOszilloscope::tr("Raster"));
    clockGridAuto->setText(TabOszilloscope::tr("auto"));
    clockGridAuto->setToolTip(TabOszilloscope::tr("Abstand der senkrechten Rasterlinien automatisch wählen"));
    clockGrid->setSuffix(TabOszilloscope::tr(" ms"));
    clockGrid->setToolTip(TabOszilloscope::tr("Abstand der senkrechten Rasterlinien"));
    clockGrid->setAccessibleName(TabOszilloscope::tr("Raster der Zeitachse"));
    yCorrectionCaption->setText(TabOszilloscope::tr("y Korr."));
    yCorrection->setToolTip(TabOszilloscope::tr("Jede Kurve so verschieben, dass sie zu dieser Zeit durch null geht"));
    yCorrection->setAccessibleName(TabOszilloscope::tr("y Korrektur"));
    yCorrectionTime->setSuffix(TabOszilloscope::tr(" ms"));
    yCorrectionTime->setToolTip(TabOszilloscope::tr("Zeit, zu der jede Kurve durch null geht"));
    yCorrectionTime->setAccessibleName(TabOszilloscope::tr("Zeit der y Korrektur"));
    sampleRateCaption->setText(TabOszilloscope::tr("Abtastrate"));
    sampleRate->setToolTip(
        TabOszilloscope::tr("Zeit zwischen zwei Messwerten; wählbar, solange die Box verbunden ist"));
    sampleRate->setAccessibleName(sampleRateCaption->text());
    retranslateMarkers();
    retranslateMeasurements();
    showSampleRate();
    showSensorNames();
    showLock();
}

void TabOszilloscope::Private::retranslateMarkers()
{
    for (int i = 0; i < Model::kNumMarkers; ++i) {
        const Marker &marker = markers.at(static_cast<size_t>(i));
        marker.label->setText(TabOszilloscope::tr("t [s]="));
        marker.button->setToolTip(TabOszilloscope::tr("Klicken und dann im Diagramm auf die gewünschte Stelle tippen.\n"
                                                      "Esc bricht ab."));
        marker.button->setAccessibleName(TabOszilloscope::tr("Marker %1 setzen").arg(i + 1));
        marker.seconds->setToolTip(TabOszilloscope::tr("Zeit des Markers in Sekunden; ohne \"absolut\" der Abstand zum "
                                                       "vorigen Marker"));
        marker.seconds->setAccessibleName(TabOszilloscope::tr("Marker %1 in Sekunden").arg(i + 1));
    }
    markerAbsoluteCaption->setText(TabOszilloscope::tr("absolut"));
    markerAbsolute->setToolTip(TabOszilloscope::tr("Zeiten ab dem Beginn der Messung statt Abstände der Marker"));
    markerAbsolute->setAccessibleName(markerAbsoluteCaption->text());
    clearMarkersButton->setToolTip(TabOszilloscope::tr("Alle Marker löschen"));
    clearMarkersButton->setAccessibleName(clearMarkersButton->toolTip());
}

void TabOszilloscope::Private::retranslateMeasurements()
{
    showCounter();
    displayedCaption->setText(TabOszilloscope::tr("Angezeigt"));
    allMeasurements->setText(TabOszilloscope::tr("alle"));
    allMeasurements->setToolTip(TabOszilloscope::tr("Alle Messungen zeigen"));
    displayed->setToolTip(TabOszilloscope::tr("Nummern und Bereiche, durch Komma getrennt: 1-3,5 zeigt die Messungen "
                                              "1, 2, 3 und 5."));
    displayed->setAccessibleName(TabOszilloscope::tr("Angezeigte Messungen"));
    highlightCaption->setText(TabOszilloscope::tr("Markiert"));
    highlight->setToolTip(TabOszilloscope::tr("Nummer der hervorgehobenen Messung; 0 hebt keine hervor"));
    highlight->setAccessibleName(TabOszilloscope::tr("Markierte Messung"));
    deletionCaption->setText(TabOszilloscope::tr("Löschen"));
    deletion->setToolTip(TabOszilloscope::tr("Nummern und Bereiche in aufsteigender Folge, durch Komma getrennt: "
                                             "1-3,5 löscht die Messungen 1, 2, 3 und 5."));
    deletion->setAccessibleName(TabOszilloscope::tr("Zu löschende Messungen"));
    deleteButton->setToolTip(TabOszilloscope::tr("Diese Messungen löschen"));
    deleteButton->setAccessibleName(deleteButton->toolTip());
}
