#pragma once

#include "view/sensors/sensorreading.h"

#include <QPixmap>
#include <QWidget>

/// Shows the reading of one sensor: a figure of its kind, digits with the unit, and below them the held values and a
/// warning if there is one. What stays the same is painted once per size; a new reading repaints the rest.
class SensorDisplay : public QWidget
{
    Q_OBJECT

public:
    /// What changes rarely.
    struct Face
    {
        SensorScale scale;
        SensorLimits limits;
        QColor color;
        QString unit;

        [[nodiscard]] bool operator==(const Face &other) const
        {
            return scale == other.scale && limits == other.limits && color == other.color && unit == other.unit;
        }
    };

    explicit SensorDisplay(QWidget *parent = nullptr);

    void setFace(const Face &face);
    [[nodiscard]] const Face &face() const { return m_face; }
    void setReading(const SensorReading &reading);
    [[nodiscard]] const SensorReading &reading() const { return m_reading; }

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    /// The places of the three parts, above or beside each other; any of them may be empty.
    struct Places
    {
        QRectF value;
        QRectF figure;
        QRectF footer;
    };

    [[nodiscard]] virtual Places places() const = 0;
    /// The figure without a reading. Nothing is painted while the scale is not known.
    virtual void paintFigure(QPainter &painter, const QRectF &area) const = 0;
    /// Only called with a value.
    virtual void paintPointer(QPainter &painter, const QRectF &area) const = 0;
    /// Called after a change: of the face or the places if `isFace`, otherwise of the reading.
    virtual void follow(bool isFace);

    [[nodiscard]] double footerHeight() const;
    /// The sensor's colour, red outside the limits, grey for a stale value.
    [[nodiscard]] QColor pointerColor() const;
    [[nodiscard]] int valueDecimals() const;

    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void renderFace();
    void dropFace();
    void paintValue(QPainter &painter, const QRectF &area) const;
    void paintFooter(QPainter &painter, const QRectF &area) const;
    [[nodiscard]] QString widestValue(const QFont &font) const;

    Face m_face;
    SensorReading m_reading;
    QPixmap m_picture;
};
