#pragma once

#include <QObject>
#include <QTimer>

class Model;
class QLabel;
class QMainWindow;
class QStatusBar;

/// The window's status bar: messages of the program, at the right a mark while the demonstration runs, and the
/// project's file and whether it is modified. Updates the file by itself.
class StatusDisplay : public QObject
{
    Q_OBJECT

public:
    /// The window owns the bar; window and model must outlive this object.
    StatusDisplay(QMainWindow *window, const Model *model);

    /// For the time given in milliseconds, 0: until replaced. A status tip does not replace it meanwhile.
    void showMessage(const QString &text, int milliseconds);
    /// At the left end of the permanent widgets.
    void addWidget(QWidget *widget);
    void showDemo(bool running);
    /// Name and state of the project's file.
    void refreshFile();
    void retranslate();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] QString fileText() const;

    const Model *m_model;
    QStatusBar *m_bar;
    QLabel *m_demo;
    QLabel *m_file;
    QTimer m_messageTimer; // runs while a status tip must not replace a message of the program
};
