#include "view/common/elidedlabel.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>

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
    // Elided only here: text() has to stay whole for screen readers and the tool tip.
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
