#pragma once

#include "view/common/measurementrange.h"

#include <QVector>

#include <optional>

/// What the deletion of a typed range will remove, computed before anything is removed: shown in the question and
/// carried out afterwards, so that both are the same.
struct DeletionPlan
{
    /// What one part of the range removes.
    struct Step
    {
        RangePart part;
        qint64 wanted = 0;    ///< how many measurements the part asks for; not positive for a span that runs backwards
        int first = 0;        ///< index of the first one after the steps before; without meaning if there is none
        QVector<int> removed; ///< indices as they are before the first step; consecutive ones have moved together

        /// A part asks for measurements that do not exist.
        [[nodiscard]] bool isShort() const { return wanted > removed.size(); }
    };

    QVector<Step> steps;                ///< in the order typed
    std::optional<RangePart> malformed; ///< ends the deletion; the parts behind it remove nothing

    /// The measurements that go, in the order in which they do, as indices before the deletion. No index twice.
    [[nodiscard]] QVector<int> removed() const;
};

/// Each part removes its measurements by their current numbers, 1 for the first: those behind a removed one have moved
/// down. The parts assume ascending order: each counts on the measurements removed before having been below it.
[[nodiscard]] DeletionPlan planDeletion(const QString &range, int measurements);
