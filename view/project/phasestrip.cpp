#include "view/project/phasestrip.h"

#include "model/model.h"
#include "plots/common/localnumber.h"
#include "view/common/cyclemarkers.h"
#include "view/common/tabstyle.h"
#include "view/project/textfield.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

namespace {

constexpr int kLongestName = 60; // characters
constexpr int kGap = 20;         // pixels between two phases, with a marker in the middle
constexpr int kBand = 6;         // pixels, height of a phase's colour
constexpr int kTint = 24;        // of 255

QColor phaseColor(int phase)
{
    return cyclemarkers::color(cyclemarkers::markerOfPhase(phase));
}

} // namespace

PhaseStrip::PhaseStrip(QWidget *parent)
    : QWidget(parent)
{
    m_row = new QHBoxLayout(this);
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(0);
    for (int phase = 0; phase < kNumPhases; ++phase)
        addPhase(phase);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    showTimes();
}

void PhaseStrip::addPhase(int phase)
{
    const auto i = static_cast<std::size_t>(phase);
    m_names[i] = new QLineEdit(this);
    m_names[i]->setObjectName(QStringLiteral("lineEditPhase%1").arg(phase + 1));
    m_names[i]->setAlignment(Qt::AlignHCenter);
    m_names[i]->setMinimumWidth(120);
    m_numbers[i] = new QLabel(this);
    m_numbers[i]->setBuddy(m_names[i]);
    m_times[i] = new QLabel(this);
    m_times[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QLabel *label : {m_numbers[i], m_times[i]}) {
        tabstyle::makeHint(label);
        label->setWordWrap(false);
    }
    auto *head = new QHBoxLayout;
    head->addWidget(m_numbers[i]);
    head->addWidget(m_times[i], 1);
    m_cells[i] = new QVBoxLayout;
    m_cells[i]->setContentsMargins(kGap / 2, kBand + 2, kGap / 2, 4);
    m_cells[i]->setSpacing(2);
    m_cells[i]->addLayout(head);
    m_cells[i]->addWidget(m_names[i]);
    m_row->addLayout(m_cells[i], 1);
    connect(m_names[i], &QLineEdit::textEdited, this,
            [this, phase](const QString &name) { emit nameEdited(phase, name); });
}

void PhaseStrip::showFrom(const Model &model)
{
    std::array<double, kNumPhases> ends{};
    for (int phase = 0; phase < kNumPhases; ++phase) {
        const auto i = static_cast<std::size_t>(phase);
        textfield::show(m_names[i], model.phaseName(phase), kLongestName);
        ends[i] = model.verticalMarker(cyclemarkers::markerOfPhase(phase)) * (model.clock() / 1000.0);
    }
    if (ends == m_ends)
        return;
    m_ends = ends;
    showTimes();
}

void PhaseStrip::setDirection(QBoxLayout::Direction direction)
{
    m_row->setDirection(direction);
    update();
}

void PhaseStrip::showTimes()
{
    for (int phase = 0; phase < kNumPhases; ++phase) {
        const auto i = static_cast<std::size_t>(phase);
        const QString begin = localNumber(phase == 0 ? 0.0 : m_ends[i - 1], 'g', 9);
        const QString end = localNumber(m_ends[i], 'g', 9);
        m_numbers[i]->setText(tr("&%1").arg(phase + 1));
        m_times[i]->setText(phase == kNumPhases - 1 ? tr("ab %1 s").arg(begin) : tr("%1 – %2 s").arg(begin, end));
        m_names[i]->setPlaceholderText(tr("Phase %1").arg(phase + 1));
        m_names[i]->setAccessibleName(tr("Name der Phase %1").arg(phase + 1));
        m_names[i]->setToolTip(
            tr("Name der Phase %1; der vorige Marker beginnt sie, der nächste beendet sie.").arg(phase + 1));
    }
}

void PhaseStrip::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        showTimes();
    QWidget::changeEvent(event);
}

void PhaseStrip::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    for (int phase = 0; phase < kNumPhases; ++phase)
        paintPhase(painter, phase);
}

/// The marker at which a phase ends is dashed as in the oscilloscope.
void PhaseStrip::paintPhase(QPainter &painter, int phase) const
{
    const QRect area = m_cells[static_cast<std::size_t>(phase)]->geometry();
    QColor color = phaseColor(phase);
    painter.fillRect(area.left(), area.top(), area.width(), kBand, color);
    if (phase < kNumPhases - 1 && m_row->direction() == QBoxLayout::LeftToRight) {
        painter.setPen(QPen(color, 2.0, Qt::DashLine));
        painter.drawLine(area.right() + 1, area.top() + kBand, area.right() + 1, area.bottom() + 1);
    }
    color.setAlpha(kTint);
    painter.fillRect(area.adjusted(0, kBand, 0, 0), color);
}
