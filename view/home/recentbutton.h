#pragma once

#include <QPushButton>

/// One entry of a list of what was used last: a bold title, below it in small grey type a detail, at the right of the
/// title a remark. What does not fit is left out in the middle; the owner sets the tool tip.
class RecentButton : public QPushButton
{
    Q_OBJECT

public:
    explicit RecentButton(QWidget *parent = nullptr);

    /// Without a detail the button has one line.
    void setEntry(const QString &title, const QString &detail = {}, const QString &remark = {});

    [[nodiscard]] QString title() const { return m_title; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QFont titleFont() const;
    [[nodiscard]] QFont smallFont() const;
    void paintTexts(QPainter &painter, QRect room) const;

    QString m_title;
    QString m_detail;
    QString m_remark;
};
