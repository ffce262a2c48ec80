#pragma once

#include "plots/oscilloscope/curvelayer.h"
#include "plots/oscilloscope/labelcache.h"

#include <QRect>

class QFont;
class QPainter;
struct OsziScene;

/// Paints a scene, with the laid-out texts and the picture of the curves that it keeps between paints.
class OsziPicture
{
public:
    /// All steps of painting but the frame, in the widget's coordinates. May leave out what cannot touch `region`.
    void paint(QPainter &painter, const OsziScene &scene, const QRect &region);
    /// Slots, colours, offsets or samples have changed other than by growing.
    void invalidateCurves() { m_curves.invalidate(); }
    /// A curve has grown from `oldCount` samples: returns what has to be painted again, empty when nothing shows.
    /// The font is that of the labels.
    [[nodiscard]] QRect grow(const OsziScene &scene, int slot, int oldCount, const QFont &font);

private:
    void paintCurves(QPainter &painter, const OsziScene &scene, const QRect &region);

    LabelCache m_labels;
    CurveLayer m_curves;
    QRect m_endValueRect; ///< where the highlighted curve's last value is on the screen
};
