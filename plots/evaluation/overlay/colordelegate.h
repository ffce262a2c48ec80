#pragma once

#include <QColor>
#include <QStyledItemDelegate>

/// Shows a colour (the EditRole of a cell) as a swatch, and lets the user choose another from a list.
class ColorDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The colour of the n-th of many things: neighbours are easy to tell apart, and all are visible on white. A
    /// negative n counts as 0.
    [[nodiscard]] static QColor colorAt(int n);
    static constexpr int kNumChoices = 12;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    [[nodiscard]] QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
};
