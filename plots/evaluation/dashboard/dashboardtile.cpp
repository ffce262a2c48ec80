#include "plots/evaluation/dashboard/dashboardtile.h"

#include "app/theme.h"
#include "plots/evaluation/common/evaluationdata.h"
#include "plots/evaluation/common/trendchart.h"

#include <QPainter>
#include <QTextDocument>

#include <algorithm>

namespace {

constexpr int kHeadHeight = 50; // pixels
constexpr int kValueHeight = 52;
constexpr int kCountHeight = 50; // of two lines
constexpr int kShortCountHeight = 28;
constexpr int kBadgeWidth = 128;
constexpr int kBadgeHeight = 38;

struct BadgeColors
{
    QColor fill;
    QColor text;
};

BadgeColors badgeColors(CapabilityGrade grade)
{
    switch (grade) {
    case CapabilityGrade::Good:
        return {QColor(0x2E, 0x7D, 0x32), Qt::white};
    case CapabilityGrade::Fair:
        return {QColor(0xFB, 0xC0, 0x2D), Qt::black};
    case CapabilityGrade::Poor:
        return {QColor(0xC6, 0x28, 0x28), Qt::white};
    case CapabilityGrade::Unknown:
        break;
    }
    return {QColor(0xE4, 0xE4, 0xE4), theme::qColorDark};
}

void drawLine(QPainter &painter, const QRect &area, const QString &text, Qt::Alignment alignment = Qt::AlignLeft)
{
    painter.drawText(area, int(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, area.width()));
}

} // namespace

DashboardTile::DashboardTile(QWidget *parent)
    : Tile(parent)
{}

void DashboardTile::set(const Content &content)
{
    m_content = content;
    describe();
    update();
}

CapabilityGrade DashboardTile::grade() const
{
    return m_content.count < kFewestShots ? CapabilityGrade::Unknown : gradeOf(m_content.capability);
}

QString DashboardTile::verdict() const
{
    if (m_content.limits.isEmpty())
        return tr("Keine Grenzen");
    if (m_content.count < kFewestShots)
        return tr("%1/%2 Schuss").arg(m_content.count).arg(kFewestShots);
    return tr("Cpk %1").arg(capabilityText(m_content.capability.cpk));
}

QString DashboardTile::limitsText() const
{
    const ToleranceLimits &limits = m_content.limits;
    if (limits.isEmpty())
        return {};
    if (limits.lower && limits.upper)
        return tr("%1 bis %2").arg(figureText(*limits.lower), figureText(*limits.upper));
    return limits.lower ? tr("ab %1").arg(figureText(*limits.lower)) : tr("bis %1").arg(figureText(*limits.upper));
}

// The tile is painted, so a screen reader needs its content as text.
void DashboardTile::describe()
{
    if (m_content.sensor.isEmpty())
        return; // nothing was set yet
    const QString latest = m_content.latest ? figureText(*m_content.latest) : QStringLiteral("–");
    setAccessibleName(
        tr("%1, %2: %3 %4, %5").arg(m_content.sensor, m_content.quantity, latest, m_content.unit, verdict()));
    setAccessibleDescription(
        m_content.limits.isEmpty()
            ? tr("Schüsse: %1").arg(m_content.count)
            : tr("Gut: %1, außerhalb: %2").arg(m_content.count - m_content.outside).arg(m_content.outside));
    setToolTip(Qt::convertFromPlainText(m_content.sensor + QLatin1Char('\n') + m_content.quantity));
}

void DashboardTile::drawHead(QPainter &painter, const QRect &area) const
{
    painter.setPen(theme::qColorText);
    painter.setFont(sizedFont(19, true));
    drawLine(painter, QRect(area.left(), area.top(), area.width(), 26), m_content.sensor);
    painter.setPen(theme::qColorDark);
    painter.setFont(sizedFont(16));
    drawLine(painter, QRect(area.left(), area.top() + 26, area.width(), 22), m_content.quantity);
}

