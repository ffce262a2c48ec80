#pragma once

#include "kit/gauge/qcitem.h"

#include <QPixmap>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QRegion;
class QcScaleItem;

/// The parts of a gauge in the order in which they are painted. It owns them, finds out which scale each of them refers
/// to, and keeps pictures of neighbours that do not move.
class QcItemStack
{
public:
    /// `changed` is called after a part came, went, moved to another place or changed its looks.
    explicit QcItemStack(std::function<void()> changed);
    ~QcItemStack();
    Q_DISABLE_COPY_MOVE(QcItemStack)

    /// Puts a new part on top, made from the arguments.
    template <typename Item, typename... Arguments>
    Item *append(Arguments &&...arguments)
    {
        auto item = std::make_unique<Item>(std::forward<Arguments>(arguments)...);
        Item *raw = item.get();
        insert(count(), std::move(item));
        return raw;
    }
    /// At the nearest possible index; null is logged and ignored.
    void insert(int index, std::unique_ptr<QcItem> item);
    /// Gives the part away; null if there is none.
    [[nodiscard]] std::unique_ptr<QcItem> take(int index);
    /// An index that does not exist is ignored.
    void remove(int index);
    /// `to` is the part's index afterwards. An index that does not exist is ignored.
    void move(int from, int to);
    [[nodiscard]] int count() const;
    /// Null if there is none.
    [[nodiscard]] QcItem *at(int index) const;
    /// The first part of this class, null if there is none.
    template <typename Item>
    [[nodiscard]] Item *find() const
    {
        for (int i = 0; i < count(); ++i)
            if (auto *found = dynamic_cast<Item *>(at(i)))
                return found;
        return nullptr;
    }

    // --- For the gauge that shows them ---
    /// What the parts see; the range of its scale is that of the gauge. Drops the pictures of parts whose scale or step
    /// changes; any other difference requires dropPictures().
    void setCanvas(const QcCanvas &canvas);
    /// What the part at this index sees when it is painted.
    [[nodiscard]] QcCanvas canvas(int index) const;
    void dropPictures();
    /// What has to be repainted for the second reading after the first.
    [[nodiscard]] QRegion changedArea(const QcReading &before, const QcReading &after) const;
    /// Paints the parts, the moving ones only if they reach into the region.
    void paint(QPainter &painter, const QRegion &region, const QcReading &reading);

private:
    struct Entry
    {
        std::unique_ptr<QcItem> item;
        qcgauge::Scale scale; ///< that it refers to
        double step = 0.0;
        /// Shows it and all parts above it up to the next one that moves; null if this is not the first of them or if
        /// something changed.
        QPixmap picture;
    };
    using Entries = std::vector<Entry>;

    [[nodiscard]] static const QcScaleItem *scaleOf(const Entry &entry);
    [[nodiscard]] static double neededStep(const QcCanvas &canvas, Entries::const_iterator first,
                                           Entries::const_iterator end);
    void itemChanged(const QcItem &item);
    void restack();
    void dropPicture(Entries::iterator entry);
    void paintStill(QPainter &painter, int first, int end);

    std::function<void()> m_changed;
    Entries m_entries;
    QcCanvas m_canvas;
};
