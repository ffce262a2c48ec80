#include "view/common/flowlayout.h"

#include <QWidget>

#include <algorithm>

namespace {

bool takesMore(const QLayoutItem &item)
{
    return item.expandingDirections().testFlag(Qt::Horizontal);
}

/// What an item needs at least: its size hint, or less if it expands.
int leastWidth(const QLayoutItem &item)
{
    const int wanted = item.sizeHint().width();
    return takesMore(item) ? std::min(item.minimumSize().width(), wanted) : wanted;
}

int stretchOf(QLayoutItem &item)
{
    return item.widget() ? item.widget()->sizePolicy().horizontalStretch() : 0;
}

int heightOf(const QLayoutItem &item, int width)
{
    return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

} // namespace

FlowLayout::FlowLayout(int horizontalGap, int verticalGap, QWidget *parent)
    : QLayout(parent)
    , m_horizontalGap(horizontalGap)
    , m_verticalGap(verticalGap)
{
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.append(item);
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return m_items.value(index, nullptr);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

QVector<FlowLayout::Line> FlowLayout::linesFor(int width) const
{
    QVector<Line> lines;
    for (QLayoutItem *item : m_items) {
        if (item->isEmpty())
            continue;
        const int least = std::min(leastWidth(*item), width); // a line holds one group, however narrow it is
        const bool fits = !lines.isEmpty() && lines.last().width + m_horizontalGap + least <= width;
        if (!fits)
            lines.append(Line());
        Line &line = lines.last();
        line.width += least + (fits ? m_horizontalGap : 0);
        line.wishes += std::min(item->sizeHint().width(), width) - least;
        line.height = std::max(line.height, heightOf(*item, least));
        line.items.append(item);
    }
    return lines;
}

int FlowLayout::heightForWidth(int width) const
{
    int height = -m_verticalGap;
    const QVector<Line> lines = linesFor(width);
    for (const Line &line : lines)
        height += line.height + m_verticalGap;
    return std::max(height, 0);
}

QSize FlowLayout::sizeHint() const
{
    int width = -m_horizontalGap;
    for (const QLayoutItem *item : m_items)
        width += item->isEmpty() ? 0 : item->sizeHint().width() + m_horizontalGap;
    width = std::max(width, 0);
    return {width, heightForWidth(width)};
}

QSize FlowLayout::minimumSize() const
{
    int width = 0;
    for (const QLayoutItem *item : m_items) {
        if (!item->isEmpty())
            width = std::max(width, item->hasHeightForWidth() ? item->minimumSize().width() : leastWidth(*item));
    }
    return {width, heightForWidth(std::max(width, geometry().width()))};
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    QRect area = rect;
    const QVector<Line> lines = linesFor(rect.width());
    for (const Line &line : lines) {
        area.setHeight(line.height);
        place(line, area);
        area.moveTop(area.bottom() + 1 + m_verticalGap);
    }
}

void FlowLayout::place(const Line &line, QRect area) const
{
    if (std::any_of(line.items.begin(), line.items.end(), [](QLayoutItem *item) { return stretchOf(*item) > 0; }))
        stretch(line, area);
    else
        spread(line, area);
}

void FlowLayout::stretch(const Line &line, QRect area) const
{
    int factors = 0;
    for (QLayoutItem *item : line.items)
        factors += stretchOf(*item);
    int spare = std::max(area.width() - line.width, 0);
    int x = area.left();
    for (QLayoutItem *item : line.items) {
        const int factor = stretchOf(*item);
        const int share = factor > 0 ? spare * factor / factors : 0;
        const int width = std::min(leastWidth(*item), area.width()) + share;
        factors -= factor; // the last one gets what rounding left
        spare -= share;
        item->setGeometry(QRect(x, area.top(), width, area.height()));
        x += width + m_horizontalGap;
    }
}

void FlowLayout::spread(const Line &line, QRect area) const
{
    const int gaps = static_cast<int>(line.items.size()) - 1;
    const int spare = std::max(area.width() - line.width, 0);
    const int granted = std::min(spare, line.wishes);
    const int rest = spare - granted;
    int x = area.left();
    int wishes = 0;
    for (int i = 0; i < line.items.size(); ++i) {
        QLayoutItem *item = line.items.at(i);
        const int least = std::min(leastWidth(*item), area.width());
        // The difference of two running totals: rounding each share on its own would lose pixels at the end.
        const int before = line.wishes > 0 ? wishes * granted / line.wishes : 0;
        wishes += std::min(item->sizeHint().width(), area.width()) - least;
        const int grant = line.wishes > 0 ? wishes * granted / line.wishes - before : 0;
        const int width = std::min(least + grant, area.width());
        const int share = i < gaps ? rest * (i + 1) / gaps - rest * i / gaps : 0;
        item->setGeometry(QRect(x, area.top(), width + (takesMore(*item) ? share : 0), area.height()));
        x += width + m_horizontalGap + share;
    }
}
