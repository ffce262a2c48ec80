#include "view/oscilloscope/valuegestures.h"

#include "plots/oscilloscope/osziwidget.h"
#include "view/oscilloscope/oszirow.h"
#include "view/oscilloscope/oszirowinput.h"

#include <algorithm>
#include <limits>

ValueGestures::ValueGestures(OsziRow *row, const OsziRowInput *input)
    : QObject(row)
    , m_row(row)
{
    connect(input, &OsziRowInput::valueZoomed, this, &ValueGestures::zoom);
    connect(input, &OsziRowInput::dragStarted, this, &ValueGestures::startDrag);
    connect(input, &OsziRowInput::valueDragged, this, &ValueGestures::drag);
    connect(input, &OsziRowInput::valueStepped, this, &ValueGestures::step);
    connect(input, &OsziRowInput::fitRequested, this, &ValueGestures::fit);
}

void ValueGestures::setSpan(ValueSpan span)
{
    if (m_row->isEditable() && m_row->setSpan(valueaxis::boundedSpan(span, m_row->limits())))
        emit rangeChanged();
}

void ValueGestures::zoom(int y, int steps)
{
    const double about = valueaxis::valueAt(m_row->plot()->plotGeometry(), y);
    setSpan(valueaxis::zoomedSpan(m_row->span(), about, steps));
}

void ValueGestures::startDrag()
{
    m_dragSpan = m_row->span();
}

void ValueGestures::drag(int pixels)
{
    // From where the drag began: adding up small moves would add up their rounding.
    setSpan(valueaxis::movedSpan(m_dragSpan, pixels * valueaxis::valuePerPixel(m_row->plot()->plotGeometry())));
}

void ValueGestures::step(int tenths)
{
    const ValueSpan span = m_row->span();
    setSpan(valueaxis::movedSpan(span, tenths * (span.maximum - span.minimum) / 10.0));
}

void ValueGestures::fit()
{
    const OsziWidget *plot = m_row->plot();
    double lowest = std::numeric_limits<double>::max();
    double highest = std::numeric_limits<double>::lowest();
    for (int slot = 0; slot < OsziWidget::kNumSlots; ++slot) {
        const SampleList *samples = plot->curve(slot);
        if (!samples || samples->isEmpty() || !plot->isShown(slot))
            continue;
        const auto ends = std::minmax_element(samples->begin(), samples->end());
        const double shift = plot->offset() + plot->channelOffset(slot);
        lowest = std::min(lowest, *ends.first + shift);
        highest = std::max(highest, *ends.second + shift);
    }
    if (lowest <= highest) // otherwise there is no curve to fit to
        setSpan(valueaxis::fittedSpan(lowest, highest));
}
