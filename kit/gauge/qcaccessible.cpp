#include "kit/gauge/qcaccessible.h"

#include "kit/gauge/qcattitudemeter.h"
#include "kit/gauge/qcgaugewidget.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <utility>

namespace {

constexpr int kPause = 1000; // ms

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
    void setCurrentValue(const QVariant &) override {} // it only shows

private:
    QcGaugeWidget *m_gauge;
};

class AttitudeInterface : public QAccessibleWidget
{
public:
    explicit AttitudeInterface(QcAttitudeMeter *meter)
        : QAccessibleWidget(meter, QAccessible::Indicator)
        , m_meter(meter)
    {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_meter->spokenValue() : QAccessibleWidget::text(kind);
    }

private:
    QcAttitudeMeter *m_meter;
};

QAccessibleInterface *createInterface(const QString &, QObject *object)
{
    if (auto *gauge = qobject_cast<QcGaugeWidget *>(object))
        return new GaugeInterface(gauge);
    if (auto *meter = qobject_cast<QcAttitudeMeter *>(object))
        return new AttitudeInterface(meter);
    return nullptr;
}

} // namespace

void installQcAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(createInterface);
        return true;
    }();
    Q_UNUSED(installed)
}

QcAnnouncer::QcAnnouncer(QWidget *widget, Tell tell)
    : m_widget(widget)
    , m_tell(std::move(tell))
{
    m_pause.setInterval(kPause);
    m_pause.setSingleShot(true);
    QObject::connect(&m_pause, &QTimer::timeout, widget, [this] { announce(); });
}

void QcAnnouncer::changed()
{
    if ((m_tell || QAccessible::isActive()) && m_widget->isVisible() && !m_pause.isActive())
        announce();
}

void QcAnnouncer::announce()
{
    QAccessibleInterface *shown = QAccessible::queryAccessibleInterface(m_widget);
    const QString text = shown ? shown->text(QAccessible::Value) : QString();
    if (text == m_told)
        return;
    m_told = text;
    m_pause.start();
    if (m_tell) {
        m_tell(text);
        return;
    }
    QAccessibleValueChangeEvent event(m_widget, text);
    QAccessible::updateAccessibility(&event);
}
