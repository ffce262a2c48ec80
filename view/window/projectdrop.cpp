#include "view/window/projectdrop.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

QString draggedProject(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile())
        return {};
    const QString file = urls.front().toLocalFile();
    const bool isProject = file.endsWith(QLatin1String(".vnt"), Qt::CaseInsensitive) && QFileInfo(file).isFile();
    return isProject ? file : QString();
}

ProjectDrop::ProjectDrop(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    window->setAcceptDrops(true);
    qApp->installEventFilter(this);
}

bool ProjectDrop::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return false;
    const auto *widget = qobject_cast<QWidget *>(watched);
    return widget && widget->window() == m_window && take(static_cast<QDropEvent *>(event));
}

bool ProjectDrop::take(QDropEvent *event)
{
    const QString file = draggedProject(*event->mimeData());
    if (file.isEmpty())
        return false;
    // Never a move: the file manager would then remove its file. While a dialog is open no project can be opened.
    if (!(event->possibleActions() & Qt::CopyAction) || QApplication::activeModalWidget()) {
        event->ignore();
        return true;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // Opening may ask a question; the program that the file comes from must not wait for the answer.
    if (event->type() == QEvent::Drop)
        QTimer::singleShot(0, this, [this, file] { emit dropped(file); });
    return true;
}
