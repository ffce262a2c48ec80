#pragma once

#include "kit/gauge/qccanvas.h"

class QcGaugeWidget;

/// A part of a gauge. The gauge paints its parts in order, owns them and keeps pictures of those that do not move.
class QcItem
{
public:
    /// The radius is where the part stands, in percent of the gauge's half size; what it means is the part's affair.
    explicit QcItem(double radius);
    virtual ~QcItem();
    Q_DISABLE_COPY_MOVE(QcItem)

    [[nodiscard]] double radius() const { return m_radius; }
    /// 0 to 100; the nearest of it is taken, what is not finite is ignored.
    void setRadius(double percent);
    [[nodiscard]] bool isVisible() const { return m_visible; }
    void setVisible(bool visible);

    /// Whether it is painted anew with every reading. What does not move gets no say in what the reading is.
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
    /// Sets a property and has the part painted anew if that changes anything.
    template <typename T>
    void assign(T &property, const T &value)
    {
        if (property == value)
            return;
        property = value;
        changed();
    }
    /// Has what shows this part painted anew.
    void changed();

private:
    friend class QcGaugeWidget;

    QcGaugeWidget *m_gauge = nullptr; ///< while the part is in one
    double m_radius;
    bool m_visible = true;
};
