#pragma once

#include <QWidget>

/// Lies over its parent and covers it exactly, however that is resized, and whichever parent it gets. Lets the mouse
/// through to what is below unless Qt::WA_TransparentForMouseEvents is cleared. Paints nothing by itself.
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
