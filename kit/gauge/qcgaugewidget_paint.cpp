#include "kit/gauge/qcgaugewidget_p.h"
#include "kit/gauge/qcscaleitem.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

const QcScaleItem *QcGaugeWidget::Private::scaleOf(const Part &part)
{
    return dynamic_cast<const QcScaleItem *>(part.item.get());
}

double QcGaugeWidget::Private::neededStep(const QcCanvas &canvas, std::vector<Part>::const_iterator first,
                                          std::vector<Part>::const_iterator end)
{
    double step = 0.0;
    for (; first != end; ++first) {
        if (first->item->isVisible())
            step = std::max(step, first->item->neededStep(canvas));
    }
    return step;
}

void QcGaugeWidget::Private::dropPictures()
{
    for (Part &part : parts)
        part.picture = QPixmap();
}

void QcGaugeWidget::Private::dropPicture(std::vector<Part>::iterator part)
{
    if (part->item->isMoving())
        return;
    while (part != parts.begin() && !std::prev(part)->item->isMoving())
        --part;
    part->picture = QPixmap();
}

/// Tells every part which scale it refers to. Pictures of parts that see something else than before are dropped.
void QcGaugeWidget::Private::spreadScales()
{
    QcCanvas seen = canvas;
    seen.scale.from = from;
    seen.scale.to = to;
    for (auto first = parts.begin(); first != parts.end();) {
        const auto end = std::find_if(std::next(first), parts.end(), [](const Part &part) { return scaleOf(part); });
        const QcScaleItem *scale = scaleOf(*first);
        if (scale)
            seen.scale = scale->scale(from, to);
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

void QcGaugeWidget::renew()
{
    d->prepared = false;
    d->dropPictures();
    update();
}

void QcGaugeWidget::partChanged(const QcItem &item)
{
    d->prepared = false;
    const auto isIt = [&](const Part &part) { return part.item.get() == &item; };
    d->dropPicture(std::find_if(d->parts.begin(), d->parts.end(), isIt));
    update();
}

/// Brings the canvas and what each part sees of the scales up to date.
void QcGaugeWidget::prepare() const
{
    const bool fits = d->canvas.fits(*this);
    if (d->prepared && fits)
        return;
    d->prepared = true;
    d->canvas.adopt(*this, d->stale || !isEnabled());
    if (!fits)
        d->dropPictures();
    d->spreadScales();
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

void QcGaugeWidget::changeEvent(QEvent *event)
{
    if (QcCanvas::changesWith(event->type()))
        renew();
    QWidget::changeEvent(event);
}
