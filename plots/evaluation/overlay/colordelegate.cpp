#include "plots/evaluation/overlay/colordelegate.h"

#include "app/theme.h"

#include <QComboBox>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QTimer>

#include <algorithm>

namespace {

constexpr QSize kIconSize(40, 20);

QIcon swatch(const QColor &color)
{
    QPixmap pixmap(kIconSize);
    pixmap.fill(color);
    return QIcon(pixmap);
}

} // namespace

QColor ColorDelegate::colorAt(int n)
{
    constexpr double kGoldenAngle = 137.508; // degrees; successive multiples stay far apart
    const int number = std::max(n, 0);
    const int hue = int(210.0 + number * kGoldenAngle) % 360;
    const bool isGlaring = hue > 40 && hue < 190; // yellow to cyan
    return QColor::fromHsv(hue, 220, isGlaring ? 150 : 205);
}

void ColorDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const QRect rect = option.rect.adjusted(6, 6, -6, -6);
    painter->fillRect(rect, index.data(Qt::EditRole).value<QColor>());
    painter->setPen(theme::qColorDark);
    painter->drawRect(rect.adjusted(0, 0, -1, -1));
}

QWidget *ColorDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const
{
    auto *box = new QComboBox(parent);
    box->setIconSize(kIconSize);
    for (int i = 0; i < kNumChoices; ++i)
        box->addItem(swatch(colorAt(i)), QString(), colorAt(i));
    const auto current = index.data(Qt::EditRole).value<QColor>();
    if (box->findData(current) < 0) // the automatic colours go on after those on offer
        box->addItem(swatch(current), QString(), current);
    // One click chooses: without this the editor would stay open until it loses the focus.
    connect(box, qOverload<int>(&QComboBox::activated), this, [this, box] {
        auto *self = const_cast<ColorDelegate *>(this); // createEditor() is const, the signals are not
        emit self->commitData(box);
        emit self->closeEditor(box);
    });
    QTimer::singleShot(0, box, &QComboBox::showPopup); // the user wants the list, not a closed box
    return box;
}

void ColorDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *box = qobject_cast<QComboBox *>(editor))
        box->setCurrentIndex(box->findData(index.data(Qt::EditRole).value<QColor>()));
}

void ColorDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    if (const auto *box = qobject_cast<QComboBox *>(editor))
        model->setData(index, box->currentData().value<QColor>(), Qt::EditRole);
}

/// Wider than the cell, which has no room for a usable list.
void ColorDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &) const
{
    QRect rect = option.rect;
    rect.setWidth(std::max(rect.width(), editor->sizeHint().width()));
    editor->setGeometry(rect);
}
