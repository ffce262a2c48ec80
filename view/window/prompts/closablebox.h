#pragma once

#include <QMessageBox>

/// A message box that Escape and the window's close button always end, without any of its buttons: clickedButton() is
/// then nullptr. Qt's own box would press a button, or ignore both. Lines are broken between words.
class ClosableBox : public QMessageBox
{
    Q_OBJECT

public:
    using QMessageBox::QMessageBox;

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void breakLinesBetweenWords();
};
