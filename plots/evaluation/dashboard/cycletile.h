#pragma once

#include "plots/evaluation/dashboard/tile.h"

#include <QDateTime>

#include <optional>

/// The tile of the dashboard that shows how many shots there are and how long a cycle takes.
class CycleTile final : public Tile
{
    Q_OBJECT

public:
    struct Content
    {
        int shots = 0;
        std::optional<double> latestCycle; ///< seconds; std::nullopt without a shot
        std::optional<double> meanCycle;   ///< seconds
        int cyclesInMean = 0;
        int breaks = 0;            ///< cycles too long for the mean
        QDateTime latestTimestamp; ///< of the newest shot; may be invalid
    };

    explicit CycleTile(QWidget *parent = nullptr);

    void set(const Content &content);
    [[nodiscard]] const Content &content() const { return m_content; }

protected:
    void describe() override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QString meanTitle() const;

    Content m_content;
};
