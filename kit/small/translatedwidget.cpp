#include "kit/small/translatedwidget.h"

#include <QEvent>

void TranslatedWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}
