#include "view/window/prompts/closablebox.h"

#include <QCloseEvent>
#include <QKeyEvent>

void ClosableBox::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel)) {
        done(Rejected);
        return;
    }
    QMessageBox::keyPressEvent(event);
}

void ClosableBox::closeEvent(QCloseEvent *event)
{
    event->accept();
    done(Rejected);
}
