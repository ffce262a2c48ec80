#include "kit/material/qtmaterialabstractbutton.h"

#include "kit/logging.h"
#include "kit/material/qtmaterialpaint.h"
#include "kit/material/qtmaterialripple.h"
#include "kit/material/qtmaterialstyle.h"
#include "kit/material/qtmaterialtheme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>

#include <algorithm>

namespace {

enum Track { kTint, kLift, kTrackCount };

constexpr int kStateTime = 150;  // ms to change from the look of one state to that of another
constexpr int kTouchHeight = 40; // pixels that a finger in a glove finds
constexpr int kLeastWidth = 64;
constexpr int kSidePadding = 16;
constexpr int kIconGap = 8;
constexpr QSize kIconSize(24, 24);
constexpr qreal kWaveOpacity = 0.18;

} // namespace

QtMaterialAbstractButton::QtMaterialAbstractButton(const QMargins &margins, QWidget *parent)
    : QPushButton(parent)
    , m_margins(margins)
    , m_motion(this, kTrackCount)
    , m_ripple(new QtMaterialRipple(this))
{
    setIconSize(kIconSize);
    placeRipple();
    connect(this, &QPushButton::pressed, this, &QtMaterialAbstractButton::onPressed);
    connect(this, &QPushButton::released, this, &QtMaterialAbstractButton::onReleased);
    connect(&QtMaterialStyle::instance(), &QtMaterialStyle::themeChanged, this, qOverload<>(&QWidget::update));
}

void QtMaterialAbstractButton::setColorKey(const QString &key)
{
    if (!QtMaterialTheme::keys().contains(key)) {
        qCWarning(lcKit) << "ERROR: no such theme colour! key=" << key;
        return;
    }
    m_colorKey = key;
    update();
}

void QtMaterialAbstractButton::setCornerRadius(int radius)
{
    m_cornerRadius = std::max(0, radius);
    placeRipple();
    update();
}

void QtMaterialAbstractButton::setIconTinted(bool tinted)
{
    m_iconTinted = tinted;
    update();
}

bool QtMaterialAbstractButton::isAnimating() const
{
    return m_motion.isRunning() || m_ripple->isAnimating();
}

int QtMaterialAbstractButton::surfaceRadius() const
{
    return std::min({m_cornerRadius, std::max(0, surface().width() / 2), std::max(0, surface().height() / 2)});
}

QColor QtMaterialAbstractButton::baseColor() const
{
    return QtMaterialPaint::blended(QtMaterialStyle::instance().themeColor(m_colorKey),
                                    QtMaterialPaint::themeColor(QLatin1String("canvas")));
}

qreal QtMaterialAbstractButton::tint() const
{
    return m_motion.value(kTint);
}

qreal QtMaterialAbstractButton::lift() const
{
    return m_motion.value(kLift);
}

void QtMaterialAbstractButton::placeRipple()
{
    m_ripple->setSurface(m_margins, surfaceRadius());
}

void QtMaterialAbstractButton::showState()
{
    using State = QtMaterialInteractionStateMachine::State;
    const State state = m_state.state();
    m_motion.moveTo(kTint, m_state.tint(), kStateTime);
    m_motion.moveTo(kLift, state == State::Hovered || state == State::Pressed ? 1.0 : 0.0, kStateTime);
    if (state == State::Disabled)
        m_ripple->release();
    update();
}

void QtMaterialAbstractButton::onPressed()
{
    m_state.setPressed(true);
    m_ripple->setColor(QtMaterialPaint::withOpacity(contentColor(), kWaveOpacity));
    m_ripple->press(m_pressPoint.value_or(QRectF(surface()).center()));
    showState();
}

void QtMaterialAbstractButton::onReleased()
{
    m_state.setPressed(false);
    m_ripple->release();
    showState();
}

bool QtMaterialAbstractButton::event(QEvent *event)
{
    // The state first: a slot that is called by a click may delete the button.
    if (m_state.apply(*event, isEnabled()))
        showState();
    const bool polished = event->type() == QEvent::Polish || event->type() == QEvent::StyleChange;
    const bool handled = QPushButton::event(event);
    if (polished) // only now the minimum height of the style sheet is known, which layouts prefer to minimumSizeHint()
        setMinimumHeight(std::max(minimumHeight(), kTouchHeight + m_margins.top() + m_margins.bottom()));
    return handled;
}

// Qt presses buttons with Enter in dialogs only; here it works on pages too.
void QtMaterialAbstractButton::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter)
        QPushButton::keyPressEvent(event);
    else if (!event->isAutoRepeat()) // a key that is held down clicks once
        click();
}

