#include "plots/evaluation/runtime/thresholdfields.h"

#include "plots/common/decimalspinbox.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <algorithm>

namespace {

constexpr double kLargestThreshold = 1e6;
constexpr int kWidestSpinBox = 220; // pixels

} // namespace

ThresholdFields::ThresholdFields(QWidget *parent)
    : TranslatedWidget(parent)
    , m_startLabel(new QLabel(this))
    , m_stopLabel(new QLabel(this))
    , m_startSpinBox(createSpinBox(QStringLiteral("spinBoxStartValue")))
    , m_stopSpinBox(createSpinBox(QStringLiteral("spinBoxStopValue")))
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(10);
    layout->setVerticalSpacing(0);
    layout->setColumnStretch(2, 1);
    layout->addWidget(m_startLabel, 0, 0);
    layout->addWidget(m_startSpinBox, 0, 1);
    layout->addWidget(m_stopLabel, 1, 0);
    layout->addWidget(m_stopSpinBox, 1, 1);
    retranslateUi();
}

QDoubleSpinBox *ThresholdFields::createSpinBox(const QString &name)
{
    auto *spinBox = new DecimalSpinBox(this);
    spinBox->setObjectName(name);
    spinBox->setDecimals(2);
    spinBox->setRange(-kLargestThreshold, kLargestThreshold);
    spinBox->setAlignment(Qt::AlignCenter);
    spinBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    spinBox->setMaximumWidth(kWidestSpinBox);
    connect(spinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &ThresholdFields::edited);
    return spinBox;
}

RuntimeThresholds ThresholdFields::thresholds() const
{
    return {m_startSpinBox->value(), m_stopSpinBox->value()};
}

void ThresholdFields::setThresholds(const RuntimeThresholds &thresholds)
{
    const QSignalBlocker startBlocker(m_startSpinBox);
    const QSignalBlocker stopBlocker(m_stopSpinBox);
    m_startSpinBox->setValue(thresholds.start);
    m_stopSpinBox->setValue(thresholds.stop);
}

RuntimeThresholds ThresholdFields::bounded(const RuntimeThresholds &thresholds)
{
    return {std::clamp(thresholds.start, -kLargestThreshold, kLargestThreshold),
            std::clamp(thresholds.stop, -kLargestThreshold, kLargestThreshold)};
}

void ThresholdFields::retranslateUi()
{
    m_startLabel->setText(tr("Startschwelle"));
    m_stopLabel->setText(tr("Stoppschwelle"));
    m_startSpinBox->setAccessibleName(m_startLabel->text());
    m_stopSpinBox->setAccessibleName(m_stopLabel->text());
}
