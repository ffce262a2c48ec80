#pragma once

#include "plots/oscilloscope/curveraster.h"
#include "plots/oscilloscope/osziscene.h"

#include <QImage>

#include <vector>

/// The picture of all shown curves but the highlighted one, kept between paints: transparent where there is no curve,
/// else with exactly the pixels of oszipainter::paintCurves(). Scrolling moves it and draws only what comes into view.
class CurveLayer
{
public:
    /// Forgets the picture: slots, colours, offsets or samples have changed.
    void invalidate();
    /// Samples were added at the end of a shown curve that is not the highlighted one, which had `oldCount` samples
    /// when this was last said, or when its slot was set. Cheaper than invalidate().
    void extend(const OsziCurve &curve, int oldCount);

    /// Brings the picture up to date. False when it cannot show the scene, which then has to be painted by oszipainter.
    [[nodiscard]] bool update(const OsziScene &scene);
    [[nodiscard]] const QImage &picture() const { return m_picture; }

private:
    struct Drawn
    {
        const OsziCurve *curve;
        const double *samples; ///< where they were last seen: only good for fetching them ahead
    };

    [[nodiscard]] bool collectCurves(const OsziScene &scene);
    [[nodiscard]] bool scrollTo(const OsziScene &scene);
    void moveColumns(int pixels);
    void draw(const OsziScene &scene, int firstColumn, int lastColumn);
    void clearColumns(int firstColumn, int lastColumn);
    [[nodiscard]] bool anyEndsAt(int sample) const;
    void drawExtensions(const OsziScene &scene);
    static void fetchSamples(const Drawn &drawn, qint64 first, qint64 last);
    void addToRaster(const OsziScene &scene, Drawn &drawn);

    CurveRaster m_raster;
    QImage m_picture;
    bool m_valid = false;     ///< the picture shows the scene described by the members below
    bool m_collected = false; ///< m_curves holds what is to be drawn
    bool m_drawable = false;
    PlotGeometry m_geometry;
    double m_offset = 0.0;
    int m_highlighted = -1;
    struct Extension
    {
        const OsziCurve *curve;
        int oldCount;
    };
    std::vector<Extension> m_extensions; ///< not drawn yet
    std::vector<Drawn> m_curves;         ///< shown, not highlighted, with samples; in slot order
};
