#include "view/window/prompts/typingguard.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

TypingGuard::TypingGuard(QWidget *dialog, int pause)
    : QObject(dialog)
    , m_dialog(dialog)
    , m_pause(pause)
    , m_over(pause <= 0)
{
    m_sinceKey.start();
    // On the application: a button's key that stands for its letter never reaches the dialog itself.
    qApp->installEventFilter(this);
}

TypingGuard::~TypingGuard()
{
    qApp->removeEventFilter(this);
}

bool TypingGuard::isForDialog(const QObject *receiver) const
{
    if (receiver == m_dialog->windowHandle())
        return true;
    const auto *widget = qobject_cast<const QWidget *>(receiver);
    return widget && widget->window() == m_dialog;
}

bool TypingGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (m_over)
        return false;
    const QEvent::Type type = event->type();
    if (type == QEvent::Show && watched == m_dialog)
        m_sinceKey.start();
    const bool isKey = type == QEvent::KeyPress || type == QEvent::ShortcutOverride || type == QEvent::Shortcut;
    if (!isKey || !isForDialog(watched))
        return false;
    m_over = m_sinceKey.elapsed() >= m_pause;
    m_sinceKey.start();
    return !m_over;
}
