#include "kit/gauge/qcgaugewidget.h"

#include "kit/gauge/qcaccessible.h"
#include "kit/gauge/qcgaugewidget_p.h"
#include "kit/gauge/qcneedleitem.h"
#include "kit/logging.h"
#include "kit/material/qtmaterialstyle.h"

#include <QEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kFrame = 16; // ms
constexpr int kUsualSize = 240;
constexpr int kSmallestSize = 96;
constexpr int kMostDecimals = 15;
constexpr double kArrived = 0.0005; // of the range
constexpr double kMargin = 0.1;     // of the range: how far outside a needle's way begins and ends

} // namespace

QcGaugeWidget::QcGaugeWidget(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    installQcAccessibility();
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    d->timer.setInterval(kFrame);
    connect(&d->timer, &QTimer::timeout, this, &QcGaugeWidget::moveNeedle);
    connect(&QtMaterialStyle::instance(), &QtMaterialStyle::themeChanged, this, &QcGaugeWidget::renew);
}

QcGaugeWidget::~QcGaugeWidget() = default;

void QcGaugeWidget::insertPart(int index, std::unique_ptr<QcItem> part)
{
    if (!part) {
        qCWarning(lcKit) << "no part of a gauge given";
        return;
    }
    part->m_gauge = this;
    const auto place = d->parts.begin() + std::clamp(index, 0, partCount());
    d->parts.emplace(place)->item = std::move(part);
    renew();
}

std::unique_ptr<QcItem> QcGaugeWidget::takePart(int index)
{
    if (!part(index))
        return nullptr;
    const auto place = d->parts.begin() + index;
    std::unique_ptr<QcItem> taken = std::move(place->item);
    taken->m_gauge = nullptr;
    d->parts.erase(place);
    renew();
    return taken;
}

void QcGaugeWidget::removePart(int index)
{
    (void)takePart(index);
}

void QcGaugeWidget::movePart(int from, int to)
{
    if (from == to || !part(from) || !part(to))
        return;
    const auto begin = d->parts.begin();
    if (from < to)
        std::rotate(begin + from, begin + from + 1, begin + to + 1);
    else
        std::rotate(begin + to, begin + from, begin + from + 1);
    renew();
}

int QcGaugeWidget::partCount() const
{
    return static_cast<int>(d->parts.size());
}

QcItem *QcGaugeWidget::part(int index) const
{
    return index >= 0 && index < partCount() ? d->parts[static_cast<std::size_t>(index)].item.get() : nullptr;
}

template <typename T>
void QcGaugeWidget::assign(T &property, const T &value)
{
    if (property == value)
        return;
    property = value;
    renew();
}

void QcGaugeWidget::setRange(double from, double to)
{
    if (!std::isfinite(from) || !std::isfinite(to)) {
        qCWarning(lcKit) << "range of a gauge not accepted:" << from << to;
        return;
    }
    assign(d->from, from);
    assign(d->to, to);
}

double QcGaugeWidget::minimum() const
{
    return std::min(d->from, d->to);
}

double QcGaugeWidget::maximum() const
{
    return std::max(d->from, d->to);
}

void QcGaugeWidget::setBands(const QVector<QcBand> &bands)
{
    QVector<QcBand> usable;
    std::copy_if(bands.cbegin(), bands.cend(), std::back_inserter(usable), [](const QcBand &band) {
        return std::isfinite(band.from) && std::isfinite(band.to) && band.color.isValid();
    });
    assign(d->canvas.bands, usable);
}

void QcGaugeWidget::setTitle(const QString &title)
{
    assign(d->canvas.title, title);
}

QString QcGaugeWidget::title() const
{
    return d->canvas.title;
}

void QcGaugeWidget::setUnit(const QString &unit)
{
    assign(d->canvas.unit, unit);
}

void QcGaugeWidget::setNeedleColor(const QColor &color)
{
    for (const Part &part : d->parts) {
        auto *needle = dynamic_cast<QcNeedleItem *>(part.item.get());
        if (needle && needle->source() == QcNeedleItem::Source::Value)
            needle->setColor(color);
    }
}

void QcGaugeWidget::setDecimals(int decimals)
{
    assign(d->canvas.decimals, std::clamp(decimals, 0, kMostDecimals));
}

void QcGaugeWidget::setValue(double value)
{
    if (!std::isfinite(value)) {
        clearValue();
        return;
    }
    QcReading next = d->reading;
    next.hasValue = true;
    next.value = value;
    const bool onItsWay = d->damping > 0 && d->reading.hasValue && isVisible() && !window()->isMinimized();
    if (!onItsWay)
        next.shown = value;
    setReading(next);
    if (onItsWay && next.shown != value && !d->timer.isActive()) {
        d->sinceFrame.start();
        d->timer.start();
    }
}

void QcGaugeWidget::clearValue()
{
    QcReading next = d->reading;
    next.hasValue = false;
    next.value = next.shown = 0.0;
    setReading(next);
}

bool QcGaugeWidget::hasValue() const
{
    return d->reading.hasValue;
}

double QcGaugeWidget::value() const
{
    return d->reading.value;
}

void QcGaugeWidget::setHeld(double minimum, double maximum)
{
    QcReading next = d->reading;
    next.hasHeld = std::isfinite(minimum) && std::isfinite(maximum);
    next.heldMinimum = next.hasHeld ? std::min(minimum, maximum) : 0.0;
    next.heldMaximum = next.hasHeld ? std::max(minimum, maximum) : 0.0;
    setReading(next);
}

void QcGaugeWidget::clearHeld()
{
    QcReading next = d->reading;
    next.hasHeld = false;
    setReading(next);
}

void QcGaugeWidget::setStale(bool stale)
{
    assign(d->stale, stale);
    d->announcer.changed();
}

bool QcGaugeWidget::isStale() const
{
    return d->stale;
}

void QcGaugeWidget::setDamping(int milliseconds)
{
    d->damping = std::max(0, milliseconds);
}

bool QcGaugeWidget::isOnTheWay() const
{
    return d->timer.isActive();
}

/// The next frame of a needle on its way: the rest of the way shrinks by the same share in the same time.
void QcGaugeWidget::moveNeedle()
{
    const double margin = (maximum() / 2 - minimum() / 2) * 2.0 * kMargin;
    const auto near = [&](double value) { return std::clamp(value, minimum() - margin, maximum() + margin); };
    QcReading next = d->reading;
    const double share = d->damping > 0 ? std::exp(-static_cast<double>(d->sinceFrame.restart()) / d->damping) : 0.0;
    const double target = near(next.value);
    next.shown = target + (near(next.shown) - target) * share;
    if (!(std::abs(next.shown - target) > kArrived * margin / kMargin)) {
        next.shown = next.value;
        d->timer.stop();
    }
    setReading(next);
}

void QcGaugeWidget::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    d->timer.stop();
    d->reading.shown = d->reading.value;
}

QString QcGaugeWidget::spokenValue() const
{
    if (!hasValue())
        return tr("kein Wert");
    QString text = qcgauge::numberText(value(), d->canvas.decimals, locale());
    if (!d->canvas.unit.isEmpty())
        text += QLatin1Char(' ') + d->canvas.unit;
    return d->stale ? tr("%1, veraltet").arg(text) : text;
}

const QcReading &QcGaugeWidget::reading() const
{
    return d->reading;
}

QSize QcGaugeWidget::sizeHint() const
{
    return {kUsualSize, kUsualSize};
}

QSize QcGaugeWidget::minimumSizeHint() const
{
    return {kSmallestSize, kSmallestSize};
}
