#pragma once

#include <QLayout>
#include <QVector>

/// Lays out groups of controls in lines from left to right and breaks a line where the next group does not fit, so that
/// the same controls take several lines in a narrow window and few in a wide one. A group that expands is measured by
/// its smallest width for that. A group may contain such a layout itself. The rest of a line is given to the groups
/// with a stretch factor; if there are none, first to those whose size hint is wider, then to the gaps in equal shares.
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
    /// As wide as the widest group that cannot break, as high as the present width requires.
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    struct Line
    {
        QVector<QLayoutItem *> items;
        int width = 0;  ///< of the items at their least width and the gaps between them
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
