#include "view/oscilloscope/ycorrectionbox.h"

#include "view/oscilloscope/oszicontrols.h"
#include "view/oscilloscope/oszispinbox.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr int kLargestTime = 24 * 60 * 60 * 1000; // milliseconds
constexpr int kTimeStep = 100;                    // milliseconds

} // namespace

YCorrectionBox::YCorrectionBox(QWidget *parent)
    : QWidget(parent)
{
    m_caption = new QLabel(this);
    m_on = oszicontrols::createToggle(QStringLiteral("checkBoxYCorrection"), false, this);
    m_time = new OsziSpinBox(QStringLiteral("00000 ms"), this);
    m_time->setObjectName(QStringLiteral("spinBoxYCorrection"));
    m_time->setRange(0, kLargestTime);
    m_time->setSingleStep(kTimeStep);
    QHBoxLayout *layout = oszicontrols::layOutGroup(this);
    layout->addWidget(m_caption);
    layout->addWidget(m_on);
    layout->addWidget(m_time);
    connect(m_on, &QCheckBox::toggled, this, &YCorrectionBox::toggled);
    connect(m_time, qOverload<int>(&QSpinBox::valueChanged), this, &YCorrectionBox::timeEdited);
    retranslateUi();
}

bool YCorrectionBox::isOn() const
{
    return m_on->isChecked();
}

int YCorrectionBox::time() const
{
    return m_time->value();
}

void YCorrectionBox::showTime(int milliseconds)
{
    m_time->showValue(milliseconds);
}

void YCorrectionBox::setEditable(bool editable)
{
    m_on->setEnabled(editable);
    m_time->setEnabled(editable);
}

void YCorrectionBox::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
}

void YCorrectionBox::retranslateUi()
{
    m_caption->setText(tr("y Korr."));
    m_on->setToolTip(tr("Jede Kurve so verschieben, dass sie zu dieser Zeit durch null geht"));
    m_on->setAccessibleName(tr("y Korrektur"));
    m_time->setSuffix(tr(" ms"));
    m_time->setToolTip(tr("Zeit, zu der jede Kurve durch null geht"));
    m_time->setAccessibleName(tr("Zeit der y Korrektur"));
}
