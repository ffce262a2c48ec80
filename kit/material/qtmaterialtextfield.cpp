#include "kit/material/qtmaterialtextfield.h"

#include "kit/material/qtmaterialpaint.h"
#include "kit/material/qtmaterialpalette.h"
#include "kit/material/qtmaterialstyle.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace {

using QtMaterialPaint::themeColor;
using State = QtMaterialTextFieldStateMachine::State;

enum Track { kLabelTrack, kLineTrack, kTrackCount };

constexpr int kInset = QtMaterialTextFieldPlaces::kInset;
constexpr int kStateTime = 180;       // ms
constexpr int kDefaultLength = 32767; // the default of QLineEdit

} // namespace

QtMaterialTextField::QtMaterialTextField(QWidget *parent)
    : QLineEdit(parent)
    , m_motion(this, kTrackCount)
{
    setFrame(false);
    connect(this, &QLineEdit::textChanged, this, &QtMaterialTextField::showState);
    connect(&QtMaterialStyle::instance(), &QtMaterialStyle::themeChanged, this, &QtMaterialTextField::takeTheme);
    connect(&m_motion, &QtMaterialMotion::stepped, this, &QtMaterialTextField::showPlaceholder);
    takeTheme();
    fitRoom();
}

QtMaterialTextField::QtMaterialTextField(const QString &label, QWidget *parent)
    : QtMaterialTextField(parent)
{
    setLabel(label);
}

// --- What it says ---

void QtMaterialTextField::setLabel(const QString &label)
{
    if (accessibleName() == m_label)
        setAccessibleName(label);
    m_label = label;
    m_state.setLabelled(!label.isEmpty());
    fitRoom();
    showState();
}

void QtMaterialTextField::setHelperText(const QString &text)
{
    m_helperText = text;
    fitRoom();
    describe();
}

