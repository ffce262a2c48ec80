#pragma once

#include "plots/evaluation/common/shottable.h"
#include "plots/evaluation/values/quantitytablemodel.h"

/// The table of the values page: one row per shot and one column per quantity. Knows quantities by their position in
/// the content.
class ValuesTable final : public ShotTable
{
    Q_OBJECT

public:
    explicit ValuesTable(QWidget *parent = nullptr);

    /// Marks the column of the chosen quantity; -1: none. The current shot stays the same. Emits shotChosen() but not
    /// quantityChosen().
    void setContent(QuantityTableModel::Content content, int chosenQuantity);
    /// The shot of the current row; -1 if there is none.
    [[nodiscard]] int chosenShot() const;
    /// Makes the shot current, in the column of the chosen quantity, and scrolls to it.
    void chooseShot(int shot);
    /// Few columns share the width; many are as wide as they need to be.
    void fitColumns();

signals:
    /// The current row is another one; -1: none.
    void shotChosen(int shot);
    /// The user chose a column's title or one of its cells.
    void quantityChosen(int quantity);

protected:
    void retranslateUi() override;

private slots:
    void onCurrentChanged(const QModelIndex &current);
    void onHeader_sectionClicked(int section);

private:
    QuantityTableModel *m_rows = nullptr;
    bool m_isFilling = false;
};
