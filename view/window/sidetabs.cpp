#include "view/window/sidetabs.h"

#include "app/theme.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyleOptionTab>
#include <QStylePainter>

#include <algorithm>

namespace {

// As the application's sheet has them for tabs; a style cannot be asked for them.
constexpr int kFontPixels = 24;
constexpr int kTabHeight = 70;
constexpr int kTabWidth = 150;
constexpr int kMarkerWidth = 10;
constexpr int kPadding = 10;
constexpr int kLeastHeight = 34; // in a low window; all nine then fit the smallest one

} // namespace

SideTabBar::SideTabBar(QWidget *parent)
    : QTabBar(parent)
{
    setUsesScrollButtons(true);
    setDrawBase(false);
    setFocusPolicy(Qt::TabFocus);
    // Where not all tabs fit; the sheet for tool buttons would draw black arrows on dark grey.
    setStyleSheet(QStringLiteral("QToolButton {background-color: %1; border: 1px solid %2; min-width: 0px;}"
                                 "QToolButton::up-arrow {image: url(:/icons/up.png);}"
                                 "QToolButton::down-arrow {image: url(:/icons/down.png);}")
                      .arg(theme::colorLight, theme::colorMedium));
}

QFont SideTabBar::tabFont() const
{
    QFont tabsFont = font();
    tabsFont.setPixelSize(kFontPixels);
    tabsFont.setBold(true);
    return tabsFont;
}

QSize SideTabBar::tabSizeHint(int index) const
{
    const QFontMetrics metrics(tabFont());
    int width = kTabWidth;
    int lines = 0;
    const QStringList words = tabText(index).split(QLatin1Char(' '));
    for (const QString &word : words) {
        width = std::max(width, metrics.horizontalAdvance(word) + kMarkerWidth + 2 * kPadding);
        ++lines;
    }
    return {width, std::max(kTabHeight, lines * metrics.height() + kPadding)};
}

QSize SideTabBar::minimumTabSizeHint(int index) const
{
    return {tabSizeHint(index).width(), kLeastHeight};
}

QRect SideTabBar::labelRect(int index) const
{
    return tabRect(index).adjusted(kMarkerWidth + kPadding, 0, -kPadding / 2, 0);
}

void SideTabBar::drawLabel(QPainter &painter, int index) const
{
    painter.setFont(tabFont());
    painter.setPen(isTabEnabled(index) ? theme::qColorDark : theme::qColorMedium);
    constexpr int kFlags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
    const QRect room = labelRect(index);
    const QFontMetrics metrics(painter.font());
    const bool fits = metrics.boundingRect(room, kFlags, tabText(index)).height() <= room.height();
    painter.drawText(room, kFlags,
                     fits ? tabText(index) : metrics.elidedText(tabText(index), Qt::ElideRight, room.width()));
}

void SideTabBar::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.fillRect(rect(), theme::qColorLight);
    for (int index = 0; index < count(); ++index) {
        QStyleOptionTab option;
        initStyleOption(&option, index);
        painter.drawControl(QStyle::CE_TabBarTabShape, option);
        drawLabel(painter, index);
        if (index == currentIndex() && hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
            painter.setPen(QPen(theme::qColorPrimary, 1, Qt::DotLine));
            painter.drawRect(tabRect(index).adjusted(kMarkerWidth + 3, 3, -4, -4));
        }
    }
}

SideTabWidget::SideTabWidget(QWidget *parent)
    : QTabWidget(parent)
{
    setTabBar(new SideTabBar(this));
    setTabPosition(QTabWidget::West);
}
