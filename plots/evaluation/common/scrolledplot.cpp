#include "plots/evaluation/common/scrolledplot.h"

#include "plots/oscilloscope/osziwidget.h"

#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kWidestSample = 10; // pixels
constexpr int kUsualCount = 200;  // samples that fit into the width while there are none

} // namespace

ScrolledPlot::ScrolledPlot(OsziWidget *plot, QWidget *parent)
    : QWidget(parent)
    , m_plot(plot)
    , m_scrollBar(new QScrollBar(Qt::Horizontal, this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(plot, 1);
    layout->addWidget(m_scrollBar);
    m_scrollBar->hide();
    plot->installEventFilter(this);
    connect(plot, &OsziWidget::mouseAtX, plot, &OsziWidget::showMouseMarker);
    connect(plot, &OsziWidget::mouseReleased, plot, &OsziWidget::hideMouseMarker);
    connect(m_scrollBar, &QScrollBar::valueChanged, plot, &OsziWidget::setStartIndex);
}

void ScrolledPlot::setLongest(int samples)
{
    m_longest = samples;
    fitTimeAxis();
}

void ScrolledPlot::setValueRange(double minimum, double maximum)
{
    if (!(minimum < m_plot->minValue()) && !(minimum > m_plot->minValue()) && !(maximum < m_plot->maxValue())
        && !(maximum > m_plot->maxValue()))
        return;
    // Each end must be moved while the other leaves room for it.
    if (maximum > m_plot->maxValue()) {
        m_plot->setMaxValue(maximum);
        m_plot->setMinValue(minimum);
    } else {
        m_plot->setMinValue(minimum);
        m_plot->setMaxValue(maximum);
    }
}

// The longest curve fills the width, so that shots can be compared by eye; longer ones than fit are scrolled.
void ScrolledPlot::fitTimeAxis()
{
    const int width = m_plot->contentsRect().width() - OsziWidget::kLeftMargin;
    const int count = m_longest > 0 ? m_longest : kUsualCount;
    const int zoom = std::clamp(width / count, 1, kWidestSample);
    const int hidden = std::max(0, count - std::max(0, width) / zoom);
    if (zoom != m_plot->zoom())
        m_plot->setZoom(zoom);
    m_scrollBar->setRange(0, hidden);
    m_scrollBar->setPageStep(std::max(1, count - hidden));
    m_scrollBar->setSingleStep(std::max(1, m_scrollBar->pageStep() / 10));
    m_scrollBar->setVisible(hidden > 0); // may resize the plot, but only in height
}

bool ScrolledPlot::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_plot && event->type() == QEvent::Resize)
        fitTimeAxis();
    return QWidget::eventFilter(watched, event);
}
