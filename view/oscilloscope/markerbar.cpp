#include "view/oscilloscope/markerbar.h"

#include "view/common/cyclemarkers.h"
#include "view/common/flowlayout.h"
#include "view/common/logging.h"
#include "view/oscilloscope/oszicontrols.h"
#include "view/oscilloscope/oszidoublespinbox.h"
#include "view/oscilloscope/timeaxis.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <limits>

namespace {

constexpr int kLargestSeconds = std::numeric_limits<int>::max() / 1000; // markers are set in milliseconds
constexpr int kDecimals = 4; // three would round 1.2345 s in the box, and downwards

} // namespace

MarkerBar::MarkerBar(QWidget *parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("frameMarker"));
    auto *flow = new FlowLayout(oszicontrols::kBarGap, oszicontrols::kLineGap, this);
    for (int index = 0; index < kNumVerticalMarkers; ++index)
        flow->addWidget(createMarker(index));
    flow->addWidget(createAbsolute());
    retranslateUi();
}

QWidget *MarkerBar::createMarker(int index)
{
    const QString number = QString::number(index + 1);
    auto *group = new QWidget(this);
    Marker &marker = m_markers.at(static_cast<std::size_t>(index));
    marker.button = new QPushButton(number, group);
    marker.button->setObjectName(QStringLiteral("buttonMarker") + number);
    marker.button->setCheckable(true);
    marker.button->setStyleSheet(QStringLiteral("QPushButton {min-width: 34px; background-color: %1;}"
                                                "QPushButton:checked {border: 4px solid black;}"
                                                "QPushButton:disabled {background-color: gray;}")
                                     .arg(cyclemarkers::color(index).name()));
    marker.label = new QLabel(group);
    marker.label->setObjectName(QStringLiteral("labelMarker") + number);
    marker.seconds = new OsziDoubleSpinBox(QStringLiteral("000.00"), group);
    marker.seconds->setObjectName(QStringLiteral("markerSpinBox") + number);
    marker.seconds->setDecimals(kDecimals);
    marker.seconds->setRange(0.0, kLargestSeconds);
    marker.seconds->setSingleStep(0.1);
    connect(marker.button, &QPushButton::toggled, this, [this, index](bool armed) { arm(armed ? index : -1); });
    QHBoxLayout *layout = oszicontrols::layOutGroup(group);
    layout->addWidget(marker.button);
    layout->addWidget(marker.label);
    layout->addWidget(marker.seconds);
    return group;
}

QWidget *MarkerBar::createAbsolute()
{
    auto *group = new QWidget(this);
    m_absolute = oszicontrols::createToggle(QStringLiteral("checkBoxMarkerAbsolute"), false, group);
    m_absoluteCaption = new QLabel(group);
    m_absoluteCaption->setObjectName(QStringLiteral("labelMarkerAbsolute"));
    m_clear = oszicontrols::createClearButton(QStringLiteral("buttonClearMarkers"), group);
    connect(m_absolute, &QCheckBox::clicked, this, &MarkerBar::absoluteClicked);
    connect(m_clear, &QPushButton::clicked, this, &MarkerBar::clearClicked);
    QHBoxLayout *layout = oszicontrols::layOutGroup(group);
    layout->addWidget(m_absolute);
    layout->addWidget(m_absoluteCaption);
    layout->addWidget(m_clear);
    return group;
}

OsziDoubleSpinBox *MarkerBar::secondsBox(int index) const
{
    return m_markers.at(static_cast<std::size_t>(index)).seconds;
}

// --- From the user ---

void MarkerBar::reportEntry(const QObject *sender, double seconds)
{
    const auto found = std::find_if(m_markers.begin(), m_markers.end(),
                                    [sender](const Marker &marker) { return marker.seconds == sender; });
    if (found == m_markers.end()) {
        qCDebug(lcView) << "  SpinBox unknown!!!";
        return;
    }
    const qint64 milliseconds = qRound64(seconds * 1000.0); // of the largest seconds it does not fit into int
    qCDebug(lcView).nospace() << "value=" << seconds;
    qCDebug(lcView).nospace() << "checkBoxAbs is Checked=" << isAbsolute();
    report(static_cast<int>(found - m_markers.begin()),
           static_cast<int>(std::min<qint64>(milliseconds, std::numeric_limits<int>::max())));
}

