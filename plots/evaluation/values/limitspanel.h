#pragma once

#include "kit/small/translatedwidget.h"
#include "plots/charts/capability.h"

class LimitField;
class QLabel;

/// The tolerance limits of one quantity, to be edited, and how well the shots keep them.
class LimitsPanel final : public TranslatedWidget
{
    Q_OBJECT

public:
    explicit LimitsPanel(QWidget *parent = nullptr);

    /// As they are in the two fields.
    [[nodiscard]] ToleranceLimits limits() const;
    /// Emits nothing. The unit may be empty.
    void set(const QVector<double> &values, const ToleranceLimits &limits, const QString &unit);

signals:
    /// The user changed or switched a limit.
    void edited();

protected:
    void retranslateUi() override;

private:
    void suggestLimits(const QVector<double> &values);
    void showCapability(const QVector<double> &values, const ToleranceLimits &limits);
    void showOutside(const QVector<double> &values, const ToleranceLimits &limits);

    LimitField *m_lower = nullptr;
    LimitField *m_upper = nullptr;
    QLabel *m_cp = nullptr;
    QLabel *m_cpk = nullptr;
    QLabel *m_outside = nullptr;
};
