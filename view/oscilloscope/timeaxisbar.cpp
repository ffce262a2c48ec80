#include "view/oscilloscope/timeaxisbar.h"

#include "view/common/flowlayout.h"
#include "view/oscilloscope/oszicontrols.h"
#include "view/oscilloscope/oszirowinput.h"
#include "view/oscilloscope/oszispinbox.h"
#include "view/oscilloscope/timeaxis.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>
#include <QSlider>

#include <algorithm>
#include <limits>

namespace {

constexpr int kLeastZoomWidth = 120; // pixels
constexpr int kZoomPage = 5;

void setStretch(QWidget *widget, int factor)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setHorizontalStretch(static_cast<uchar>(factor));
    widget->setSizePolicy(policy);
}

} // namespace

TimeAxisBar::TimeAxisBar(QWidget *parent)
    : QWidget(parent)
{
    auto *flow = new FlowLayout(oszicontrols::kBarGap, oszicontrols::kLineGap, this);
    createScrollBar(*flow);
    flow->addWidget(createZoom());
    flow->addWidget(createClockGrid());
    connectControls();
    retranslateUi();
    updateEnabled();
}

void TimeAxisBar::createScrollBar(FlowLayout &flow)
{
    m_scrollBar = new QScrollBar(Qt::Horizontal, this);
    m_scrollBar->setObjectName(QStringLiteral("scrollBarOszi"));
    m_scrollBar->setFocusPolicy(Qt::StrongFocus); // a scroll bar is left out of the Tab key's order otherwise
    setStretch(m_scrollBar, 4);
    flow.addWidget(m_scrollBar);
}

QWidget *TimeAxisBar::createZoom()
{
    auto *group = new QWidget(this);
    setStretch(group, 1);
    m_zoomCaption = new QLabel(group);
    m_zoom = new QSlider(Qt::Horizontal, group);
    m_zoom->setObjectName(QStringLiteral("sliderTimeZoom"));
    m_zoom->setRange(1, timeaxis::kMaximumZoom);
    m_zoom->setPageStep(kZoomPage);
    m_zoom->setMinimumWidth(kLeastZoomWidth);
    QHBoxLayout *layout = oszicontrols::layOutGroup(group);
    layout->addWidget(m_zoomCaption);
    layout->addWidget(m_zoom);
    return group;
}

QWidget *TimeAxisBar::createClockGrid()
{
    auto *group = new QWidget(this);
    m_clockGridCaption = new QLabel(group);
    m_clockGridAuto = oszicontrols::createCheckBox(QStringLiteral("checkBoxClockGridAuto"), true, group);
    m_clockGrid = new OsziSpinBox(QStringLiteral("100000 ms"), group);
    m_clockGrid->setObjectName(QStringLiteral("clockGridSpinBox"));
    m_clockGrid->setRange(1, 100);
    m_clockGrid->setValue(100);
    QHBoxLayout *layout = oszicontrols::layOutGroup(group);
    layout->addWidget(m_clockGridCaption);
    layout->addWidget(m_clockGridAuto);
    layout->addWidget(m_clockGrid);
    return group;
}

void TimeAxisBar::connectControls()
{
    connect(m_scrollBar, &QScrollBar::valueChanged, this, &TimeAxisBar::startIndexChanged);
    connect(m_scrollBar, &QScrollBar::valueChanged, this, [this](int start) {
        if (start >= m_scrollBar->maximum())
            m_heldBack = false;
    });
    connect(m_scrollBar, &QScrollBar::actionTriggered, this, &TimeAxisBar::noteMove);
    connect(m_scrollBar, &QScrollBar::sliderReleased, this, &TimeAxisBar::release);
    connect(m_zoom, &QSlider::valueChanged, this, [this](int zoom) {
        emit zoomChanged(zoom);
        emit extentWanted();
    });
    connect(m_clockGridAuto, &QCheckBox::toggled, this, &TimeAxisBar::clockGridAutoToggled);
    connect(m_clockGridAuto, &QCheckBox::toggled, this, &TimeAxisBar::updateEnabled);
    connect(m_clockGrid, qOverload<int>(&QSpinBox::valueChanged), this, &TimeAxisBar::clockGridEdited);
}

void TimeAxisBar::listenTo(const OsziRowInput *input)
{
    connect(input, &OsziRowInput::timeZoomed, this, &TimeAxisBar::zoomAt);
    connect(input, &OsziRowInput::dragStarted, this, [this] { m_dragStart = m_scrollBar->value(); });
    connect(input, &OsziRowInput::timeDragged, this, &TimeAxisBar::drag);
    connect(input, &OsziRowInput::timeStepped, this, &TimeAxisBar::step);
    connect(input, &OsziRowInput::jumpedToStart, this, &TimeAxisBar::jumpToStart);
    connect(input, &OsziRowInput::jumpedToEnd, this, &TimeAxisBar::jumpToEnd);
}

