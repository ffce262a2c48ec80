#include "view/blackbox/transferbar.h"

#include "kit/small/progressindicator.h"

#include <QHBoxLayout>
#include <QLabel>

TransferBar::TransferBar(QWidget *parent)
    : TranslatedWidget(parent)
    , m_indicator(new ProgressIndicator(this))
    , m_progress(new QLabel(this))
    , m_result(new QLabel(this))
{
    m_indicator->setObjectName(QStringLiteral("progressIndicator"));
    m_indicator->setFixedSize(m_indicator->sizeHint());
    m_progress->setObjectName(QStringLiteral("labelProgress"));
    m_progress->setMinimumWidth(160);
    m_result->setObjectName(QStringLiteral("labelResult"));
    m_result->setTextFormat(Qt::PlainText);
    m_result->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_result->setWordWrap(true);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_indicator);
    layout->addWidget(m_progress);
    layout->addWidget(m_result, 1);
    retranslateUi();
}

void TransferBar::setProgress(int done, int total)
{
    m_done = done;
    m_total = total;
    m_detail.clear();
    showProgress();
}

void TransferBar::setDetail(const QString &text)
{
    m_detail = text;
    showProgress();
}

void TransferBar::showProgress()
{
    if (m_total > 0) {
        // A ring that stays empty would look as if nothing happened.
        m_indicator->setPercent(m_done > 0 ? static_cast<int>(qint64(m_done) * 100 / m_total)
                                           : ProgressIndicator::kTurning);
        m_indicator->startAnimation();
        const QString numbers = tr("%1 von %2").arg(m_done).arg(m_total);
        m_progress->setText(m_detail.isEmpty() ? numbers : numbers + QStringLiteral(" · ") + m_detail);
    } else {
        m_indicator->stopAnimation();
        m_progress->clear();
    }
}

void TransferBar::setResult(const QString &text)
{
    m_result->setText(text);
}

void TransferBar::retranslateUi()
{
    m_indicator->setAccessibleName(tr("Fortschritt der Übertragung"));
    m_result->clear(); // its text was composed in the language before
    showProgress();
}
