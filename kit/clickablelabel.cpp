#include "kit/clickablelabel.h"

#include "kit/accessibles.h"
#include "kit/logging.h"
#include "kit/qtmaterialpaint.h"
#include "kit/qtmaterialstyle.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int kMargin = 4; // pixels between the text and the frame that shows the focus

} // namespace

ClickableLabel::ClickableLabel(QWidget *parent)
    : ClickableLabel(QString(), parent)
{}

ClickableLabel::ClickableLabel(const QString &text, QWidget *parent)
    : QLabel(parent)
{
    installKitAccessibility();
    setText(text); // not by QLabel's constructor: screen readers would be told of a QLabel, and remember it
    setMargin(kMargin);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
}

void ClickableLabel::click()
{
    if (!isEnabled())
        return;
    qCDebug(lcKit) << "emit clicked()";
    emit clicked();
}

void ClickableLabel::focusInEvent(QFocusEvent *event)
{
    QLabel::focusInEvent(event);
    update();
}

void ClickableLabel::focusOutEvent(QFocusEvent *event)
{
    QLabel::focusOutEvent(event);
    update();
}

void ClickableLabel::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter) {
        QLabel::keyPressEvent(event);
        return;
    }
    if (!event->isAutoRepeat())
        click();
}

void ClickableLabel::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton;
    event->setAccepted(m_pressed); // other buttons are for whoever lies below
}

// The second press of a quick pair is a press like any other.
void ClickableLabel::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
}

void ClickableLabel::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const bool isClick = m_pressed && rect().contains(event->pos());
    m_pressed = false;
    if (isClick)
        click();
}

void ClickableLabel::drawFocus(QPainter &painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasFocus())
        QtMaterialPaint::drawFocusRing(painter, rect(), 3.0,
                                       QtMaterialStyle::instance().themeColor(QStringLiteral("primary1")));
}

void ClickableLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    QPainter painter(this);
    drawFocus(painter);
}