void QtMaterialTextField::setErrorText(const QString &text)
{
    if (text == m_errorText)
        return;
    m_errorText = text;
    m_state.setWrong(!text.isEmpty());
    fitRoom();
    describe();
    showState();
    if (text.isEmpty() || !isVisible())
        return;
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void QtMaterialTextField::describe()
{
    if (accessibleDescription() == m_description) // otherwise the program set another one
        setAccessibleDescription(supportText());
    m_description = supportText();
    update();
}

void QtMaterialTextField::setCounterShown(bool shown)
{
    m_counterShown = shown;
    fitRoom();
}

void QtMaterialTextField::setClearable(bool clearable)
{
    m_clearable = clearable;
    fitRoom();
}

void QtMaterialTextField::setSupportReserved(bool kept)
{
    m_supportReserved = kept;
    fitRoom();
}

QString QtMaterialTextField::supportText() const
{
    return m_errorText.isEmpty() ? m_helperText : m_errorText;
}

QString QtMaterialTextField::counterText() const
{
    if (!m_counterShown)
        return {};
    const QString count = QString::number(text().size());
    return maxLength() == kDefaultLength ? count : QStringLiteral("%1 / %2").arg(count, QString::number(maxLength()));
}

// --- Room ---

QtMaterialTextFieldPlaces QtMaterialTextField::places() const
{
    QtMaterialTextFieldPlaces result;
    result.field = size();
    result.direction = layoutDirection();
    result.textHeight = fontMetrics().height();
    result.smallFont = QtMaterialTextFieldPlaces::smaller(font());
    result.counter = counterText();
    result.hasLabel = !m_label.isEmpty();
    result.hasSupport = m_supportReserved || m_counterShown || !supportText().isEmpty();
    result.hasCross = m_clearable;
    return result;
}

void QtMaterialTextField::fitRoom()
{
    const QtMaterialTextFieldPlaces fitting = places();
    setTextMargins(fitting.textMargins());
    // Layouts prefer the minimum height of a style sheet to the field's size hint.
    if (minimumHeight() < fitting.height() || minimumHeight() == m_ownMinimumHeight) {
        m_ownMinimumHeight = fitting.height();
        setMinimumHeight(m_ownMinimumHeight);
    }
    update();
}

QRect QtMaterialTextField::clearRect() const
{
    const bool isShown = m_clearable && !text().isEmpty() && !isReadOnly() && isEnabled();
    return isShown ? places().crossRect() : QRect();
}

// --- State ---

void QtMaterialTextField::takeTheme()
{
    // Only the widget's own sheet overrides the colours that the application's sheet has for line edits.
    const auto name = [](const char *key) { return themeColor(QLatin1String(key)).name(QColor::HexArgb); };
    setStyleSheet(QStringLiteral("QtMaterialTextField{background:transparent;color:%1;selection-background-color:%2;"
                                 "selection-color:%3;}QtMaterialTextField:disabled{color:%4;}")
                      .arg(name("text"), name("primary1"), name("alternateText"), name("disabled")));
    showState();
}

void QtMaterialTextField::showPlaceholder()
{
    QColor color = themeColor(QLatin1String("primary3"));
    const bool labelAway = m_label.isEmpty() || m_motion.value(kLabelTrack) >= 1.0;
    if (!m_state.isPlaceholderShown() || !labelAway)
        color.setAlpha(0);
    QPalette colors = palette();
    if (colors.color(QPalette::PlaceholderText) == color)
        return;
    colors.setColor(QPalette::PlaceholderText, color);
    setPalette(colors);
}

void QtMaterialTextField::showState()
{
    m_state.setEnabled(isEnabled());
    m_state.setFocused(hasFocus());
    m_state.setFilled(!text().isEmpty() || !displayText().isEmpty()); // an input mask shows its blanks

    m_motion.moveTo(kLabelTrack, m_state.isLabelFloating() ? 1.0 : 0.0, kStateTime);
    m_motion.moveTo(kLineTrack, m_state.isFocused() ? 1.0 : 0.0, kStateTime);
    showPlaceholder();
    update();
}

bool QtMaterialTextField::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && showWholeSupport(*static_cast<QHelpEvent *>(event)))
        return true;
    const bool handled = QLineEdit::event(event);
    switch (event->type()) {
    case QEvent::Polish:
        fitRoom();
        showPlaceholder();
        break;
    case QEvent::Show: // an input mask may have been set, which emits no signal
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        showState();
        break;
    case QEvent::Enter: // the line is darker under the mouse
    case QEvent::Leave:
        update();
        break;
    default:
        break;
    }
    return handled;
}

/// Shows a support text that is cut off in a tool tip. False if there is nothing to show.
bool QtMaterialTextField::showWholeSupport(const QHelpEvent &help)
{
    const QtMaterialTextFieldPlaces shown = places();
    const QRect place = shown.supportTextRect();
    const bool isCut = QFontMetrics(shown.smallFont).horizontalAdvance(supportText()) > place.width();
    if (!isCut || !place.contains(help.pos()))
        return false;
    QToolTip::showText(help.globalPos(), supportText(), this);
    return true;
}

void QtMaterialTextField::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        fitRoom();
        showPlaceholder();
        break;
    case QEvent::EnabledChange:
        m_clearPressed = false;
        showState();
        break;
    default:
        break;
    }
}

void QtMaterialTextField::mousePressEvent(QMouseEvent *event)
{
    m_clearPressed = event->button() == Qt::LeftButton && clearRect().contains(event->pos());
    if (!m_clearPressed)
        QLineEdit::mousePressEvent(event);
}

void QtMaterialTextField::mouseMoveEvent(QMouseEvent *event)
{
    const bool overText = !isReadOnly() && !clearRect().contains(event->pos());
    const Qt::CursorShape shape = overText ? Qt::IBeamCursor : Qt::ArrowCursor;
    if (cursor().shape() != shape) {
        setCursor(shape);
        update(); // the cross is highlighted under the mouse
    }
    if (!m_clearPressed)
        QLineEdit::mouseMoveEvent(event);
}

void QtMaterialTextField::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_clearPressed) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    m_clearPressed = false;
    if (!clearRect().contains(event->pos()))
        return;
    clear();
    emit textEdited(text());
}

