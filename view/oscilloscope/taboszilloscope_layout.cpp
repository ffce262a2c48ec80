#include "app/theme.h"
#include "kit/material/qtmaterialtoggle.h"
#include "plots/oscilloscope/osziwidget.h"
#include "view/common/actionicon.h"
#include "view/common/tabstyle.h"
#include "view/oscilloscope/oszirowcontrols.h"
#include "view/oscilloscope/oszirowinput.h"
#include "view/oscilloscope/taboszilloscope_flow.h"
#include "view/oscilloscope/taboszilloscope_p.h"

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
constexpr int kHeadGap = 6;           // five names and the correction are many for one line
constexpr int kLineGap = 2;           // the plots need the height
constexpr int kWidestField = 420;     // pixels, with its caption
constexpr int kLeastRowsHeight = 130; // pixels: a row and the scroll bar below it
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

/// Takes what height the controls leave: rows out of sight are no reason to scroll the controls.
class RowsArea : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;

    [[nodiscard]] QSize sizeHint() const override { return {QScrollArea::sizeHint().width(), kLeastRowsHeight}; }
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        return {QScrollArea::minimumSizeHint().width(), kLeastRowsHeight};
    }
};

void setStretch(QWidget *widget, int factor)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setHorizontalStretch(static_cast<uchar>(factor));
    widget->setSizePolicy(policy);
}

/// A group of controls in one line, for the flow layout.
QHBoxLayout *groupLayout(QWidget *group)
{
    auto *layout = new QHBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kGap);
    return layout;
}

QWidget *createGroup(std::initializer_list<QWidget *> controls, QWidget *parent)
{
    auto *group = new QWidget(parent);
    QHBoxLayout *layout = groupLayout(group);
    for (QWidget *control : controls)
        layout->addWidget(control);
    return group;
}

} // namespace

void TabOszilloscope::Private::build()
{
    q->setStyleSheet(compactSheet());
    QWidget *page = tabstyle::addScrolledPage(q); // for windows that are too low
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(kGap, kLineGap, kGap, kLineGap);
    layout->setSpacing(kLineGap);
    layout->addWidget(createHead());
    layout->addWidget(createRows(), 1);
    layout->addWidget(createTimeAxis());

    // Lines of their own, so that a wide window does not break in the middle of the controls of the measurements.
    layout->addWidget(createMarkers(page));
    auto *foot = new QWidget(page);
    auto *flow = new FlowLayout(kGroupGap, kLineGap, foot);
    addMeasurements(*flow, foot);
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
    scrollArea = new RowsArea(q);
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
    auto *flow = new FlowLayout(2 * kGap, kLineGap, axis);
    scrollBar = new QScrollBar(Qt::Horizontal, axis);
    scrollBar->setObjectName(QStringLiteral("scrollBarOszi"));
    scrollBar->setFocusPolicy(Qt::StrongFocus);
    setStretch(scrollBar, 4);
    flow->addWidget(scrollBar);
    flow->addWidget(createZoom(axis));
    flow->addWidget(createClockGrid(axis));
    return axis;
}

QWidget *TabOszilloscope::Private::createZoom(QWidget *parent)
{
    auto *group = new QWidget(parent);
    setStretch(group, 1);
    zoomCaption = new QLabel(group);
    zoom = new QSlider(Qt::Horizontal, group);
    zoom->setObjectName(QStringLiteral("sliderTimeZoom"));
    zoom->setRange(1, osziaxes::kMaximumZoom);
    zoom->setPageStep(5);
    zoom->setMinimumWidth(120);
    QHBoxLayout *layout = groupLayout(group);
    layout->addWidget(zoomCaption);
    layout->addWidget(zoom);
    return group;
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
    auto *flow = new FlowLayout(2 * kGap, kLineGap, markerFrame);
    for (int index = 0; index < Model::kNumMarkers; ++index)
        flow->addWidget(createMarker(index, markerFrame));
    auto *group = new QWidget(markerFrame);
    markerAbsolute = createToggle(QStringLiteral("checkBoxMarkerAbsolute"), false, group);
    markerAbsoluteCaption = new QLabel(group);
    markerAbsoluteCaption->setObjectName(QStringLiteral("labelMarkerAbsolute"));
    clearMarkersButton = createClearButton(QStringLiteral("buttonClearMarkers"), group);
    QHBoxLayout *layout = groupLayout(group);
    layout->addWidget(markerAbsolute);
    layout->addWidget(markerAbsoluteCaption);
    layout->addWidget(clearMarkersButton);
    flow->addWidget(group);
    return markerFrame;
}

QWidget *TabOszilloscope::Private::createMarker(int index, QWidget *parent)
{
    const QString number = QString::number(index + 1);
    auto *group = new QWidget(parent);
    Marker &marker = markers.at(static_cast<size_t>(index));
    marker.button = new QPushButton(number, group);
    marker.button->setObjectName(QStringLiteral("buttonMarker") + number);
    marker.button->setCheckable(true);
    marker.button->setStyleSheet(QStringLiteral("QPushButton {min-width: 34px; background-color: %1;}"
                                                "QPushButton:checked {border: 4px solid black;}"
                                                "QPushButton:disabled {background-color: gray;}")
                                     .arg(markerColor(index).name()));
    marker.label = new QLabel(group);
    marker.label->setObjectName(QStringLiteral("labelMarker") + number);
    marker.seconds = new OsziDoubleSpinBox(QStringLiteral("000.00"), group);
    marker.seconds->setObjectName(QStringLiteral("markerSpinBox") + number);
    marker.seconds->setDecimals(4); // with three, 1.2345 s would be rounded here already, and downwards
    marker.seconds->setRange(0.0, kLargestSeconds);
    marker.seconds->setSingleStep(0.1);
    QHBoxLayout *layout = groupLayout(group);
    layout->addWidget(marker.button);
    layout->addWidget(marker.label);
    layout->addWidget(marker.seconds);
    return group;
}

void TabOszilloscope::Private::addMeasurements(FlowLayout &flow, QWidget *parent)
{
    counterCaption = new QLabel(parent);
    counter = new QLabel(parent);
    counter->setObjectName(QStringLiteral("numMeasuringsLabel"));
    displayedCaption = new QLabel(parent);
    allMeasurements = createCheckBox(QStringLiteral("checkBoxAllMeasurings"), true, parent);
    displayed = new QLineEdit(parent);
    displayed->setObjectName(QStringLiteral("displayedMeasLineEdit"));
    displayed->setMinimumWidth(110);
    highlightCaption = new QLabel(parent);
    highlight = new OsziSpinBox(QStringLiteral("00000"), parent);
    highlight->setObjectName(QStringLiteral("highlightSpinBox"));
    highlight->setRange(0, 0);
    flow.addWidget(createGroup({counterCaption, counter}, parent));
    QWidget *choice = createGroup({displayedCaption, allMeasurements, displayed}, parent);
    choice->setMaximumWidth(kWidestField);
    flow.addWidget(choice);
    flow.addWidget(createGroup({highlightCaption, highlight}, parent));
    flow.addWidget(createDeletion(parent));
}

QWidget *TabOszilloscope::Private::createDeletion(QWidget *parent)
{
    auto *group = new QWidget(parent);
    group->setMaximumWidth(kWidestField);
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
