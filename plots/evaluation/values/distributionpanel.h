#pragma once

#include "kit/small/translatedwidget.h"

class NormalBoxWidget;
class NormalDistributionWidget;

/// How the values of one quantity are distributed: a box plot with its figures, and a bell curve.
class DistributionPanel final : public TranslatedWidget
{
    Q_OBJECT

public:
    explicit DistributionPanel(QWidget *parent = nullptr);

    void set(const QVector<double> &values, const QString &unit, const QColor &color);

protected:
    void retranslateUi() override;

private:
    NormalBoxWidget *m_box = nullptr;
    NormalDistributionWidget *m_bell = nullptr;
};
