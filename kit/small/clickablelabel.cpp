#include "kit/small/clickablelabel.h"

#include "kit/logging.h"
#include "kit/material/qtmaterialpaint.h"
#include "kit/material/qtmaterialstyle.h"
#include "kit/small/accessiblefactory.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace {

constexpr int kMargin = 4; // pixels between the text and the frame that shows the focus
constexpr double kRadius = 3.0;
constexpr double kHoverTint = 0.08;
constexpr double kPressTint = 0.16;

QColor primary()
{
    return QtMaterialPaint::themeColor(QLatin1String("primary1"));
}

/// The accessible name if one was set, otherwise the text without mark-up.
QString nameOf(const QLabel &label)
{
    if (!label.accessibleName().isEmpty())
        return label.accessibleName();
    const bool isRich =
        label.textFormat() == Qt::RichText || (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
    return isRich ? QTextDocumentFragment::fromHtml(label.text()).toPlainText() : label.text();
}

/// To screen readers it is a button.
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

} // namespace

ClickableLabel::ClickableLabel(QWidget *parent)
    : ClickableLabel(QString(), parent)
{}

ClickableLabel::ClickableLabel(const QString &text, QWidget *parent)
    : QLabel(parent)
{
    installAccessible<ClickableLabel, AccessibleClickableLabel>();
    // Not in QLabel's constructor: screen readers would be told of a plain QLabel and remember it.
    setText(text);
    setMargin(kMargin);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    connect(&QtMaterialStyle::instance(), &QtMaterialStyle::themeChanged, this, qOverload<>(&QWidget::update));
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

void ClickableLabel::enterEvent(QEvent *event)
{
    QLabel::enterEvent(event);
    update();
}

void ClickableLabel::leaveEvent(QEvent *event)
{
    QLabel::leaveEvent(event);
    update();
}

void ClickableLabel::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton;
    update();
    event->setAccepted(m_pressed); // other buttons are for the widget below
}

// The second press of a double click counts like any other.
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
    update();
    if (isClick)
        click();
}

void ClickableLabel::drawFocus(QPainter &painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasFocus())
        QtMaterialPaint::drawFocusRing(painter, rect(), kRadius, primary());
}

void ClickableLabel::paintEvent(QPaintEvent *event)
{
    if (isEnabled() && underMouse()) {
        QPainter ground(this);
        ground.setRenderHint(QPainter::Antialiasing);
        ground.setPen(Qt::NoPen);
        ground.setBrush(QtMaterialPaint::withOpacity(primary(), m_pressed ? kPressTint : kHoverTint));
        ground.drawRoundedRect(rect(), kRadius, kRadius);
    }
    QLabel::paintEvent(event);
    QPainter painter(this);
    drawFocus(painter);
}