// --- Painting ---

QColor QtMaterialTextField::accentColor() const
{
    switch (m_state.state()) {
    case State::Disabled:
        return themeColor(QLatin1String("disabled"));
    case State::Wrong:
        return QtMaterialPalette::red700();
    case State::Focused:
        return themeColor(QLatin1String("primary1"));
    case State::Resting:
        break;
    }
    return themeColor(QLatin1String("primary3"));
}

void QtMaterialTextField::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!m_label.isEmpty())
        paintLabel(painter);
    paintLine(painter);
    if (places().supportRoom() > 0)
        paintSupport(painter);
    if (!clearRect().isEmpty())
        paintCross(painter);
}

void QtMaterialTextField::paintLabel(QPainter &painter) const
{
    const qreal risen = m_motion.value(kLabelTrack);
    const QFontMetrics metrics = fontMetrics();
    const QMargins margins = textMargins();
    const qreal resting = (margins.top() + height() - margins.bottom() - metrics.height()) / 2.0;
    const qreal scale = 1.0 + (QtMaterialTextFieldPlaces::kSmall - 1.0) * risen;
    const int room = qRound((width() - 2 * kInset) / scale);
    const QString shown = metrics.elidedText(m_label, Qt::ElideRight, room);
    painter.save();
    painter.translate(isLeftToRight() ? kInset : width() - kInset, resting * (1.0 - risen));
    painter.scale(scale, scale);
    painter.setPen(accentColor());
    const int left = isLeftToRight() ? 0 : -metrics.horizontalAdvance(shown);
    painter.drawText(left, metrics.ascent(), shown);
    painter.restore();
}

void QtMaterialTextField::paintLine(QPainter &painter) const
{
    const qreal y = places().lineY();
    const qreal middle = width() / 2.0;
    const bool firm = isEnabled() && !isReadOnly();
    const bool noticed = underMouse() || m_state.state() == State::Wrong;
    const QColor thin = noticed || !firm ? accentColor() : themeColor(QLatin1String("accent3"));
    painter.setPen(QPen(thin, 1.0, firm ? Qt::SolidLine : Qt::DotLine));
    painter.drawLine(QPointF(0, y + 0.5), QPointF(width(), y + 0.5));
    const qreal out = m_motion.value(kLineTrack);
    if (out > 0.0)
        painter.fillRect(QRectF(middle - middle * out, y, width() * out, 2.0), accentColor());
}

void QtMaterialTextField::paintSupport(QPainter &painter) const
{
    const QtMaterialTextFieldPlaces shown = places();
    painter.setFont(shown.smallFont);
    const bool plain = m_state.state() == State::Focused;
    painter.setPen(plain ? themeColor(QLatin1String("primary3")) : accentColor());
    const int flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading)) | Qt::AlignVCenter;
    const QRect place = shown.supportTextRect();
    painter.drawText(place, flags, painter.fontMetrics().elidedText(supportText(), Qt::ElideRight, place.width()));
    const int end = static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignTrailing)) | Qt::AlignVCenter;
    painter.drawText(shown.supportRect(), end, shown.counter);
}

void QtMaterialTextField::paintCross(QPainter &painter) const
{
    const QMargins margins = textMargins();
    const qreal half = fontMetrics().height() * 0.22;
    const qreal x = isLeftToRight() ? width() - margins.right() / 2.0 : margins.left() / 2.0;
    const QPointF centre(x, (margins.top() + height() - margins.bottom()) / 2.0);
    const bool pointed = underMouse() && clearRect().contains(mapFromGlobal(QCursor::pos()));
    painter.setPen(QPen(themeColor(pointed ? QLatin1String("primary1") : QLatin1String("primary3")), 2.0, Qt::SolidLine,
                        Qt::RoundCap));
    painter.drawLine(centre - QPointF(half, half), centre + QPointF(half, half));
    painter.drawLine(centre - QPointF(half, -half), centre + QPointF(half, -half));
}
