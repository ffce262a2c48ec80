#include "app/theme.h"
#include "kit/qtmaterialtoggle.h"
#include "plots/osziwidget.h"
#include "view/actionicon.h"
#include "view/oszirowcontrols.h"
#include "view/oszirowinput.h"
#include "view/taboszilloscope_flow.h"
#include "view/taboszilloscope_p.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QVBoxLayout>

#include <limits>

namespace {

constexpr int kGap = 4;
constexpr int kGroupGap = 14;
constexpr int kHeadGap = 6; // five names and the correction are many for one line
constexpr int kLineGap = 2; // the plots need the height
constexpr int kLargestSeconds = std::numeric_limits<int>::max() / 1000;
const int kLargestMilliseconds = 24 * 60 * 60 * 1000;

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
                          "QWidget#osziRows {background-color: white;}"
                          "*[osziParams=true] QLabel {font-size: 13px; min-height: 15px; max-height: 18px;}"
                          "*[osziParams=true] QLabel#osziTitle {font-size: 14px; font-weight: bold;}"
                          "*[osziParams=true] QDoubleSpinBox {font-size: 15px; min-height: 25px; min-width: 70px;}"
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

QCheckBox *createCheckBox(const QString &name, bool checked, QWidget *parent)
{
    auto *box = new QCheckBox(parent);
    box->setObjectName(name);
    box->setChecked(checked);
    return box;
}

/// One whose caption stands elsewhere: as wide as its indicator.
QCheckBox *createBareCheckBox(const QString &name, bool checked, QWidget *parent)
{
    QCheckBox *box = createCheckBox(name, checked, parent);
    box->setMaximumWidth(OsziRow::kCheckBoxWidth);
    return box;
}

/// For a way of working that is on or off; what is shown or not has a check box.
QCheckBox *createToggle(const QString &name, bool checked, QWidget *parent)
{
    auto *toggle = new QtMaterialToggle(parent);
    toggle->setObjectName(name);
    toggle->setChecked(checked);
    return toggle;
}

QPushButton *createClearButton(const QString &name, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(name);
    button->setIcon(actionIcon(QStringLiteral("delete.png"), Qt::white));
    button->setIconSize(QSize(24, 24));
    return button;
}

/// A group of controls in one line, for the flow layout.
QHBoxLayout *groupLayout(QWidget *group)
{
    auto *layout = new QHBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    return layout;
}

} // namespace

void TabOszilloscope::Private::build()
{
    q->setStyleSheet(compactSheet());
    auto *layout = new QVBoxLayout(q);
    layout->setContentsMargins(kGap, kLineGap, kGap, kLineGap);
    layout->setSpacing(kLineGap);
    layout->addWidget(createHead());
    layout->addWidget(createRows(), 1);
    layout->addWidget(createTimeAxis());

    auto *foot = new QWidget(q);
    auto *flow = new FlowLayout(kGroupGap, kLineGap, foot);
    flow->addWidget(createMarkers(foot));
    flow->addWidget(createMeasurements(foot));
    flow->addWidget(createSampleRate(foot));
    layout->addWidget(foot);

    for (int position = 0; position < kNumSensors; ++position) {
        connectRow(position);
        connectInput(position);
    }
    connectControls();
    updateEnabled();
}

QWidget *TabOszilloscope::Private::createRows()
{
    auto *content = new QWidget(q);
    content->setObjectName(QStringLiteral("osziRows"));
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    for (int position = 0; position < kNumSensors; ++position) {
        auto *row = new OsziRow(position, content);
        row->plot()->setVerticalMarkerCount(Model::kNumPhases);
        rows.at(static_cast<size_t>(position)) = row;
        layout->addWidget(row, 1);
    }
    scrollArea = new QScrollArea(q);
    scrollArea->setObjectName(QStringLiteral("scrollArea"));
    scrollArea->setWidgetResizable(true);
    scrollArea->setFrameShape(QFrame::NoFrame);
    scrollArea->setWidget(content);
    return scrollArea;
}

QWidget *TabOszilloscope::Private::createHead()
{
    auto *head = new QWidget(q);
    auto *line = new QHBoxLayout(head);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(kHeadGap);
    auto *groups = new QWidget(head);
    groups->setStyleSheet(QStringLiteral("ElidedLabel {font-size: 15px;}"));
    auto *flow = new FlowLayout(kHeadGap, kGap, groups);
    for (int position = 0; position < kNumSensors; ++position)
        flow->addWidget(createSensorSwitch(position, groups));
    flow->addWidget(createYCorrection(groups));
    line->addWidget(groups, 1);
    createLock(head);
    line->addWidget(lockButton, 0, Qt::AlignVCenter);
    return head;
}

