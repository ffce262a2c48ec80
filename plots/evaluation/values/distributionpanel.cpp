#include "plots/evaluation/values/distributionpanel.h"

#include "plots/charts/normalboxwidget.h"
#include "plots/charts/normaldistributionwidget.h"

#include <QVBoxLayout>

namespace {

constexpr int kLowestBell = 110; // pixels

// Mixed with white, so that black lines are visible on it.
QColor paled(const QColor &color)
{
    constexpr double kWhite = 0.55;
    const auto mix = [](double part) { return part + (1.0 - part) * kWhite; };
    return QColor::fromRgbF(mix(color.redF()), mix(color.greenF()), mix(color.blueF()));
}

} // namespace

DistributionPanel::DistributionPanel(QWidget *parent)
    : TranslatedWidget(parent)
    , m_box(new NormalBoxWidget(this))
    , m_bell(new NormalDistributionWidget(this))
{
    m_bell->setMinimumHeight(kLowestBell);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_box);
    layout->addWidget(m_bell, 1);
    retranslateUi();
}

void DistributionPanel::set(const QVector<double> &values, const QString &unit, const QColor &color)
{
    const QList<double> list(values.begin(), values.end());
    m_box->setFillColor(paled(color));
    m_box->setUnit(unit);
    m_box->set(list);
    m_bell->setCurveColor(color);
    m_bell->set(list);
}

void DistributionPanel::retranslateUi()
{
    m_bell->setAccessibleName(tr("Normalverteilung"));
}
