#include "kit/gauge/qcitemstack.h"

#include "kit/gauge/qcscaleitem.h"
#include "kit/logging.h"

#include <QPainter>
#include <QRegion>

#include <algorithm>

QcItemStack::QcItemStack(std::function<void()> changed)
    : m_changed(std::move(changed))
{}

QcItemStack::~QcItemStack() = default;

// --- Which parts -----------------------------------------------------------------------------------------------

void QcItemStack::insert(int index, std::unique_ptr<QcItem> item)
{
    if (!item) {
        qCWarning(lcKit) << "no part of a gauge given";
        return;
    }
    item->setListener([this](const QcItem &changed) { itemChanged(changed); });
    const auto place = m_entries.begin() + std::clamp(index, 0, count());
    m_entries.emplace(place)->item = std::move(item);
    restack();
}

std::unique_ptr<QcItem> QcItemStack::take(int index)
{
    if (!at(index))
        return nullptr;
    const auto place = m_entries.begin() + index;
    std::unique_ptr<QcItem> taken = std::move(place->item);
    taken->setListener({});
    m_entries.erase(place);
    restack();
    return taken;
}

void QcItemStack::remove(int index)
{
    (void)take(index); // which deletes it
}

void QcItemStack::move(int from, int to)
{
    if (from == to || !at(from) || !at(to))
        return;
    const auto begin = m_entries.begin();
    if (from < to)
        std::rotate(begin + from, begin + from + 1, begin + to + 1);
    else
        std::rotate(begin + to, begin + from, begin + from + 1);
    restack();
}

int QcItemStack::count() const
{
    return static_cast<int>(m_entries.size());
}

QcItem *QcItemStack::at(int index) const
{
    return index >= 0 && index < count() ? m_entries[static_cast<std::size_t>(index)].item.get() : nullptr;
}

void QcItemStack::restack()
{
    dropPictures();
    m_changed();
}

void QcItemStack::itemChanged(const QcItem &item)
{
    const auto isIt = [&](const Entry &entry) { return entry.item.get() == &item; };
    dropPicture(std::find_if(m_entries.begin(), m_entries.end(), isIt));
    m_changed();
}

// --- What they see ---------------------------------------------------------------------------------------------

const QcScaleItem *QcItemStack::scaleOf(const Entry &entry)
{
    return dynamic_cast<const QcScaleItem *>(entry.item.get());
}

double QcItemStack::neededStep(const QcCanvas &canvas, Entries::const_iterator first, Entries::const_iterator end)
{
    double step = 0.0;
    for (; first != end; ++first) {
        if (first->item->isVisible())
            step = std::max(step, first->item->neededStep(canvas));
    }
    return step;
}

void QcItemStack::setCanvas(const QcCanvas &canvas)
{
    m_canvas = canvas;
    QcCanvas seen = canvas;
    for (auto first = m_entries.begin(); first != m_entries.end();) {
        const auto end =
            std::find_if(std::next(first), m_entries.end(), [](const Entry &entry) { return scaleOf(entry); });
        const QcScaleItem *scale = scaleOf(*first);
        if (scale)
            seen.scale = scale->scale(canvas.scale.from, canvas.scale.to);
        seen.step = scale ? scale->step() : 0.0;
        if (seen.step <= 0.0)
            seen.step = neededStep(seen, first, end);
        for (; first != end; ++first) {
            if (first->scale == seen.scale && first->step == seen.step)
                continue;
            first->scale = seen.scale;
            first->step = seen.step;
            dropPicture(first);
        }
    }
}

QcCanvas QcItemStack::canvas(int index) const
{
    QcCanvas seen = m_canvas;
    if (at(index)) {
        const Entry &own = m_entries[static_cast<std::size_t>(index)];
        seen.scale = own.scale;
        seen.step = own.step;
    }
    return seen;
}

// --- Painting --------------------------------------------------------------------------------------------------

void QcItemStack::dropPictures()
{
    for (Entry &entry : m_entries)
        entry.picture = QPixmap();
}

/// Drops the picture that the part is in.
void QcItemStack::dropPicture(Entries::iterator entry)
{
    if (entry->item->isMoving())
        return;
    // The first of the parts that share a picture keeps it for all of them.
    while (entry != m_entries.begin() && !std::prev(entry)->item->isMoving())
        --entry;
    entry->picture = QPixmap();
}

QRegion QcItemStack::changedArea(const QcReading &before, const QcReading &after) const
{
    QRegion changed;
    for (int i = 0; i < count(); ++i) {
        const QcItem &item = *at(i);
        if (!item.isMoving() || !item.isVisible())
            continue;
        const QcCanvas seen = canvas(i);
        if (item.looksDifferent(seen, before, after)) {
            changed += item.area(seen, before).toAlignedRect();
            changed += item.area(seen, after).toAlignedRect();
        }
    }
    return changed;
}

/// Paints the parts from `first` to before `end`, none of which moves, from their picture.
void QcItemStack::paintStill(QPainter &painter, int first, int end)
{
    QPixmap &picture = m_entries[static_cast<std::size_t>(first)].picture;
    if (picture.isNull()) {
        picture = qcgauge::emptyPicture(m_canvas);
        QPainter still(&picture);
        still.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        for (int i = first; i < end; ++i)
            if (at(i)->isVisible())
                at(i)->paint(still, canvas(i), QcReading());
    }
    painter.drawPixmap(0, 0, picture);
}

void QcItemStack::paint(QPainter &painter, const QRegion &region, const QcReading &reading)
{
    for (int i = 0; i < count();) {
        if (at(i)->isMoving()) {
            const QcCanvas seen = canvas(i);
            if (at(i)->isVisible() && region.intersects(at(i)->area(seen, reading).toAlignedRect()))
                at(i)->paint(painter, seen, reading);
            ++i;
            continue;
        }
        int end = i;
        while (end < count() && !at(end)->isMoving())
            ++end;
        paintStill(painter, i, end);
        i = end;
    }
}
