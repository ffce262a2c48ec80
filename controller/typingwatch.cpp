#include "controller/typingwatch.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace {

bool isField(const QObject *object)
{
    return qobject_cast<const QLineEdit *>(object) || qobject_cast<const QAbstractSpinBox *>(object)
           || qobject_cast<const QTextEdit *>(object) || qobject_cast<const QPlainTextEdit *>(object);
}

} // namespace

TypingWatch::TypingWatch(int pause)
    : m_pause(pause)
{
    qApp->installEventFilter(this);
}

TypingWatch::~TypingWatch()
{
    if (qApp)
        qApp->removeEventFilter(this);
}

bool TypingWatch::isTyping() const
{
    return m_sinceKey.isValid() && m_sinceKey.elapsed() < m_pause;
}

bool TypingWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && isField(watched))
        m_sinceKey.start();
    return false;
}
