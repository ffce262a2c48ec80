#include "view/project/textfield.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QTextDocument>

#include <algorithm>

void textfield::show(QLineEdit *field, const QString &text, int longest)
{
    const int room = std::max(longest, text.size());
    if (field->text() == text && field->maxLength() == room)
        return;
    const int cursor = field->cursorPosition(); // both of the next move it
    field->setMaxLength(room);
    field->setText(text);
    field->setCursorPosition(field->hasFocus() ? std::min(cursor, text.size()) : 0); // a long one from its beginning
}

LongTextEdit::LongTextEdit(QWidget *parent)
    : QPlainTextEdit(parent)
{
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int position, int /*removed*/, int added) { m_insertedEnd = position + added; });
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        cut();
        emit edited();
    });
}

void LongTextEdit::showText(const QString &text)
{
    const QSignalBlocker blocker(this);
    const int cursor = textCursor().position();
    setPlainText(text);
    m_longest = std::max(kLongest, text.size());
    QTextCursor place = textCursor();
    place.setPosition(hasFocus() ? std::min(cursor, text.size()) : 0);
    setTextCursor(place);
}

void LongTextEdit::cut()
{
    const int excess = document()->characterCount() - 1 - m_longest; // the last one is the end of the document
    if (excess <= 0)
        return;
    const QSignalBlocker blocker(this);
    QTextCursor end(document());
    end.setPosition(std::max(0, std::min(m_insertedEnd, document()->characterCount() - 1) - excess));
    end.setPosition(std::min(m_insertedEnd, document()->characterCount() - 1), QTextCursor::KeepAnchor);
    end.removeSelectedText();
}