void QtMaterialAbstractButton::mousePressEvent(QMouseEvent *event)
{
    m_pressPoint = event->localPos();
    QPushButton::mousePressEvent(event);
}

void QtMaterialAbstractButton::mouseReleaseEvent(QMouseEvent *event)
{
    m_pressPoint.reset(); // the next press may come from the keyboard
    QPushButton::mouseReleaseEvent(event);
}

void QtMaterialAbstractButton::resizeEvent(QResizeEvent *event)
{
    QPushButton::resizeEvent(event);
    placeRipple();
}

QFont QtMaterialAbstractButton::labelFont() const
{
    QFont result = font();
    result.setWeight(std::max(result.weight(), static_cast<int>(QFont::Medium)));
    return result;
}

int QtMaterialAbstractButton::labelFlags() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const bool underlined = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) != 0;
    return Qt::AlignCenter | (underlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
}

QSize QtMaterialAbstractButton::labelSize() const
{
    return text().isEmpty() ? QSize(0, 0) : QFontMetrics(labelFont()).size(Qt::TextShowMnemonic, text());
}

QSize QtMaterialAbstractButton::contentSize() const
{
    const QSize label = labelSize();
    if (icon().isNull())
        return label;
    const int gap = text().isEmpty() ? 0 : kIconGap;
    return {label.width() + gap + iconSize().width(), std::max(label.height(), iconSize().height())};
}

QSize QtMaterialAbstractButton::sizeHint() const
{
    ensurePolished();
    const QSize content = contentSize();
    const int textHeight = labelSize().height() + QFontMetrics(labelFont()).height(); // with space above and below
    return QSize(std::max(kLeastWidth, content.width() + 2 * kSidePadding),
                 std::max({kTouchHeight, textHeight, content.height() + kIconGap}))
        .grownBy(m_margins)
        .expandedTo(minimumSize());
}

QSize QtMaterialAbstractButton::minimumSizeHint() const
{
    return sizeHint();
}

void QtMaterialAbstractButton::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    paintSurface(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QtMaterialPaint::withOpacity(contentColor(), tint()));
    painter.drawRoundedRect(surface(), surfaceRadius(), surfaceRadius());
    paintContent(painter);
    if (m_state.isFocusShown())
        QtMaterialPaint::drawFocusRing(painter, QRectF(surface()).adjusted(2, 2, -2, -2), surfaceRadius(),
                                       contentColor());
}

void QtMaterialAbstractButton::paintContent(QPainter &painter) const
{
    const QRect area = surface().adjusted(kSidePadding / 2, 0, -kSidePadding / 2, 0);
    QRect content(QPoint(0, 0), contentSize().boundedTo(area.size()));
    content.moveCenter(area.center());
    if (!icon().isNull()) {
        const QRect place =
            QStyle::alignedRect(layoutDirection(), Qt::AlignLeading | Qt::AlignVCenter, iconSize(), content);
        paintIcon(painter, place);
        const int taken = place.width() + kIconGap;
        content.adjust(isLeftToRight() ? taken : 0, 0, isLeftToRight() ? 0 : -taken, 0);
    }
    if (!text().isEmpty())
        paintLabel(painter, content);
}

void QtMaterialAbstractButton::paintIcon(QPainter &painter, const QRect &place) const
{
    const QIcon::State state = isChecked() ? QIcon::On : QIcon::Off;
    if (!m_iconTinted) {
        icon().paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled, state);
        return;
    }
    // In a separate pixmap: on the button, the composition would replace what is painted already.
    const qreal ratio = devicePixelRatioF();
    QPixmap picture(place.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    const QRect whole(QPoint(0, 0), place.size());
    QPainter tinting(&picture);
    icon().paint(&tinting, whole, Qt::AlignCenter, QIcon::Normal, state);
    tinting.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tinting.fillRect(whole, contentColor());
    tinting.end();
    painter.drawPixmap(place.topLeft(), picture);
}

void QtMaterialAbstractButton::paintLabel(QPainter &painter, const QRect &area) const
{
    const QFont labelsFont = labelFont();
    painter.setFont(labelsFont);
    painter.setPen(contentColor());
    const bool fits = labelSize().width() <= area.width() || text().contains(QLatin1Char('\n'));
    const QString shown =
        fits ? text() : QFontMetrics(labelsFont).elidedText(text(), Qt::ElideRight, area.width(), Qt::TextShowMnemonic);
    painter.drawText(area, labelFlags() | Qt::TextDontClip, shown);
}
