#include "kit/gauge/qcvaluesitem.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kMostNumerals = 12;
constexpr double kMiddle = 15.0; // percent: kept free for a needle's hub
constexpr double kLong = 1e5;    // shorter numbers are easier to read unabridged
constexpr double kThousand = 1e3;

/// The box with a gap around it that separates neighbours.
QRectF withGap(const QRectF &box)
{
    const double gap = box.height() * 0.3;
    return box.adjusted(-gap, -gap / 2.0, gap, gap / 2.0);
}

/// How far the box's centre is from the point where it touches a circle from inside, in this direction.
double reach(const QSizeF &box, double angle)
{
    const double radians = qDegreesToRadians(angle);
    return std::hypot(box.width() / 2.0 * std::sin(radians), box.height() / 2.0 * std::cos(radians));
}

} // namespace

QcValuesItem::QcValuesItem(double radius)
    : QcItem(radius)
{}

void QcValuesItem::setSize(double percent)
{
    if (std::isfinite(percent))
        assign(m_size, std::clamp(percent, 1.0, 100.0));
}

QFont QcValuesItem::font(const QcCanvas &canvas) const
{
    return canvas.font(m_size, QFont::Medium);
}

/// In ascending order, without those that would touch an earlier one or reach the middle.
QcValuesItem::Row QcValuesItem::row(const QcCanvas &canvas, double step, TextOf textOf) const
{
    const QFontMetricsF metrics(font(canvas));
    Row result;
    for (const double value : qcgauge::multiples(canvas.scale.from, canvas.scale.to, step)) {
        const QString text = textOf(value, step, canvas.locale);
        QRectF box(QPointF(), QSizeF(metrics.horizontalAdvance(text), metrics.capHeight()));
        const double angle = qcgauge::angleAt(canvas.scale, value);
        box.moveCenter(canvas.point(angle, radius() - reach(box.size(), angle) / canvas.length(1.0)));
        if (box.intersects(canvas.square(kMiddle)))
            continue; // a coarser step would not help
        const auto touches = [&](const Numeral &other) { return withGap(other.box).intersects(withGap(box)); };
        if (std::none_of(result.numerals.cbegin(), result.numerals.cend(), touches))
            result.numerals.append({text, box});
        else
            result.crowded = true;
    }
    return result;
}

QcValuesItem::Row QcValuesItem::bestRow(const QcCanvas &canvas, double step) const
{
    const Row plain = row(canvas, step, qcgauge::markText);
    const double largest = std::max(std::abs(canvas.scale.from), std::abs(canvas.scale.to));
    if (largest < kLong || step < kThousand)
        return plain;
    const Row brief = row(canvas, step, qcgauge::shortMarkText);
    return brief.numerals.size() > plain.numerals.size() ? brief : plain;
}

double QcValuesItem::neededStep(const QcCanvas &canvas) const
{
    const auto marks = [&](double step) { return qcgauge::multiples(canvas.scale.from, canvas.scale.to, step).size(); };
    double step = qcgauge::niceStep(canvas.scale.to - canvas.scale.from, kMostNumerals);
    while (bestRow(canvas, step).crowded && marks(qcgauge::coarserStep(step)) >= 2)
        step = qcgauge::coarserStep(step);
    return step;
}

void QcValuesItem::paint(QPainter &painter, const QcCanvas &canvas, const QcReading &) const
{
    painter.setFont(font(canvas));
    painter.setPen(canvas.colors.ink);
    const Row all = bestRow(canvas, canvas.step);
    for (const Numeral &numeral : all.numerals)
        qcgauge::drawCentred(painter, numeral.box.center(), numeral.text);
}
