#include "kit/small/leftrightstepbox.h"

#include "kit/logging.h"
#include "kit/material/qtmaterialpaint.h"
#include "kit/material/qtmaterialstyle.h"
#include "kit/small/accessiblefactory.h"
#include "kit/small/stepboxeditor.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int kWheelStep = 120; // eighths of a degree

/// To screen readers it is a spin box.
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

} // namespace

LeftRightStepBox::LeftRightStepBox(QWidget *parent)
    : QWidget(parent)
    , m_editor(new StepBoxEditor(this))
{
    installAccessible<LeftRightStepBox, AccessibleStepBox>();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(m_editor, &StepBoxEditor::numberEntered, this, &LeftRightStepBox::goTo);
    connect(m_editor, &StepBoxEditor::stepKeyPressed, this, &LeftRightStepBox::stepByKey);
    connect(&m_repeat, &HoldRepeat::due, this, [this] {
        if (m_hovered == m_pressed) // otherwise the mouse was drawn away; it may come back
            stepPressed(m_repeat.countStep() ? m_pageStep : m_singleStep);
    });
    connect(&QtMaterialStyle::instance(), &QtMaterialStyle::themeChanged, this, qOverload<>(&QWidget::update));
}

void LeftRightStepBox::setRange(int minimum, int maximum)
{
    if (minimum == m_minimum && maximum == m_maximum)
        return;
    m_minimum = minimum;
    m_maximum = maximum;
    if (isEmpty()) {
        release();
        m_editor->dismiss();
    }
    contentsChanged();
    setValue(m_value);
}

void LeftRightStepBox::setSingleStep(int step)
{
    m_singleStep = std::max(step, 1);
}

void LeftRightStepBox::setPageStep(int step)
{
    m_pageStep = std::max(step, 1);
}

void LeftRightStepBox::setPrefix(const QString &prefix)
{
    m_text.prefix = prefix;
    contentsChanged();
}

void LeftRightStepBox::setSuffix(const QString &suffix)
{
    m_text.suffix = suffix;
    contentsChanged();
}

void LeftRightStepBox::setTotalShown(bool shown)
{
    m_text.totalShown = shown;
    contentsChanged();
}

void LeftRightStepBox::setValue(int value)
{
    const int next = isEmpty() ? m_minimum : std::clamp(value, m_minimum, m_maximum);
    if (next == m_value)
        return;
    m_value = next;
    update();
    QAccessibleValueChangeEvent change(this, m_value);
    QAccessible::updateAccessibility(&change);
    qCDebug(lcKit) << "emit valueChanged(int)" << m_value;
    emit valueChanged(m_value);
}

void LeftRightStepBox::stepBy(int steps)
{
    goTo(m_value + qint64(steps) * m_singleStep);
}

/// Like setValue(), for numbers beyond those of an int.
void LeftRightStepBox::goTo(qint64 value)
{
    if (!isEmpty())
        setValue(static_cast<int>(std::clamp<qint64>(value, m_minimum, m_maximum)));
}

QString LeftRightStepBox::text() const
{
    return isEmpty() ? QStringLiteral("–") : m_text.of(m_value, m_maximum);
}

bool LeftRightStepBox::isEditing() const
{
    return !m_editor->isHidden();
}

QSize LeftRightStepBox::textSize() const
{
    const QFontMetrics metrics = fontMetrics();
    return {m_text.widest(metrics, m_minimum, m_maximum), metrics.height()};
}

QSize LeftRightStepBox::sizeHint() const
{
    return StepBoxLook::usualSize(textSize());
}

QSize LeftRightStepBox::minimumSizeHint() const
{
    return StepBoxLook::smallestSize(textSize());
}

void LeftRightStepBox::contentsChanged()
{
    updateGeometry();
    update();
}

StepBoxLook LeftRightStepBox::look() const
{
    return {rect(), layoutDirection(), textSize().width()};
}

bool LeftRightStepBox::canStep(StepBoxPart part) const
{
    return isEnabled() && !isEmpty() && (part == StepBoxPart::Previous ? m_value > m_minimum : m_value < m_maximum);
}

void LeftRightStepBox::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_editor->finish(); // a number that was typed counts before the step
    m_pressed = look().partAt(event->pos());
    setHovered(m_pressed);
    update();
    if (m_pressed != StepBoxPart::Previous && m_pressed != StepBoxPart::Next)
        return;
    m_repeat.start();
    stepPressed(m_singleStep);
}

void LeftRightStepBox::stepPressed(int amount)
{
    goTo(m_value + (m_pressed == StepBoxPart::Previous ? -qint64(amount) : qint64(amount)));
    if (!canStep(m_pressed))
        m_repeat.stop();
}

void LeftRightStepBox::release()
{
    m_repeat.stop();
    m_pressed = StepBoxPart::None;
    update();
}

