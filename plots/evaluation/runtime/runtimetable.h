#pragma once

#include "plots/evaluation/common/shottable.h"

#include <vector>

class Model;
class RuntimeTableModel;
struct ShotRuntime;

/// The table of the runtimes, with columns that fit their texts.
class RuntimeTable final : public ShotTable
{
    Q_OBJECT

public:
    explicit RuntimeTable(QWidget *parent = nullptr);

    /// One result per shot of the model.
    void showResults(const Model &model, const std::vector<ShotRuntime> &results);
    [[nodiscard]] int numShots() const;
    /// Clears the selection and the current row.
    void forgetChoice();

protected:
    void retranslateUi() override;
    void showEvent(QShowEvent *event) override;

private:
    void fitColumns();

    RuntimeTableModel *m_rows = nullptr;
};
