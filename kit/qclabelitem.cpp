#include "kit/qclabelitem.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kSmallestShare = 0.6; // of the font's size, before decimals are dropped
constexpr double kLineHeight = 1.4;    // of the font's size: what a line may cover

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
    const QFont font = canvas.font(m_size, m_weight);
    const QFontMetricsF metrics(font);
    double widest = metrics.horizontalAdvance(text);
    for (const double end : {canvas.scale.from, canvas.scale.to}) {
        const QString atEnd = qcgauge::numberText(end, canvas.decimals, canvas.locale);
        widest = std::max(widest, metrics.horizontalAdvance(atEnd));
    }
    const double share = std::clamp(canvas.length(m_width) / widest, kSmallestShare, 1.0);
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
