#pragma once

#include <QPlainTextEdit>
#include <QString>

class QLineEdit;

/// Fields for texts of limited length that both the program and the user change.
namespace textfield {

/// Shows a text, if it is another one, without moving the cursor further than it must. The user can type up to
/// `longest` characters; a text that is longer is shown whole and can be shortened.
void show(QLineEdit *field, const QString &text, int longest);

} // namespace textfield

/// A text of several lines that takes no more than kLongest characters; of what is too long, the end is left out.
class LongTextEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    static constexpr int kLongest = 20000;

    explicit LongTextEdit(QWidget *parent = nullptr);
    /// Shows a text whole, however long it is; emits nothing.
    void showText(const QString &text);

signals:
    void edited();

private:
    void cut();

    int m_longest = kLongest;
    int m_insertedEnd = 0; ///< position behind what was last put in
};