QWidget *TabOszilloscope::Private::createSensorSwitch(int position, QWidget *parent)
{
    const QString number = QString::number(position + 1);
    auto *group = new QWidget(parent);
    SensorSwitch &made = sensors.at(static_cast<size_t>(position));
    made.box = createBareCheckBox(QStringLiteral("sensor%1CheckBox").arg(number), true, group);
    made.label = new ElidedLabel(11, 30, group);
    made.label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    made.label->setObjectName(QStringLiteral("sensor%1Label").arg(number));
    connect(made.label, &ElidedLabel::clicked, made.box, &QCheckBox::click);
    QHBoxLayout *layout = groupLayout(group);
    layout->setSpacing(0); // the box ends in a gap of its own
    layout->addWidget(made.box);
    layout->addWidget(made.label);
    return group;
}

void TabOszilloscope::Private::createLock(QWidget *parent)
{
    lockButton = new QPushButton(parent);
    lockButton->setObjectName(QStringLiteral("lockButton"));
    lockButton->setCheckable(true);
    lockButton->setIconSize(QSize(26, 26));
}

QWidget *TabOszilloscope::Private::createTimeAxis()
{
    auto *axis = new QWidget(q);
    QHBoxLayout *layout = groupLayout(axis);
    scrollBar = new QScrollBar(Qt::Horizontal, axis);
    scrollBar->setObjectName(QStringLiteral("scrollBarOszi"));
    scrollBar->setFocusPolicy(Qt::StrongFocus);
    zoomCaption = new QLabel(axis);
    zoom = new QSlider(Qt::Horizontal, axis);
    zoom->setObjectName(QStringLiteral("sliderTimeZoom"));
    zoom->setRange(1, osziaxes::kMaximumZoom);
    zoom->setPageStep(5);
    zoom->setMinimumWidth(120);
    zoom->setMaximumWidth(240);
    layout->addWidget(scrollBar, 4);
    layout->addSpacing(kGap);
    layout->addWidget(zoomCaption);
    layout->addWidget(zoom, 1);
    layout->addSpacing(kGap);
    layout->addWidget(createClockGrid(axis));
    return axis;
}

QWidget *TabOszilloscope::Private::createClockGrid(QWidget *parent)
{
    auto *group = new QWidget(parent);
    clockGridCaption = new QLabel(group);
    clockGridAuto = createCheckBox(QStringLiteral("checkBoxClockGridAuto"), true, group);
    clockGrid = new OsziSpinBox(QStringLiteral("100000 ms"), group);
    clockGrid->setObjectName(QStringLiteral("clockGridSpinBox"));
    clockGrid->setRange(1, 100);
    clockGrid->setValue(100);
    QHBoxLayout *layout = groupLayout(group);
    layout->addWidget(clockGridCaption);
    layout->addWidget(clockGridAuto);
    layout->addWidget(clockGrid);
    return group;
}

QWidget *TabOszilloscope::Private::createYCorrection(QWidget *parent)
{
    auto *group = new QWidget(parent);
    yCorrectionCaption = new QLabel(group);
    yCorrection = createToggle(QStringLiteral("checkBoxYCorrection"), false, group);
    yCorrectionTime = new OsziSpinBox(QStringLiteral("00000 ms"), group);
    yCorrectionTime->setObjectName(QStringLiteral("spinBoxYCorrection"));
    yCorrectionTime->setRange(0, kLargestMilliseconds);
    yCorrectionTime->setSingleStep(100);
    QHBoxLayout *layout = groupLayout(group);
    layout->addWidget(yCorrectionCaption);
    layout->addWidget(yCorrection);
    layout->addWidget(yCorrectionTime);
    return group;
}

QWidget *TabOszilloscope::Private::createSampleRate(QWidget *parent)
{
    auto *frame = new QFrame(parent);
    frame->setObjectName(QStringLiteral("frameSampleRate"));
    sampleRateCaption = new QLabel(frame);
    sampleRateCaption->setObjectName(QStringLiteral("clockLabel"));
    sampleRate = new QComboBox(frame);
    sampleRate->setObjectName(QStringLiteral("comboBoxClock"));
    sampleRate->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    sampleRateCaption->setBuddy(sampleRate);
    QHBoxLayout *layout = groupLayout(frame);
    layout->addWidget(sampleRateCaption);
    layout->addWidget(sampleRate);
    return frame;
}

