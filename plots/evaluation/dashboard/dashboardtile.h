#pragma once

#include "plots/evaluation/common/trendgeometry.h"

#include <QAbstractButton>
#include <QColor>

/// A tile of the dashboard, and a button: what a sensor's newest shot gave, whether it keeps its limits, and how the
/// last shots went.
class DashboardTile : public QAbstractButton
{
    Q_OBJECT

public:
    /// Too few shots for a verdict show no colour.
    static constexpr int kFewestShots = 20;
    static constexpr int kSparklineShots = 50;

    struct Content
    {
        QString sensor;
        QString quantity;
        QString unit;
        QColor color;
        std::optional<double> latest; ///< none if the newest shot lacks the quantity
        ToleranceLimits limits;
        Capability capability;
        int count = 0;         ///< shots that have the quantity
        int outside = 0;       ///< of them
        TrendValues lastShots; ///< up to kSparklineShots
    };

    explicit DashboardTile(QWidget *parent = nullptr);

    void set(const Content &content);
    [[nodiscard]] const Content &content() const { return m_content; }
    /// Unknown while there are fewer than kFewestShots shots.
    [[nodiscard]] CapabilityGrade grade() const;
    /// What the badge says: the Cpk, or why there is none.
    [[nodiscard]] QString verdict() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QString limitsText() const;
    void describe();
    void drawHead(QPainter &painter, const QRect &area) const;
    void drawValue(QPainter &painter, const QRect &area) const;
    void drawBadge(QPainter &painter, const QRect &area) const;
    void drawSparkline(QPainter &painter, const QRect &area) const;
    void drawCounts(QPainter &painter, const QRect &area) const;

    Content m_content;
};

/// The frame that all tiles of the dashboard have: a card with a coloured edge; it shows hovering, pressing and focus.
void drawTileFrame(QPainter &painter, const QAbstractButton &tile, const QColor &edge);
/// What the frame leaves for the contents.
[[nodiscard]] QRect tileContents(const QAbstractButton &tile);
