#include "view/oscilloscope/oszihead.h"

#include "view/common/actionicon.h"
#include "view/common/elidedlabel.h"
#include "view/common/flowlayout.h"
#include "view/oscilloscope/oszicontrols.h"
#include "view/oscilloscope/ycorrectionbox.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>

namespace {

constexpr int kHeadGap = 6;       // pixels; five names and the correction are many for one line
constexpr int kLeastName = 11;    // characters
constexpr int kLongestName = 30;  // characters
constexpr int kLockIconSize = 26; // pixels

} // namespace

OsziHead::OsziHead(QWidget *parent)
    : QWidget(parent)
{
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(kHeadGap);
    auto *groups = new QWidget(this);
    groups->setStyleSheet(QStringLiteral("ElidedLabel {font-size: 15px;}"));
    auto *flow = new FlowLayout(kHeadGap, oszicontrols::kGap, groups);
    for (int position = 0; position < kNumSensors; ++position)
        flow->addWidget(createSensorSwitch(position, groups));
    m_yCorrection = new YCorrectionBox(groups);
    flow->addWidget(m_yCorrection);
    line->addWidget(groups, 1);
    createLock();
    line->addWidget(m_lock, 0, Qt::AlignVCenter);
    retranslateUi();
}

QWidget *OsziHead::createSensorSwitch(int position, QWidget *parent)
{
    const QString number = QString::number(position + 1);
    auto *group = new QWidget(parent);
    SensorSwitch &made = m_sensors.at(static_cast<std::size_t>(position));
    made.box = oszicontrols::createBareCheckBox(QStringLiteral("sensor%1CheckBox").arg(number), true, group);
    made.label = new ElidedLabel(kLeastName, kLongestName, group);
    made.label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    made.label->setObjectName(QStringLiteral("sensor%1Label").arg(number));
    connect(made.label, &ElidedLabel::clicked, made.box, &QCheckBox::click);
    connect(made.box, &QCheckBox::toggled, this, [this, position](bool shown) { emit sensorToggled(position, shown); });
    QHBoxLayout *layout = oszicontrols::layOutGroup(group);
    layout->setSpacing(0); // the box has a gap at its end
    layout->addWidget(made.box);
    layout->addWidget(made.label);
    return group;
}

void OsziHead::createLock()
{
    m_lock = new QPushButton(this);
    m_lock->setObjectName(QStringLiteral("lockButton"));
    m_lock->setCheckable(true);
    m_lock->setIconSize(QSize(kLockIconSize, kLockIconSize));
    connect(m_lock, &QPushButton::toggled, this, [this](bool closed) {
        showLock();
        emit lockToggled(closed);
    });
}

bool OsziHead::isLocked() const
{
    return m_lock->isChecked();
}

void OsziHead::setSensorName(int position, const QString &name)
{
    SensorSwitch &named = m_sensors.at(static_cast<std::size_t>(position));
    named.name = name;
    named.label->setText(shownSensorName(name, position));
    named.box->setAccessibleName(named.label->text());
}

void OsziHead::showLock()
{
    const bool closed = isLocked();
    m_lock->setIcon(
        actionIcon(closed ? QStringLiteral("lock-closed.png") : QStringLiteral("lock-open.png"), Qt::white));
    m_lock->setToolTip(closed ? tr("Gesperrt: Bereiche, Raster, Korrekturen, Marker und Messungen "
                                   "sind vor Änderungen geschützt. Klicken zum Entsperren.")
                              : tr("Alles kann geändert werden. Klicken zum Sperren."));
    m_lock->setAccessibleName(closed ? tr("Gesperrt") : tr("Offen"));
}

void OsziHead::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
}

void OsziHead::retranslateUi()
{
    for (int position = 0; position < kNumSensors; ++position) {
        const SensorSwitch &shown = m_sensors.at(static_cast<std::size_t>(position));
        shown.box->setToolTip(tr("Diagramm dieses Sensors zeigen"));
        setSensorName(position, shown.name);
    }
    showLock();
}
