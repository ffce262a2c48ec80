#include "kit/small/accessibles.h"

#include "kit/small/clickablelabel.h"
#include "kit/small/leftrightstepbox.h"
#include "kit/small/progressindicator.h"

#include <QAccessibleWidget>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace {

/// The name somebody gave the widget, else its text without mark-up.
QString nameOf(const QLabel &label)
{
    if (!label.accessibleName().isEmpty())
        return label.accessibleName();
    const bool isRich =
        label.textFormat() == Qt::RichText || (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
    return isRich ? QTextDocumentFragment::fromHtml(label.text()).toPlainText() : label.text();
}

class AccessibleClickableLabel : public QAccessibleWidget
{
public:
    explicit AccessibleClickableLabel(ClickableLabel *label)
        : QAccessibleWidget(label, QAccessible::Button)
        , m_label(label)
    {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? nameOf(*m_label) : QAccessibleWidget::text(kind);
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (m_label->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        if (name == pressAction())
            m_label->click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    ClickableLabel *m_label;
};

class AccessibleStepBox : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleStepBox(LeftRightStepBox *box)
        : QAccessibleWidget(box, QAccessible::SpinBox)
        , m_box(box)
    {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_box->text() : QAccessibleWidget::text(kind);
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return m_box->value(); }
    QVariant minimumValue() const override { return m_box->minimum(); }
    QVariant maximumValue() const override { return m_box->maximum(); }
    QVariant minimumStepSize() const override { return m_box->singleStep(); }
    void setCurrentValue(const QVariant &value) override
    {
        if (m_box->isEnabled())
            m_box->setValue(value.toInt());
    }

private:
    LeftRightStepBox *m_box;
};

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
    void setCurrentValue(const QVariant &) override {} // it only shows

private:
    [[nodiscard]] bool isKnown() const
    {
        return m_indicator->isAnimated() && m_indicator->percent() != ProgressIndicator::kTurning;
    }

    ProgressIndicator *m_indicator;
};

// Asked for every class from the most derived one upwards, with the name of the one in turn.
QAccessibleInterface *createAccessible(const QString &className, QObject *object)
{
    if (className == QLatin1String("ClickableLabel"))
        return new AccessibleClickableLabel(static_cast<ClickableLabel *>(object));
    if (className == QLatin1String("LeftRightStepBox"))
        return new AccessibleStepBox(static_cast<LeftRightStepBox *>(object));
    if (className == QLatin1String("ProgressIndicator"))
        return new AccessibleProgress(static_cast<ProgressIndicator *>(object));
    return nullptr;
}

} // namespace

void installKitAccessibility()
{
    QAccessible::installFactory(createAccessible); // one that is there already is not installed again
}
