#include "kit/material/qtmaterialtoggle.h"

#include "kit/material/qtmaterialpaint.h"
#include "kit/material/qtmaterialstyle.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionButton>

#include <algorithm>

namespace {

using QtMaterialPaint::themeColor;

enum Track { kThumb, kHalo, kTrackCount };

constexpr int kThumbTime = 180; // ms from off to on
constexpr int kHaloTime = 150;  // ms
constexpr qreal kHaloOpacity = 0.2;
constexpr int kTouchHeight = 40; // pixels that a finger in a glove finds
constexpr int kEdge = 5;         // pixels around the track, for the halo and the focus ring
constexpr int kLabelGap = 10;

} // namespace

QtMaterialToggle::QtMaterialToggle(QWidget *parent)
    : QCheckBox(parent)
    , m_motion(this, kTrackCount)
{
    setMouseTracking(false);
    connect(this, &QCheckBox::toggled, this, &QtMaterialToggle::showState);
    connect(this, &QCheckBox::pressed, this, [this] {
        m_interaction.setPressed(true);
        showState();
    });
    connect(this, &QCheckBox::released, this, [this] {
        m_interaction.setPressed(false);
        showState();
    });
    connect(&QtMaterialStyle::instance(), &QtMaterialStyle::themeChanged, this, qOverload<>(&QWidget::update));
}

QtMaterialToggle::QtMaterialToggle(const QString &label, QWidget *parent)
    : QtMaterialToggle(parent)
{
    setText(label);
}

// --- Sizes ---

QSize QtMaterialToggle::trackSize() const
{
    const int height = std::max(20, fontMetrics().height() * 6 / 5) / 2 * 2;
    return {height * 7 / 4, height};
}

QSize QtMaterialToggle::touchSize() const
{
    return {trackSize().width() + 2 * kEdge, std::max(kTouchHeight, trackSize().height() + 2 * kEdge)};
}

QSize QtMaterialToggle::sizeHint() const
{
    ensurePolished();
    const QSize label = fontMetrics().size(Qt::TextShowMnemonic, text());
    const int labelWidth = text().isEmpty() ? 0 : kLabelGap + label.width();
    return QSize(touchSize().width() + labelWidth, std::max(touchSize().height(), label.height()))
        .expandedTo(minimumSize());
}

QSize QtMaterialToggle::minimumSizeHint() const
{
    return sizeHint();
}

QRect QtMaterialToggle::trackRect() const
{
    const QRect area = rect().adjusted(kEdge, 0, -kEdge, 0);
    return QStyle::alignedRect(layoutDirection(), Qt::AlignLeading | Qt::AlignVCenter, trackSize(), area);
}

QRect QtMaterialToggle::labelRect() const
{
    const int taken = kEdge + trackSize().width() + kLabelGap;
    return QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(taken, 0, -kEdge, 0));
}

// --- What the user does ---

bool QtMaterialToggle::isDragged() const
{
    return m_hand.state() == QtMaterialToggleStateMachine::State::Dragged;
}

qreal QtMaterialToggle::towardsOn(const QPointF &position) const
{
    return isLeftToRight() ? position.x() : -position.x();
}

void QtMaterialToggle::showState()
{
    using State = QtMaterialInteractionStateMachine::State;
    m_hand.setChecked(isChecked());
    if (isDragged())
        m_motion.jumpTo(kThumb, m_hand.thumb());
    else
        m_motion.moveTo(kThumb, m_hand.thumb(), kThumbTime);
    const State state = m_interaction.state();
    const bool touched = state == State::Hovered || state == State::Focused;
    const bool held = state == State::Pressed || isDragged();
    m_motion.moveTo(kHalo, held ? 1.0 : touched ? 0.6 : 0.0, kHaloTime);
    update();
}

bool QtMaterialToggle::event(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::Hide)
        m_hand.release();
    if (m_interaction.apply(*event, isEnabled()))
        showState();
    const bool polished = event->type() == QEvent::Polish || event->type() == QEvent::StyleChange;
    const bool handled = QCheckBox::event(event);
    if (polished) // only now the minimum size of the style sheet is known, which layouts prefer to minimumSizeHint()
        setMinimumSize(minimumSize().expandedTo(touchSize()));
    return handled;
}

void QtMaterialToggle::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_hand.press(towardsOn(event->localPos()), trackSize().width() - trackSize().height(),
                     QApplication::startDragDistance());
    QCheckBox::mousePressEvent(event);
}

