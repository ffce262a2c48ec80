#pragma once

#include <QWidget>

/// Lies over its parent and covers it exactly, also after the parent was resized or replaced. Lets the mouse through to
/// what is below unless Qt::WA_TransparentForMouseEvents is cleared. Paints nothing itself.
class QtMaterialOverlayWidget : public QWidget
{
    Q_OBJECT

public:
    explicit QtMaterialOverlayWidget(QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followParent();
    void coverParent();
};
