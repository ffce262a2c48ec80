#pragma once

#include <QLayout>
#include <QVector>

/// Lays groups of controls out in lines from left to right and breaks a line where the next group does not fit, so
/// that the same controls serve a narrow window in several lines and a wide one in few. Groups that expand count with
/// their smallest width there. A group may be such a layout itself. What remains of a line goes to the groups with a
/// stretch factor; without any, first to those that would like more, then in equal shares between the groups.
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    explicit FlowLayout(int horizontalGap, int verticalGap, QWidget *parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    [[nodiscard]] int count() const override { return static_cast<int>(m_items.size()); }
    [[nodiscard]] QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    /// All in one line.
    [[nodiscard]] QSize sizeHint() const override;
    /// As wide as the widest that does not break, as high as the present width demands.
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    struct Line
    {
        QVector<QLayoutItem *> items;
        int width = 0;  ///< of the items at their least and the gaps between them
        int wishes = 0; ///< what the items would like beyond that
        int height = 0;
    };

    [[nodiscard]] QVector<Line> linesFor(int width) const;
    void place(const Line &line, QRect area) const;
    void stretch(const Line &line, QRect area) const;
    void spread(const Line &line, QRect area) const;

    QVector<QLayoutItem *> m_items;
    int m_horizontalGap;
    int m_verticalGap;
};
