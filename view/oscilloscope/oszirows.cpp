#include "view/oscilloscope/oszirows.h"

#include "plots/oscilloscope/osziwidget.h"
#include "view/common/cyclemarkers.h"
#include "view/common/logging.h"
#include "view/oscilloscope/oszidoublespinbox.h"
#include "view/oscilloscope/oszirow.h"
#include "view/oscilloscope/oszirowinput.h"
#include "view/oscilloscope/timeaxis.h"
#include "view/oscilloscope/valuegestures.h"

#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace {

constexpr int kLeastHeight = 130; // pixels: a row and the scroll bar below it
constexpr int kRowGap = 2;        // pixels

} // namespace

OsziRows::OsziRows(QWidget *parent)
    : QScrollArea(parent)
{
    setObjectName(QStringLiteral("scrollArea"));
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    auto *content = new QWidget(this);
    content->setObjectName(QStringLiteral("osziRows"));
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kRowGap);
    for (int position = 0; position < kNumSensors; ++position) {
        const auto i = static_cast<std::size_t>(position);
        m_rows.at(i) = new OsziRow(position, content);
        m_plots.at(i) = m_rows.at(i)->plot();
        m_plots.at(i)->setVerticalMarkerCount(kNumCyclePhases);
        m_inputs.at(i) = new OsziRowInput(m_plots.at(i));
        layout->addWidget(m_rows.at(i), 1);
        connectRow(position);
    }
    setWidget(content);
    // It scrolls, so it takes the Tab key as well: after its rows, as a container that is made before them would not.
    setTabOrder(m_rows.back()->offsetBox(), this);
}

void OsziRows::connectRow(int position)
{
    OsziRow *row = m_rows.at(static_cast<std::size_t>(position));
    const OsziRowInput *input = m_inputs.at(static_cast<std::size_t>(position));
    connect(row->offsetBox(), qOverload<double>(&QDoubleSpinBox::valueChanged), this, [this, position](double offset) {
        qCDebug(lcView) << "emit offsetEdited(int, double)";
        emit offsetEdited(position, offset);
    });
    connect(row->plot(), &OsziWidget::clockGridChanged, this, &OsziRows::clockGridChanged);
    connect(row->plot(), &OsziWidget::mouseAtX, this, &OsziRows::pointedAt);
    connect(row->plot(), &OsziWidget::mouseReleased, this, &OsziRows::pointerReleased);
    connect(input, &OsziRowInput::plotResized, this, &OsziRows::plotResized);
    connect(input, &OsziRowInput::cancelled, this, &OsziRows::cancelled);
    const auto *gestures = new ValueGestures(row, input);
    connect(gestures, &ValueGestures::rangeChanged, this, [this, position] { emit rangeMoved(position); });
}

OsziRow *OsziRows::row(int position) const
{
    return position >= 0 && position < kNumSensors ? m_rows.at(static_cast<std::size_t>(position)) : nullptr;
}

OsziWidget *OsziRows::plot(int position) const
{
    return position >= 0 && position < kNumSensors ? m_plots.at(static_cast<std::size_t>(position)) : nullptr;
}

const OsziRowInput *OsziRows::input(int position) const
{
    return m_inputs.at(static_cast<std::size_t>(position));
}

QSize OsziRows::sizeHint() const
{
    return {QScrollArea::sizeHint().width(), kLeastHeight};
}

QSize OsziRows::minimumSizeHint() const
{
    return {QScrollArea::minimumSizeHint().width(), kLeastHeight};
}

void OsziRows::setRowShown(int position, bool shown)
{
    row(position)->setVisible(shown);
}

void OsziRows::setEditable(bool editable)
{
    for (OsziRow *row : m_rows)
        row->setEditable(editable);
}

int OsziRows::clock() const
{
    return m_plots.front()->clock();
}

void OsziRows::setClock(int clock)
{
    for (OsziWidget *plot : m_plots)
        plot->setClock(clock);
}

void OsziRows::setClockGrid(int milliseconds)
{
    for (OsziWidget *plot : m_plots)
        plot->setClockGrid(milliseconds);
}

void OsziRows::setZoom(int zoom)
{
    for (OsziWidget *plot : m_plots)
        plot->setZoom(zoom);
}

int OsziRows::visibleSamples() const
{
    // A hidden row keeps the width that it had when it was hidden.
    const auto shown = std::find_if(m_rows.begin(), m_rows.end(), [](const OsziRow *row) { return !row->isHidden(); });
    return (shown != m_rows.end() ? *shown : m_rows.front())->plot()->visibleSamples();
}

int OsziRows::sampleAt(int x) const
{
    const qint64 sample = m_plots.front()->plotGeometry().sampleAt(x);
    return static_cast<int>(std::clamp<qint64>(sample, 0, std::numeric_limits<int>::max()));
}

void OsziRows::showMarkers(const VerticalMarkers &samples)
{
    // A plot shows a phase at the marker that ends it. The last phase has none: it gets another marker on top of the
    // fourth, and its name is written to the right of that.
    for (int phase = 0; phase < kNumCyclePhases; ++phase) {
        const int marker = cyclemarkers::markerOfPhase(phase);
        const int time = timeaxis::toMilliseconds(samples.at(static_cast<std::size_t>(marker)), clock());
        for (OsziWidget *plot : m_plots)
            plot->setVerticalMarker(phase, time, cyclemarkers::color(marker));
    }
}

void OsziRows::showPhaseName(int phase, const QString &name)
{
    for (OsziWidget *plot : m_plots)
        plot->setPhaseName(phase, name);
}

void OsziRows::showReadOut(int x)
{
    for (const OsziRow *row : m_rows) {
        if (!row->isHidden())
            row->plot()->showMouseMarker(x);
    }
}

void OsziRows::hideReadOut()
{
    for (OsziWidget *plot : m_plots)
        plot->hideMouseMarker();
}

void OsziRows::setPlacing(bool placing)
{
    for (OsziWidget *plot : m_plots)
        plot->setCursor(placing ? Qt::CrossCursor : Qt::ArrowCursor);
}
