#pragma once

#include <QElapsedTimer>
#include <QObject>

class QWidget;

/// Keeps keys away from a dialog that the user did not open and may not have seen yet: until no key has been pressed
/// for a while, keys do nothing in it. The mouse works at once.
class TypingGuard : public QObject
{
    Q_OBJECT

public:
    static constexpr int kUsualPause = 1000; ///< ms

    /// The dialog becomes the owner. The wait begins when it is shown; `pause` is in ms, 0 for no wait.
    TypingGuard(QWidget *dialog, int pause);
    ~TypingGuard() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isForDialog(const QObject *receiver) const;

    QWidget *m_dialog;
    QElapsedTimer m_sinceKey;
    int m_pause;
    bool m_over = false;
};
