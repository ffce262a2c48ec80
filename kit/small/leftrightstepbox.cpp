#include "kit/small/leftrightstepbox.h"

#include "kit/logging.h"
#include "kit/material/qtmaterialpaint.h"
#include "kit/material/qtmaterialstyle.h"
#include "kit/small/accessibles.h"

#include <QAccessible>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpressionValidator>
#include <QStyle>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int kArrowWidth = 48; // pixels: hit with a glove on
constexpr int kSmallestArrowWidth = 30;
constexpr int kHeight = 44;
constexpr int kSmallestHeight = 30;
constexpr int kPadding = 8;
constexpr double kRadius = 3.0;
constexpr int kFirstRepeat = 400; // ms
constexpr int kRepeat = 80;       // ms
constexpr int kRepeatsBeforePages = 25;
constexpr int kWheelStep = 120; // eighths of a degree
constexpr int kMostDigits = 11; // with the sign

QColor themeColor(const char *key)
{
    return QtMaterialPaint::themeColor(QLatin1String(key));
}

} // namespace

LeftRightStepBox::LeftRightStepBox(QWidget *parent)
    : QWidget(parent)
    , m_editor(new QLineEdit(this))
{
    installKitAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_editor->hide();
    m_editor->setAlignment(Qt::AlignCenter);
    m_editor->setFrame(false);
    m_editor->setMaxLength(kMostDigits);
    m_editor->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("-?[0-9]*")), m_editor));
    m_editor->installEventFilter(this);
    connect(m_editor, &QLineEdit::editingFinished, this, &LeftRightStepBox::finishEditing);
    connect(&m_repeat, &QTimer::timeout, this, &LeftRightStepBox::repeat);
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
        closeEditor();
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
    m_prefix = prefix;
    contentsChanged();
}

void LeftRightStepBox::setSuffix(const QString &suffix)
{
    m_suffix = suffix;
    contentsChanged();
}

void LeftRightStepBox::setTotalShown(bool shown)
{
    m_totalShown = shown;
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
    stepByAmount(qint64(steps) * m_singleStep);
}

void LeftRightStepBox::stepByAmount(qint64 amount)
{
    if (!isEmpty())
        setValue(static_cast<int>(std::clamp<qint64>(m_value + amount, m_minimum, m_maximum)));
}

QString LeftRightStepBox::textFor(int value) const
{
    const QString number = QString::number(value);
    return m_prefix + (m_totalShown ? number + QLatin1String(" / ") + QString::number(m_maximum) : number) + m_suffix;
}

QString LeftRightStepBox::text() const
{
    return isEmpty() ? QStringLiteral("–") : textFor(m_value);
}

bool LeftRightStepBox::isEditing() const
{
    return !m_editor->isHidden();
}

int LeftRightStepBox::widestText() const
{
    const QFontMetrics metrics = fontMetrics();
    return std::max(metrics.horizontalAdvance(textFor(m_minimum)), metrics.horizontalAdvance(textFor(m_maximum)));
}

QSize LeftRightStepBox::sizeHint() const
{
    return {widestText() + 2 * (kArrowWidth + kPadding), std::max(kHeight, fontMetrics().height() + kPadding)};
}

QSize LeftRightStepBox::minimumSizeHint() const
{
    return {widestText() + 2 * (kSmallestArrowWidth + 2), std::max(kSmallestHeight, fontMetrics().height() + 2)};
}

void LeftRightStepBox::contentsChanged()
{
    updateGeometry();
    update();
}

QRect LeftRightStepBox::areaOf(Part part) const
{
    const int room = (width() - widestText()) / 2 - kPadding;
    const int arrow = std::clamp(room, kSmallestArrowWidth, kArrowWidth);
    QRect area;
    if (part == Part::Previous)
        area = {0, 0, arrow, height()};
    else if (part == Part::Next)
        area = {width() - arrow, 0, arrow, height()};
    else if (part == Part::Number)
        area = {arrow, 0, width() - 2 * arrow, height()};
    return QStyle::visualRect(layoutDirection(), rect(), area);
}

LeftRightStepBox::Part LeftRightStepBox::partAt(const QPoint &position) const
{
    for (const Part part : {Part::Previous, Part::Number, Part::Next}) {
        if (areaOf(part).contains(position))
            return part;
    }
    return Part::None;
}

bool LeftRightStepBox::canStep(Part part) const
{
    return isEnabled() && !isEmpty() && (part == Part::Previous ? m_value > m_minimum : m_value < m_maximum);
}

void LeftRightStepBox::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    finishEditing();
    m_pressed = partAt(event->pos());
    setHovered(m_pressed);
    update();
    if (m_pressed != Part::Previous && m_pressed != Part::Next)
        return;
    m_repetitions = 0;
    m_repeat.start(kFirstRepeat);
    stepPressed(m_singleStep);
}

void LeftRightStepBox::stepPressed(int amount)
{
    stepByAmount(m_pressed == Part::Previous ? -qint64(amount) : qint64(amount));
    if (!canStep(m_pressed))
        m_repeat.stop();
}

void LeftRightStepBox::repeat()
{
    m_repeat.setInterval(kRepeat);
    if (m_hovered != m_pressed)
        return; // the mouse was drawn away; it may come back
    ++m_repetitions;
    stepPressed(m_repetitions > kRepeatsBeforePages ? m_pageStep : m_singleStep);
}

