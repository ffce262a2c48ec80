#include "plots/evaluation/runtime/runtimeboxplots.h"

#include "plots/charts/boxwhiskerswidget.h"
#include "plots/evaluation/runtime/runtime.h"

#include <QLabel>
#include <QVBoxLayout>

RuntimeBoxPlots::RuntimeBoxPlots(QWidget *parent)
    : TranslatedWidget(parent)
{
    constexpr int kPlotHeight = 60; // pixels
    const std::array<QColor, kNumPlots> fills{Qt::green, Qt::blue, Qt::red};
    const std::array<QString, kNumPlots> styles{QStringLiteral("color: green;"), QStringLiteral("color: blue;"),
                                                QStringLiteral("color: red;")};
    const std::array<QString, kNumPlots> names{QStringLiteral("boxStart"), QStringLiteral("boxDuration"),
                                               QStringLiteral("boxStop")};
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (std::size_t i = 0; i < kNumPlots; ++i) {
        m_captions[i] = new QLabel(this);
        m_captions[i]->setStyleSheet(styles[i]);
        m_plots[i] = new BoxWhiskersWidget(this);
        m_plots[i]->setObjectName(names[i]);
        m_plots[i]->setFixedHeight(kPlotHeight);
        m_plots[i]->setMargins(20, 0, 10, 20);
        m_plots[i]->setFillColor(fills[i]);
        layout->addWidget(m_captions[i]);
        layout->addWidget(m_plots[i]);
    }
    retranslateUi();
}

void RuntimeBoxPlots::set(const RuntimeSummary &summary)
{
    // One axis for all three, so that they can be compared by eye.
    for (BoxWhiskersWidget *plot : m_plots)
        plot->setAxisRange(0.0, summary.longestTime);
    m_plots[0]->set(summary.starts);
    m_plots[1]->set(summary.durations);
    m_plots[2]->set(summary.stops);
}

void RuntimeBoxPlots::retranslateUi()
{
    m_captions[0]->setText(tr("Start [s]"));
    m_captions[1]->setText(tr("Dauer [s]"));
    m_captions[2]->setText(tr("Stop [s]"));
    for (std::size_t i = 0; i < kNumPlots; ++i)
        m_plots[i]->setAccessibleName(m_captions[i]->text());
}
