#pragma once

#include <QTableWidget>

struct Comparison;

/// Two records side by side, one line per field. Fields that differ are bold and carry a mark, so that they are found
/// without seeing colours. For reading only; the keyboard stays with the buttons of the box around it.
class ComparisonTable : public QTableWidget
{
    Q_OBJECT

public:
    enum Column { Mark, Name, Current, Offered, NumColumns };

    explicit ComparisonTable(const Comparison &comparison, QWidget *parent = nullptr);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void addRow(int row, const QString &name, const QString &current, const QString &offered, bool isDifferent);
    void fitColumns();
};
