#include "view/home/recentbutton.h"

#include "app/theme.h"

#include <QEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int kMargin = 10;
constexpr int kTwoLines = 44;
constexpr int kOneLine = 40;
constexpr int kPreferredWidth = 320;
constexpr int kSmallestWidth = 110;
constexpr int kGap = 16;
constexpr int kLargeType = 18; // pixels
constexpr int kSmallType = 15; // pixels
constexpr qreal kRadius = 4.0;

QColor backgroundColor(const QAbstractButton &button)
{
    QColor color = theme::qColorPrimary;
    if (button.isDown())
        color.setAlpha(70);
    else if (button.isEnabled() && button.underMouse())
        color.setAlpha(35);
    else
        color = button.isEnabled() ? QColor(0xF3, 0xF7, 0xFA) : QColor(0xF5, 0xF5, 0xF5);
    return color;
}

} // namespace

RecentButton::RecentButton(QWidget *parent)
    : QPushButton(parent)
{
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void RecentButton::setEntry(const QString &title, const QString &detail, const QString &remark)
{
    setAccessibleName(title);
    m_title = title; // not the button's text, whose "&" would make a mnemonic
    setAccessibleDescription(detail.isEmpty() || remark.isEmpty() ? detail + remark
                                                                  : detail + QLatin1String(", ") + remark);
    m_detail = detail;
    m_remark = remark;
    // The application's sheet gives push buttons a smaller minimum height; a layout would shrink the button to it.
    setStyleSheet(QStringLiteral("QPushButton {min-height: %1px;}").arg(sizeHint().height()));
    updateGeometry();
    update();
}

QSize RecentButton::sizeHint() const
{
    return {kPreferredWidth, m_detail.isEmpty() ? kOneLine : kTwoLines};
}

QSize RecentButton::minimumSizeHint() const
{
    return {kSmallestWidth, sizeHint().height()};
}

bool RecentButton::event(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange)
        setCursor(isEnabled() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    return QPushButton::event(event);
}

void RecentButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click(); // an entry of a list is opened with either key
    else
        QPushButton::keyPressEvent(event);
}

/// A double click counts once: by the second one, the list may have another entry here.
void RecentButton::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
}

QFont RecentButton::titleFont() const
{
    QFont result = font();
    result.setPixelSize(kLargeType);
    result.setBold(true);
    return result;
}

QFont RecentButton::smallFont() const
{
    QFont result = font();
    result.setPixelSize(kSmallType);
    return result;
}

void RecentButton::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0);
    painter.setBrush(backgroundColor(*this));
    painter.setPen(hasFocus() ? QPen(theme::qColorPrimary, 2.0) : QPen(Qt::NoPen));
    painter.drawRoundedRect(frame, kRadius, kRadius);
    paintTexts(painter, rect().adjusted(kMargin, 4, -kMargin, -4));
}

void RecentButton::paintTexts(QPainter &painter, QRect room) const
{
    const QFontMetrics titleMetrics(titleFont());
    const QFontMetrics smallMetrics(smallFont());
    const QColor faint = isEnabled() ? theme::qColorDark : QColor(0x8A, 0x8A, 0x8A);
    QRect line = room;
    if (!m_detail.isEmpty())
        line.setHeight(room.height() * 6 / 11);
    painter.setFont(smallFont());
    painter.setPen(faint);
    const int wantedWidth = m_remark.isEmpty() ? 0 : smallMetrics.horizontalAdvance(m_remark) + kGap;
    const int remarkWidth = wantedWidth > line.width() / 2 ? 0 : wantedWidth; // the title matters more
    if (remarkWidth > 0)
        painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, m_remark);
    if (!m_detail.isEmpty()) {
        const QRect below = room.adjusted(0, line.height(), 0, 0);
        painter.drawText(below, Qt::AlignLeft | Qt::AlignVCenter,
                         smallMetrics.elidedText(m_detail, Qt::ElideMiddle, below.width()));
    }
    painter.setFont(titleFont());
    painter.setPen(isEnabled() ? theme::qColorPrimary : faint);
    const int titleWidth = std::max(0, line.width() - remarkWidth);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip,
                     titleMetrics.elidedText(m_title, Qt::ElideMiddle, titleWidth));
}
