#include "plots/oscilloscope/osziwidget.h"
#include "view/common/logging.h"
#include "view/oscilloscope/oszirowcontrols.h"
#include "view/oscilloscope/taboszilloscope_p.h"

#include <QScrollBar>
#include <QSlider>
#include <QStaticText>

#include <algorithm>
#include <limits>
#include <utility>

// --- The scroll bar ---

int TabOszilloscope::Private::longestCurve() const
{
    if (model) {
        const int newest = std::min(model->numChannels(0), OsziWidget::kNumSlots) - 1;
        const SampleList *samples = pointed ? model->measurement(0, newest) : nullptr;
        return std::max(longest, samples ? static_cast<int>(samples->size()) : 0);
    }
    int found = 0;
    for (int slot = 0; slot < OsziWidget::kNumSlots; ++slot) {
        const SampleList *samples = rows.front()->plot()->curve(slot);
        found = std::max(found, samples ? static_cast<int>(samples->size()) : 0);
    }
    return found;
}

const OsziRow *TabOszilloscope::Private::shownRow() const
{
    const auto shown = std::find_if(rows.begin(), rows.end(), [](const OsziRow *row) { return !row->isHidden(); });
    return shown != rows.end() ? *shown : rows.front();
}

int TabOszilloscope::Private::visibleSamples() const
{
    return osziaxes::visibleSamples(shownRow()->plot()->contentsRect().width(), zoom->value());
}

void TabOszilloscope::updateOsziSlider()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (d->scrollBar->isSliderDown())
        return; // the range under a handle that is held stays; the release catches up
    const int samples = d->longestCurve();
    const int visible = d->visibleSamples();
    const osziaxes::ScrollState state = osziaxes::scrollState(samples, visible);
    // Many samples may have come since: whoever would have followed the first of them is not left behind.
    const int next = d->growing ? std::min(samples, d->lastSamples + 1) : samples;
    const bool held = d->heldBack || d->zoom->isSliderDown();
    const bool follows = !held && osziaxes::followsEnd(d->scrollBar->value(), next, visible);
    d->lastSamples = samples;
    d->scrollBar->setEnabled(state.enabled);
    d->scrollBar->setRange(0, state.maximum);
    if (!state.enabled)
        return;
    d->scrollBar->setPageStep(state.pageStep);
    d->scrollBar->setSingleStep(std::max(visible / 10, 1));
    if (follows)
        d->scrollBar->setValue(samples - 1);
}

void TabOszilloscope::Private::scrollReleased()
{
    const bool atEnd = scrollBar->value() >= scrollBar->maximum() - osziaxes::kFollowDistance;
    q->updateOsziSlider();
    heldBack = false;
    if (atEnd) // of the range as it was while the handle was held
        scrollBar->setValue(scrollBar->maximum());
}

void TabOszilloscope::Private::plotResized()
{
    const bool atEnd = scrollBar->isEnabled() && scrollBar->value() >= scrollBar->maximum() - osziaxes::kFollowDistance;
    q->updateOsziSlider();
    if (atEnd && !scrollBar->isSliderDown())
        scrollBar->setValue(scrollBar->maximum());
}

// --- Time axis ---

void TabOszilloscope::Private::applyZoom(int value)
{
    for (const OsziRow *row : rows)
        row->plot()->setZoom(value);
    q->updateOsziSlider();
}

void TabOszilloscope::Private::zoomTime(int x, int steps)
{
    const int from = zoom->value();
    const int to = osziaxes::steppedZoom(from, steps);
    const int start = osziaxes::startAfterZoom(x, scrollBar->value(), from, to);
    zoom->setValue(to);
    scrollBar->setValue(start);
}

void TabOszilloscope::Private::dragTime(int pixels)
{
    const qint64 start = qint64(dragStartIndex) - pixels / zoom->value();
    scrollBar->setValue(static_cast<int>(std::clamp<qint64>(start, 0, std::numeric_limits<int>::max())));
    holdBack();
}

void TabOszilloscope::Private::stepTime(int tenths)
{
    scrollBar->setValue(scrollBar->value() + tenths * std::max(visibleSamples() / 10, 1));
    holdBack();
}

void TabOszilloscope::Private::holdBack()
{
    heldBack = scrollBar->sliderPosition() < scrollBar->maximum();
}

// --- Value axis of one row ---

namespace {

/// The height of the plot area and the value on one of its lines, as the plot lays them out.
struct ValueScale
{
    explicit ValueScale(const OsziWidget &plot)
        : margin(static_cast<int>(QStaticText(QStringLiteral("ABCgj")).size().height()) + 2)
        , height(std::max(plot.height() - 2 * margin, 1))
        , perPixel((plot.maxValue() - plot.minValue()) / height)
        , lowest(plot.minValue())
    {}
    [[nodiscard]] double at(int y) const { return lowest + (margin + height - y) * perPixel; }

    int margin;
    int height;
    double perPixel;
    double lowest;
};

} // namespace

void TabOszilloscope::Private::setSpanAsUser(OsziRow *row, osziaxes::ValueSpan span)
{
    if (row->isEditable() && row->setSpan(osziaxes::boundedSpan(span, row->limits())))
        storeSpan(row);
}

void TabOszilloscope::Private::zoomValue(OsziRow *row, int y, int steps)
{
    setSpanAsUser(row, osziaxes::zoomedSpan(row->span(), ValueScale(*row->plot()).at(y), steps));
}

void TabOszilloscope::Private::dragValue(OsziRow *row, int pixels)
{
    setSpanAsUser(row, osziaxes::movedSpan(dragSpan, pixels * ValueScale(*row->plot()).perPixel));
}

void TabOszilloscope::Private::stepValue(OsziRow *row, int tenths)
{
    const osziaxes::ValueSpan span = row->span();
    setSpanAsUser(row, osziaxes::movedSpan(span, tenths * (span.maximum - span.minimum) / 10.0));
}

void TabOszilloscope::Private::fitValue(int position)
{
    OsziRow *row = rows.at(static_cast<size_t>(position));
    const OsziWidget *plot = row->plot();
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
    if (lowest <= highest)
        setSpanAsUser(row, osziaxes::fittedSpan(lowest, highest));
}

// --- The read-out, the same time in all rows ---

void TabOszilloscope::Private::showMouse(int x)
{
    placeArmedMarker(x);
    for (const OsziRow *row : rows) {
        if (!row->isHidden())
            row->plot()->showMouseMarker(x);
    }
}

/// With the keyboard: from the middle of the curves in sight, sample by sample.
void TabOszilloscope::Private::stepReadOut(const OsziWidget &plot, int samples)
{
    const int visible = (plot.contentsRect().width() - OsziWidget::kLeftMargin) / plot.zoom();
    const int last = std::max(std::min(visible, longestCurve() - scrollBar->value()) - 1, 0);
    readOutSample = std::clamp(readOutSample < 0 ? last / 2 : readOutSample + samples, 0, last);
    showMouse(OsziWidget::kLeftMargin + readOutSample * plot.zoom());
}

void TabOszilloscope::Private::endReadOut()
{
    if (std::exchange(readOutSample, -1) >= 0)
        hideMouse();
}

void TabOszilloscope::Private::hideMouse()
{
    if (markerPlaced)
        armMarker(armedMarker, false);
    for (const OsziRow *row : rows)
        row->plot()->hideMouseMarker();
}
