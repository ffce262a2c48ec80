#include "plots/evaluation/overlay/overlayoptions.h"

#include "kit/material/qtmaterialtoggle.h"
#include "model/model.h"
#include "plots/common/decimalspinbox.h"
#include "plots/common/logging.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPoint>
#include <QSignalBlocker>

namespace {

constexpr double kLargestThreshold = 1e6;
constexpr double kMostSigmas = 10.0;

// Kind and marker: the data of an item.
QPoint choice(AlignBy by, int marker = 0)
{
    return {static_cast<int>(by), marker};
}

} // namespace

OverlayOptions::OverlayOptions(QWidget *parent)
    : TranslatedWidget(parent)
{
    createAlignment();
    createMean();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    for (QWidget *widget : std::initializer_list<QWidget *>{m_label, m_alignment, m_threshold})
        layout->addWidget(widget);
    layout->addStretch();
    for (QWidget *widget : std::initializer_list<QWidget *>{m_mean, m_band, m_sigmas})
        layout->addWidget(widget);
    retranslateUi();
    connectWidgets();
}

void OverlayOptions::createAlignment()
{
    m_label = new QLabel(this);
    m_alignment = new QComboBox(this);
    m_alignment->setObjectName(QStringLiteral("comboAlignment"));
    m_alignment->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_label->setBuddy(m_alignment);
    m_alignment->addItem(QString(), choice(AlignBy::Start));
    for (int marker = 0; marker < Model::kNumMarkers; ++marker)
        m_alignment->addItem(QString(), choice(AlignBy::Marker, marker));
    m_alignment->addItem(QString(), choice(AlignBy::Rising));
    m_alignment->addItem(QString(), choice(AlignBy::Falling));
    m_threshold = new DecimalSpinBox(this);
    m_threshold->setObjectName(QStringLiteral("spinBoxThreshold"));
    m_threshold->setRange(-kLargestThreshold, kLargestThreshold);
    m_threshold->setAlignment(Qt::AlignCenter);
    m_threshold->setMinimumWidth(170);
    m_threshold->setEnabled(false);
}

void OverlayOptions::createMean()
{
    m_mean = new QtMaterialToggle(this);
    m_mean->setObjectName(QStringLiteral("checkMean"));
    m_band = new QtMaterialToggle(this);
    m_band->setObjectName(QStringLiteral("checkBand"));
    m_sigmas = new DecimalSpinBox(this);
    m_sigmas->setObjectName(QStringLiteral("spinBoxSigmas"));
    m_sigmas->setRange(0.5, kMostSigmas);
    m_sigmas->setSingleStep(0.5);
    m_sigmas->setDecimals(1);
    m_sigmas->setValue(3.0);
    m_sigmas->setSuffix(QStringLiteral(" σ"));
    m_sigmas->setAlignment(Qt::AlignCenter);
    m_sigmas->setMinimumWidth(130);
    m_sigmas->setEnabled(false);
}

void OverlayOptions::connectWidgets()
{
    connect(m_alignment, qOverload<int>(&QComboBox::currentIndexChanged), this, &OverlayOptions::onAlignment_changed);
    connect(m_threshold, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &OverlayOptions::onThreshold_changed);
    connect(m_mean, &QCheckBox::toggled, this, &OverlayOptions::onMean_changed);
    connect(m_band, &QCheckBox::toggled, this, &OverlayOptions::onMean_changed);
    connect(m_sigmas, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &OverlayOptions::onMean_changed);
}

void OverlayOptions::setSensor(int sensor)
{
    m_sensor = sensor;
    const QSignalBlocker blocker(m_threshold); // another sensor's threshold is no edit
    m_threshold->setValue(m_thresholds[static_cast<size_t>(sensor)]);
}

AlignBy OverlayOptions::alignedBy() const
{
    return static_cast<AlignBy>(m_alignment->currentData().toPoint().x());
}

AlignmentRule OverlayOptions::rule(const Model &model) const
{
    AlignmentRule rule;
    rule.by = alignedBy();
    rule.offset = model.offset(m_sensor);
    if (rule.by == AlignBy::Marker)
        rule.marker = model.verticalMarker(m_alignment->currentData().toPoint().y());
    if (usesThreshold(rule.by))
        rule.threshold = m_thresholds[static_cast<size_t>(m_sensor)];
    return rule;
}

bool OverlayOptions::showsMean() const
{
    return m_mean->isChecked();
}

double OverlayOptions::sigmas() const
{
    return m_band->isChecked() ? m_sigmas->value() : 0.0;
}

void OverlayOptions::onAlignment_changed()
{
    qCDebug(lcPlots) << Q_FUNC_INFO << m_alignment->currentText();
    m_threshold->setEnabled(usesThreshold(alignedBy()));
    emit alignmentChanged();
}

void OverlayOptions::onThreshold_changed()
{
    qCDebug(lcPlots) << Q_FUNC_INFO << m_threshold->value();
    m_thresholds[static_cast<size_t>(m_sensor)] = m_threshold->value();
    emit alignmentChanged();
}

void OverlayOptions::onMean_changed()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    m_sigmas->setEnabled(m_band->isChecked());
    emit meanChanged();
}

void OverlayOptions::retranslateUi()
{
    m_label->setText(tr("Ausrichten"));
    retranslateAlignments();
    m_threshold->setToolTip(tr("Schwelle in der Einheit des Sensors"));
    m_threshold->setAccessibleName(m_threshold->toolTip());
    m_mean->setText(tr("&Mittelwert"));
    m_mean->setToolTip(tr("Mittelwert der gezeigten Kurven"));
    m_band->setText(tr("&Band ±"));
    m_band->setToolTip(tr("Streuung der gezeigten Kurven um ihren Mittelwert"));
    m_sigmas->setAccessibleName(tr("Breite des Bandes in Sigma"));
}

void OverlayOptions::retranslateAlignments()
{
    m_alignment->setItemText(0, tr("am Beginn"));
    for (int marker = 1; marker <= Model::kNumMarkers; ++marker)
        m_alignment->setItemText(marker, tr("Null bei Marker %1").arg(marker));
    m_alignment->setItemText(Model::kNumMarkers + 1, tr("Schwelle steigend"));
    m_alignment->setItemText(Model::kNumMarkers + 2, tr("Schwelle fallend"));
    m_alignment->setToolTip(tr("Woran die Kurven übereinander liegen: an ihrem Beginn, mit ihren Werten bei einem"
                               " Marker, oder wo sie zum ersten Mal eine Schwelle durchlaufen"));
}
