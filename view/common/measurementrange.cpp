#include "view/common/measurementrange.h"

#include <algorithm>

namespace {

RangePart parsePart(const QString &simplified)
{
    RangePart part;
    part.text = simplified;
    part.pieces = simplified.split(QLatin1Char('-'), Qt::SkipEmptyParts);
    for (const QString &piece : qAsConst(part.pieces))
        part.numbers.append(piece.trimmed().toInt());
    return part;
}

} // namespace

QVector<RangePart> parseMeasurementRange(const QString &text)
{
    QVector<RangePart> parts;
    const QStringList typed = text.simplified().split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &part : typed) {
        const QString simplified = part.simplified();
        if (!simplified.isEmpty())
            parts.append(parsePart(simplified));
    }
    return parts;
}

QVector<int> shownMeasurements(const QString &text, int count)
{
    QVector<bool> shown(std::max(count, 0), false);
    const QVector<RangePart> parts = parseMeasurementRange(text);
    for (const RangePart &part : parts) {
        if (!part.isSingle() && !part.isSpan())
            continue;
        // Clamped before the loop, which a span up to the largest int would never leave.
        const int first = std::max(part.numbers.first(), 1);
        const int last = std::min(part.numbers.last(), count);
        for (int number = first; number <= last; ++number)
            shown[number - 1] = true;
    }
    QVector<int> indices;
    for (int i = 0; i < shown.size(); ++i) {
        if (shown.at(i))
            indices.append(i);
    }
    return indices;
}