void MarkerBar::report(int index, int milliseconds)
{
    if (isAbsolute()) {
        qCDebug(lcView) << "emit markerChangedAbsolute(int, int)";
        emit markerChangedAbsolute(index, milliseconds);
    } else {
        qCDebug(lcView) << "emit markerChangedRelative(int, int)";
        emit markerChangedRelative(index, milliseconds);
    }
}

void MarkerBar::arm(int index)
{
    m_placed = false;
    m_armed = index;
    for (int i = 0; i < kNumVerticalMarkers; ++i) {
        QPushButton *button = m_markers.at(static_cast<std::size_t>(i)).button;
        const QSignalBlocker blocker(button); // toggled() would come back here
        button->setChecked(i == m_armed);
    }
    emit armedChanged(m_armed >= 0);
}

void MarkerBar::disarm()
{
    arm(-1);
}

void MarkerBar::pointAt(int sample)
{
    if (m_armed < 0)
        return;
    m_placed = true;
    // Reported as it would be typed: from the marker before unless times are absolute.
    const bool fromMarkerBefore = !isAbsolute() && m_armed > 0;
    const int before = fromMarkerBefore ? m_samples.at(static_cast<std::size_t>(m_armed - 1)) : 0;
    report(m_armed, timeaxis::toMilliseconds(std::max(sample - std::max(before, 0), 0), m_clock));
}

void MarkerBar::release()
{
    if (m_placed)
        disarm();
}

void MarkerBar::clear()
{
    qCDebug(lcView) << "emit markerChangedAbsolute(int, int)";
    // Absolute in either mode: the position 0 is meant, not a distance of 0.
    for (int index = 0; index < kNumVerticalMarkers; ++index)
        emit markerChangedAbsolute(index, 0);
}

// --- What is shown ---

void MarkerBar::showMarkers(const VerticalMarkers &samples, int clock)
{
    m_samples = samples;
    m_clock = clock;
    int previous = 0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const int shown = isAbsolute() ? samples.at(i) : samples.at(i) - previous;
        m_markers.at(i).seconds->showValue(timeaxis::toMilliseconds(shown, clock) / 1000.0);
        previous = samples.at(i);
    }
}

bool MarkerBar::isAbsolute() const
{
    return m_absolute->isChecked();
}

void MarkerBar::setAbsolute(bool absolute)
{
    const QSignalBlocker blocker(m_absolute);
    m_absolute->setChecked(absolute);
    showMarkers(m_samples, m_clock);
}

void MarkerBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
}

void MarkerBar::retranslateUi()
{
    for (int index = 0; index < kNumVerticalMarkers; ++index)
        retranslateMarker(index);
    m_absoluteCaption->setText(tr("absolut"));
    m_absolute->setToolTip(tr("Zeiten ab dem Beginn der Messung statt Abstände der Marker"));
    m_absolute->setAccessibleName(m_absoluteCaption->text());
    m_clear->setToolTip(tr("Alle Marker löschen"));
    m_clear->setAccessibleName(m_clear->toolTip());
}

void MarkerBar::retranslateMarker(int index)
{
    const Marker &marker = m_markers.at(static_cast<std::size_t>(index));
    marker.label->setText(tr("t [s]="));
    marker.button->setToolTip(tr("Klicken und dann im Diagramm auf die gewünschte Stelle tippen.\n"
                                 "Esc bricht ab."));
    marker.button->setAccessibleName(tr("Marker %1 setzen").arg(index + 1));
    marker.seconds->setToolTip(tr("Zeit des Markers in Sekunden; ohne \"absolut\" der Abstand zum "
                                  "vorigen Marker"));
    marker.seconds->setAccessibleName(tr("Marker %1 in Sekunden").arg(index + 1));
}
