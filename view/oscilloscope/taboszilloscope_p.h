#pragma once

#include "model/model.h"
#include "view/oscilloscope/oszirow.h"
#include "view/oscilloscope/taboszilloscope.h"

#include <QPointer>

#include <array>

class ElidedLabel;
class FlowLayout;
class OsziDoubleSpinBox;
class OsziRowInput;
class OsziSpinBox;
class QCheckBox;
class QComboBox;
class QFrame;
class QHBoxLayout;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QScrollBar;
class QSlider;
class QVBoxLayout;

struct TabOszilloscope::Private
{
    struct SensorSwitch
    {
        QCheckBox *box = nullptr;
        ElidedLabel *label = nullptr;
    };
    struct Marker
    {
        QPushButton *button = nullptr;
        QLabel *label = nullptr;
        OsziDoubleSpinBox *seconds = nullptr;
    };

    explicit Private(TabOszilloscope *tab)
        : q(tab)
    {}

    // --- Building (taboszilloscope_layout.cpp) ---
    void build();
    QWidget *createRows();
    QWidget *createHead();
    QWidget *createSensorSwitch(int position, QWidget *parent);
    QWidget *createTimeAxis();
    QWidget *createZoom(QWidget *parent);
    QWidget *createClockGrid(QWidget *parent);
    QWidget *createYCorrection(QWidget *parent);
    QWidget *createSampleRate(QWidget *parent);
    QWidget *createMarkers(QWidget *parent);
    QWidget *createMarker(int index, QWidget *parent);
    void addMeasurements(FlowLayout &flow, QWidget *parent);
    QWidget *createDeletion(QWidget *parent);
    void createLock(QWidget *parent);
    void connectRow(int position);
    void connectInput(int position);
    void connectControls();
    void retranslateUi();
    void retranslateMarkers();
    void retranslateMeasurements();

    // --- State of the controls ---
    void updateEnabled();
    void showLock();
    void showSensor(int position, bool shown);
    void showSampleRate();
    void chooseSampleRate(int index);
    void showSensorNames();
    void showCounter();

    // --- Measurements (taboszilloscope_measurements.cpp) ---
    [[nodiscard]] int measurementCount() const;
    [[nodiscard]] int slotCount() const;
    void pointRow(int position);
    void takeStructure();
    void takeGrowth();
    void noteGrowth();
    void endTurn();
    void hideAll();
    void showSlots(const QVector<int> &indices);
    void applyFilter();
    void applyYCorrection();
    void correctNewest();

    // --- Time axis (taboszilloscope_time.cpp) ---
    [[nodiscard]] int longestCurve() const;
    [[nodiscard]] int visibleSamples() const;
    [[nodiscard]] const OsziRow *shownRow() const;
    void applyZoom(int zoom);
    void zoomTime(int x, int steps);
    void dragTime(int pixels);
    void stepTime(int tenths);
    void holdBack();
    void scrollReleased();
    void plotResized();
    void zoomValue(OsziRow *row, int y, int steps);
    void dragValue(OsziRow *row, int pixels);
    void stepValue(OsziRow *row, int tenths);
    void fitValue(int position);
    void setSpanAsUser(OsziRow *row, osziaxes::ValueSpan span);
    void showMouse(int x);
    void hideMouse();
    void stepReadOut(const OsziWidget &plot, int samples);
    void endReadOut();

    // --- Markers (taboszilloscope_markers.cpp) ---
    void armMarker(int index, bool armed);
    void placeArmedMarker(int x);
    void reportMarker(int index, int milliseconds);
    void clearMarkers();
    void showMarkers();
    void showPhaseNames();

    // --- Model (taboszilloscope.cpp) ---
    void applyViewData();
    void storeSpan(const OsziRow *row);
    [[nodiscard]] int rowOf(const QObject *sender, OsziDoubleSpinBox *(OsziRow::*box)() const) const;

    TabOszilloscope *q;
    QPointer<Model> model;

    std::array<OsziRow *, kNumSensors> rows{};
    QScrollArea *scrollArea = nullptr;
    std::array<SensorSwitch, kNumSensors> sensors{};
    QPushButton *lockButton = nullptr;

    QScrollBar *scrollBar = nullptr;
    QLabel *zoomCaption = nullptr;
    QSlider *zoom = nullptr;
    QLabel *clockGridCaption = nullptr;
    QCheckBox *clockGridAuto = nullptr;
    OsziSpinBox *clockGrid = nullptr;

    QFrame *markerFrame = nullptr;
    std::array<Marker, Model::kNumMarkers> markers{};
    QCheckBox *markerAbsolute = nullptr;
    QLabel *markerAbsoluteCaption = nullptr;
    QPushButton *clearMarkersButton = nullptr;

    QCheckBox *yCorrection = nullptr;
    QLabel *yCorrectionCaption = nullptr;
    OsziSpinBox *yCorrectionTime = nullptr;

    QLabel *sampleRateCaption = nullptr;
    QComboBox *sampleRate = nullptr;

    QLabel *counterCaption = nullptr;
    QLabel *counter = nullptr;
    QLabel *displayedCaption = nullptr;
    QCheckBox *allMeasurements = nullptr;
    QLineEdit *displayed = nullptr;
    QLabel *highlightCaption = nullptr;
    OsziSpinBox *highlight = nullptr;
    QLabel *deletionCaption = nullptr;
    QLineEdit *deletion = nullptr;
    QPushButton *deleteButton = nullptr;

    int clock = 1;
    int armedMarker = -1;
    bool markerPlaced = false; ///< the armed marker follows the pointer until the button is released
    QString appliedFilter;

    bool pointed = false; ///< the slots are as seenRevision says
    quint64 seenRevision = 0;
    int longest = 0;            ///< samples of the longest curve of row 1, but for the newest
    bool heldBack = false;      ///< the user moved back by hand, be it by one sample: new samples do not pull the view
    int lastSamples = 0;        ///< samples of the longest curve when the scroll bar was last set up
    bool growing = false;       ///< the scroll bar is being set up because samples came
    int readOutSample = -1;     ///< of those in sight, the one that the keyboard's read-out shows
    int uncorrectedNewest = -1; ///< the measurement that has not yet reached the time of the y correction
    int growthsThisTurn = 0;
    bool turnEndQueued = false;
    bool growthPending = false;

    int dragStartIndex = 0;
    osziaxes::ValueSpan dragSpan;
};
