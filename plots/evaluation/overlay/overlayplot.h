#pragma once

#include "plots/evaluation/overlay/meanband.h"
#include "plots/oscilloscope/osziwidget.h"

/// A plot that also shows what the curves of an overlay have in common: their mean, a band around it, and one curve
/// that the others are compared to, wide and translucent.
class OverlayPlot : public OsziWidget
{
    Q_OBJECT

public:
    using OsziWidget::OsziWidget;

    struct Reference
    {
        const SampleList *samples = nullptr; ///< not owned; null: there is none
        int shift = 0;                       ///< index at which sample 0 stands
        double lift = 0.0;                   ///< added to its values
        QColor color;
    };

    /// Not owned, and looked at whenever the plot is painted; the plot's offset is added to all of it. Has to be set
    /// again when its samples or those of the mean have changed.
    void setReference(const Reference &reference);
    /// nullptr for none; a band of `sigmas` times sigma to each side is drawn if that is more than 0.
    void setMean(const MeanBand *mean, bool showsMean, double sigmas);
    [[nodiscard]] const Reference &reference() const { return m_reference; }
    [[nodiscard]] bool showsMean() const { return m_mean && m_showsMean; }
    [[nodiscard]] double bandSigmas() const { return m_mean ? m_sigmas : 0.0; }

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