void QtMaterialToggle::mouseMoveEvent(QMouseEvent *event)
{
    m_hand.move(towardsOn(event->localPos()));
    if (isDragged())
        showState();
    else
        QCheckBox::mouseMoveEvent(event);
}

void QtMaterialToggle::mouseReleaseEvent(QMouseEvent *event)
{
    // The base class clicks if hitButton() returns true, which for a drag it does only if the drag changes the state.
    // A slot that is called by the click may delete the toggle.
    const QPointer<QtMaterialToggle> self(this);
    QCheckBox::mouseReleaseEvent(event);
    if (self.isNull() || event->button() != Qt::LeftButton)
        return;
    m_hand.release();
    m_interaction.setPressed(false);
    showState();
}

void QtMaterialToggle::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && !event->isAutoRepeat())
        click();
    else if (!enter)
        QCheckBox::keyPressEvent(event);
}

bool QtMaterialToggle::hitButton(const QPoint &position) const
{
    if (isDragged())
        return m_hand.wouldChange();
    // Without the empty space beside the label in a wide layout.
    const QSize used(std::min(width(), sizeHint().width()), height());
    return QStyle::alignedRect(layoutDirection(), Qt::AlignLeading, used, rect()).contains(position);
}

// toggled() does not arrive while signals are blocked.
void QtMaterialToggle::checkStateSet()
{
    QCheckBox::checkStateSet();
    showState();
}

void QtMaterialToggle::nextCheckState()
{
    m_hand.release(); // the thumb moves on from where it was dragged to
    QCheckBox::nextCheckState();
}

// --- Painting ---

void QtMaterialToggle::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintTrack(painter);
    if (!text().isEmpty())
        paintLabel(painter);
    if (m_interaction.isFocusShown()) {
        const QRectF around = QRectF(trackRect()).adjusted(-kEdge, -kEdge, kEdge, kEdge);
        QtMaterialPaint::drawFocusRing(painter, around, around.height() / 2.0, themeColor(QLatin1String("primary1")));
    }
}

void QtMaterialToggle::paintTrack(QPainter &painter) const
{
    const QRectF track(trackRect());
    const qreal on = thumbPosition();
    const QColor empty = themeColor(QLatin1String("canvas"));
    const QLatin1String offKey = isEnabled() ? QLatin1String("primary3") : QLatin1String("disabled");
    const QLatin1String onKey = isEnabled() ? QLatin1String("primary1") : QLatin1String("disabled");
    const QColor outline = QtMaterialPaint::blended(themeColor(offKey), empty);
    const QColor filled = QtMaterialPaint::blended(themeColor(onKey), empty);
    painter.setPen(QPen(QtMaterialPaint::between(outline, filled, on), 2.0));
    painter.setBrush(QtMaterialPaint::between(empty, filled, on));
    const qreal radius = track.height() / 2.0;
    painter.drawRoundedRect(track.adjusted(1, 1, -1, -1), radius - 1.0, radius - 1.0);

    const qreal way = (track.width() - track.height()) * (isLeftToRight() ? on : 1.0 - on);
    const QPointF thumb(track.left() + radius + way, track.center().y());
    const QColor thumbColor = QtMaterialPaint::between(outline, themeColor(QLatin1String("alternateText")), on);
    paintHalo(painter, thumb, thumbColor);
    painter.setPen(Qt::NoPen);
    painter.setBrush(thumbColor);
    const qreal size = radius * (0.5 + 0.2 * on);
    painter.drawEllipse(thumb, size, size);
}

void QtMaterialToggle::paintHalo(QPainter &painter, const QPointF &thumb, const QColor &color) const
{
    const qreal halo = m_motion.value(kHalo);
    if (halo <= 0.0)
        return;
    const qreal radius = (trackSize().height() / 2.0 + kEdge) * halo;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QtMaterialPaint::withOpacity(color, kHaloOpacity));
    painter.drawEllipse(thumb, radius, radius);
}

void QtMaterialToggle::paintLabel(QPainter &painter) const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const bool underlined = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) != 0;
    const int flags = underlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    painter.setPen(themeColor(isEnabled() ? QLatin1String("text") : QLatin1String("disabled")));
    const QRect place = labelRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width(), Qt::TextShowMnemonic);
    painter.drawText(place,
                     flags | static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading))
                         | Qt::AlignVCenter,
                     shown);
}
