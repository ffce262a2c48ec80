#include "view/taboszilloscope_flow.h"

#include <algorithm>

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
        const QSize size = item->sizeHint();
        const bool fits = !lines.isEmpty() && lines.last().width + m_horizontalGap + size.width() <= width;
        if (!fits)
            lines.append(Line());
        Line &line = lines.last();
        line.width += size.width() + (fits ? m_horizontalGap : 0);
        line.height = std::max(line.height, size.height());
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
    int width = 0;
    for (const QLayoutItem *item : m_items)
        width = std::max(width, item->isEmpty() ? 0 : item->sizeHint().width());
    return {width, heightForWidth(std::max(width, geometry().width()))};
}

QSize FlowLayout::minimumSize() const
{
    return sizeHint();
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
    const int gaps = static_cast<int>(line.items.size()) - 1;
    const int spare = std::max(area.width() - line.width, 0);
    int x = area.left();
    for (int i = 0; i < line.items.size(); ++i) {
        QLayoutItem *item = line.items.at(i);
        const int width = std::min(item->sizeHint().width(), area.width());
        const int share = i < gaps ? spare * (i + 1) / gaps - spare * i / gaps : 0;
        const int taken = item->expandingDirections().testFlag(Qt::Horizontal) ? share : 0;
        item->setGeometry(QRect(x, area.top(), width + taken, area.height()));
        x += width + m_horizontalGap + share;
    }
}
