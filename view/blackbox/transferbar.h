#pragma once

#include "kit/small/translatedwidget.h"

class ProgressIndicator;
class QLabel;

/// The foot of the BlackBox tab: how far a transfer is, and how the last import went.
class TransferBar final : public TranslatedWidget
{
    Q_OBJECT

public:
    explicit TransferBar(QWidget *parent = nullptr);

    /// 0 of 0: nothing is being transferred.
    void setProgress(int done, int total);
    /// What is under way in detail, behind the numbers; until the next progress.
    void setDetail(const QString &text);
    /// Stays until the next result or until the language changes.
    void setResult(const QString &text);

protected:
    void retranslateUi() override;

private:
    void showProgress();

    int m_done = 0;
    int m_total = 0;
    QString m_detail;
    ProgressIndicator *m_indicator = nullptr;
    QLabel *m_progress = nullptr;
    QLabel *m_result = nullptr;
};