// --- Which samples are in sight ---

void TimeAxisBar::setExtent(const Extent &extent)
{
    m_visible = extent.visible;
    if (m_scrollBar->isSliderDown())
        return;
    const timeaxis::ScrollState state = timeaxis::scrollState(extent.samples, extent.visible);
    // Many samples may have come since the last call: a view that would have followed the first of them follows all.
    const int next = extent.grew ? std::min(extent.samples, m_lastSamples + 1) : extent.samples;
    // Zooming by hand must not jump to the end on the way.
    const bool held = m_heldBack || m_zoom->isSliderDown();
    const bool follows = !held && timeaxis::followsEnd(m_scrollBar->value(), next, extent.visible);
    m_lastSamples = extent.samples;
    m_scrollBar->setEnabled(state.enabled);
    m_scrollBar->setRange(0, state.maximum);
    if (!state.enabled)
        return;
    m_scrollBar->setPageStep(state.pageStep);
    m_scrollBar->setSingleStep(std::max(extent.visible / 10, 1));
    if (follows)
        m_scrollBar->setValue(extent.samples - 1);
}

bool TimeAxisBar::isNearEnd() const
{
    return m_scrollBar->value() >= m_scrollBar->maximum() - timeaxis::kFollowDistance;
}

void TimeAxisBar::refreshExtent()
{
    const bool atEnd = m_scrollBar->isEnabled() && isNearEnd();
    emit extentWanted();
    if (atEnd && !m_scrollBar->isSliderDown())
        jumpToEnd();
}

void TimeAxisBar::release()
{
    const bool atEnd = isNearEnd(); // of the range as it was while the handle was held
    emit extentWanted();
    m_heldBack = false;
    if (atEnd)
        jumpToEnd();
}

void TimeAxisBar::noteMove()
{
    m_heldBack = m_scrollBar->sliderPosition() < m_scrollBar->maximum();
}

// --- Gestures ---

void TimeAxisBar::zoomAt(int x, int steps)
{
    const int from = m_zoom->value();
    const int to = timeaxis::steppedZoom(from, steps);
    const int start = timeaxis::startAfterZoom(x, m_scrollBar->value(), from, to);
    m_zoom->setValue(to); // sets the range of the scroll bar as well, so the start can only be set after it
    m_scrollBar->setValue(start);
}

void TimeAxisBar::drag(int pixels)
{
    const qint64 start = qint64(m_dragStart) - pixels / m_zoom->value();
    m_scrollBar->setValue(static_cast<int>(std::clamp<qint64>(start, 0, std::numeric_limits<int>::max())));
    noteMove();
}

void TimeAxisBar::step(int tenths)
{
    m_scrollBar->setValue(m_scrollBar->value() + tenths * std::max(m_visible / 10, 1));
    noteMove();
}

void TimeAxisBar::jumpToStart()
{
    m_scrollBar->setValue(0);
    noteMove();
}

void TimeAxisBar::jumpToEnd()
{
    m_scrollBar->setValue(m_scrollBar->maximum());
}

// --- Clock grid ---

void TimeAxisBar::setClock(int clock, int largestGrid)
{
    m_clockGrid->setRange(clock, std::max(clock, largestGrid));
    m_clockGrid->setSingleStep(clock);
}

int TimeAxisBar::clockGrid() const
{
    return m_clockGrid->value();
}

void TimeAxisBar::showClockGrid(int milliseconds)
{
    m_clockGrid->showValue(milliseconds);
}

void TimeAxisBar::setEditable(bool editable)
{
    m_editable = editable;
    updateEnabled();
}

void TimeAxisBar::updateEnabled()
{
    m_clockGridAuto->setEnabled(m_editable);
    m_clockGrid->setEnabled(m_editable && !m_clockGridAuto->isChecked());
}

void TimeAxisBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
}

void TimeAxisBar::retranslateUi()
{
    m_zoomCaption->setText(tr("Zoom"));
    m_zoom->setToolTip(tr("Zeitachse dehnen (im Diagramm: Mausrad, + und -)"));
    m_zoom->setAccessibleName(tr("Zoom der Zeitachse"));
    m_scrollBar->setToolTip(tr("Zeitachse verschieben (im Diagramm: Pfeiltasten, Pos1 und Ende).\n"
                               "Ganz rechts folgt die Ansicht den neuesten Werten."));
    m_scrollBar->setAccessibleName(tr("Zeitachse verschieben"));
    m_clockGridCaption->setText(tr("Raster"));
    m_clockGridAuto->setText(tr("auto"));
    m_clockGridAuto->setToolTip(tr("Abstand der senkrechten Rasterlinien automatisch wählen"));
    m_clockGrid->setSuffix(tr(" ms"));
    m_clockGrid->setToolTip(tr("Abstand der senkrechten Rasterlinien"));
    m_clockGrid->setAccessibleName(tr("Raster der Zeitachse"));
}
