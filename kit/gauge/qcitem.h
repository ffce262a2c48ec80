#pragma once

#include "kit/gauge/qccanvas.h"

#include <functional>

/// A part of a gauge. The gauge paints its parts in order, owns them and keeps pictures of those that do not move.
class QcItem
{
public:
    /// The radius tells where the part is, in percent of the gauge's half size; what it refers to is up to the part.
    explicit QcItem(double radius);
    virtual ~QcItem();
    Q_DISABLE_COPY_MOVE(QcItem)

    [[nodiscard]] double radius() const { return m_radius; }
    /// 0 to 100; values outside are clamped, values that are not finite are ignored.
    void setRadius(double percent);
    [[nodiscard]] bool isVisible() const { return m_visible; }
    void setVisible(bool visible);
    /// Called after every change of the part's looks; null for a part that is in no gauge.
    void setListener(std::function<void(const QcItem &item)> listener);

    /// Whether it is repainted with every reading. A part that does not move is painted without a reading.
    [[nodiscard]] virtual bool isMoving() const { return false; }
    /// A moving part: whether the second reading makes it look different from the first.
    [[nodiscard]] virtual bool looksDifferent(const QcCanvas &canvas, const QcReading &before,
                                              const QcReading &after) const;
    /// A moving part: all that it covers.
    [[nodiscard]] virtual QRectF area(const QcCanvas &canvas, const QcReading &reading) const;
    /// The smallest step between marks that this part can show on the canvas's scale; 0 if it shows no marks.
    [[nodiscard]] virtual double neededStep(const QcCanvas &canvas) const;
    /// The painter is smooth and its state need not be restored.
    virtual void paint(QPainter &painter, const QcCanvas &canvas, const QcReading &reading) const = 0;

protected:
    /// Sets a property and tells the listener if that changes anything.
    template <typename T>
    void assign(T &property, const T &value)
    {
        if (property == value)
            return;
        property = value;
        changed();
    }

private:
    void changed();

    std::function<void(const QcItem &item)> m_listener;
    double m_radius;
    bool m_visible = true;
};