QWidget *TabOszilloscope::Private::createMarkers(QWidget *parent)
{
    markerFrame = new QFrame(parent);
    markerFrame->setObjectName(QStringLiteral("frameMarker"));
    QHBoxLayout *layout = groupLayout(markerFrame);
    for (int index = 0; index < Model::kNumMarkers; ++index) {
        const Marker marker = createMarker(index, markerFrame);
        markers.at(static_cast<size_t>(index)) = marker;
        layout->addWidget(marker.button);
        layout->addWidget(marker.label);
        layout->addWidget(marker.seconds);
        layout->addSpacing(kGap);
    }
    markerAbsolute = createToggle(QStringLiteral("checkBoxMarkerAbsolute"), false, markerFrame);
    markerAbsoluteCaption = new QLabel(markerFrame);
    markerAbsoluteCaption->setObjectName(QStringLiteral("labelMarkerAbsolute"));
    clearMarkersButton = createClearButton(QStringLiteral("buttonClearMarkers"), markerFrame);
    layout->addWidget(markerAbsolute);
    layout->addWidget(markerAbsoluteCaption);
    layout->addWidget(clearMarkersButton);
    return markerFrame;
}

TabOszilloscope::Private::Marker TabOszilloscope::Private::createMarker(int index, QWidget *parent)
{
    const QString number = QString::number(index + 1);
    Marker marker;
    marker.button = new QPushButton(number, parent);
    marker.button->setObjectName(QStringLiteral("buttonMarker") + number);
    marker.button->setCheckable(true);
    marker.button->setStyleSheet(QStringLiteral("QPushButton {min-width: 34px; background-color: %1;}"
                                                "QPushButton:checked {border: 4px solid black;}"
                                                "QPushButton:disabled {background-color: gray;}")
                                     .arg(markerColor(index).name()));
    marker.label = new QLabel(parent);
    marker.label->setObjectName(QStringLiteral("labelMarker") + number);
    marker.seconds = new OsziDoubleSpinBox(QStringLiteral("000.00"), parent);
    marker.seconds->setObjectName(QStringLiteral("markerSpinBox") + number);
    marker.seconds->setDecimals(4); // with three, 1.2345 s would be rounded here already, and downwards
    marker.seconds->setRange(0.0, kLargestSeconds);
    marker.seconds->setSingleStep(0.1);
    return marker;
}

QWidget *TabOszilloscope::Private::createMeasurements(QWidget *parent)
{
    auto *group = new QWidget(parent);
    counterCaption = new QLabel(group);
    counter = new QLabel(group);
    counter->setObjectName(QStringLiteral("numMeasuringsLabel"));
    displayedCaption = new QLabel(group);
    allMeasurements = createCheckBox(QStringLiteral("checkBoxAllMeasurings"), true, group);
    displayed = new QLineEdit(group);
    displayed->setObjectName(QStringLiteral("displayedMeasLineEdit"));
    displayed->setMinimumWidth(110);
    highlightCaption = new QLabel(group);
    highlight = new OsziSpinBox(QStringLiteral("00000"), group);
    highlight->setObjectName(QStringLiteral("highlightSpinBox"));
    highlight->setRange(0, 0);
    QHBoxLayout *layout = groupLayout(group);
    layout->addWidget(counterCaption);
    layout->addWidget(counter);
    layout->addSpacing(kGroupGap);
    layout->addWidget(displayedCaption);
    layout->addWidget(allMeasurements);
    layout->addWidget(displayed);
    layout->addSpacing(kGroupGap);
    layout->addWidget(highlightCaption);
    layout->addWidget(highlight);
    layout->addSpacing(kGroupGap);
    layout->addWidget(createDeletion(group));
    return group;
}

QWidget *TabOszilloscope::Private::createDeletion(QWidget *parent)
{
    auto *group = new QWidget(parent);
    deletionCaption = new QLabel(group);
    deletion = new QLineEdit(group);
    deletion->setObjectName(QStringLiteral("measToDeleteLineEdit"));
    deletion->setMinimumWidth(110);
    deleteButton = createClearButton(QStringLiteral("buttonDeleteMeasurement"), group);
    QHBoxLayout *layout = groupLayout(group);
    layout->addWidget(deletionCaption);
    layout->addWidget(deletion);
    layout->addWidget(deleteButton);
    return group;
}
