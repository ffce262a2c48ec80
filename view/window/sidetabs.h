#pragma once

#include <QTabBar>
#include <QTabWidget>

/// Tabs in a column at the left, their texts horizontal and wrapped at blanks; touch-friendly tall.
class SideTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit SideTabBar(QWidget *parent = nullptr);

protected:
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    [[nodiscard]] QSize minimumTabSizeHint(int index) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QFont tabFont() const;
    [[nodiscard]] QRect labelRect(int index) const;
    void drawLabel(QPainter &painter, int index) const;
};

/// A QTabWidget with a SideTabBar.
class SideTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit SideTabWidget(QWidget *parent = nullptr);
};
