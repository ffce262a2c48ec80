#include "view/sidetabs.h"

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
constexpr int kLeastHeight = 40; // in a window that is too low for all

} // namespace

SideTabBar::SideTabBar(QWidget *parent)
    : QTabBar(parent)
{
    setUsesScrollButtons(true);
    setDrawBase(false);
    setFocusPolicy(Qt::TabFocus);
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
    for (const QString &word : tabText(index).split(QLatin1Char(' '))) {
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
    painter.drawText(labelRect(index), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, tabText(index));
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
