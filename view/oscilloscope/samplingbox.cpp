#include "view/oscilloscope/samplingbox.h"

#include "view/common/logging.h"
#include "view/oscilloscope/oszicontrols.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

SamplingBox::SamplingBox(QWidget *parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("frameSampleRate"));
    m_caption = new QLabel(this);
    m_caption->setObjectName(QStringLiteral("clockLabel"));
    m_periods = new QComboBox(this);
    m_periods->setObjectName(QStringLiteral("comboBoxClock"));
    m_periods->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_caption->setBuddy(m_periods); // for screen readers; the caption has no mnemonic
    QHBoxLayout *layout = oszicontrols::layOutGroup(this);
    layout->addWidget(m_caption);
    layout->addWidget(m_periods);
    connect(m_periods, qOverload<int>(&QComboBox::activated), this, &SamplingBox::choose);
    retranslateUi();
}

void SamplingBox::setPeriods(const QStringList &labels)
{
    const QSignalBlocker blocker(m_periods);
    m_periods->clear();
    for (const QString &label : labels)
        m_periods->addItem(QString(label).replace(QLatin1String("ms"), QLatin1String(" ms")), label);
    showPeriod(m_period);
}

void SamplingBox::showPeriod(int milliseconds)
{
    m_period = milliseconds;
    const QString text = tr("%1 ms").arg(milliseconds);
    m_periods->setCurrentIndex(m_periods->findText(text));
    m_periods->setPlaceholderText(text); // seen where it is none of those on offer
}

void SamplingBox::setSelectable(bool selectable)
{
    m_periods->setEnabled(selectable);
}

void SamplingBox::choose(int index)
{
    const QString label = m_periods->itemData(index).toString();
    showPeriod(m_period); // the box decides whether it takes the new one
    qCDebug(lcView) << "emit samplingPeriodChosen(QString)" << label;
    emit periodChosen(label);
}

void SamplingBox::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
}

void SamplingBox::retranslateUi()
{
    m_caption->setText(tr("Abtastrate"));
    m_periods->setToolTip(tr("Zeit zwischen zwei Messwerten; wählbar, solange die Box verbunden ist"));
    m_periods->setAccessibleName(m_caption->text());
    showPeriod(m_period);
}