void DashboardTile::drawValue(QPainter &painter, const QRect &area) const
{
    const bool isOutside = m_content.latest && m_content.limits.isOutside(*m_content.latest);
    const QString text = m_content.latest ? figureText(*m_content.latest) : QStringLiteral("–");
    painter.setPen(isOutside ? badgeColors(CapabilityGrade::Poor).fill : theme::qColorText);
    QFont font = sizedFont(40, true);
    // A long figure gets a smaller font: it must never be cut.
    while (font.pixelSize() > 20 && QFontMetrics(font).horizontalAdvance(text) > area.width() - 60)
        font.setPixelSize(font.pixelSize() - 2);
    painter.setFont(font);
    const int width = std::min(area.width(), painter.fontMetrics().horizontalAdvance(text));
    drawLine(painter, area, text);
    painter.setPen(theme::qColorDark);
    painter.setFont(sizedFont(18));
    drawLine(painter, area.adjusted(width + 8, 8, 0, 8), m_content.unit);
}

void DashboardTile::drawBadge(QPainter &painter, const QRect &area) const
{
    const BadgeColors colors = badgeColors(grade());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.fill);
    painter.drawRoundedRect(area, 4.0, 4.0);
    const bool hasFigure = m_content.count >= kFewestShots && !m_content.limits.isEmpty();
    painter.setPen(colors.text);
    painter.setFont(sizedFont(hasFigure ? 19 : 15, hasFigure));
    drawLine(painter, area.adjusted(4, 0, -4, 0), verdict(), Qt::AlignHCenter);
}

void DashboardTile::drawSparkline(QPainter &painter, const QRect &area) const
{
    painter.fillRect(area, QColor(0xF7, 0xF7, 0xF7));
    if (m_content.count == 0 || area.height() < 10)
        return;
    TrendGeometry geometry{QRectF(area).adjusted(6.0, 4.0, -6.0, -4.0), static_cast<int>(m_content.lastShots.size()),
                           trendRange(m_content.lastShots, m_content.limits)};
    drawTrendLimits(painter, geometry, m_content.limits);
    painter.setRenderHint(QPainter::Antialiasing);
    drawTrend(painter, geometry, m_content.lastShots, m_content.limits, m_content.color);
}

// The number of good shots, and below it the limits.
void DashboardTile::drawCounts(QPainter &painter, const QRect &area) const
{
    const QRect upper(area.left(), area.top() + 2, area.width(), 24);
    const QRect lower(area.left(), area.top() + 26, area.width(), 22);
    painter.setPen(theme::qColorText);
    painter.setFont(sizedFont(16));
    if (m_content.limits.isEmpty()) {
        drawLine(painter, upper, tr("Schüsse: %1").arg(m_content.count));
        return;
    }
    drawLine(painter, upper, tr("Gut: %1").arg(m_content.count - m_content.outside));
    painter.setPen(theme::qColorDark);
    drawLine(painter, lower, tr("Grenzen: %1").arg(limitsText()));
    painter.setFont(sizedFont(16, m_content.outside > 0));
    painter.setPen(m_content.outside > 0 ? badgeColors(CapabilityGrade::Poor).fill : theme::qColorDark);
    drawLine(painter, upper, tr("Außerhalb: %1").arg(m_content.outside), Qt::AlignRight);
}

void DashboardTile::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    drawFrame(painter, m_content.color);
    const QRect inside = contents();
    const QRect value(inside.left(), inside.top() + kHeadHeight, inside.width() - kBadgeWidth - 8, kValueHeight);
    const QRect badge(inside.right() - kBadgeWidth, value.center().y() - kBadgeHeight / 2, kBadgeWidth, kBadgeHeight);
    const int sparklineTop = value.bottom() + 6;
    const int countHeight = m_content.limits.isEmpty() ? kShortCountHeight : kCountHeight;
    drawHead(painter, QRect(inside.left(), inside.top(), inside.width(), kHeadHeight));
    drawValue(painter, value);
    drawBadge(painter, badge);
    drawCounts(painter, QRect(inside.left(), inside.bottom() - countHeight, inside.width(), countHeight));
    drawSparkline(painter,
                  QRect(inside.left(), sparklineTop, inside.width(), inside.bottom() - countHeight - 4 - sparklineTop));
}
