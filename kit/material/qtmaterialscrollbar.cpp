#include "kit/material/qtmaterialscrollbar.h"

#include "kit/material/qtmaterialpaint.h"
#include "kit/material/qtmaterialstyle.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

using QtMaterialPaint::themeColor;
using Part = QtMaterialScrollTrack::Part;
using State = QtMaterialInteractionStateMachine::State;

constexpr int kWidenTime = 150;  // ms
constexpr int kLeastExtent = 18; // pixels across
constexpr int kLeastThumb = 48;  // pixels along, for a finger in a glove
constexpr int kSlim = 6;         // pixels
constexpr int kEdge = 3;         // pixels beside the wide thumb
constexpr int kEnd = 2;          // pixels at both ends

} // namespace

QtMaterialScrollBar::QtMaterialScrollBar(QWidget *parent)
    : QtMaterialScrollBar(Qt::Vertical, parent)
{}

QtMaterialScrollBar::QtMaterialScrollBar(Qt::Orientation orientation, QWidget *parent)
    : QScrollBar(orientation, parent)
    , m_motion(this, 1)
{
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    connect(&QtMaterialStyle::instance(), &QtMaterialStyle::themeChanged, this, qOverload<>(&QWidget::update));
}

// --- Sizes ---

int QtMaterialScrollBar::extent() const
{
    return std::max(kLeastExtent, fontMetrics().height());
}

QSize QtMaterialScrollBar::sizeHint() const
{
    ensurePolished();
    const QSize upright(extent(), 2 * (kLeastThumb + kEnd)); // with the thumb at full length
    return (isHorizontal() ? upright.transposed() : upright).expandedTo(minimumSize());
}

QSize QtMaterialScrollBar::minimumSizeHint() const
{
    return sizeHint();
}

QtMaterialScrollTrack QtMaterialScrollBar::track() const
{
    QtMaterialScrollTrack result;
    result.length = std::max(0, (isHorizontal() ? width() : height()) - 2 * kEnd);
    result.leastThumb = std::max(kLeastThumb, 2 * fontMetrics().height());
    result.minimum = minimum();
    result.maximum = maximum();
    result.page = pageStep();
    return result;
}

bool QtMaterialScrollBar::isMirrored() const
{
    return invertedAppearance() != (isHorizontal() && isRightToLeft());
}

int QtMaterialScrollBar::along(const QPoint &position) const
{
    const int place = (isHorizontal() ? position.x() : position.y()) - kEnd;
    return isMirrored() ? track().length - 1 - place : place;
}

int QtMaterialScrollBar::thickness() const
{
    const int wide = std::max(kSlim, extent() - 2 * kEdge);
    return kSlim + qRound((wide - kSlim) * m_motion.value(0));
}

QRect QtMaterialScrollBar::barRect(int start, int length, int thickness) const
{
    const int first = kEnd + (isMirrored() ? track().length - start - length : start);
    const int across = ((isHorizontal() ? height() : width()) - thickness) / 2;
    return isHorizontal() ? QRect(first, across, length, thickness) : QRect(across, first, thickness, length);
}

QRect QtMaterialScrollBar::thumbRect() const
{
    const QtMaterialScrollTrack bar = track();
    if (!bar.isNeeded())
        return {};
    return barRect(bar.thumbStart(sliderPosition()), bar.thumbLength(), thickness());
}

// --- State ---

void QtMaterialScrollBar::setAutoHide(bool autoHide)
{
    m_autoHide = autoHide;
    hideIfUnneeded();
}

void QtMaterialScrollBar::hideIfUnneeded()
{
    if (isWindow()) // as a top-level widget it would open a window
        return;
    const bool wanted = m_autoHide && maximum() <= minimum();
    // Who hid the bar has to show it again.
    const bool hiddenByOthers = isHidden() && testAttribute(Qt::WA_WState_ExplicitShowHide) && !m_hidByItself;
    if (wanted == m_hidByItself || hiddenByOthers)
        return;
    m_hidByItself = wanted;
    setVisible(!wanted);
}

