#include "plots/oscilloscope/osziwidget.h"
#include "view/common/cyclephases.h"
#include "view/common/logging.h"
#include "view/oscilloscope/oszirowcontrols.h"
#include "view/oscilloscope/taboszilloscope_p.h"

#include <QCheckBox>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <limits>

QColor TabOszilloscope::markerColor(int index)
{
    return cyclephases::markerColor(index);
}

int TabOszilloscope::markerOfPhase(int phase)
{
    return cyclephases::markerOfPhase(phase);
}

// --- From the user ---

void TabOszilloscope::onMarkerChanged(double seconds)
{
    qCDebug(lcView) << Q_FUNC_INFO;
    const auto sent = [this](const Private::Marker &marker) { return marker.seconds == sender(); };
    const auto found = std::find_if(d->markers.begin(), d->markers.end(), sent);
    if (found == d->markers.end()) {
        qCDebug(lcView) << "  SpinBox unknown!!!";
        return;
    }
    const qint64 milliseconds = qRound64(seconds * 1000.0);
    qCDebug(lcView).nospace() << "value=" << seconds;
    qCDebug(lcView).nospace() << "checkBoxAbs is Checked=" << d->markerAbsolute->isChecked();
    d->reportMarker(static_cast<int>(found - d->markers.begin()),
                    static_cast<int>(std::min<qint64>(milliseconds, std::numeric_limits<int>::max())));
}

void TabOszilloscope::Private::reportMarker(int index, int milliseconds)
{
    if (markerAbsolute->isChecked()) {
        qCDebug(lcView) << "emit markerChangedAbsolute(int, int)";
        emit q->markerChangedAbsolute(index, milliseconds);
    } else {
        qCDebug(lcView) << "emit markerChangedRelative(int, int)";
        emit q->markerChangedRelative(index, milliseconds);
    }
}

void TabOszilloscope::Private::armMarker(int index, bool armed)
{
    markerPlaced = false;
    armedMarker = armed ? index : -1;
    for (int i = 0; i < Model::kNumMarkers; ++i) {
        QPushButton *button = markers.at(static_cast<size_t>(i)).button;
        const QSignalBlocker blocker(button);
        button->setChecked(i == armedMarker);
    }
    for (const OsziRow *row : rows)
        row->plot()->setCursor(armedMarker >= 0 ? Qt::CrossCursor : Qt::ArrowCursor);
}

void TabOszilloscope::Private::placeArmedMarker(int x)
{
    if (armedMarker < 0)
        return;
    markerPlaced = true;
    const int sample = osziaxes::sampleAt(x, scrollBar->value(), zoom->value());
    int before = 0;
    if (!markerAbsolute->isChecked() && armedMarker > 0 && model)
        before = std::max(model->verticalMarker(armedMarker - 1), 0);
    reportMarker(armedMarker, osziaxes::toMilliseconds(std::max(sample - before, 0), clock));
}

void TabOszilloscope::Private::clearMarkers()
{
    qCDebug(lcView) << "emit markerChangedAbsolute(int, int)";
    for (int index = 0; index < Model::kNumMarkers; ++index)
        emit q->markerChangedAbsolute(index, 0);
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
    const QSignalBlocker blocker(d->markerAbsolute);
    d->markerAbsolute->setChecked(absolute);
    d->showMarkers();
}

// --- From the model ---

void TabOszilloscope::Private::showMarkers()
{
    int previous = 0;
    for (int i = 0; i < Model::kNumMarkers; ++i) {
        const int sample = model ? model->verticalMarker(i) : 0;
        const int shown = markerAbsolute->isChecked() ? sample : sample - previous;
        markers.at(static_cast<size_t>(i)).seconds->showValue(osziaxes::toMilliseconds(shown, clock) / 1000.0);
        previous = sample;
    }
    // A plot shows a phase at the marker that ends it: the last one gets another marker on top of the fourth, and its
    // name stands right of that.
    for (int phase = 0; phase < Model::kNumPhases; ++phase) {
        const int marker = markerOfPhase(phase);
        const int sample = model ? model->verticalMarker(marker) : 0;
        for (const OsziRow *row : rows)
            row->plot()->setVerticalMarker(phase, osziaxes::toMilliseconds(sample, clock), markerColor(marker));
    }
}

void TabOszilloscope::Private::showPhaseNames()
{
    for (int phase = 0; model && phase < Model::kNumPhases; ++phase) {
        for (const OsziRow *row : rows)
            row->plot()->setPhaseName(phase, model->phaseName(phase));
    }
}
