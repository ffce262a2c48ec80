#pragma once

#include "plots/evaluation/common/scrolledplot.h"
#include "plots/evaluation/overlay/alignment.h"

#include <QRgb>

#include <vector>

class OverlayLooks;
class OverlayPlot;
class OverlayShots;
struct OverlayShot;

/// How the shots of an overlay are drawn.
struct OverlayScene
{
    AlignmentRule rule;
    int clock = 100;            ///< milliseconds per sample
    std::vector<bool> selected; ///< one per shot; selected shots keep their colours, the others fade
    int current = -1;           ///< is drawn thick if it is selected; -1: none
    bool showsMean = false;
    double sigmas = 0.0; ///< half the width of the band; 0: no band
};

/// The plot of the overlay: decides which shots are drawn in which slot, colour and order, and fits the axes to them.
class ScrolledOverlay final : public ScrolledPlot
{
    Q_OBJECT

public:
    explicit ScrolledOverlay(QWidget *parent = nullptr);

    /// Places the shots and draws them. The plot points at the shots until the next call or until forgetShots().
    void showShots(OverlayShots &shots, const OverlayLooks &looks, const OverlayScene &scene);
    /// Empties the plot: afterwards it points at no shot.
    void forgetShots();

private:
    ScrolledOverlay(OverlayPlot *plot, QWidget *parent);

    // A slot of the plot as it was last set.
    struct Slot
    {
        quint64 id = 0;
        const OverlayShot *shot = nullptr;
        QRgb color = 0;
        bool isOnTop = false;
        int shift = 0;
        double lift = 0.0;
    };

    void showCurves(const OverlayShots &shots, const OverlayLooks &looks, const OverlayScene &scene,
                    const std::vector<bool> &shown);
    void showHighlighted(quint64 id);
    void setSlots(const std::vector<Slot> &wanted);
    void showReference(const OverlayShots &shots, const OverlayLooks &looks);
    void showMean(OverlayShots &shots, const OverlayScene &scene, const std::vector<bool> &shown);
    void showLines(const OverlayShots &shots, const OverlayScene &scene);
    void fitAxes(OverlayShots &shots, const OverlayScene &scene, const std::vector<bool> &shown,
                 const std::vector<bool> &drawn);

    OverlayPlot *m_plot;
    std::vector<Slot> m_slots;
};
