#include "view/project/tilepicture.h"

#include "app/theme.h"
#include "view/common/actionicon.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int kIconSize = 40;
constexpr int kMargin = 6;
constexpr double kVeil = 0.88; // of white over the picture, so that words on it can be read

const QColor kRefusalColor(0xC6, 0x28, 0x28);
const QString kPictureIcon = QStringLiteral("image.png");

} // namespace

TilePicture::TilePicture(QWidget *parent)
    : ClickableLabel(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void TilePicture::setPicture(const QPixmap &picture)
{
    m_picture = picture;
    m_scaled = QPixmap();
    update();
}

void TilePicture::setDrop(Drop drop)
{
    m_drop = drop;
    update();
}

void TilePicture::setTexts(const QString &invitation, const QString &welcome, const QString &refusal)
{
    m_invitation = invitation;
    m_welcome = welcome;
    m_refusal = refusal;
    update();
}

void TilePicture::setNotice(const QString &notice)
{
    m_notice = notice;
    update();
}

QSize TilePicture::sizeHint() const
{
    return {200, 130};
}

QSize TilePicture::minimumSizeHint() const
{
    return {120, 84};
}

void TilePicture::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!m_picture.isNull())
        paintPicture(painter);
    if (m_drop == Drop::Welcome)
        paintPlace(painter, theme::qColorPrimary, kPictureIcon, m_welcome);
    else if (m_drop == Drop::Refused)
        paintPlace(painter, kRefusalColor, kPictureIcon, m_refusal);
    else if (m_picture.isNull() && !m_notice.isEmpty())
        paintPlace(painter, kRefusalColor, QStringLiteral("alert.png"), m_notice);
    else if (m_picture.isNull())
        paintPlace(painter, theme::qColorDark, kPictureIcon, m_invitation);
    drawFocus(painter);
}

void TilePicture::paintPicture(QPainter &painter)
{
    const double ratio = devicePixelRatioF();
    const QSize size = m_picture.size().scaled(contentsRect().size() * ratio, Qt::KeepAspectRatio);
    const QSize bounded = size.boundedTo(m_picture.size()).expandedTo(QSize(1, 1)); // a small one is not blown up
    if (m_scaled.size() != bounded) {
        m_scaled = m_picture.scaled(bounded, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_scaled.setDevicePixelRatio(ratio);
    }
    const QSizeF shown = QSizeF(m_scaled.size()) / ratio;
    const QRectF area = contentsRect();
    painter.drawPixmap(QPointF(area.center().x() - shown.width() / 2.0, area.center().y() - shown.height() / 2.0),
                       m_scaled);
}

/// A dashed frame with an icon and words in it.
void TilePicture::paintPlace(QPainter &painter, const QColor &color, const QString &iconFile, const QString &text) const
{
    const QRectF frame = QRectF(contentsRect()).adjusted(1.5, 1.5, -1.5, -1.5);
    if (!m_picture.isNull())
        painter.fillRect(frame, QColor::fromRgbF(1.0, 1.0, 1.0, kVeil));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, m_drop == Drop::None ? 1.0 : 2.0, Qt::DashLine));
    painter.drawRoundedRect(frame, 4.0, 4.0);
    const QRect inner = contentsRect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const int flags = Qt::AlignHCenter | Qt::TextWordWrap;
    const int textHeight = painter.fontMetrics().boundingRect(QRect(0, 0, inner.width(), 10000), flags, text).height();
    const int iconSize = std::clamp(inner.height() - textHeight, 0, kIconSize);
    const int top = inner.top() + std::max(0, inner.height() - textHeight - iconSize) / 2;
    actionIcon(iconFile, color).paint(&painter, QRect(inner.left(), top, inner.width(), iconSize), Qt::AlignCenter);
    painter.setPen(color);
    painter.drawText(QRect(inner.left(), top + iconSize, inner.width(), textHeight), flags, text);
}
