#include "plots/evaluation/common/limitfield.h"

#include "kit/material/qtmaterialtoggle.h"
#include "plots/common/decimalspinbox.h"
#include "plots/common/localnumber.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QSignalBlocker>

#include <cmath>

namespace {

constexpr double kLargest = 1e9;
constexpr int kDecimals = 6;

/// Shows as many decimals as the number needs: with three fixed decimals "300.000" could be read as three hundred
/// thousand.
class LimitSpinBox : public DecimalSpinBox
{
public:
    explicit LimitSpinBox(QWidget *parent)
        : DecimalSpinBox(parent)
    {
        setDecimals(kDecimals);
        setRange(-kLargest, kLargest);
    }
    [[nodiscard]] QString textFromValue(double value) const override
    {
        QString text = localNumber(value, 'f', kDecimals);
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(locale().decimalPoint()))
            text.chop(1);
        return text;
    }
};

} // namespace

LimitField::LimitField(QWidget *parent)
    : QWidget(parent)
    , m_switch(new QtMaterialToggle(this))
    , m_spinBox(new LimitSpinBox(this))
{
    m_switch->setObjectName(QStringLiteral("switch"));
    m_spinBox->setObjectName(QStringLiteral("spinBox"));
    m_spinBox->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    m_spinBox->setAlignment(Qt::AlignCenter);
    m_spinBox->setKeyboardTracking(false); // half a number is no limit
    m_spinBox->setEnabled(false);
    m_spinBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_switch, 1);
    layout->addWidget(m_spinBox, 1);
    setFocusProxy(m_switch);
    connect(m_switch, &QCheckBox::toggled, m_spinBox, &QWidget::setEnabled);
    // clicked() and not toggled(), which is emitted by setLimit(), too.
    connect(m_switch, &QCheckBox::clicked, this, &LimitField::edited);
    connect(m_spinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &LimitField::edited);
}

void LimitField::setLimit(const std::optional<double> &limit)
{
    const QSignalBlocker blocker(m_spinBox);
    m_switch->setChecked(limit.has_value());
    if (limit && *limit != m_spinBox->value())
        m_spinBox->setValue(*limit);
}

std::optional<double> LimitField::limit() const
{
    return m_switch->isChecked() ? std::optional(m_spinBox->value()) : std::nullopt;
}

void LimitField::setTitle(const QString &title)
{
    m_switch->setText(title);
    m_spinBox->setAccessibleName(QString(title).remove(QLatin1Char('&')));
}

void LimitField::setUnit(const QString &unit)
{
    const QString suffix = unit.isEmpty() ? QString() : QLatin1Char(' ') + unit;
    if (suffix != m_spinBox->suffix()) // setting it discards what the user is typing
        m_spinBox->setSuffix(suffix);
}

void LimitField::setSuggestion(double value)
{
    if (m_switch->isChecked() || !std::isfinite(value))
        return;
    const QSignalBlocker blocker(m_spinBox);
    m_spinBox->setValue(value);
}