void QtMaterialScrollBar::showState()
{
    const State state = m_state.state();
    const bool wide = state == State::Hovered || state == State::Pressed || state == State::Focused;
    m_motion.moveTo(0, wide ? 1.0 : 0.0, kWidenTime);
    update();
}

bool QtMaterialScrollBar::event(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::Hide)
        endPress();
    if (m_state.apply(*event, isEnabled()))
        showState();
    const bool handled = QScrollBar::event(event);
    // The base class and styles set it, but beside the thumb the bar is transparent.
    if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange)
        setAttribute(Qt::WA_OpaquePaintEvent, false);
    else if (event->type() == QEvent::ParentChange)
        hideIfUnneeded();
    return handled;
}

void QtMaterialScrollBar::sliderChange(SliderChange change)
{
    QScrollBar::sliderChange(change);
    if (change == SliderRangeChange)
        hideIfUnneeded();
    // Pages are turned until the thumb reaches the finger.
    if (repeatAction() != SliderNoAction && track().partAt(along(m_pressed), sliderPosition()) == Part::Thumb)
        setRepeatAction(SliderNoAction);
}

// --- Mouse ---

void QtMaterialScrollBar::mousePressEvent(QMouseEvent *event)
{
    const QtMaterialScrollTrack bar = track();
    const int place = along(event->pos());
    const bool middle = event->button() == Qt::MiddleButton
                        && style()->styleHint(QStyle::SH_ScrollBar_MiddleClickAbsolutePosition, nullptr, this) != 0;
    if (!bar.isNeeded() || (event->button() != Qt::LeftButton && !middle)) {
        event->ignore();
        return;
    }
    m_pressed = event->pos();
    const Part part = bar.partAt(place, sliderPosition());
    if (middle || part == Part::Thumb) {
        m_grip = middle ? bar.thumbLength() / 2 : place - bar.thumbStart(sliderPosition());
        setSliderDown(true);
        m_state.setPressed(true);
        drag(event->pos());
    } else {
        const SliderAction action = part == Part::After ? SliderPageStepAdd : SliderPageStepSub;
        triggerAction(action);
        // The first page may already have moved the thumb to the finger.
        if (track().partAt(place, sliderPosition()) == part)
            setRepeatAction(action);
    }
    showState();
}

void QtMaterialScrollBar::drag(const QPoint &position)
{
    setSliderPosition(track().valueAt(along(position) - m_grip));
}

void QtMaterialScrollBar::mouseMoveEvent(QMouseEvent *event)
{
    m_pressed = event->pos();
    if (isSliderDown())
        drag(event->pos());
}

void QtMaterialScrollBar::mouseReleaseEvent(QMouseEvent *event)
{
    Q_UNUSED(event)
    endPress();
    showState();
}

void QtMaterialScrollBar::endPress()
{
    setRepeatAction(SliderNoAction);
    m_state.setPressed(false);
    if (isSliderDown())
        setSliderDown(false);
}

// --- Painting ---

QColor QtMaterialScrollBar::thumbColor() const
{
    switch (m_state.state()) {
    case State::Disabled:
        return themeColor(QLatin1String("disabled2"));
    case State::Pressed:
        return themeColor(QLatin1String("primary2"));
    case State::Hovered:
    case State::Focused:
        return themeColor(QLatin1String("primary1"));
    case State::Resting:
        break;
    }
    return themeColor(QLatin1String("primary3"));
}

void QtMaterialScrollBar::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const qreal radius = thickness() / 2.0;
    if (m_motion.value(0) > 0.0) {
        painter.setOpacity(m_motion.value(0));
        painter.setBrush(themeColor(QLatin1String("border")));
        painter.drawRoundedRect(barRect(0, track().length, thickness()), radius, radius);
        painter.setOpacity(1.0);
    }
    const QRect thumb = thumbRect();
    if (thumb.isEmpty())
        return;
    painter.setBrush(thumbColor());
    painter.drawRoundedRect(thumb, radius, radius);
    if (m_state.isFocusShown())
        QtMaterialPaint::drawFocusRing(painter, QRectF(thumb).adjusted(2, 2, -2, -2), radius - 2.0,
                                       themeColor(QLatin1String("alternateText")));
}