void LeftRightStepBox::release()
{
    m_repeat.stop();
    m_pressed = Part::None;
    update();
}

void LeftRightStepBox::mouseMoveEvent(QMouseEvent *event)
{
    setHovered(partAt(event->pos()));
}

void LeftRightStepBox::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const bool isNumberClicked = m_pressed == Part::Number && partAt(event->pos()) == Part::Number;
    release();
    if (isNumberClicked)
        startEditing(QString());
}

void LeftRightStepBox::setHovered(Part part)
{
    if (part == m_hovered)
        return;
    m_hovered = part;
    setCursor(part == Part::Number && !isEmpty() ? Qt::IBeamCursor : Qt::ArrowCursor);
    update();
}

bool LeftRightStepBox::event(QEvent *event)
{
    if (event->type() == QEvent::Leave)
        setHovered(Part::None);
    return QWidget::event(event);
}

void LeftRightStepBox::wheelEvent(QWheelEvent *event)
{
    if ((!hasFocus() && !isEditing()) || isEmpty()) {
        event->ignore(); // the page scrolls
        return;
    }
    finishEditing();
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
        stepByAmount(-rightward);
        return true;
    case Qt::Key_Right:
        stepByAmount(rightward);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        stepBy(key == Qt::Key_Up ? 1 : -1);
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        stepByAmount(key == Qt::Key_PageUp ? m_pageStep : -m_pageStep);
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

/// With no text the present number is there to be replaced.
void LeftRightStepBox::startEditing(const QString &text)
{
    if (isEmpty())
        return;
    m_editor->setText(text.isEmpty() ? QString::number(m_value) : text);
    m_editor->setGeometry(areaOf(Part::Number).adjusted(2, 2, -2, -2));
    m_editor->setAccessibleName(accessibleName());
    m_editor->show();
    m_editor->setFocus();
    if (text.isEmpty())
        m_editor->selectAll();
}

void LeftRightStepBox::finishEditing()
{
    if (!isEditing())
        return;
    bool isNumber = false;
    const qint64 typed = m_editor->text().toLongLong(&isNumber);
    closeEditor();
    if (isNumber && !isEmpty())
        setValue(static_cast<int>(std::clamp<qint64>(typed, m_minimum, m_maximum)));
}

void LeftRightStepBox::closeEditor()
{
    m_editor->setText(QString()); // or losing the focus would take the number
    if (m_editor->hasFocus())
        setFocus();
    m_editor->hide();
}

bool LeftRightStepBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_editor || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Escape) {
        closeEditor();
        return true;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) { // not for the button that a dialog has for this key
        finishEditing();
        return true;
    }
    if (key != Qt::Key_Up && key != Qt::Key_Down && key != Qt::Key_PageUp && key != Qt::Key_PageDown)
        return QWidget::eventFilter(watched, event); // the others move within the text
    finishEditing();
    return stepByKey(key);
}

void LeftRightStepBox::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void LeftRightStepBox::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    m_wheelRest = 0;
    release();
}

void LeftRightStepBox::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    release();
    closeEditor();
}

void LeftRightStepBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange) {
        release();
        closeEditor();
    } else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        contentsChanged();
    }
    QWidget::changeEvent(event);
}

void LeftRightStepBox::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_editor->setGeometry(areaOf(Part::Number).adjusted(2, 2, -2, -2));
}

void LeftRightStepBox::drawArrow(QPainter &painter, Part part) const
{
    const bool isActive = canStep(part);
    QColor fill = isActive ? themeColor("primary1") : themeColor("disabled3");
    if (isActive && part == m_hovered)
        fill = QtMaterialPaint::between(fill, Qt::black, m_pressed == part ? 0.3 : 0.12);
    const QRectF area = areaOf(part);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(area, kRadius, kRadius);
    const bool isLeftward = (part == Part::Previous) == (layoutDirection() == Qt::LeftToRight);
    const double half = std::min(area.width(), area.height()) * 0.22;
    const double tip = isLeftward ? -half * 0.55 : half * 0.55;
    const QPointF middle = area.center();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(isActive ? themeColor("alternateText") : themeColor("accent3"), 3.0, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(
        QVector<QPointF>{middle + QPointF(-tip, -half), middle + QPointF(tip, 0.0), middle + QPointF(-tip, half)});
}

void LeftRightStepBox::drawNumber(QPainter &painter) const
{
    const QRect area = areaOf(Part::Number).adjusted(2, 0, -2, 0);
    const bool isActive = isEnabled() && !isEmpty();
    painter.setPen(isActive ? palette().color(QPalette::WindowText) : themeColor("accent3"));
    painter.drawText(area, Qt::AlignCenter, fontMetrics().elidedText(text(), Qt::ElideRight, area.width()));
}

void LeftRightStepBox::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(themeColor("border"), 1.0));
    painter.setBrush(themeColor("canvas"));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    drawArrow(painter, Part::Previous);
    drawArrow(painter, Part::Next);
    if (!isEditing())
        drawNumber(painter);
    if (hasFocus() || isEditing())
        QtMaterialPaint::drawFocusRing(painter, areaOf(Part::Number), kRadius, themeColor("primary1"));
}
