#include "kit/material/qtmaterialoverlaywidget.h"

#include <QEvent>

QtMaterialOverlayWidget::QtMaterialOverlayWidget(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    followParent();
}

void QtMaterialOverlayWidget::followParent()
{
    if (parent() == nullptr)
        return;
    parent()->installEventFilter(this);
    coverParent();
}

void QtMaterialOverlayWidget::coverParent()
{
    if (parentWidget() != nullptr && geometry() != parentWidget()->rect())
        setGeometry(parentWidget()->rect());
}

bool QtMaterialOverlayWidget::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ParentAboutToChange:
        if (parent() != nullptr)
            parent()->removeEventFilter(this);
        break;
    case QEvent::ParentChange:
        followParent();
        break;
    case QEvent::Move: // a parent that scrolls takes its children along
        coverParent();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

bool QtMaterialOverlayWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        coverParent();
    return QWidget::eventFilter(watched, event);
}
