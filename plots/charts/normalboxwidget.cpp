#include "plots/charts/normalboxwidget.h"

#include "plots/charts/boxwhiskerswidget.h"
#include "plots/common/localnumber.h"
#include "plots/common/logging.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

NormalBoxWidget::NormalBoxWidget(QWidget *parent)
    : QWidget(parent)
    , m_boxPlot(new BoxWhiskersWidget(this))
{
    createLayout();
    retranslateUi();
    showFigures();
}

// Two columns of captions and figures, read downwards: count and moments left, the five numbers right.
void NormalBoxWidget::createLayout()
{
    constexpr int kRows = (kNumFigures + 1) / 2;
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(0);
    for (int i = 0; i < kNumFigures; ++i) {
        const auto index = static_cast<size_t>(i);
        m_captions[index] = new QLabel(this);
        m_figures[index] = new QLabel(this);
        m_figures[index]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_figures[index]->setTextInteractionFlags(Qt::TextSelectableByMouse);
        grid->addWidget(m_captions[index], i % kRows, 3 * (i / kRows));
        grid->addWidget(m_figures[index], i % kRows, 3 * (i / kRows) + 1);
    }
    grid->setColumnMinimumWidth(2, 12); // an empty column keeps the two pairs apart
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(4, 1);
    m_boxPlot->setFixedHeight(60);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_boxPlot);
    layout->addLayout(grid);
    layout->addStretch();
}

void NormalBoxWidget::retranslateUi()
{
    const std::array<QString, kNumFigures> captions{tr("n"),  tr("Mittelwert"), tr("Sigma"), tr("Minimum"),
                                                    tr("Q1"), tr("Median"),     tr("Q3"),    tr("Maximum")};
    for (size_t i = 0; i < captions.size(); ++i)
        m_captions[i]->setText(captions[i]);
    m_figures[2]->setToolTip(tr("Standardabweichung der Grundgesamtheit (geteilt durch n)"));
    m_captions[2]->setToolTip(m_figures[2]->toolTip());
    m_boxPlot->setAccessibleName(tr("Box-Plot"));
}

void NormalBoxWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

// By value, as its log line says.
void NormalBoxWidget::set(QList<double> values) // NOLINT(performance-unnecessary-value-param)
{
    qCDebug(lcPlots).noquote().nospace() << Q_FUNC_INFO << " n=" << values.size();
    m_boxPlot->set(values);
    fitAxis();
    showFigures();
}

void NormalBoxWidget::setAxisRange(double minimum, double maximum)
{
    m_automaticAxis = false;
    m_boxPlot->setAxisRange(minimum, maximum);
}

void NormalBoxWidget::setAutomaticAxisRange()
{
    m_automaticAxis = true;
    fitAxis();
}

void NormalBoxWidget::fitAxis()
{
    if (!m_automaticAxis)
        return;
    const statistics::FiveNumbers &numbers = m_boxPlot->numbers();
    const double span = numbers.maximum - numbers.minimum;
    // Without any span there is nothing to take a share of: equal values get an axis around them.
    const double room = span > 0.0 ? span / 20.0 : std::max(1.0, std::abs(numbers.median) / 20.0);
    m_boxPlot->setAxisRange(numbers.minimum - room, numbers.maximum + room);
}

void NormalBoxWidget::setFillColor(const QColor &color)
{
    m_boxPlot->setFillColor(color);
}

void NormalBoxWidget::setUnit(const QString &unit)
{
    m_unit = unit;
    showFigures();
}

void NormalBoxWidget::showFigures()
{
    const QVector<double> &sorted = m_boxPlot->sortedValues();
    const statistics::Moments moments = statistics::moments(sorted);
    const statistics::FiveNumbers &five = m_boxPlot->numbers();
    const std::array<double, kNumFigures - 1> figures{moments.mean, moments.sigma, five.minimum, five.q1,
                                                      five.median,  five.q3,       five.maximum};
    const QString unit = m_unit.isEmpty() ? QString() : QLatin1Char(' ') + m_unit;
    m_figures[0]->setText(QString::number(sorted.size()));
    for (size_t i = 0; i < figures.size(); ++i)
        m_figures[i + 1]->setText(sorted.isEmpty() ? QString() : localNumber(figures[i], 'g', 6) + unit);
}

QString NormalBoxWidget::figureText(int index) const
{
    return index >= 0 && index < kNumFigures ? m_figures[static_cast<size_t>(index)]->text() : QString();
}
