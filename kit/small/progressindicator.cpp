#include "kit/small/progressindicator.h"

#include "kit/logging.h"
#include "kit/material/qtmaterialpaint.h"
#include "kit/material/qtmaterialstyle.h"
#include "kit/small/accessiblefactory.h"

#include <QAccessibleWidget>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int kInterval = 40;   // ms between two steps
constexpr int kStep = 12;       // degrees
constexpr int kArc = 90;        // degrees: length of the turning arc
constexpr int kSixteenths = 16; // QPainter counts in sixteenths of a degree
constexpr QSize kUsualSize(48, 48);
constexpr QSize kSmallestSize(16, 16);

QRectF ringRect(const QSize &size, qreal width)
{
    const qreal side = std::min(size.width(), size.height()) - width - 2.0;
    return {(size.width() - side) / 2.0, (size.height() - side) / 2.0, side, side};
}

void drawRing(QPainter &painter, const QRectF &ring, qreal width, const QColor &color, int from, int span)
{
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::FlatCap));
    painter.drawArc(ring, (90 - from) * kSixteenths, -span * kSixteenths);
}

void drawPercent(QPainter &painter, const QRectF &ring, int percent, const QColor &color)
{
    QFont font = painter.font();
    font.setPixelSize(std::max(1, static_cast<int>(ring.height() * 0.34)));
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(ring, Qt::AlignCenter, QString::number(percent));
}

/// To screen readers it is a progress bar that cannot be changed; it has a value only while the percentage is known.
class AccessibleProgress : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleProgress(ProgressIndicator *indicator)
        : QAccessibleWidget(indicator, QAccessible::ProgressBar)
        , m_indicator(indicator)
    {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.busy = m_indicator->isAnimated();
        state.readOnly = true;
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Value)
            return QAccessibleWidget::text(kind);
        return isKnown() ? QStringLiteral("%1 %").arg(m_indicator->percent()) : QString();
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface && isKnown())
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return m_indicator->percent(); }
    QVariant minimumValue() const override { return 0; }
    QVariant maximumValue() const override { return 100; }
    QVariant minimumStepSize() const override { return 1; }
    void setCurrentValue(const QVariant &) override {} // read-only

private:
    [[nodiscard]] bool isKnown() const
    {
        return m_indicator->isAnimated() && m_indicator->percent() != ProgressIndicator::kTurning;
    }

    ProgressIndicator *m_indicator;
};

} // namespace

ProgressIndicator::ProgressIndicator(QWidget *parent)
    : QWidget(parent)
{
    installAccessible<ProgressIndicator, AccessibleProgress>();
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_timer.setInterval(kInterval);
    connect(&m_timer, &QTimer::timeout, this, &ProgressIndicator::turn);
    connect(&QtMaterialStyle::instance(), &QtMaterialStyle::themeChanged, this, qOverload<>(&QWidget::update));
}

QSize ProgressIndicator::sizeHint() const
{
    return kUsualSize;
}

QSize ProgressIndicator::minimumSizeHint() const
{
    return kSmallestSize;
}

void ProgressIndicator::startAnimation()
{
    qCDebug(lcKit) << Q_FUNC_INFO;
    setAnimated(true);
}

void ProgressIndicator::stopAnimation()
{
    qCDebug(lcKit) << Q_FUNC_INFO;
    setAnimated(false);
}

void ProgressIndicator::setAnimated(bool animated)
{
    if (animated == m_animated)
        return;
    m_animated = animated;
    updateTimer();
    update();
    QAccessible::State changed;
    changed.busy = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void ProgressIndicator::setPercent(int percent)
{
    const int next = percent < 0 ? kTurning : std::min(percent, 100);
    if (next == m_percent)
        return;
    m_percent = next;
    updateTimer();
    update();
    QAccessibleValueChangeEvent change(this, m_percent);
    QAccessible::updateAccessibility(&change);
}

void ProgressIndicator::updateTimer()
{
    // A timer that turns what nobody sees would wake the computer 25 times per second.
    const bool wanted = m_animated && m_percent == kTurning && isVisible() && !window()->isMinimized();
    if (wanted && !m_timer.isActive())
        m_timer.start();
    else if (!wanted)
        m_timer.stop();
}

void ProgressIndicator::turn()
{
    m_angle = (m_angle + kStep) % 360;
    update();
}

void ProgressIndicator::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    updateTimer();
}

void ProgressIndicator::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    updateTimer();
}

void ProgressIndicator::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    if (!m_animated)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal width = std::max(2.0, std::min(this->width(), height()) / 9.0);
    const QRectF ring = ringRect(size(), width);
    using QtMaterialPaint::themeColor;
    drawRing(painter, ring, width, themeColor(QLatin1String("border")), 0, 360);
    const QColor color = themeColor(isEnabled() ? QLatin1String("primary1") : QLatin1String("disabled"));
    if (m_percent == kTurning) {
        drawRing(painter, ring, width, color, m_angle, kArc);
    } else {
        drawRing(painter, ring, width, color, 0, m_percent * 360 / 100);
        drawPercent(painter, ring, m_percent, isEnabled() ? themeColor(QLatin1String("text")) : color);
    }
}
