#include "kit/qcgaugewidget_p.h"
#include "kit/qcscaleitem.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

void QcGaugeWidget::renew()
{
    d->prepared = false;
    for (Part &part : d->parts)
        part.picture = QPixmap();
    update();
}

/// Drops the picture that the part is in. Others follow when it turns out that they see another scale.
void QcGaugeWidget::partChanged(const QcItem &item)
{
    d->prepared = false;
    const auto own =
        std::find_if(d->parts.begin(), d->parts.end(), [&](const Part &part) { return part.item.get() == &item; });
    for (auto part = own; !item.isMoving(); --part) {
        part->picture = QPixmap();
        if (part == d->parts.begin() || std::prev(part)->item->isMoving())
            break;
    }
    update();
}

/// Brings the canvas and what each part sees of the scales up to date. Pictures of parts that see something else than
/// before are dropped.
void QcGaugeWidget::prepare() const
{
    if (d->prepared)
        return;
    d->prepared = true;
    QcCanvas &canvas = d->canvas;
    canvas.adopt(*this, d->stale || !isEnabled());
    QcCanvas seen = canvas;
    seen.scale.from = d->from;
    seen.scale.to = d->to;
    double fixedStep = 0.0;
    for (auto first = d->parts.begin(); first != d->parts.end();) {
        if (const auto *scale = dynamic_cast<const QcScaleItem *>(first->item.get())) {
            seen.scale = scale->scale(d->from, d->to);
            fixedStep = scale->step();
        }
        const auto end = std::find_if(std::next(first), d->parts.end(), [](const Part &part) {
            return dynamic_cast<const QcScaleItem *>(part.item.get()) != nullptr;
        });
        seen.step = fixedStep;
        for (auto part = first; fixedStep <= 0.0 && part != end; ++part)
            seen.step = std::max(seen.step, part->item->isVisible() ? part->item->neededStep(seen) : 0.0);
        for (; first != end; ++first) {
            first->scale = seen.scale;
            first->step = seen.step;
        }
    }
}

QcCanvas QcGaugeWidget::canvas(int index) const
{
    prepare();
    QcCanvas seen = d->canvas;
    if (part(index)) {
        const Part &own = d->parts[static_cast<std::size_t>(index)];
        seen.scale = own.scale;
        seen.step = own.step;
    }
    return seen;
}

void QcGaugeWidget::setReading(const QcReading &reading)
{
    QRegion changed;
    for (int i = 0; i < partCount(); ++i) {
        const QcItem &item = *part(i);
        if (!item.isMoving() || !item.isVisible())
            continue;
        const QcCanvas seen = canvas(i);
        if (item.looksDifferent(seen, d->reading, reading)) {
            changed += item.area(seen, d->reading).toAlignedRect();
            changed += item.area(seen, reading).toAlignedRect();
        }
    }
    d->reading = reading;
    if (!changed.isEmpty())
        update(changed);
    d->announcer.changed();
}

/// Paints the parts from `first` to before `end`, none of which moves, from their picture.
void QcGaugeWidget::paintStill(QPainter &painter, int first, int end)
{
    QPixmap &picture = d->parts[static_cast<std::size_t>(first)].picture;
    if (picture.isNull()) {
        picture = qcgauge::emptyPicture(*this);
        QPainter still(&picture);
        still.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        for (int i = first; i < end; ++i)
            if (part(i)->isVisible())
                part(i)->paint(still, canvas(i), QcReading());
    }
    painter.drawPixmap(0, 0, picture);
}

void QcGaugeWidget::paintEvent(QPaintEvent *event)
{
    if (d->canvas.ratio != devicePixelRatioF())
        renew();
    prepare();
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (int i = 0; i < partCount();) {
        if (part(i)->isMoving()) {
            const QcCanvas seen = canvas(i);
            if (part(i)->isVisible() && event->region().intersects(part(i)->area(seen, d->reading).toAlignedRect()))
                part(i)->paint(painter, seen, d->reading);
            ++i;
            continue;
        }
        int end = i;
        while (end < partCount() && !part(end)->isMoving())
            ++end;
        paintStill(painter, i, end);
        i = end;
    }
}

void QcGaugeWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    renew();
}

void QcGaugeWidget::changeEvent(QEvent *event)
{
    if (QcCanvas::changesWith(event->type()))
        renew();
    QWidget::changeEvent(event);
}