void LeftRightStepBox::mouseMoveEvent(QMouseEvent *event)
{
    setHovered(look().partAt(event->pos()));
}

void LeftRightStepBox::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const bool isNumberClicked = m_pressed == StepBoxPart::Number && look().partAt(event->pos()) == StepBoxPart::Number;
    release();
    if (isNumberClicked)
        startEditing(QString());
}

void LeftRightStepBox::setHovered(StepBoxPart part)
{
    if (part == m_hovered)
        return;
    m_hovered = part;
    setCursor(part == StepBoxPart::Number && !isEmpty() ? Qt::IBeamCursor : Qt::ArrowCursor);
    update();
}

bool LeftRightStepBox::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    switch (event->type()) {
    case QEvent::Leave:
        setHovered(StepBoxPart::None);
        break;
    case QEvent::FocusOut:
        m_wheelRest = 0;
        release();
        break;
    case QEvent::Hide:
    case QEvent::EnabledChange:
        release();
        m_editor->dismiss();
        break;
    case QEvent::Resize:
        placeEditor();
        break;
    case QEvent::FontChange:
    case QEvent::StyleChange:
        contentsChanged();
        break;
    default:
        break;
    }
    return handled;
}

void LeftRightStepBox::wheelEvent(QWheelEvent *event)
{
    if ((!hasFocus() && !isEditing()) || isEmpty()) {
        event->ignore(); // the page scrolls
        return;
    }
    m_editor->finish();
    // Fine wheels and touch pads report a step in several events.
    m_wheelRest += event->angleDelta().y();
    stepBy(m_wheelRest / kWheelStep);
    m_wheelRest %= kWheelStep;
    event->accept();
}

bool LeftRightStepBox::stepByKey(int key)
{
    const int rightward = layoutDirection() == Qt::RightToLeft ? -m_singleStep : m_singleStep;
    switch (key) {
    case Qt::Key_Left:
        goTo(qint64(m_value) - rightward);
        return true;
    case Qt::Key_Right:
        goTo(qint64(m_value) + rightward);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        stepBy(key == Qt::Key_Up ? 1 : -1);
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        goTo(qint64(m_value) + (key == Qt::Key_PageUp ? m_pageStep : -m_pageStep));
        return true;
    case Qt::Key_Home:
    case Qt::Key_End:
        setValue(key == Qt::Key_Home ? m_minimum : m_maximum);
        return true;
    default:
        return false;
    }
}

void LeftRightStepBox::keyPressEvent(QKeyEvent *event)
{
    if (stepByKey(event->key()))
        return;
    const QString typed = event->text();
    const bool isDigit = typed.size() == 1 && typed >= QLatin1String("0") && typed <= QLatin1String("9");
    const bool isNumber = isDigit || (m_minimum < 0 && typed == QLatin1String("-"));
    if (isNumber && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier)
        startEditing(typed);
    else if (event->key() == Qt::Key_F2)
        startEditing(QString());
    else
        QWidget::keyPressEvent(event);
}

/// Without a text the present number is offered to be replaced.
void LeftRightStepBox::startEditing(const QString &text)
{
    if (isEmpty())
        return;
    placeEditor();
    m_editor->setAccessibleName(accessibleName());
    m_editor->open(text.isEmpty() ? QString::number(m_value) : text, text.isEmpty());
}

void LeftRightStepBox::placeEditor()
{
    m_editor->setGeometry(look().areaOf(StepBoxPart::Number).adjusted(2, 2, -2, -2));
}

StepBoxLook::Arrow LeftRightStepBox::arrowLook(StepBoxPart part) const
{
    if (!canStep(part))
        return StepBoxLook::Arrow::Inactive;
    if (part != m_hovered)
        return StepBoxLook::Arrow::Resting;
    return part == m_pressed ? StepBoxLook::Arrow::Pressed : StepBoxLook::Arrow::Hovered;
}

void LeftRightStepBox::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const StepBoxLook shown = look();
    shown.drawFrame(painter);
    for (const StepBoxPart part : {StepBoxPart::Previous, StepBoxPart::Next})
        shown.drawArrow(painter, part, arrowLook(part));
    if (!isEditing()) {
        const QRect area = shown.areaOf(StepBoxPart::Number).adjusted(2, 0, -2, 0);
        const bool isActive = isEnabled() && !isEmpty();
        painter.setPen(isActive ? palette().color(QPalette::WindowText)
                                : QtMaterialPaint::themeColor(QLatin1String("accent3")));
        painter.drawText(area, Qt::AlignCenter, fontMetrics().elidedText(text(), Qt::ElideRight, area.width()));
    }
    if (hasFocus() || isEditing())
        shown.drawFocus(painter);
}
