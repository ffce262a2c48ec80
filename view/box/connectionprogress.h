#pragma once

#include <QFrame>

class QLabel;
class QPushButton;
class QShortcut;

/// The panel shown while connecting: centred on its window, 100 pixels high, half the window's width. A child of
/// the window rather than a window, so that it stays centred and blocks nothing.
class ConnectionProgress : public QFrame
{
    Q_OBJECT

public:
    static constexpr int kHeight = 100;

    explicit ConnectionProgress(QWidget *window);

    void showText(const QString &text);

signals:
    /// "Abbrechen" or the escape key.
    void cancelled();

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void centre();
    void retranslateUi();

    QLabel *m_label = nullptr;
    QPushButton *m_cancel = nullptr;
};
