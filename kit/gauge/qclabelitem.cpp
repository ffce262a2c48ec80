#include "kit/gauge/qclabelitem.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kSmallestShare = 0.6; // of the font's size, before decimals are dropped
constexpr double kShareStep = 0.05;
constexpr double kTooLarge = 1.65;  // for an optional text: its font compared with the wanted one
constexpr double kLineHeight = 1.4; // of the font's size: what a line may cover

} // namespace

QcLabelItem::QcLabelItem(Source source, double radius, double angle)
    : QcItem(radius)
    , m_source(source)
    , m_angle(angle)
{}

void QcLabelItem::setText(const QString &text)
{
    assign(m_text, text);
}

void QcLabelItem::setAngle(double angle)
{
    if (std::isfinite(angle))
        assign(m_angle, angle);
}

void QcLabelItem::setSize(double percent)
{
    if (std::isfinite(percent))
        assign(m_size, std::clamp(percent, 1.0, 100.0));
}

void QcLabelItem::setWidth(double percent)
{
    if (std::isfinite(percent))
        assign(m_width, std::clamp(percent, 1.0, 200.0));
}

void QcLabelItem::setOptional(bool optional)
{
    assign(m_optional, optional);
}

void QcLabelItem::setWeight(QFont::Weight weight)
{
    assign(m_weight, weight);
}

void QcLabelItem::setColor(const QColor &color)
{
    assign(m_color, color);
}

QString QcLabelItem::shownText(const QcCanvas &canvas, const QcReading &reading) const
{
    switch (m_source) {
    case Source::Title:
        return canvas.title;
    case Source::Unit:
        return canvas.unit;
    case Source::Value:
        return reading.hasValue ? qcgauge::numberText(reading.value, canvas.decimals, canvas.locale)
                                : QStringLiteral("–");
    case Source::Text:
        break;
    }
    return m_text;
}

/// All values within the range have the same size of font, so that the digits do not jump.
QFont QcLabelItem::fittingFont(const QcCanvas &canvas, const QString &text) const
{
    const QString first = qcgauge::numberText(canvas.scale.from, canvas.decimals, canvas.locale);
    const QString last = qcgauge::numberText(canvas.scale.to, canvas.decimals, canvas.locale);
    const auto fits = [&](const QFont &font) {
        const QFontMetricsF metrics(font);
        const auto widthOf = [&](const QString &any) { return metrics.horizontalAdvance(any); };
        return std::max({widthOf(text), widthOf(first), widthOf(last)}) <= canvas.length(m_width);
    };
    double share = 1.0;
    while (share > kSmallestShare && !fits(canvas.font(m_size * share, m_weight)))
        share -= kShareStep;
    return canvas.font(m_size * share, m_weight);
}

QColor QcLabelItem::shownColor(const QcCanvas &canvas, const QcReading &reading) const
{
    if (m_source == Source::Value && !reading.hasValue)
        return canvas.colors.soft;
    if (m_color.isValid())
        return canvas.colors.shaded(m_color);
    return m_source == Source::Unit ? canvas.colors.soft : canvas.colors.ink;
}

bool QcLabelItem::looksDifferent(const QcCanvas &canvas, const QcReading &before, const QcReading &after) const
{
    return shownText(canvas, before) != shownText(canvas, after);
}

QRectF QcLabelItem::area(const QcCanvas &canvas, const QcReading &) const
{
    const double height = canvas.font(m_size, m_weight).pixelSize() * kLineHeight;
    QRectF box(0.0, 0.0, canvas.length(m_width), height);
    box.moveCenter(canvas.point(m_angle, radius()));
    return box;
}

void QcLabelItem::paint(QPainter &painter, const QcCanvas &canvas, const QcReading &reading) const
{
    if (m_optional && canvas.font(m_size).pixelSize() > kTooLarge * canvas.length(m_size))
        return;
    QString text = shownText(canvas, reading);
    const double room = canvas.length(m_width);
    const bool isValue = m_source == Source::Value && reading.hasValue;
    painter.setFont(isValue ? fittingFont(canvas, text) : canvas.font(m_size, m_weight));
    const QFontMetricsF metrics(painter.font());
    if (isValue) {
        text = qcgauge::fittingNumber(reading.value, canvas.decimals, canvas.locale, room,
                                      [&](const QString &tried) { return metrics.horizontalAdvance(tried); });
    }
    painter.setPen(shownColor(canvas, reading));
    qcgauge::drawCentred(painter, canvas.point(m_angle, radius()), metrics.elidedText(text, Qt::ElideRight, room));
}
