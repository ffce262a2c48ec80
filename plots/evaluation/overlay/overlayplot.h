#pragma once

#include "plots/evaluation/overlay/meanband.h"
#include "plots/oscilloscope/osziwidget.h"

/// A plot that also shows what the curves of an overlay have in common: their mean, a band around it, and one curve
/// that the others are compared with, wide and translucent.
class OverlayPlot : public OsziWidget
{
    Q_OBJECT

public:
    using OsziWidget::OsziWidget;

    struct Reference
    {
        const SampleList *samples = nullptr; ///< not owned; nullptr: no reference
        int shift = 0;                       ///< index of the time axis at which sample 0 is drawn
        double lift = 0.0;                   ///< added to its values
        QColor color;
    };

    /// Not owned, and read whenever the plot is painted; the plot's offset is added to its values. Must be set again
    /// when its samples or those of the mean have changed.
    void setReference(const Reference &reference);
    /// nullptr: no mean. If `sigmas` is more than 0, a band of that many sigmas to each side is drawn.
    void setMean(const MeanBand *mean, bool showsMean, double sigmas);
    [[nodiscard]] const Reference &reference() const { return m_reference; }
    [[nodiscard]] bool showsMean() const { return m_mean && m_showsMean; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintReference(QPainter &painter, const PlotGeometry &geometry) const;
    void paintMean(QPainter &painter, const PlotGeometry &geometry) const;

    Reference m_reference;
    const MeanBand *m_mean = nullptr;
    bool m_showsMean = false;
    double m_sigmas = 0.0;
};
