#include "view/oscilloscope/oszirowcontrols.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOption>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>

namespace {

/// Room for the two step buttons at the sides and the frame.
constexpr int kSpinBoxSurround = 2 * 30 + 12;

void setUpSpinBox(QAbstractSpinBox &box)
{
    box.setKeyboardTracking(false);
    box.setAlignment(Qt::AlignCenter);
    box.setFocusPolicy(Qt::StrongFocus);
}

QSize spinBoxSize(const QAbstractSpinBox &box, const QString &sample, int height)
{
    return {box.fontMetrics().horizontalAdvance(sample) + kSpinBoxSurround, height};
}

} // namespace

OsziDoubleSpinBox::OsziDoubleSpinBox(const QString &sample, QWidget *parent)
    : DecimalSpinBox(parent)
    , m_sample(sample)
{
    setUpSpinBox(*this);
}

QString OsziDoubleSpinBox::textFromValue(double value) const
{
    QLocale plain = locale();
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    QString text = plain.toString(value, 'f', decimals());
    if (!text.contains(plain.decimalPoint()))
        return text;
    while (text.endsWith(plain.zeroDigit()))
        text.chop(1);
    if (text.endsWith(plain.decimalPoint()))
        text.chop(1);
    return text;
}

QSize OsziDoubleSpinBox::sizeHint() const
{
    return spinBoxSize(*this, m_sample, DecimalSpinBox::sizeHint().height());
}

QSize OsziDoubleSpinBox::minimumSizeHint() const
{
    return sizeHint();
}

void OsziDoubleSpinBox::showValue(double value)
{
    const QSignalBlocker blocker(this);
    setValue(value);
}

void OsziDoubleSpinBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        DecimalSpinBox::wheelEvent(event);
    else
        event->ignore();
}

OsziSpinBox::OsziSpinBox(const QString &sample, QWidget *parent)
    : QSpinBox(parent)
    , m_sample(sample)
{
    setUpSpinBox(*this);
}

QSize OsziSpinBox::sizeHint() const
{
    return spinBoxSize(*this, m_sample, QSpinBox::sizeHint().height());
}

QSize OsziSpinBox::minimumSizeHint() const
{
    return sizeHint();
}

void OsziSpinBox::showValue(int value)
{
    const QSignalBlocker blocker(this);
    setValue(value);
}

void OsziSpinBox::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QSpinBox::wheelEvent(event);
    else
        event->ignore();
}

ElidedLabel::ElidedLabel(int minimumCharacters, int maximumCharacters, QWidget *parent)
    : QLabel(parent)
    , m_minimumCharacters(minimumCharacters)
    , m_maximumCharacters(maximumCharacters)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::sizeHint() const
{
    return {std::min(textWidth(), widthOf(m_maximumCharacters)), QLabel::sizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {std::min(textWidth(), widthOf(m_minimumCharacters)), QLabel::minimumSizeHint().height()};
}

int ElidedLabel::textWidth() const
{
    return fontMetrics().horizontalAdvance(text()) + 2;
}

int ElidedLabel::widthOf(int characters) const
{
    return fontMetrics().averageCharWidth() * characters;
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    const QString elided = fontMetrics().elidedText(text(), m_elideMode, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), int(alignment()), option.palette, isEnabled(), elided,
                          foregroundRole());
}

void ElidedLabel::mouseReleaseEvent(QMouseEvent *event)
{
    QLabel::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        emit clicked();
}

bool ElidedLabel::event(QEvent *event)
{
    const bool cut = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
    if (event->type() != QEvent::ToolTip || !cut)
        return QLabel::event(event);
    const QString help = toolTip().isEmpty() ? text() : text() + QLatin1Char('\n') + toolTip();
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), Qt::convertFromPlainText(help), this);
    return true;
}
