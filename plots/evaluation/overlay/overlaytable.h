#pragma once

#include "plots/evaluation/common/shottable.h"

#include <vector>

class OverlayTableModel;
class QSortFilterProxyModel;
struct OverlayRow;

/// The table of the overlay's shots, which can be sorted. Shots are numbers of the model, whatever row they are in.
/// What the user changes is reported and not kept here.
class OverlayTable final : public ShotTable
{
    Q_OBJECT

public:
    explicit OverlayTable(QWidget *parent = nullptr);

    void setRows(std::vector<OverlayRow> rows);
    /// -1 if there is none.
    [[nodiscard]] int currentShot() const;
    /// For each of the first `count` shots whether its row is selected.
    [[nodiscard]] std::vector<bool> selectedShots(int count) const;
    /// Clears the selection and the current row.
    void forgetSelection();

signals:
    /// Other rows are selected, or another one is current.
    void choiceChanged();
    /// The user pressed the space key.
    void toggleWanted();
    void shownEdited(int shot, bool shown);
    void colorEdited(int shot, const QColor &color);
    void labelEdited(int shot, const QString &label);

protected:
    void retranslateUi() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setColumnWidths();

    OverlayTableModel *m_rows = nullptr;
    QSortFilterProxyModel *m_sorted = nullptr;
};
