#pragma once

#include "plots/evaluation/common/trendgeometry.h"
#include "plots/evaluation/dashboard/tile.h"

#include <QColor>

/// The tile of one sensor: the value of its newest shot, whether it keeps its limits, and the trend of the last shots.
class DashboardTile final : public Tile
{
    Q_OBJECT

public:
    /// With fewer shots than this there is no verdict and no colour.
    static constexpr int kFewestShots = 20;
    static constexpr int kSparklineShots = 50;

    struct Content
    {
        QString sensor;
        QString quantity;
        QString unit;
        QColor color;
        std::optional<double> latest; ///< std::nullopt if the newest shot lacks the quantity
        ToleranceLimits limits;
        Capability capability;
        int count = 0;         ///< shots that have the quantity
        int outside = 0;       ///< those outside the limits
        TrendValues lastShots; ///< up to kSparklineShots
    };

    explicit DashboardTile(QWidget *parent = nullptr);

    void set(const Content &content);
    [[nodiscard]] const Content &content() const { return m_content; }
    /// Unknown while there are fewer than kFewestShots shots.
    [[nodiscard]] CapabilityGrade grade() const;
    /// What the badge says: the Cpk, or why there is none.
    [[nodiscard]] QString verdict() const;

protected:
    void describe() override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QString limitsText() const;
    void drawHead(QPainter &painter, const QRect &area) const;
    void drawValue(QPainter &painter, const QRect &area) const;
    void drawBadge(QPainter &painter, const QRect &area) const;
    void drawSparkline(QPainter &painter, const QRect &area) const;
    void drawCounts(QPainter &painter, const QRect &area) const;

    Content m_content;
};
