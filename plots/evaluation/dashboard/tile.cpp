#include "plots/evaluation/dashboard/tile.h"

#include "app/theme.h"
#include "kit/material/qtmaterialpaint.h"
#include "kit/small/shadowframe.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr int kEdge = 8; // pixels
constexpr int kPadding = 14;

} // namespace

Tile::Tile(QWidget *parent)
    : QAbstractButton(parent)
{
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize Tile::sizeHint() const
{
    return {360, 280};
}

QSize Tile::minimumSizeHint() const
{
    return {280, 230};
}

void Tile::drawFrame(QPainter &painter, const QColor &edge) const
{
    using Elevation = ShadowFrame::Elevation;
    const QRect card = ShadowFrame::cardRect(rect());
    const bool isRaised = underMouse() && !isDown();
    ShadowFrame::paintCard(painter, rect(), isRaised ? Elevation::High : Elevation::Low,
                           isDown() ? theme::qColorLight : theme::qColorBackground);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(edge);
    // The whole card, clipped to the edge: so the edge has the card's round corners.
    painter.setClipRect(QRect(card.topLeft(), QSize(kEdge, card.height())));
    painter.drawRoundedRect(card, ShadowFrame::kRadius, ShadowFrame::kRadius);
    painter.setClipping(false);
    if (hasFocus())
        QtMaterialPaint::drawFocusRing(painter, card, ShadowFrame::kRadius, theme::qColorPrimary);
}

QRect Tile::contents() const
{
    return ShadowFrame::cardRect(rect()).adjusted(kEdge + kPadding, 10, -kPadding, -8);
}

QFont Tile::sizedFont(int pixels, bool bold) const
{
    QFont result = font();
    result.setPixelSize(pixels);
    result.setBold(bold);
    return result;
}

void Tile::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        describe();
    QAbstractButton::changeEvent(event);
}

void Tile::enterEvent(QEvent *event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void Tile::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    update();
}
