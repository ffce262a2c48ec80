#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// One part of a text such as "1-3,5": what is between two commas.
struct RangePart
{
    QString text;         ///< the part, simplified
    QStringList pieces;   ///< what is between its dashes, as typed
    QVector<int> numbers; ///< the pieces as numbers, 1-based as shown to the user; 0 for what is not a number

    [[nodiscard]] bool isSingle() const { return numbers.size() == 1; }
    [[nodiscard]] bool isSpan() const { return numbers.size() == 2; }
};

/// The parts in the order typed; blank ones are left out. The caller decides what to do with a part that is neither one
/// number nor a span, and clamps the numbers: a span may reach up to the largest int.
[[nodiscard]] QVector<RangePart> parseMeasurementRange(const QString &text);

/// The measurements that a text selects, as indices counted from 0, ascending, each once, all below `count`. Malformed
/// parts and spans that run backwards select nothing.
[[nodiscard]] QVector<int> shownMeasurements(const QString &text, int count);
