#include "view/window/mainwindow.h"

#include "app/theme.h"
#include "view/common/tabstyle.h"

MainWindow::MainWindow()
{
    setWindowTitle(theme::applicationName);
    setStyleSheet(tabstyle::windowSheet());
}

MainWindow::~MainWindow()
{
    // The widgets are destroyed after this object's own members: what they report on their way out must not reach them.
    const QList<QWidget *> widgets = findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        widget->disconnect(this);
}
