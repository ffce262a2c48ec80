#include "view/window/prompts/closablebox.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QTextDocument>
#include <QTextOption>

bool ClosableBox::event(QEvent *event)
{
    const bool handled = QMessageBox::event(event);
    // Qt breaks lines anywhere in a box that is wider than it likes, and decides on that with every layout.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show)
        breakLinesBetweenWords();
    return handled;
}

void ClosableBox::breakLinesBetweenWords()
{
    const auto documents = findChildren<QTextDocument *>(); // of the labels
    for (QTextDocument *document : documents) {
        QTextOption option = document->defaultTextOption();
        if (option.wrapMode() != QTextOption::WrapAnywhere)
            continue;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere); // anywhere only within long paths
        document->setDefaultTextOption(option);
    }
}

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
