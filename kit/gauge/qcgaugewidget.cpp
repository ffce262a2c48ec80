#include "kit/gauge/qcgaugewidget.h"

#include "kit/gauge/qcannouncer.h"
#include "kit/gauge/qcneedleitem.h"
#include "kit/gauge/qcneedlemotion.h"
#include "kit/logging.h"
#include "kit/material/qtmaterialstyle.h"
#include "kit/small/accessiblefactory.h"

#include <QAccessibleWidget>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kUsualSize = 240;
constexpr int kSmallestSize = 96;
constexpr int kMostDecimals = 15;

/// To screen readers it is a dial with a value and a range.
class GaugeInterface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit GaugeInterface(QcGaugeWidget *gauge)
        : QAccessibleWidget(gauge, QAccessible::Dial)
        , m_gauge(gauge)
    {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value)
            return m_gauge->spokenValue();
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? m_gauge->title() : text;
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }
    QVariant currentValue() const override { return m_gauge->hasValue() ? QVariant(m_gauge->value()) : QVariant(); }
    QVariant maximumValue() const override { return m_gauge->maximum(); }
    QVariant minimumValue() const override { return m_gauge->minimum(); }
    QVariant minimumStepSize() const override { return {}; }
    void setCurrentValue(const QVariant &) override {} // read-only

private:
    QcGaugeWidget *m_gauge;
};

} // namespace

struct QcGaugeWidget::Private
{
    explicit Private(QcGaugeWidget *gauge)
        : parts([this, gauge] {
            prepared = false;
            gauge->update();
        })
        , announcer(gauge)
    {}

    QcItemStack parts;
    QcCanvas canvas;       ///< its scale has the gauge's range
    bool prepared = false; ///< canvas and parts are up to date
    bool stale = false;
    QcReading reading;
    QcNeedleMotion motion;
    QcAnnouncer announcer;
};

QcGaugeWidget::QcGaugeWidget(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    installAccessible<QcGaugeWidget, GaugeInterface>();
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    connect(&d->motion, &QcNeedleMotion::frame, this, &QcGaugeWidget::moveNeedle);
    connect(&QtMaterialStyle::instance(), &QtMaterialStyle::themeChanged, this, &QcGaugeWidget::renew);
}

QcGaugeWidget::~QcGaugeWidget() = default;

QcItemStack &QcGaugeWidget::parts()
{
    return d->parts;
}

// --- Keeping up to date ----------------------------------------------------------------------------------------

void QcGaugeWidget::renew()
{
    d->parts.dropPictures();
    d->prepared = false;
    update();
}

/// Brings the canvas and what each part sees of it up to date.
void QcGaugeWidget::prepare() const
{
    const bool fits = d->canvas.fits(*this);
    if (d->prepared && fits)
        return;
    d->prepared = true;
    d->canvas.adopt(*this, d->stale || !isEnabled());
    if (!fits) // pictures have the size and the resolution of the widget they were painted for
        d->parts.dropPictures();
    d->parts.setCanvas(d->canvas);
}

QcCanvas QcGaugeWidget::canvas(int index) const
{
    prepare();
    return d->parts.canvas(index);
}

void QcGaugeWidget::setReading(const QcReading &reading)
{
    prepare();
    const QRegion changed = d->parts.changedArea(d->reading, reading);
    d->reading = reading;
    if (!changed.isEmpty())
        update(changed);
    d->announcer.changed();
}

// --- What it shows ----------------------------------------------------------------------------------------------

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
    assign(d->canvas.scale.from, from);
    assign(d->canvas.scale.to, to);
}

double QcGaugeWidget::minimum() const
{
    return std::min(d->canvas.scale.from, d->canvas.scale.to);
}

double QcGaugeWidget::maximum() const
{
    return std::max(d->canvas.scale.from, d->canvas.scale.to);
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
    for (int i = 0; i < d->parts.count(); ++i) {
        auto *needle = dynamic_cast<QcNeedleItem *>(d->parts.at(i));
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
    // A needle that nobody sees, or that had no value yet, jumps.
    const bool onItsWay = d->motion.isDamped() && d->reading.hasValue && isVisible() && !window()->isMinimized();
    if (!onItsWay)
        next.shown = value;
    setReading(next);
    if (onItsWay && next.shown != value)
        d->motion.start();
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
    d->motion.setDamping(milliseconds);
}

bool QcGaugeWidget::isOnTheWay() const
{
    return d->motion.isRunning();
}

void QcGaugeWidget::moveNeedle()
{
    QcReading next = d->reading;
    next.shown = d->motion.advance(next.shown, next.value, minimum(), maximum());
    setReading(next);
}

void QcGaugeWidget::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    // Nobody sees the rest of the way, and a hidden gauge should not keep a timer running.
    d->motion.stop();
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

void QcGaugeWidget::paintEvent(QPaintEvent *event)
{
    prepare();
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    d->parts.paint(painter, event->region(), d->reading);
}

void QcGaugeWidget::changeEvent(QEvent *event)
{
    if (QcCanvas::changesWith(event->type()))
        renew();
    QWidget::changeEvent(event);
}

QSize QcGaugeWidget::sizeHint() const
{
    return {kUsualSize, kUsualSize};
}

QSize QcGaugeWidget::minimumSizeHint() const
{
    return {kSmallestSize, kSmallestSize};
}
